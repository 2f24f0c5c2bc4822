#pragma once

#include <string_view>

/// The message strings of the ground floor; the others stand in global/messages.h.
namespace tern7::messages {

inline constexpr std::string_view CanNotOpenFile = "Can not open file %s";
inline constexpr std::string_view CanNotWriteFile = "Can not write file %s";
inline constexpr std::string_view WrongValueOfKey = "Wrong value of %s in section %s: %s";
inline constexpr std::string_view TextTooLong = "The text is too long";

} // namespace tern7::messages
