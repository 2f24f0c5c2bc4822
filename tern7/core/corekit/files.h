#pragma once

#include <string>
#include <string_view>

namespace tern7 {

/// The bytes of a file; EKTernError "Can not open file %s" when it can not be read.
std::string ReadWholeFile(const std::string& fileName);

/// Replaces a regular file, or makes it: writes a temporary file in the same folder, compares the
/// written length, flushes to disk and renames over the old file. Permissions and the target of a
/// symbolic link are kept. On any failure EKTernError "Can not write file %s" and the old file is
/// whole.
void WriteWholeFile(const std::string& fileName, std::string_view bytes);

} // namespace tern7
