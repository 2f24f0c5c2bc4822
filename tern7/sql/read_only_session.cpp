#include <tern7/sql/read_only_session.h>

#include <array>

#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>

#include <tern7/core/corekit/strings.h>
#include <tern7/sql/driver_call.h>

namespace tern7 {

namespace {

struct TStatements {
    const char* ask;   ///< gives the setting in its last column
    const char* set;   ///< read-only
    const char* unset; ///< writable
};

/// By the ordinals of TKEngine. Both names of MySQL's variable are asked for, because no server
/// knows both.
constexpr std::array<TStatements, 4> statements = {{
    {nullptr, nullptr, nullptr},
    {"PRAGMA query_only", "PRAGMA query_only = 1", "PRAGMA query_only = 0"},
    {"SELECT current_setting('default_transaction_read_only')",
     "SET default_transaction_read_only = on", "SET default_transaction_read_only = off"},
    {"SHOW VARIABLES WHERE Variable_name IN ('tx_read_only', 'transaction_read_only')",
     "SET SESSION TRANSACTION READ ONLY", "SET SESSION TRANSACTION READ WRITE"},
}};

const TStatements& StatementsOf(TKEngine engine) {
    return statements[static_cast<size_t>(engine)];
}

bool IsReadOnly(const QSqlDatabase& database, const char* ask) {
    bool readOnly = false;
    ForEachRow(database, QLatin1String(ask), {}, [&](const QSqlQuery& row) {
        const int last = row.record().count() - 1;
        const std::string text = TextOf(row, last);
        readOnly = text == "1" || SameText(text, "on");
    });
    return readOnly;
}

} // namespace

TKReadOnlySession::TKReadOnlySession(const QSqlDatabase& connection, TKEngine connectionEngine)
    : database(connection) {
    const TStatements& its = StatementsOf(connectionEngine);
    if (!its.ask || IsReadOnly(database, its.ask)) return;
    Execute(database, QLatin1String(its.set));
    restore = QLatin1String(its.unset);
}

TKReadOnlySession::~TKReadOnlySession() {
    if (!restore.isEmpty()) QSqlQuery(database).exec(restore);
}

void MakeReadOnly(const QSqlDatabase& database, TKEngine engine) {
    if (const char* set = StatementsOf(engine).set) Execute(database, QLatin1String(set));
}

} // namespace tern7
