#include "display_width.h"

#include <algorithm>
#include <iterator>

#include <QtCore/QChar>
#include <QtCore/QList>
#include <QtCore/QStringView>

#include <tern7/sql/qt_text.h>

namespace tern7 {

namespace {

struct TCharRange {
    char32_t first, last;
};

// What terminals show in two columns, ascending.
constexpr TCharRange wideRanges[] = {
    {0x1100, 0x115F},   {0x231A, 0x231B},   {0x2329, 0x232A},   {0x23E9, 0x23EC},
    {0x23F0, 0x23F0},   {0x23F3, 0x23F3},   {0x25FD, 0x25FE},   {0x2614, 0x2615},
    {0x2648, 0x2653},   {0x267F, 0x267F},   {0x2693, 0x2693},   {0x26A1, 0x26A1},
    {0x26AA, 0x26AB},   {0x26BD, 0x26BE},   {0x26C4, 0x26C5},   {0x26CE, 0x26CE},
    {0x26D4, 0x26D4},   {0x26EA, 0x26EA},   {0x26F2, 0x26F3},   {0x26F5, 0x26F5},
    {0x26FA, 0x26FA},   {0x26FD, 0x26FD},   {0x2705, 0x2705},   {0x270A, 0x270B},
    {0x2728, 0x2728},   {0x274C, 0x274C},   {0x274E, 0x274E},   {0x2753, 0x2755},
    {0x2757, 0x2757},   {0x2795, 0x2797},   {0x27B0, 0x27B0},   {0x27BF, 0x27BF},
    {0x2B1B, 0x2B1C},   {0x2B50, 0x2B50},   {0x2B55, 0x2B55},   {0x2E80, 0x303E},
    {0x3041, 0x3247},   {0x3250, 0x4DBF},   {0x4E00, 0xA4C6},   {0xA960, 0xA97C},
    {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},   {0xFE10, 0xFE19},   {0xFE30, 0xFE6B},
    {0xFF01, 0xFF60},   {0xFFE0, 0xFFE6},   {0x16FE0, 0x18CFF}, {0x1AFF0, 0x1B2FF},
    {0x1F004, 0x1F004}, {0x1F0CF, 0x1F0CF}, {0x1F18E, 0x1F18E}, {0x1F191, 0x1F19A},
    {0x1F200, 0x1F320}, {0x1F32D, 0x1F335}, {0x1F337, 0x1F37C}, {0x1F37E, 0x1F393},
    {0x1F3A0, 0x1F3CA}, {0x1F3CF, 0x1F3D3}, {0x1F3E0, 0x1F3F0}, {0x1F3F4, 0x1F3F4},
    {0x1F3F8, 0x1F43E}, {0x1F440, 0x1F440}, {0x1F442, 0x1F4FC}, {0x1F4FF, 0x1F53D},
    {0x1F54B, 0x1F54E}, {0x1F550, 0x1F567}, {0x1F57A, 0x1F57A}, {0x1F595, 0x1F596},
    {0x1F5A4, 0x1F5A4}, {0x1F5FB, 0x1F64F}, {0x1F680, 0x1F6C5}, {0x1F6CC, 0x1F6CC},
    {0x1F6D0, 0x1F6D2}, {0x1F6D5, 0x1F6DF}, {0x1F6EB, 0x1F6EF}, {0x1F6F4, 0x1F6FF},
    {0x1F7E0, 0x1F7F0}, {0x1F90C, 0x1F93A}, {0x1F93C, 0x1F945}, {0x1F947, 0x1F9FF},
    {0x1FA70, 0x1FAFF}, {0x20000, 0x3FFFD},
};

bool IsWide(char32_t c) {
    const auto behind = std::upper_bound(
        std::begin(wideRanges), std::end(wideRanges), c,
        [](char32_t value, const TCharRange& range) { return value < range.first; });
    return behind != std::begin(wideRanges) && c <= std::prev(behind)->last;
}

bool IsInvisible(char32_t c) {
    if (c >= 0x1160 && c <= 0x11FF) return true; // parts of a syllable that the one before opens
    switch (QChar::category(c)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
        return true;
    case QChar::Other_Format:
        return c != 0xAD; // the soft hyphen is shown
    default:
        return false;
    }
}

} // namespace

int DisplayWidth(std::string_view text) {
    int width = 0;
    for (uint c : ToQt(text).toUcs4()) {
        if (c < 0x300)
            ++width;
        else if (!IsInvisible(c))
            width += IsWide(c) ? 2 : 1;
    }
    return width;
}

std::string Printable(std::string_view text) {
    constexpr char digits[] = "0123456789abcdef";
    std::string line;
    for (size_t i = 0; i < text.size(); ++i) {
        const unsigned char c = static_cast<unsigned char>(text[i]);
        // U+0080 to U+009F are control characters too: C2 80 to C2 9F
        const bool second =
            c == 0xC2 && i + 1 < text.size() && static_cast<unsigned char>(text[i + 1]) < 0xA0;
        if (c == '\n') {
            line += "\\n";
        } else if (c == '\r') {
            line += "\\r";
        } else if (c == '\t') {
            line += "\\t";
        } else if (c < ' ' || c == 0x7F || second) {
            const unsigned char code = second ? static_cast<unsigned char>(text[++i]) : c;
            line += {'\\', 'x', digits[code >> 4], digits[code & 15]};
        } else {
            line += text[i];
        }
    }
    return line;
}

} // namespace tern7
