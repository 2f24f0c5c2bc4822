#pragma once

#include <string>

#include <tern7/core/corekit/strings.h>
#include <tern7/sql/engine.h>

class QSqlDatabase;
class QString;

namespace tern7 {

/// The values of a list and the captions that stand for them, paired by position.
struct TValueList {
    TStrings values;
    TStrings captions;
};

/// Executes one SELECT statement without placeholders: the first column is the value, the second
/// the caption. EKDBInfoError "Field count must be >= 2".
TValueList ReadValueList(const QSqlDatabase& database, TKEngine engine, const std::string& sql);

/// The statement that brings a new connection to the schemas where an open one looks for tables
/// ("SET search_path", "USE"); empty where there is nothing to choose.
QString SchemaChoice(const QSqlDatabase& database, TKEngine engine);

/// As ReadValueList, over a new connection with the settings of another, made for this call: in
/// whatever thread that is. `schemaChoice` is executed first unless it is empty.
TValueList ReadValueListOnCopy(const QString& connection, const QString& schemaChoice,
                               TKEngine engine, const std::string& sql);

} // namespace tern7
