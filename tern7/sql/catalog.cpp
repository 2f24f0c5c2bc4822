#include <tern7/sql/catalog.h>

#include <tern7/sql/reserved_words.h>

namespace tern7 {

std::unique_ptr<TKCatalog> MakeCatalog(const QSqlDatabase& database, TKEngine engine,
                                       const std::string& schema) {
    switch (engine) {
    case TKEngine::SQLite:
        return MakeSQLiteCatalog(database, schema);
    case TKEngine::PostgreSQL:
        return MakePostgreSQLCatalog(database, schema);
    case TKEngine::MySQL:
        return MakeMySQLCatalog(database, schema);
    case TKEngine::Generic:
        break;
    }
    return MakeGenericCatalog(database, schema);
}

std::string QuotedIfNeeded(const std::string& name, TKEngine engine, char quote) {
    return NameNeedsQuotes(name, engine) ? QuotedString(name, quote) : name;
}

} // namespace tern7
