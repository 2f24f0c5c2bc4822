#pragma once

#include <functional>
#include <string>

#include <QtCore/QVariant>

class QSqlDatabase;
class QSqlError;
class QSqlQuery;

namespace tern7 {

/// The words of the database, or where it has none those of the driver.
std::string ErrorText(const QSqlError& error);
/// As ErrorText, for an error at opening: password and connection string pieces that hold one are
/// left out.
std::string OpenErrorText(const QSqlDatabase& database);
/// EKDBInfoError with the words of the database.
[[noreturn]] void RaiseDriverError(const QSqlError& error);

/// Executes a statement that gives no rows.
void Execute(const QSqlDatabase& database, const QString& sql);
/// Calls `row` for each row of a statement with its values bound.
void ForEachRow(const QSqlDatabase& database, const QString& sql, const QVariantList& values,
                const std::function<void(const QSqlQuery&)>& row);
/// A column of the present row as text; drivers give some catalogs' texts as bytes.
std::string TextOf(const QSqlQuery& query, int column);

} // namespace tern7
