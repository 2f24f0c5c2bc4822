#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include <QtSql/QSqlDatabase>

#include <tern7/core/metadata/db_info.h>
#include <tern7/sql/engine.h>

namespace tern7 {

/// Columns of tables, by the name of the table as the catalog lists it.
using TKCatalogFields = std::unordered_map<std::string, TDBFieldList>;

/// A table or view of the catalog.
struct TKCatalogTable {
    std::string name;
    bool qualified = false; ///< `schema.table`, each in quotes where it needs them

    // NOLINTNEXTLINE(modernize-use-nullptr): taken for a pointer compared with 0
    auto operator<=>(const TKCatalogTable&) const = default;
};

/// What the catalog of one engine says. A table that is found without its schema is listed by its
/// plain name; any other by schema and name with a point between, each in quotes where it needs
/// them, so that the whole can stand in a statement as it is. Lives as long as one request, because
/// it holds the connection. Errors of the database pass through as EKDBInfoError.
class TKCatalog {
public:
    virtual ~TKCatalog() = default;

    /// Tables and views that can be read, in any order.
    virtual std::vector<TKCatalogTable> Tables() = 0;
    /// The columns of one table (none when there is no such table), or of all tables in one request
    /// when `table` is empty. Unknown types are ftString.
    virtual TKCatalogFields Fields(const std::string& table) = 0;
    /// False when Fields knows one table at a time only.
    virtual bool ReadsAllFields() const { return true; }
    /// In any order; names as they were declared, Optional is not filled in.
    virtual std::vector<TDBForeignKey> ForeignKeys() { return {}; }
};

/// `schema` narrows the tables down to one schema (of MySQL: another database, of SQLite: an
/// attached one); empty means those that an unqualified name can reach and, on PostgreSQL, those of
/// all other schemas.
std::unique_ptr<TKCatalog> MakeCatalog(const QSqlDatabase& database, TKEngine engine,
                                       const std::string& schema);

std::unique_ptr<TKCatalog> MakeSQLiteCatalog(const QSqlDatabase& database,
                                             const std::string& schema);
std::unique_ptr<TKCatalog> MakePostgreSQLCatalog(const QSqlDatabase& database,
                                                 const std::string& schema);
std::unique_ptr<TKCatalog> MakeMySQLCatalog(const QSqlDatabase& database,
                                            const std::string& schema);
/// The last resort, for every other driver: the driver's own list of tables, the record of an empty
/// result, no keys.
std::unique_ptr<TKCatalog> MakeGenericCatalog(const QSqlDatabase& database,
                                              const std::string& schema);

/// The name between quote characters, embedded ones doubled, unless it is a plain word.
std::string QuotedIfNeeded(const std::string& name, TKEngine engine, char quote);

} // namespace tern7
