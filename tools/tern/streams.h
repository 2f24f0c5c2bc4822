#pragma once

#include <string>
#include <string_view>

namespace tern7 {

/// Whoever reads the standard output has gone away: nothing is left to do.
struct TReaderGone {};

/// Writes to the standard output. EKTernError when that fails (a full disk), TReaderGone when its
/// reader has gone.
void Print(std::string_view text);
void PrintLine(std::string_view line);
/// To be called last: what was printed has arrived, or Print's errors.
void FinishPrinting();

/// "tern: " and the message as a line of the standard error, without the passwords of addresses.
void Complain(std::string_view message);

/// The bytes of a file, or of the standard input for "-".
std::string ReadBytes(const std::string& file);
/// As ReadBytes, as UTF-8; says so when the text was read as Windows-1252.
std::string ReadText(const std::string& file);
/// How messages call the file.
std::string FileTitle(const std::string& file);

} // namespace tern7
