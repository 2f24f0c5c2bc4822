#pragma once

#include <string>

#include <tern7/sql/connection.h>

namespace tern7 {

/// Opens a database read-only; see TKDatabaseURL for the address.
TKConnection OpenDatabase(const std::string& address);

} // namespace tern7
