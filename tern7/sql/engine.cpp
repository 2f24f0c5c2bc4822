#include <tern7/sql/engine.h>

#include <QtCore/QVariant>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlDriver>
#include <QtSql/QSqlQuery>

namespace tern7 {

namespace {

/// The first value of the first row; an invalid one when the statement fails.
QVariant ValueOf(const QSqlDatabase& database, const QString& sql) {
    QSqlQuery query(database);
    query.setForwardOnly(true);
    return query.exec(sql) && query.next() ? query.value(0) : QVariant();
}

} // namespace

TKEngine EngineOf(const QSqlDatabase& database) {
    const QString driver = database.driverName();
    if (driver == QLatin1String("QSQLITE")) return TKEngine::SQLite;
    if (driver == QLatin1String("QPSQL")) return TKEngine::PostgreSQL;
    if (driver == QLatin1String("QMYSQL") || driver == QLatin1String("QMARIADB"))
        return TKEngine::MySQL;
    switch (database.driver()->dbmsType()) {
    case QSqlDriver::SQLite:
        return TKEngine::SQLite;
    case QSqlDriver::PostgreSQL:
        return TKEngine::PostgreSQL;
    case QSqlDriver::MySqlServer:
        return TKEngine::MySQL;
    case QSqlDriver::UnknownDbms:
        break;
    default:
        return TKEngine::Generic;
    }
    if (driver != QLatin1String("QODBC")) return TKEngine::Generic;
    if (ValueOf(database, QStringLiteral("SELECT version()"))
            .toString()
            .contains(QLatin1String("MariaDB"), Qt::CaseInsensitive))
        return TKEngine::MySQL;
    if (ValueOf(database, QStringLiteral("SELECT sqlite_version()")).isValid())
        return TKEngine::SQLite;
    return TKEngine::Generic;
}

TKLexis LexisOf(const QSqlDatabase& database, TKEngine engine) {
    TKLexis lexis{engine};
    if (engine == TKEngine::MySQL) {
        const QString mode = ValueOf(database, QStringLiteral("SELECT @@sql_mode")).toString();
        lexis.backslashEscapes = !mode.contains(QLatin1String("NO_BACKSLASH_ESCAPES"));
        lexis.doubleQuotedText = !mode.contains(QLatin1String("ANSI_QUOTES"));
    } else if (engine == TKEngine::PostgreSQL) {
        lexis.backslashEscapes =
            ValueOf(database, QStringLiteral("SHOW standard_conforming_strings")).toString() ==
            QLatin1String("off");
    }
    return lexis;
}

} // namespace tern7
