#include <tern7/sql/catalog.h>

#include <QtSql/QSqlDriver>
#include <QtSql/QSqlField>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>

#include <tern7/sql/driver_call.h>
#include <tern7/sql/qt_text.h>
#include <tern7/sql/reserved_words.h>
#include <tern7/sql/type_mapping.h>

namespace tern7 {

namespace {

class TKGenericCatalog : public TKCatalog {
public:
    TKGenericCatalog(const QSqlDatabase& connection, const std::string& schemaName)
        : database(connection), prefix(schemaName.empty() ? "" : schemaName + ".") {}

    bool ReadsAllFields() const override { return false; }

    std::vector<TKCatalogTable> Tables() override {
        std::vector<TKCatalogTable> tables;
        for (const auto kind : {QSql::Tables, QSql::Views})
            for (const QString& name : database.tables(kind))
                if (StartsText(FromQt(name), prefix))
                    tables.push_back({FromQt(name), name.contains(QLatin1Char('.'))});
        return tables;
    }

    /// Drivers tell more about the columns of a result than about those of a table.
    TKCatalogFields Fields(const std::string& table) override {
        if (table.empty()) return {};
        QSqlQuery query(database);
        query.setForwardOnly(true);
        QSqlRecord record;
        if (query.exec(QStringLiteral("SELECT * FROM %1 WHERE 1=0").arg(SQLName(table))))
            record = query.record();
        if (record.isEmpty()) record = database.record(SQLName(table));
        if (record.isEmpty()) return {};
        TDBFieldList fields;
        for (int i = 0; i < record.count(); ++i) {
            const QSqlField field = record.field(i);
            const TKColumnType type =
                DriverColumnType(field, database.driverName() == QLatin1String("QODBC"));
            fields.Add({FromQt(field.name()), type.size, type.type,
                        field.requiredStatus() == QSqlField::Required});
        }
        TKCatalogFields result;
        result.emplace(table, std::move(fields));
        return result;
    }

private:
    /// Part by part in quotes where it needs them: drivers list tables of schemas as schema.table.
    QString SQLName(const std::string& table) const {
        QStringList parts;
        for (const QString& part : ToQt(table).split(QLatin1Char('.')))
            parts << (NameNeedsQuotes(FromQt(part), TKEngine::Generic)
                          ? database.driver()->escapeIdentifier(part, QSqlDriver::TableName)
                          : part);
        return parts.join(QLatin1Char('.'));
    }

    QSqlDatabase database;
    std::string prefix;
};

} // namespace

std::unique_ptr<TKCatalog> MakeGenericCatalog(const QSqlDatabase& database,
                                              const std::string& schema) {
    return std::make_unique<TKGenericCatalog>(database, schema);
}

} // namespace tern7
