#include <tern7/sql/executor.h>

#include <QtSql/QSqlError>
#include <QtSql/QSqlField>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>

#include <tern7/sql/connection.h>
#include <tern7/sql/driver_call.h>
#include <tern7/sql/driver_statement.h>
#include <tern7/sql/qt_text.h>
#include <tern7/sql/read_only_session.h>
#include <tern7/sql/result_cell.h>
#include <tern7/sql/select_text.h>

namespace tern7 {

/// Begins a transaction that can change nothing and rolls it back at the end.
class TKExecutor::TReadOnlyTransaction {
public:
    TReadOnlyTransaction(const QSqlDatabase& connection, TKEngine engine) : database(connection) {
        if (engine == TKEngine::PostgreSQL)
            Execute(database, QStringLiteral("BEGIN READ ONLY"));
        else if (engine == TKEngine::MySQL)
            Execute(database, QStringLiteral("START TRANSACTION READ ONLY"));
        else
            return;
        begun = true;
    }
    ~TReadOnlyTransaction() {
        if (begun) QSqlQuery(database).exec(QStringLiteral("ROLLBACK"));
    }
    TReadOnlyTransaction(const TReadOnlyTransaction&) = delete;
    TReadOnlyTransaction& operator=(const TReadOnlyTransaction&) = delete;

private:
    QSqlDatabase database;
    bool begun = false;
};

/// The parts of an open statement. The transaction ends after the result and before the prepared
/// statement, which can not be freed while a failed transaction lasts.
struct TKExecutor::TOpened {
    TOpened(const QSqlDatabase& database, TKEngine engine)
        : session(database, engine), query(database), transaction(database, engine) {}
    ~TOpened() { query.finish(); }
    TOpened(const TOpened&) = delete;
    TOpened& operator=(const TOpened&) = delete;

    TKReadOnlySession session;
    QSqlQuery query;
    TReadOnlyTransaction transaction;
};

TKExecutor::TKExecutor(const TKConnection& itsConnection) : connection(itsConnection) {}

TKExecutor::~TKExecutor() = default;

void TKExecutor::Close() {
    opened.reset();
    row.clear();
}

void TKExecutor::Open(const TBoundSQL& statement, long long limit) {
    Close();
    columns.clear();
    truncated = false;
    rowsLeft = limit > 0 ? limit : -1;
    const QSqlDatabase database = connection.Database();
    const TKEngine engine = connection.Engine();
    const TKSelectText select = ReadSelect(statement.text, LexisOf(database, engine));
    TKDriverStatement prepared = MakeDriverStatement(
        select, statement.values, engine, database.driverName() == QLatin1String("QODBC"));
    if (limit > 0 && select.canBeLimited && engine != TKEngine::Generic)
        prepared.text += QStringLiteral("\nLIMIT %1").arg(limit + 1); // one more: is there more?

    auto opening = std::make_unique<TOpened>(database, engine);
    QSqlQuery& query = opening->query;
    query.setForwardOnly(true);
    query.setNumericalPrecisionPolicy(QSql::HighPrecision);
    if (!query.prepare(prepared.text)) RaiseDriverError(query.lastError());
    for (const QVariant& value : prepared.values)
        query.addBindValue(value);
    if (!query.exec()) RaiseDriverError(query.lastError());
    const QSqlRecord record = query.record();
    for (int i = 0; i < record.count(); ++i)
        columns.push_back({FromQt(record.fieldName(i)), ColumnKind(database, record.field(i))});
    opened = std::move(opening);
}

bool TKExecutor::Next() {
    if (!opened) return false;
    QSqlQuery& query = opened->query;
    if (!query.next()) {
        const QSqlError error = query.lastError();
        Close();
        if (error.isValid()) RaiseDriverError(error);
        return false;
    }
    if (rowsLeft == 0) {
        truncated = true;
        Close();
        return false;
    }
    if (rowsLeft > 0) --rowsLeft;
    row.clear();
    const bool textAsBytes = connection.Engine() == TKEngine::MySQL;
    for (size_t i = 0; i < columns.size(); ++i)
        row.push_back(CellOf(query, static_cast<int>(i), columns[i].kind, textAsBytes));
    return true;
}

} // namespace tern7
