#include <tern7/sql/catalog.h>

#include <QtSql/QSqlQuery>

#include <tern7/sql/driver_call.h>
#include <tern7/sql/qt_text.h>
#include <tern7/sql/type_mapping.h>

namespace tern7 {

namespace {

class TKMySQLCatalog : public TKCatalog {
public:
    TKMySQLCatalog(const QSqlDatabase& connection, const std::string& schemaName)
        : database(connection), schema(ToQt(schemaName)) {
        ForEachRow(database, QStringLiteral("SELECT DATABASE()"), {},
                   [&](const QSqlQuery& row) { current = ToQt(TextOf(row, 0)); });
        if (schema.isEmpty()) schema = current;
    }

    std::vector<TKCatalogTable> Tables() override {
        std::vector<TKCatalogTable> tables;
        ForEachRow(database,
                   QStringLiteral("SELECT table_name FROM information_schema.tables"
                                  " WHERE table_schema = ?"
                                  " AND table_type IN ('BASE TABLE', 'SYSTEM VERSIONED', 'VIEW')"),
                   {Bound(schema)}, [&](const QSqlQuery& row) {
                       tables.push_back({Listed(schema, TextOf(row, 0)), schema != current});
                   });
        return tables;
    }

    TKCatalogFields Fields(const std::string& table) override {
        QString sql = QStringLiteral(
            "SELECT table_name, column_name, data_type, column_type, character_maximum_length,"
            " numeric_scale, is_nullable, extra FROM information_schema.columns"
            " WHERE table_schema = ?");
        QVariantList values = {Bound(schema)};
        if (!table.empty()) {
            sql += QStringLiteral(" AND table_name = ?");
            values.append(Bound(ToQt(Unlisted(table))));
        }
        TKCatalogFields fields;
        ForEachRow(database, sql + QStringLiteral(" ORDER BY table_name, ordinal_position"), values,
                   [&](const QSqlQuery& row) {
                       const TKColumnType type =
                           MySQLColumnType(TextOf(row, 2), TextOf(row, 3),
                                           ContainsAsWholeWord(TextOf(row, 7), "auto_increment"),
                                           row.value(4).toLongLong(), row.value(5).toInt());
                       fields[Listed(schema, TextOf(row, 0))].Add(
                           {TextOf(row, 1), type.size, type.type, TextOf(row, 6) == "NO"});
                   });
        return fields;
    }

    std::vector<TDBForeignKey> ForeignKeys() override {
        const QString sql = QStringLiteral(
            "SELECT constraint_name, table_name, column_name, referenced_table_schema,"
            " referenced_table_name, referenced_column_name"
            " FROM information_schema.key_column_usage"
            " WHERE table_schema = ? AND referenced_table_name IS NOT NULL"
            " ORDER BY table_name, constraint_name, ordinal_position");
        std::vector<TDBForeignKey> keys;
        ForEachRow(database, sql, {Bound(schema)}, [&](const QSqlQuery& row) {
            const std::string name = TextOf(row, 0);
            const std::string table = Listed(schema, TextOf(row, 1));
            if (keys.empty() || keys.back().Name != name || keys.back().Table != table) {
                keys.emplace_back();
                keys.back().Name = name;
                keys.back().Table = table;
                keys.back().RefTable = Listed(ToQt(TextOf(row, 3)), TextOf(row, 4));
            }
            keys.back().Columns.push_back(TextOf(row, 2));
            keys.back().RefColumns.push_back(TextOf(row, 5));
        });
        return keys;
    }

private:
    /// Names as bytes: they compare exactly, and Qt's ODBC driver leaves them as they are.
    static QVariant Bound(const QString& name) { return name.toUtf8(); }
    static std::string Prefix(const QString& ofSchema) {
        return QuotedIfNeeded(FromQt(ofSchema), TKEngine::MySQL, '`') + ".";
    }
    /// Tables of another database than the current one carry its name.
    std::string Listed(const QString& ofSchema, std::string name) const {
        if (ofSchema == current) return name;
        return Prefix(ofSchema) + QuotedIfNeeded(name, TKEngine::MySQL, '`');
    }
    std::string Unlisted(const std::string& name) const {
        if (schema == current || !name.starts_with(Prefix(schema))) return name;
        return UnquotedString(std::string_view(name).substr(Prefix(schema).size()), '`');
    }

    QSqlDatabase database;
    QString schema;
    QString current;
};

} // namespace

std::unique_ptr<TKCatalog> MakeMySQLCatalog(const QSqlDatabase& database,
                                            const std::string& schema) {
    return std::make_unique<TKMySQLCatalog>(database, schema);
}

} // namespace tern7
