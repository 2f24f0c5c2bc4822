#include <tern7/sql/catalog.h>

#include <QtSql/QSqlQuery>

#include <tern7/sql/driver_call.h>
#include <tern7/sql/qt_text.h>
#include <tern7/sql/type_mapping.h>

namespace tern7 {

namespace {

// Partitions stand behind their table. Tables that this user may not read are left out.
const QString readable = QStringLiteral(
    "relations AS (SELECT c.oid, pg_table_is_visible(c.oid) AS visible, CASE WHEN "
    "pg_table_is_visible(c.oid) THEN CAST(c.relname AS text)"
    " ELSE quote_ident(n.nspname) || '.' || quote_ident(c.relname) END AS name"
    " FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace"
    " WHERE c.relkind IN ('r', 'p', 'v', 'm', 'f') AND NOT c.relispartition"
    " AND has_schema_privilege(n.oid, 'USAGE') AND has_any_column_privilege(c.oid, 'SELECT')"
    " AND CASE WHEN CAST(? AS text) = '' THEN n.nspname !~ '^pg_' AND"
    " n.nspname <> 'information_schema' ELSE n.nspname = CAST(? AS text) END)");

// The type under a domain, and the modifier that the innermost domain gives it.
const QString baseTypes =
    QStringLiteral("base(oid, basetype, modifier, required) AS ("
                   " SELECT oid, oid, -1, false FROM pg_type WHERE typtype <> 'd'"
                   " UNION ALL SELECT d.oid, b.basetype,"
                   " CASE WHEN d.typtypmod >= 0 THEN d.typtypmod ELSE b.modifier END,"
                   " d.typnotnull OR b.required"
                   " FROM pg_type d JOIN base b ON d.typbasetype = b.oid WHERE d.typtype = 'd')");

class TKPostgreSQLCatalog : public TKCatalog {
public:
    TKPostgreSQLCatalog(const QSqlDatabase& connection, const std::string& schemaName)
        : database(connection), schema(ToQt(schemaName)) {}

    std::vector<TKCatalogTable> Tables() override {
        std::vector<TKCatalogTable> tables;
        ForEachRow(database,
                   QStringLiteral("WITH ") + readable +
                       QStringLiteral(" SELECT name, visible FROM relations"),
                   {schema, schema}, [&](const QSqlQuery& row) {
                       tables.push_back({TextOf(row, 0), !row.value(1).toBool()});
                   });
        return tables;
    }

    TKCatalogFields Fields(const std::string& table) override {
        QString sql = QStringLiteral("WITH RECURSIVE ") + readable + QStringLiteral(", ") +
                      baseTypes +
                      QStringLiteral(
                          " SELECT r.name, a.attname, t.typname,"
                          " CASE WHEN a.atttypmod >= 0 THEN a.atttypmod ELSE b.modifier END,"
                          " a.attidentity <> '' OR coalesce(pg_get_expr(d.adbin, d.adrelid), '')"
                          " LIKE 'nextval(%', a.attnotnull OR b.required"
                          " FROM relations r JOIN pg_attribute a ON a.attrelid = r.oid"
                          " JOIN base b ON b.oid = a.atttypid JOIN pg_type t ON t.oid = b.basetype"
                          " LEFT JOIN pg_attrdef d ON d.adrelid = a.attrelid AND d.adnum = a.attnum"
                          " WHERE a.attnum > 0 AND NOT a.attisdropped");
        QVariantList values = {schema, schema};
        if (!table.empty()) {
            sql += QStringLiteral(" AND r.name = ?");
            values.append(ToQt(table));
        }
        TKCatalogFields fields;
        ForEachRow(database, sql + QStringLiteral(" ORDER BY r.oid, a.attnum"), values,
                   [&](const QSqlQuery& row) {
                       const TKColumnType type = PostgreSQLColumnType(
                           TextOf(row, 2), row.value(3).toInt(), row.value(4).toBool());
                       fields[TextOf(row, 0)].Add(
                           {TextOf(row, 1), type.size, type.type, row.value(5).toBool()});
                   });
        return fields;
    }

    std::vector<TDBForeignKey> ForeignKeys() override {
        // keys that partitions inherit have a parent
        const QString sql =
            QStringLiteral("WITH ") + readable +
            QStringLiteral(" SELECT con.oid, con.conname, r.name, a.attname, f.name, fa.attname"
                           " FROM pg_constraint con JOIN relations r ON r.oid = con.conrelid"
                           " JOIN relations f ON f.oid = con.confrelid"
                           " CROSS JOIN LATERAL unnest(con.conkey, con.confkey)"
                           " WITH ORDINALITY AS k(ck, fk, ord)"
                           " JOIN pg_attribute a ON a.attrelid = con.conrelid AND a.attnum = k.ck"
                           " JOIN pg_attribute fa ON fa.attrelid = con.confrelid"
                           " AND fa.attnum = k.fk"
                           " WHERE con.contype = 'f' AND con.conparentid = 0"
                           " ORDER BY con.oid, k.ord");
        std::vector<TDBForeignKey> keys;
        qulonglong lastOid = 0;
        ForEachRow(database, sql, {schema, schema}, [&](const QSqlQuery& row) {
            const qulonglong oid = row.value(0).toULongLong();
            if (keys.empty() || oid != lastOid) {
                keys.emplace_back();
                keys.back().Name = TextOf(row, 1);
                keys.back().Table = TextOf(row, 2);
                keys.back().RefTable = TextOf(row, 4);
            }
            lastOid = oid;
            keys.back().Columns.push_back(TextOf(row, 3));
            keys.back().RefColumns.push_back(TextOf(row, 5));
        });
        return keys;
    }

private:
    QSqlDatabase database;
    QString schema;
};

} // namespace

std::unique_ptr<TKCatalog> MakePostgreSQLCatalog(const QSqlDatabase& database,
                                                 const std::string& schema) {
    return std::make_unique<TKPostgreSQLCatalog>(database, schema);
}

} // namespace tern7
