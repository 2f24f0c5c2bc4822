#include <tern7/core/corekit/strings.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace tern7 {

namespace {

/// Bytes above 127 belong to letters of UTF-8.
bool IsWordChar(char c) {
    return IsLetter(c) || IsDigit(c) || c == '_' || static_cast<unsigned char>(c) > 127;
}

std::string ReplaceFound(std::string_view text, std::string_view searched, std::string_view from,
                         std::string_view to) {
    if (from.empty()) return std::string(text);
    std::string result;
    size_t start = 0;
    for (size_t hit; (hit = searched.find(from, start)) != std::string_view::npos;
         start = hit + from.size())
        result.append(text.substr(start, hit - start)).append(to);
    return result.append(text.substr(start));
}

} // namespace

std::string LowerCase(std::string_view text) {
    std::string result(text);
    for (char& c : result)
        c = LowerChar(c);
    return result;
}

std::string UpperCase(std::string_view text) {
    std::string result(text);
    for (char& c : result)
        c = UpperChar(c);
    return result;
}

bool SameText(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (a[i] != b[i] && LowerChar(a[i]) != LowerChar(b[i])) return false;
    return true;
}

bool StartsText(std::string_view text, std::string_view prefix) {
    return SameText(text.substr(0, prefix.size()), prefix);
}

size_t TTextHash::operator()(std::string_view text) const {
    // Bit 0x20 set in every byte: texts that differ in the case of letters only get the same hash.
    constexpr uint64_t caseBits = 0x2020202020202020u;
    constexpr uint64_t factor = 0x9E3779B97F4A7C15u;
    uint64_t hash = text.size() * factor;
    while (!text.empty()) {
        uint64_t word = 0;
        const size_t count = std::min(text.size(), sizeof word);
        std::memcpy(&word, text.data(), count);
        hash = (hash ^ (word | caseBits)) * factor;
        hash ^= hash >> 29;
        text.remove_prefix(count);
    }
    // a last character counts in the lowest bits too: that is where numbered names differ
    hash = (hash ^ (hash >> 32)) * factor;
    return static_cast<size_t>(hash ^ (hash >> 29));
}

std::string_view TrimLeft(std::string_view text) {
    while (!text.empty() && IsSpace(text.front()))
        text.remove_prefix(1);
    return text;
}

