#pragma once

#include <string>

#include <tern7/core/corekit/strings.h>
#include <tern7/sql/engine.h>

class QSqlDatabase;

namespace tern7 {

/// The values of a list and the captions that stand for them, paired by position.
struct TValueList {
    TStrings values;
    TStrings captions;
};

/// Executes one SELECT statement without placeholders: the first column is the value, the second
/// the caption. EKDBInfoError "Field count must be >= 2".
TValueList ReadValueList(const QSqlDatabase& database, TKEngine engine, const std::string& sql);

} // namespace tern7
