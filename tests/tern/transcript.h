#pragma once

#include <filesystem>
#include <string>

namespace tern7::tests {

/// Runs the commands of a transcript, one after the other in one folder, and gives the transcript
/// with what they really wrote. Indented by two blanks stand
///
///     $ command for sh        continued in the next lines if they begin with ">"
///     a line of standard output; a carriage return is shown as \r
///     ! a line of standard error
///     [1]                     the exit status, unless it is 0
///
/// and all other lines are text that stays as it is.
std::string RunTranscript(const std::string& transcript, const std::filesystem::path& folder);

} // namespace tern7::tests
