#include <algorithm>

#include <tern7/core/structure/structure.h>

namespace tern7 {

namespace {

bool IsUpper(char c) {
    return c >= 'A' && c <= 'Z';
}
bool IsLower(char c) {
    return c >= 'a' && c <= 'z';
}

/// True where a word begins inside a name: "orderDate" before "Date", "HTTPServer" before "Server".
bool BeginsWord(std::string_view name, size_t i) {
    if (i == 0 || !IsUpper(name[i])) return false;
    return IsLower(name[i - 1]) || IsDigit(name[i - 1]) ||
           (IsUpper(name[i - 1]) && i + 1 < name.size() && IsLower(name[i + 1]));
}

void AppendWord(std::string& out, std::string_view word, bool keepAcronyms) {
    if (!out.empty()) out += ' ';
    const bool acronym = keepAcronyms && word.size() > 1 &&
                         std::none_of(word.begin(), word.end(), [](char c) { return IsLower(c); });
    out += acronym ? std::string(word) : LowerCase(word);
}

} // namespace

std::string ReadableName(std::string_view name) {
    if (name.find(' ') != std::string_view::npos) return std::string(Trim(name)); // as people write
    const bool mixed = std::any_of(name.begin(), name.end(), [](char c) { return IsLower(c); });
    std::string readable;
    size_t start = 0;
    for (size_t i = 0; i <= name.size(); ++i) {
        const bool separator = i == name.size() || name[i] == '_';
        if (!separator && !BeginsWord(name, i)) continue;
        if (i > start) AppendWord(readable, name.substr(start, i - start), mixed);
        start = separator ? i + 1 : i;
    }
    if (readable.empty()) return std::string(name);
    readable[0] = UpperChar(readable[0]);
    return readable;
}

} // namespace tern7
