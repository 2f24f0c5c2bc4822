#pragma once

#include <QtSql/QSqlDatabase>

#include <tern7/sql/engine.h>

namespace tern7 {

/// While it lives, statements of the session can change nothing. Meant for a connection of the
/// application, which may be in the middle of a transaction of its own: that is left alone (on
/// servers it stays writable, a transaction that begins now does not), and the setting is put back
/// at the end.
class TKReadOnlySession {
public:
    TKReadOnlySession(const QSqlDatabase& connection, TKEngine connectionEngine);
    ~TKReadOnlySession();
    TKReadOnlySession(const TKReadOnlySession&) = delete;
    TKReadOnlySession& operator=(const TKReadOnlySession&) = delete;

private:
    QSqlDatabase database;
    QString restore; // the statement that puts the setting back
};

/// Makes the session read-only for good.
void MakeReadOnly(const QSqlDatabase& database, TKEngine engine);

} // namespace tern7
