#include <tern7/core/corekit/numbers.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iterator>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

namespace {

/// from_chars knows no plus sign.
std::string_view WithoutPlus(std::string_view text) {
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
    return text;
}

size_t SkipDigits(std::string_view text, size_t i) {
    while (i < text.size() && IsDigit(text[i]))
        ++i;
    return i;
}

} // namespace

std::optional<int> StrToIntExact(std::string_view text) {
    text = WithoutPlus(Trim(text));
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return value;
}

int XStrToInt(std::string_view text, int otherwise) {
    return StrToIntExact(text).value_or(otherwise);
}

double XStrToFloat(std::string_view text, double otherwise) {
    std::string digits(WithoutPlus(Trim(text)));
    std::replace(digits.begin(), digits.end(), ',', '.');
    if (!IsNumber(digits)) return otherwise;
    double value = 0;
    const char* const last = digits.data() + digits.size();
    const auto [end, error] = std::from_chars(digits.data(), last, value);
    return error == std::errc() && end == last ? value : otherwise;
}

std::string XFloatToStr(double value) {
    std::array<char, 400> buffer;
    // The shortest form alone would write 100000 as 1e+05.
    const double size = std::fabs(value);
    const bool plain = size == 0 || (size >= 1e-5 && size < 1e15);
    char* const first = buffer.data();
    char* const last = first + buffer.size();
    const auto result = plain ? std::to_chars(first, last, value, std::chars_format::fixed)
                              : std::to_chars(first, last, value);
    return std::string(first, result.ptr);
}

std::optional<bool> NStrToBool(std::string_view text) {
    if (text == "0") return false;
    constexpr std::string_view trueWords[] = {"1", "true", "yes", "t", "y", "-1"};
    constexpr std::string_view falseWords[] = {"0", "false", "no", "f", "n"};
    const auto isText = [text](std::string_view word) { return SameText(word, text); };
    if (std::any_of(std::begin(trueWords), std::end(trueWords), isText)) return true;
    if (std::any_of(std::begin(falseWords), std::end(falseWords), isText)) return false;
    return std::nullopt;
}

bool XStrToBool(std::string_view text, bool otherwise) {
    return NStrToBool(text).value_or(otherwise);
}

bool IsNumber(std::string_view text) {
    size_t i = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
    const size_t whole = i;
    i = SkipDigits(text, i);
    size_t digits = i - whole;
    if (i < text.size() && text[i] == '.') {
        const size_t fraction = ++i;
        i = SkipDigits(text, i);
        digits += i - fraction;
    }
    if (digits == 0) return false;
    if (i < text.size() && LowerChar(text[i]) == 'e') {
        ++i;
        if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
        const size_t exponent = i;
        i = SkipDigits(text, i);
        if (i == exponent) return false;
    }
    return i == text.size();
}

} // namespace tern7
