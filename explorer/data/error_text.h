#pragma once

#include <exception>

#include <QString>

namespace tern7 {

/// A message of the library in the program's present language, as far as it knows the message; any
/// other, such as that of a database, as it is.
QString MessageText(const QString& message);
QString ErrorText(const std::exception& error);
/// Why a file could not be read or written: what the system says ("Permission denied"), else the
/// message of the error.
QString FileReason(const std::exception& error);

} // namespace tern7
