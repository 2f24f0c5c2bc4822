#include <cassert>
#include <charconv>

#include <tern7/core/corekit/ini_text.h>

namespace tern7 {

namespace {

constexpr std::string_view HexDigits = "0123456789ABCDEF";

int HexValue(char c) {
    if (IsDigit(c)) return c - '0';
    const char lower = LowerChar(c);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

bool IsBracketLine(std::string_view line) {
    line = TrimLeft(line);
    return !line.empty() && line.front() == '[';
}

} // namespace

bool FitsOnLine(std::string_view text) {
    if (text.empty()) return true;
    return !IsSpace(text.front()) && !IsSpace(text.back()) &&
           text.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos &&
           IsUTF8(text);
}

std::string EncodePercent(std::string_view text) {
    const size_t first = text.size() - TrimLeft(text).size();
    const size_t behind = TrimRight(text).size();
    const unsigned char limit = IsUTF8(text) ? 0xFF : 0x7F;
    std::string result;
    result.reserve(text.size() + text.size() / 8);
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const auto code = static_cast<unsigned char>(c);
        if (c == '%' || c == '\r' || c == '\n' || c == '\0' || i < first || i >= behind ||
            code > limit) {
            result += {'%', HexDigits[code >> 4], HexDigits[code & 15]};
        } else {
            result += c;
        }
    }
    return result;
}

std::string DecodePercent(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        const int high = i + 2 < text.size() ? HexValue(text[i + 1]) : -1;
        const int low = i + 2 < text.size() ? HexValue(text[i + 2]) : -1;
        if (text[i] == '%' && high >= 0 && low >= 0) {
            result += static_cast<char>(high * 16 + low);
            i += 2;
        } else {
            result += text[i];
        }
    }
    return result;
}

std::string_view UnprotectBodyLine(std::string_view line) {
    if (!line.empty() && line.front() == ' ' && IsBracketLine(line)) line.remove_prefix(1);
    return line;
}

void TKIniWriter::Section(std::string_view name) {
    text.append("[").append(name).append("]\n");
}

void TKIniWriter::Line(std::string_view line) {
    text.append(IsUTF8(line) ? line : DecodeTextFile(std::string(line)).text).append("\n");
}

void TKIniWriter::Key(std::string_view key, std::string_view value) {
    assert(FitsOnLine(value));
    text.append(key).append("=").append(value).append("\n");
}

void TKIniWriter::Key(std::string_view key, int value) {
    char buffer[16];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    Key(key, std::string_view(buffer, static_cast<size_t>(result.ptr - buffer)));
}

void TKIniWriter::Bool(std::string_view key, bool value) {
    Key(key, value ? 1 : 0);
}

void TKIniWriter::Text(std::string_view key, std::string_view value) {
    if (FitsOnLine(value)) return Key(key, value);
    text.append(key).append(".Encoded=").append(EncodePercent(value)).append("\n");
}

void TKIniWriter::BodyLine(std::string_view line) {
    if (IsBracketLine(line)) text += ' ';
    Line(line);
}

} // namespace tern7
