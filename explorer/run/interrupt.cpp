#include "interrupt.h"

#include <cstring>

#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlDriver>
#include <QtSql/QSqlQuery>

#ifdef TERN7_WITH_SQLITE
#include <sqlite3.h>
#endif

namespace tern7 {

#ifdef TERN7_WITH_SQLITE

std::function<void()> MakeInterrupt(const QSqlDatabase& database) {
    const QVariant handle = database.driver() ? database.driver()->handle() : QVariant();
    if (!handle.isValid() || std::strcmp(handle.typeName(), "sqlite3*") != 0) return {};
    // The driver may have been built with a SQLite of its own, whose handles mean nothing here.
    QSqlQuery version(database);
    if (!version.exec(QStringLiteral("SELECT sqlite_version(), sqlite_source_id()")) ||
        !version.next() || version.value(1).toString() != QLatin1String(sqlite3_sourceid()))
        return {};
    auto* const connection = *static_cast<sqlite3* const*>(handle.constData());
    return [connection] { sqlite3_interrupt(connection); };
}

#else

std::function<void()> MakeInterrupt(const QSqlDatabase&) {
    return {};
}

#endif

} // namespace tern7
