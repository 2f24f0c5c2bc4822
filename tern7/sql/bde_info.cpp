#include <tern7/sql/bde_info.h>

#include <algorithm>
#include <optional>
#include <unordered_map>

#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlDriver>

#include <tern7/core/global/messages.h>
#include <tern7/sql/catalog.h>
#include <tern7/sql/driver_call.h>
#include <tern7/sql/foreign_keys.h>
#include <tern7/sql/qt_text.h>
#include <tern7/sql/reserved_words.h>
#include <tern7/sql/value_list.h>

namespace tern7 {

struct TKBDEInfo::TRead {
    TKEngine engine = TKEngine::Generic;
    std::optional<std::vector<TKCatalogTable>> tables; // sorted
    TKCatalogFields fields;
    bool allFields = false;
    std::string quotes; // two characters, empty while not asked for
};

namespace {

QSqlDatabase OpenConnection(const std::string& name) {
    const QString connection =
        name.empty() ? QLatin1String(QSqlDatabase::defaultConnection) : ToQt(name);
    if (!QSqlDatabase::contains(connection))
        throw EKDBInfoError(FormatMessage(messages::NoSuchConnection, {name}));
    QSqlDatabase database = QSqlDatabase::database(connection, false);
    if (!database.isOpen() && !database.open()) throw EKDBInfoError(OpenErrorText(database));
    return database;
}

class TBusy {
public:
    explicit TBusy(const TEvent<bool>& busyEvent) : event(busyEvent) { event(true); }
    ~TBusy() { event(false); }
    TBusy(const TBusy&) = delete;
    TBusy& operator=(const TBusy&) = delete;

private:
    const TEvent<bool>& event;
};

} // namespace

TKBDEInfo::TKBDEInfo() = default;
TKBDEInfo::~TKBDEInfo() = default;

void TKBDEInfo::SetDatabaseName(std::string name) {
    if (name == databaseName) return;
    databaseName = std::move(name);
    ConnectionChanged();
}

void TKBDEInfo::SetSchema(std::string name) {
    if (name == schema) return;
    schema = std::move(name);
    ConnectionChanged();
}

void TKBDEInfo::ForgetCatalog() {
    read.reset();
}

TKBDEInfo::TRead& TKBDEInfo::Known() {
    if (!read) {
        auto known = std::make_unique<TRead>();
        known->engine = EngineOf(OpenConnection(databaseName));
        read = std::move(known);
    }
    return *read;
}

std::unique_ptr<TKCatalog> TKBDEInfo::Catalog() {
    return MakeCatalog(OpenConnection(databaseName), Known().engine, schema);
}

void TKBDEInfo::GetDatabaseNames(TStrings& list) {
    list.clear();
    for (const QString& name : QSqlDatabase::connectionNames())
        list.push_back(FromQt(name));
    std::sort(list.begin(), list.end());
}

const std::vector<TKCatalogTable>& TKBDEInfo::KnownTables() {
    TRead& known = Known();
    if (!known.tables) {
        std::vector<TKCatalogTable> tables = Catalog()->Tables();
        std::sort(tables.begin(), tables.end());
        tables.erase(std::unique(tables.begin(), tables.end()), tables.end());
        known.tables = std::move(tables);
    }
    return *known.tables;
}

void TKBDEInfo::TablesByDatabase(TStrings& list) {
    list.clear();
    Known().tables.reset(); // asked for the list, the database is asked
    for (const TKCatalogTable& table : KnownTables())
        list.push_back(table.name);
}

void TKBDEInfo::ReadFields(const std::string& table) {
    TRead& known = Known();
    const std::unique_ptr<TKCatalog> catalog = Catalog();
    const bool all = !known.allFields && !known.fields.empty() && catalog->ReadsAllFields();
    for (auto& [name, columns] : catalog->Fields(all ? std::string() : table))
        known.fields.insert_or_assign(name, std::move(columns));
    known.allFields = known.allFields || all;
}

const TDBFieldList* TKBDEInfo::KnownFields(const std::string& table) {
    const TKCatalogFields& known = Known().fields;
    auto found = known.find(table);
    if (found == known.end()) {
        ReadFields(table);
        found = known.find(table);
    }
    return found == known.end() ? nullptr : &found->second;
}

void TKBDEInfo::FieldsByTable(const std::string& table, TDBFieldList& list) {
    list.Clear();
    const TDBFieldList* columns = KnownFields(table);
    if (!columns) {
        // another spelling, or a table without columns
        const std::vector<TKCatalogTable>& tables = KnownTables();
        const auto known =
            std::find_if(tables.begin(), tables.end(),
                         [&](const TKCatalogTable& each) { return SameText(each.name, table); });
        if (known == tables.end())
            throw EKDBInfoError(FormatMessage(messages::NoSuchTable, {table}));
        if (known->name != table) columns = KnownFields(known->name);
    }
    if (columns) list = *columns;
}

void TKBDEInfo::GetForeignKeys(std::vector<TDBForeignKey>& list) {
    list = Catalog()->ForeignKeys();
    if (list.empty()) return;
    TStrings tables;
    for (const TKCatalogTable& table : KnownTables())
        tables.push_back(table.name);
    CompleteForeignKeys(list, tables, [this](const std::string& table) -> const TDBFieldList& {
        static const TDBFieldList none;
        const TDBFieldList* columns = KnownFields(table);
        return columns ? *columns : none;
    });
}

void TKBDEInfo::GetSQLValues(const std::string& sql, TStrings& values, TStrings& captions) {
    values.clear();
    captions.clear();
    const TBusy busy(OnBusy);
    const QSqlDatabase database = OpenConnection(databaseName);
    TValueList list = ReadValueList(database, Known().engine, sql);
    values = std::move(list.values);
    captions = std::move(list.captions);
}

std::function<void(TStrings&, TStrings&)> TKBDEInfo::SQLValuesJob(const std::string& sql) {
    const QSqlDatabase database = OpenConnection(databaseName);
    const TKEngine engine = Known().engine;
    const QString file = database.databaseName();
    if (engine == TKEngine::SQLite && (file.isEmpty() || file.contains(QLatin1String(":memory:"))))
        return {};
    const QString connection = database.connectionName();
    const QString schemaChoice = SchemaChoice(database, engine);
    return [connection, schemaChoice, engine, sql](TStrings& values, TStrings& captions) {
        TValueList list = ReadValueListOnCopy(connection, schemaChoice, engine, sql);
        values = std::move(list.values);
        captions = std::move(list.captions);
    };
}

void TKBDEInfo::LoadInfo(const TStrings& lines) {
    std::string name = ValueOf(lines, "DatabaseName");
    if (name.empty()) return;
    SetDatabaseName(std::move(name));
    SetSchema(ValueOf(lines, "Schema")); // not written when there is none
}

void TKBDEInfo::SaveInfo(TStrings& lines) {
    lines.push_back("DatabaseName=" + databaseName);
    if (!schema.empty()) lines.push_back("Schema=" + schema);
}

bool TKBDEInfo::NeedsQuotes(const std::string& name) {
    // `schema.table` has the quotes that it needs in itself
    if (name.find('.') != std::string::npos) {
        const std::vector<TKCatalogTable>& tables = KnownTables();
        if (std::binary_search(tables.begin(), tables.end(), TKCatalogTable{name, true}))
            return false;
    }
    return NameNeedsQuotes(name, Known().engine);
}

char TKBDEInfo::QuoteSymbol1() {
    TRead& known = Known();
    if (known.quotes.empty()) {
        const QSqlDatabase database = OpenConnection(databaseName);
        const std::string quoted = FromQt(
            database.driver()->escapeIdentifier(QStringLiteral("A b"), QSqlDriver::TableName));
        const bool quotes = quoted.size() > 3;
        known.quotes = quotes ? std::string{quoted.front(), quoted.back()} : "\"\"";
    }
    return known.quotes[0];
}

char TKBDEInfo::QuoteSymbol2() {
    QuoteSymbol1();
    return read->quotes[1];
}

} // namespace tern7
