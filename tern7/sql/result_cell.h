#pragma once

#include <tern7/core/query/bound_value.h>

class QSqlDatabase;
class QSqlField;
class QSqlQuery;

namespace tern7 {

/// What the values of a result column are, as far as the driver says (SQLite says it value by
/// value).
TBoundValue::TKind ColumnKind(const QSqlDatabase& database, const QSqlField& field);

/// A value of the present row in canonical form. Fractions of a second follow the time where there
/// are any; bytes that are no UTF-8 text are 0x and hexadecimal digits, on MySQL bytes that are one
/// are that text, because its binary collations make texts come as bytes.
TBoundValue CellOf(const QSqlQuery& query, int column, TBoundValue::TKind kind, bool textAsBytes);

} // namespace tern7
