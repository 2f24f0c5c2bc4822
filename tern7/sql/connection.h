#pragma once

#include <cstdint>
#include <string>

#include <QtSql/QSqlDatabase>

#include <tern7/sql/database_url.h>
#include <tern7/sql/engine.h>

namespace tern7 {

/// An open Qt SQL connection of its own name, closed and removed with this object; whatever uses it
/// (queries, TKBDEInfo by its name) must be gone by then. Belongs to the thread that made it.
class TKConnection {
public:
    enum class TMode : uint8_t { ReadOnly, ReadWrite };

    /// Opens the database. Read-only: a SQLite file is opened so, the session of a server is set
    /// so; a file that is missing is an error in either mode. An empty name is replaced by one that
    /// is free. The password comes from the address, else from PGPASSWORD or MYSQL_PWD, else from
    /// TERN_PASSWORD. EKDBInfoError with the words of the database, never with the password.
    explicit TKConnection(const TKDatabaseURL& url, TMode mode = TMode::ReadOnly,
                          std::string name = {});
    ~TKConnection();
    TKConnection(const TKConnection&) = delete;
    TKConnection& operator=(const TKConnection&) = delete;

    const std::string& Name() const { return name; }
    TKEngine Engine() const { return engine; }
    QSqlDatabase Database() const;

private:
    void Remove();

    std::string name;
    TKEngine engine = TKEngine::Generic;
};

} // namespace tern7
