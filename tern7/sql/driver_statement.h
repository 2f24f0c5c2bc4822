#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <tern7/core/query/bound_value.h>
#include <tern7/sql/engine.h>
#include <tern7/sql/select_text.h>

namespace tern7 {

/// A statement as a driver takes it: the text with "?" and the values to bind.
struct TKDriverStatement {
    QString text;
    QVariantList values;
};

/// Writes and binds the values so that each compares as the same constant would in the text:
/// numbers as exact numbers, texts as texts, dates and times as texts in their canonical form.
/// `odbc` is true for a connection through ODBC. EKDBInfoError when a value holds a NUL, or when
/// there are more or fewer values than placeholders.
TKDriverStatement MakeDriverStatement(const TKSelectText& select,
                                      const std::vector<TBoundValue>& values, TKEngine engine,
                                      bool odbc = false);

} // namespace tern7
