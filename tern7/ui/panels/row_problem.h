#pragma once

#include <QString>

#include <tern7/core/query/filter_row.h>

namespace tern7 {

/// Why an enabled condition takes no part in the statement, or what is wrong with a value, in words
/// of the screen's language; empty when all is well.
QString RowProblem(const TFilterRow& row);
/// The same in a few words behind the row, where the values are seen: what to do, if that is known.
QString RowMark(const TFilterRow& row);
/// Why a value can not stand for a date or time that the condition compares with; empty when it
/// can, or when the condition has no such values.
QString DateProblem(const TFilterCond& condition, const QString& value);
/// The problem is that the row is unfinished; otherwise the row stands in the statement as it is,
/// or keeps it from being made.
bool IsLeftOut(const TFilterRow& row);

} // namespace tern7
