#pragma once

#include <string>
#include <string_view>

namespace tern7 {

/// Number of columns that the text takes on a terminal: wide East Asian characters and emoji two,
/// combining marks and invisible characters none, all others one. Linear.
int DisplayWidth(std::string_view text);

/// The text on one line: control characters as \n, \t or \x1b, so that no value can steer the
/// terminal.
std::string Printable(std::string_view text);

} // namespace tern7
