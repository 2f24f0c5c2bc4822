#pragma once

#include <cstdint>

class QSqlDatabase;

namespace tern7 {

/// The database engines whose catalogs and manners are known. MySQL stands for MariaDB as well.
enum class TKEngine : uint8_t { Generic, SQLite, PostgreSQL, MySQL };

/// The engine behind an open connection. Of the known drivers it is known at once; an ODBC
/// connection is asked, with a statement or two that fail elsewhere.
TKEngine EngineOf(const QSqlDatabase& database);

/// How an engine reads SQL text at present.
struct TKLexis {
    TKEngine engine = TKEngine::Generic;
    bool backslashEscapes = false; ///< in '...'
    bool doubleQuotedText = false; ///< "..." is a literal, not a name
};

/// Asks the connection for the settings that the reading of literals depends on.
TKLexis LexisOf(const QSqlDatabase& database, TKEngine engine);

} // namespace tern7
