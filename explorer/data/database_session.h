#pragma once

#include <memory>
#include <string>

#include <tern7/core/structure/structure.h>
#include <tern7/sql/bde_info.h>
#include <tern7/sql/connection.h>
#include <tern7/sql/database_url.h>

namespace tern7 {

/// An open database and the structure that queries over it are made of.
class TDatabaseSession {
public:
    /// Opens the database and imports its structure, or loads it from a file when one is given.
    /// EKDBInfoError, EKDBStructError.
    TDatabaseSession(const TKDatabaseURL& address, const std::string& structureFile);
    ~TDatabaseSession();
    TDatabaseSession(const TDatabaseSession&) = delete;
    TDatabaseSession& operator=(const TDatabaseSession&) = delete;

    const TKDatabaseURL& Url() const { return url; }
    TKCustomDBStructure& Structure() { return structure; }

private:
    TKDatabaseURL url;
    TKConnection connection;
    TKBDEInfo info;
    TKCustomDBStructure structure;
};

} // namespace tern7
