#include <cstdint>
#include <cstring>

#include <tern7/core/corekit/ini_text.h>

namespace tern7 {

namespace {

/// Windows-1252 0x80 to 0x9F; the five codes that it leaves open stand for the control characters
/// of the same number.
constexpr uint16_t HighCodes[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

size_t SkipASCII(std::string_view text, size_t i) {
    for (uint64_t word; i + sizeof word <= text.size(); i += sizeof word) {
        std::memcpy(&word, text.data() + i, sizeof word);
        if ((word & 0x8080808080808080u) != 0) break;
    }
    while (i < text.size() && static_cast<unsigned char>(text[i]) < 0x80)
        ++i;
    return i;
}

/// Length of the well-formed sequence at i, 0 when there is none: no overlong forms, no surrogates,
/// nothing above U+10FFFF.
size_t SequenceLength(std::string_view text, size_t i) {
    const auto byte = [&](size_t at) {
        return at < text.size() ? static_cast<unsigned char>(text[at]) : 0u;
    };
    const unsigned lead = byte(i);
    const size_t length = lead >= 0xC2 && lead <= 0xDF   ? 2
                          : lead >= 0xE0 && lead <= 0xEF ? 3
                          : lead >= 0xF0 && lead <= 0xF4 ? 4
                                                         : 0;
    for (size_t k = 1; k < length; ++k)
        if ((byte(i + k) & 0xC0u) != 0x80) return 0;
    const unsigned second = byte(i + 1);
    const bool wrong = (lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
                       (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F);
    return wrong ? 0 : length;
}

void AppendUTF8(std::string& result, unsigned code) {
    if (code < 0x80) {
        result += static_cast<char>(code);
    } else if (code < 0x800) {
        result += {static_cast<char>(0xC0 | (code >> 6)), static_cast<char>(0x80 | (code & 0x3F))};
    } else {
        result +=
            {static_cast<char>(0xE0 | (code >> 12)), static_cast<char>(0x80 | ((code >> 6) & 0x3F)),
             static_cast<char>(0x80 | (code & 0x3F))};
    }
}

std::string FromWindows1252(std::string_view bytes) {
    std::string result;
    result.reserve(bytes.size() + bytes.size() / 8);
    for (char c : bytes) {
        const unsigned code = static_cast<unsigned char>(c);
        AppendUTF8(result, code >= 0x80 && code < 0xA0 ? HighCodes[code - 0x80] : code);
    }
    return result;
}

} // namespace

bool IsUTF8(std::string_view text) {
    for (size_t i = SkipASCII(text, 0); i < text.size(); i = SkipASCII(text, i)) {
        const size_t length = SequenceLength(text, i);
        if (length == 0) return false;
        i += length;
    }
    return true;
}

std::string_view WithoutByteOrderMark(std::string_view text) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (text.starts_with(mark)) text.remove_prefix(mark.size());
    return text;
}

TKDecodedText DecodeTextFile(std::string bytes) {
    TKDecodedText result;
    result.wasWindows1252 = !IsUTF8(bytes);
    result.text = result.wasWindows1252 ? FromWindows1252(bytes) : std::move(bytes);
    result.text.erase(0, result.text.size() - WithoutByteOrderMark(result.text).size());
    return result;
}

} // namespace tern7
