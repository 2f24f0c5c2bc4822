#include <tern7/sql/catalog.h>

#include <algorithm>
#include <map>

#include <QtSql/QSqlQuery>

#include <tern7/sql/driver_call.h>
#include <tern7/sql/qt_text.h>
#include <tern7/sql/type_mapping.h>

namespace tern7 {

namespace {

// Tables that hold the parts of virtual tables are of type 'shadow'. Views and virtual tables that
// can not be opened (a table or module is missing) have no columns here, and reading them by
// pragma_table_xinfo would be an error.
const QString condition =
    QStringLiteral(" WHERE lower(t.schema) = lower(?) AND t.type IN ('table', 'view', 'virtual')"
                   " AND t.ncol > 0 AND t.name NOT LIKE 'sqlite\\_%' ESCAPE '\\'");

class TKSQLiteCatalog : public TKCatalog {
public:
    TKSQLiteCatalog(const QSqlDatabase& connection, const std::string& schemaName)
        : database(connection), schema(schemaName.empty() ? "main" : schemaName) {}

    std::vector<TKCatalogTable> Tables() override {
        std::vector<TKCatalogTable> tables;
        ForEachRow(database, QStringLiteral("SELECT t.name FROM pragma_table_list t") + condition,
                   {ToQt(schema)}, [&](const QSqlQuery& row) {
                       tables.push_back({Listed(TextOf(row, 0)), !IsMain()});
                   });
        return tables;
    }

    TKCatalogFields Fields(const std::string& table) override {
        QString sql =
            QStringLiteral("SELECT t.name, t.wr, c.name, c.type, c.\"notnull\", c.pk, c.hidden"
                           " FROM pragma_table_list t"
                           " JOIN pragma_table_xinfo(t.name, t.schema) c") +
            condition;
        QVariantList values = {ToQt(schema)};
        if (!table.empty()) {
            sql += QStringLiteral(" AND t.name = ?");
            values.append(ToQt(Unlisted(table)));
        }
        std::map<std::string, std::vector<TColumn>> tables;
        ForEachRow(
            database, sql + QStringLiteral(" ORDER BY t.name, c.cid"), values,
            [&](const QSqlQuery& row) { tables[Listed(TextOf(row, 0))].push_back(ColumnOf(row)); });
        TKCatalogFields fields;
        for (auto& [name, columns] : tables)
            fields.emplace(name, FieldsOf(columns));
        return fields;
    }

    std::vector<TDBForeignKey> ForeignKeys() override {
        // the latest key of a table has number 0; a key that names no columns of the other table
        // refers to its primary key
        const QString sql =
            QStringLiteral("SELECT t.name, f.id, f.\"table\", f.\"from\", coalesce(f.\"to\","
                           " (SELECT p.name FROM pragma_table_info(f.\"table\", t.schema) p"
                           " WHERE p.pk = f.seq + 1))"
                           " FROM pragma_table_list t"
                           " JOIN pragma_foreign_key_list(t.name, t.schema) f") +
            condition + QStringLiteral(" AND t.type = 'table' ORDER BY t.name, f.id DESC, f.seq");
        std::vector<TDBForeignKey> keys;
        int lastId = -1;
        ForEachRow(database, sql, {ToQt(schema)}, [&](const QSqlQuery& row) {
            const std::string table = Listed(TextOf(row, 0));
            const int id = row.value(1).toInt();
            if (keys.empty() || id != lastId || keys.back().Table != table) {
                keys.emplace_back();
                keys.back().Table = table;
                keys.back().RefTable = Listed(TextOf(row, 2));
            }
            lastId = id;
            keys.back().Columns.push_back(TextOf(row, 3));
            keys.back().RefColumns.push_back(TextOf(row, 4));
        });
        return keys;
    }

private:
    struct TColumn {
        TDBFieldInfo info;
        std::string declared;
        int keyPosition = 0; // 1 for the first column of the primary key
        bool withoutRowId = false;
        bool hidden = false;
    };

    static TColumn ColumnOf(const QSqlQuery& row) {
        TColumn column;
        column.withoutRowId = row.value(1).toBool();
        column.declared = TextOf(row, 3);
        column.keyPosition = row.value(5).toInt();
        column.hidden = row.value(6).toInt() == 1; // 2 and 3 are generated columns
        const TKColumnType type = SQLiteColumnType(column.declared);
        column.info = {TextOf(row, 2), type.size, type.type, row.value(4).toBool()};
        return column;
    }

    /// A column that is the whole primary key and declared INTEGER is the row id.
    static TDBFieldList FieldsOf(std::vector<TColumn>& columns) {
        const auto keyColumns = std::count_if(columns.begin(), columns.end(),
                                              [](const TColumn& c) { return c.keyPosition > 0; });
        TDBFieldList fields;
        for (TColumn& column : columns) {
            if (column.hidden) continue;
            const bool rowId = column.keyPosition > 0 && keyColumns == 1 && !column.withoutRowId &&
                               SameText(column.declared, "INTEGER");
            if (rowId) column.info.FieldType = TFieldType::ftAutoInc;
            // a primary key of an ordinary table may hold NULL in SQLite
            if (rowId || (column.keyPosition > 0 && column.withoutRowId))
                column.info.Required = true;
            fields.Add(std::move(column.info));
        }
        return fields;
    }

    bool IsMain() const { return SameText(schema, "main"); }
    std::string Prefix() const { return QuotedIfNeeded(schema, TKEngine::SQLite, '"') + "."; }

    std::string Listed(std::string name) const {
        if (IsMain()) return name;
        return Prefix() + QuotedIfNeeded(name, TKEngine::SQLite, '"');
    }
    std::string Unlisted(const std::string& name) const {
        if (IsMain() || !StartsText(name, Prefix())) return name;
        return UnquotedString(std::string_view(name).substr(Prefix().size()), '"');
    }

    QSqlDatabase database;
    std::string schema;
};

} // namespace

std::unique_ptr<TKCatalog> MakeSQLiteCatalog(const QSqlDatabase& database,
                                             const std::string& schema) {
    return std::make_unique<TKSQLiteCatalog>(database, schema);
}

} // namespace tern7
