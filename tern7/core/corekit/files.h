#pragma once

#include <string>
#include <string_view>

#include <tern7/core/corekit/errors.h>

namespace tern7 {

/// A file that can not be read or written.
class EKFileError : public EKTernError {
public:
    EKFileError(const std::string& message, int number) : EKTernError(message), reason(number) {}
    /// The system's error number; 0 when it has none for it.
    int Reason() const { return reason; }

private:
    int reason;
};

/// The bytes of a file; EKFileError "Can not open file %s" when it can not be read.
std::string ReadWholeFile(const std::string& fileName);

/// Replaces a regular file, or makes it: writes a temporary file in the same folder, compares the
/// written length, flushes to disk and renames over the old file. Permissions and the target of a
/// symbolic link are kept. On any failure EKFileError "Can not write file %s" and the old file is
/// whole.
void WriteWholeFile(const std::string& fileName, std::string_view bytes);

} // namespace tern7
