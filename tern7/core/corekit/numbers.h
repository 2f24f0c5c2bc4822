#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tern7 {

constexpr int MinInt(int a, int b) {
    return a < b ? a : b;
}

/// The integer that the whole text (blanks around it aside) says; nothing when it is no integer or
/// does not fit.
std::optional<int> StrToIntExact(std::string_view text);

/// As StrToIntExact, with the given result for whatever is no integer.
int XStrToInt(std::string_view text, int otherwise = 0);

/// Reads a floating-point number with point or comma as decimal separator.
double XStrToFloat(std::string_view text, double otherwise = 0);

/// The shortest text that reads back as the number, with a point: 3.3, 2.01, 1. From 1e15 on and
/// below 1e-5 with an exponent.
std::string XFloatToStr(double value);

/// "1", "true", "yes", "t", "y" and "-1" are true; "0", "false", "no", "f" and "n" false; ignores
/// case. Nothing for any other text.
std::optional<bool> NStrToBool(std::string_view text);
/// As NStrToBool, with the given result for any other text.
bool XStrToBool(std::string_view text, bool otherwise = false);

/// True for digits with an optional sign, point and exponent.
bool IsNumber(std::string_view text);

} // namespace tern7
