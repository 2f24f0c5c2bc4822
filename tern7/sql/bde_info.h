#pragma once

#include <memory>
#include <string>

#include <tern7/core/global/events.h>
#include <tern7/core/metadata/db_info.h>

namespace tern7 {

class TKCatalog;
struct TKCatalogTable;

/// Metadata and value lists through a Qt SQL connection. SQLite, PostgreSQL and MariaDB or MySQL
/// are asked through their catalogs, directly or over ODBC; any other driver tells what it can:
/// tables and columns, no foreign keys. Errors of the database pass through as EKDBInfoError with
/// its own words.
///
///     QSqlDatabase::addDatabase("QSQLITE", "shop").setDatabaseName("shop.db");
///     TKBDEInfo info;
///     info.SetDatabaseName("shop");
///     structure.SetDatabaseInfo(&info);
class TKBDEInfo : public TKDBInfo {
public:
    TKBDEInfo();
    ~TKBDEInfo() override;
    TKBDEInfo(const TKBDEInfo&) = delete;
    TKBDEInfo& operator=(const TKBDEInfo&) = delete;

    /// The name of a Qt SQL connection; empty for Qt's default connection. The connection belongs
    /// to the application; it is opened when it is needed and not open.
    const std::string& DatabaseName() const { return databaseName; }
    /// A different name is stored and ConnectionChanged called.
    void SetDatabaseName(std::string name);
    /// The schema whose tables are listed (of MySQL: another database of the server, of SQLite: an
    /// attached database). Empty: all that can be read, or the current database.
    const std::string& Schema() const { return schema; }
    void SetSchema(std::string name);

    /// Called with true before and with false after a statement that may take its time, so that a
    /// screen can show a busy cursor.
    TEvent<bool> OnBusy;

    /// The names of Qt's connections.
    void GetDatabaseNames(TStrings& list) override;
    /// Tables and views, by the bytes of their names. A table that needs its schema is listed as
    /// `schema.table`, each in quotes where it needs them.
    void TablesByDatabase(TStrings& list) override;
    /// From the second table on the columns of all tables are read in one request and kept until
    /// the connection changes. EKDBInfoError "No such table %s".
    void FieldsByTable(const std::string& table, TDBFieldList& list) override;
    /// Executes one SELECT statement that can not change anything; both lists are left empty when
    /// it fails. Numbers, dates and times are in their canonical form, NULL is empty.
    void GetSQLValues(const std::string& sql, TStrings& values, TStrings& captions) override;
    /// The call opens a connection of its own. Empty for a database that only this connection can
    /// see: one of SQLite in memory.
    std::function<void(TStrings& values, TStrings& captions)> SQLValuesJob(
        const std::string& sql) override;
    void LoadInfo(const TStrings& lines) override;
    void SaveInfo(TStrings& lines) override;
    /// By table, and in a table by its referring columns. Keys to tables that are not listed are
    /// left out.
    void GetForeignKeys(std::vector<TDBForeignKey>& list) override;
    bool NeedsQuotes(const std::string& name) override;
    char QuoteSymbol1() override;
    char QuoteSymbol2() override;

protected:
    void ForgetCatalog() override;

private:
    struct TRead;

    TRead& Known();
    std::unique_ptr<TKCatalog> Catalog();
    const std::vector<TKCatalogTable>& KnownTables();
    const TDBFieldList* KnownFields(const std::string& table);
    void ReadFields(const std::string& table);

    std::string databaseName;
    std::string schema;
    std::unique_ptr<TRead> read; // what was read since the connection changed
};

} // namespace tern7