std::string_view TrimRight(std::string_view text) {
    while (!text.empty() && IsSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

std::string_view Trim(std::string_view text) {
    return TrimLeft(TrimRight(text));
}

bool StrInList(std::string_view text, const TStrings& list) {
    return std::any_of(list.begin(), list.end(),
                       [text](const std::string& item) { return SameText(item, text); });
}

bool EqualToSpaces(std::string_view a, std::string_view b) {
    size_t i = 0, j = 0;
    for (;;) {
        while (i < a.size() && IsSpace(a[i]))
            ++i;
        while (j < b.size() && IsSpace(b[j]))
            ++j;
        if (i == a.size() || j == b.size()) return i == a.size() && j == b.size();
        if (a[i++] != b[j++]) return false;
    }
}

bool SameSQLText(std::string_view a, std::string_view b) {
    size_t i = 0, k = 0;
    for (bool inLiteral = false;;) {
        while (!inLiteral && i < a.size() && IsSpace(a[i]))
            ++i;
        while (!inLiteral && k < b.size() && IsSpace(b[k]))
            ++k;
        if (i == a.size() || k == b.size()) return i == a.size() && k == b.size();
        const char c = a[i++], d = b[k++];
        if (c != d && (inLiteral || LowerChar(c) != LowerChar(d))) return false;
        if (c == '\'') inLiteral = !inLiteral;
    }
}

bool ContainsAsWholeWord(std::string_view text, std::string_view word) {
    if (word.empty()) return false;
    const std::string searched = LowerCase(text), wanted = LowerCase(word);
    for (size_t hit = searched.find(wanted); hit != std::string::npos;
         hit = searched.find(wanted, hit + 1)) {
        const size_t behind = hit + wanted.size();
        if ((hit == 0 || !IsWordChar(text[hit - 1])) &&
            (behind == text.size() || !IsWordChar(text[behind])))
            return true;
    }
    return false;
}

std::string_view GetBeforeSep(std::string_view text, std::string_view separator) {
    return separator.empty() ? text : text.substr(0, text.find(separator));
}

std::string_view GetAfterSep(std::string_view text, std::string_view separator) {
    const size_t hit = separator.empty() ? std::string_view::npos : text.find(separator);
    return hit == std::string_view::npos ? std::string_view() : text.substr(hit + separator.size());
}

std::string ReplaceStr(std::string_view text, std::string_view from, std::string_view to) {
    return ReplaceFound(text, text, from, to);
}

std::string XReplaceStr(std::string_view text, std::string_view from, std::string_view to) {
    return ReplaceFound(text, LowerCase(text), LowerCase(from), to);
}

std::string QuotedString(std::string_view text, char quote) {
    std::string result(1, quote);
    result.reserve(text.size() + 2);
    for (char c : text) {
        if (c == quote) result += quote;
        result += c;
    }
    return result += quote;
}

std::string UnquotedString(std::string_view text, char quote) {
    if (text.size() < 2 || text.front() != quote || text.back() != quote) return std::string(text);
    const std::string_view inner = text.substr(1, text.size() - 2);
    std::string result;
    result.reserve(inner.size());
    for (size_t i = 0; i < inner.size(); ++i) {
        // A quote that stands alone inside: the text is more than one quoted string.
        if (inner[i] == quote && (++i == inner.size() || inner[i] != quote))
            return std::string(text);
        result += inner[i];
    }
    return result;
}

size_t CharCount(std::string_view text, char c) {
    return static_cast<size_t>(std::count(text.begin(), text.end(), c));
}

std::string Replicate(std::string_view piece, size_t count) {
    std::string result;
    result.reserve(piece.size() * count);
    while (count-- > 0)
        result.append(piece);
    return result;
}

std::string JoinStrings(const TStrings& lines, std::string_view separator) {
    std::string result;
    for (size_t i = 0; i < lines.size(); ++i) {
        if (i > 0) result.append(separator);
        result.append(lines[i]);
    }
    return result;
}

TStrings SplitLines(std::string_view text) {
    TStrings result;
    while (!text.empty()) {
        const size_t end = std::min(text.find_first_of("\r\n"), text.size());
        result.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
        if (text.substr(0, 2) == "\r\n")
            text.remove_prefix(2);
        else if (!text.empty())
            text.remove_prefix(1);
    }
    return result;
}

std::string_view LineName(std::string_view line) {
    const size_t hit = line.find('=');
    return hit == std::string_view::npos ? std::string_view() : line.substr(0, hit);
}

std::string_view LineValue(std::string_view line) {
    return GetAfterSep(line, "=");
}

std::string ValueOf(const TStrings& lines, std::string_view name) {
    const int index = IndexOfName(lines, name);
    return index < 0 ? std::string() : std::string(LineValue(lines[static_cast<size_t>(index)]));
}

int IndexOfName(const TStrings& lines, std::string_view name) {
    for (size_t i = 0; i < lines.size(); ++i)
        if (lines[i].find('=') != std::string::npos && SameText(LineName(lines[i]), name))
            return static_cast<int>(i);
    return -1;
}

std::string FormatMessage(std::string_view format,
                          std::initializer_list<std::string_view> arguments) {
    std::string result;
    for (std::string_view argument : arguments) {
        const size_t hit = std::min(format.find("%s"), format.find("%d"));
        if (hit == std::string_view::npos) break;
        result.append(format.substr(0, hit)).append(argument);
        format.remove_prefix(hit + 2);
    }
    return result.append(format);
}

} // namespace tern7
