#pragma once

#include <string>
#include <string_view>

namespace tern7 {

/// Appends the text as a JSON string.
void AppendJsonString(std::string& out, std::string_view text);
/// Appends a decimal number (sign, digits, point and exponent as they come) the way JSON wants it,
/// digit for digit; as a string when it is no such number.
void AppendJsonNumber(std::string& out, std::string_view number);

} // namespace tern7
