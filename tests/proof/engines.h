#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlQuery>

#include "cells.h"

#include <tern7/core/query/query.h>
#include <tern7/sql/connection.h>

namespace tern7::proof {

/// A database that answers queries, in both forms of their statement.
class TEngine {
public:
    /// Settings are statements that are executed first.
    TEngine(const std::string& address, const std::vector<std::string>& settings,
            TKConnection::TMode mode = TKConnection::TMode::ReadOnly);

    /// The rows of the text form as an application sends it: parameters are bound by name.
    TRows Text(TKQuery& query) const;
    TRows Bound(TKQuery& query, bool escapeWildcards = false) const;
    /// std::runtime_error with the statement and the words of the database when it fails.
    void Execute(const std::string& sql, const TRow& values = {}) const;
    /// The parameters of the statement are looked up by name.
    TRows Select(const std::string& sql, const std::map<std::string, TCell>& parameters = {}) const;

private:
    TKConnection connection;
};

/// SQLite with comparisons by bytes (the sample, or a copy in the folder that may be changed), and
/// the servers of TERN7_TEST_POSTGRESQL and TERN7_TEST_MARIADB with the sample in a database of its
/// own; none when the variable is not set. MariaDB either so that text means what it means
/// elsewhere, or in its default mode.
std::unique_ptr<TEngine> OpenSQLite();
std::unique_ptr<TEngine> OpenSQLiteCopy(const QTemporaryDir& folder);
std::unique_ptr<TEngine> OpenPostgreSQL();
std::unique_ptr<TEngine> OpenMariaDB(bool defaultMode);

/// The rows of a query that was executed.
TRows RowsOf(QSqlQuery& query);

} // namespace tern7::proof
