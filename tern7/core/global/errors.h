#pragma once

#include <tern7/core/corekit/errors.h>

namespace tern7 {

/// Structure: tables, fields, links, operators, structure files.
class EKDBStructError : public EKTernError {
public:
    using EKTernError::EKTernError;
};
/// Queries: building, reading, changing.
class EKQueryPanelError : public EKTernError {
public:
    using EKTernError::EKTernError;
};
/// Database metadata.
class EKDBInfoError : public EKTernError {
public:
    using EKTernError::EKTernError;
};
/// SQL text that can not be read; the message ends with CR LF, "Line:" and the line number.
class ESQLParserError : public EKTernError {
public:
    explicit ESQLParserError(const std::string& message, int itsLine = 0, int itsColumn = 0)
        : EKTernError(message), line(itsLine), column(itsColumn) {}
    /// Where the reading stopped, counted from 1 in characters; 0 when that is not known.
    int Line() const { return line; }
    int Column() const { return column; }

private:
    int line, column;
};
/// Result fields panel.
class ERFPanelError : public EKTernError {
public:
    using EKTernError::EKTernError;
};

} // namespace tern7
