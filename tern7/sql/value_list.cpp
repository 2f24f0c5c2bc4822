#include <tern7/sql/value_list.h>

#include <atomic>

#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlDriver>
#include <QtSql/QSqlError>
#include <QtSql/QSqlField>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>

#include <tern7/core/global/errors.h>
#include <tern7/core/global/messages.h>
#include <tern7/sql/driver_call.h>
#include <tern7/sql/qt_text.h>
#include <tern7/sql/read_only_session.h>
#include <tern7/sql/result_cell.h>
#include <tern7/sql/select_text.h>

namespace tern7 {

TValueList ReadValueList(const QSqlDatabase& database, TKEngine engine, const std::string& sql) {
    const TKSelectText select = ReadSelect(sql, LexisOf(database, engine));
    if (!select.placeholders.empty())
        throw EKDBInfoError(FormatMessage(messages::ParameterWithoutValue, {"?"}));
    const TKReadOnlySession session(database, engine);
    QSqlQuery query(database);
    query.setForwardOnly(true);
    query.setNumericalPrecisionPolicy(QSql::HighPrecision);
    if (!query.prepare(ToQt(select.text)) || !query.exec()) RaiseDriverError(query.lastError());
    const QSqlRecord record = query.record();
    if (record.count() < 2) throw EKDBInfoError(std::string(messages::FieldCountTooSmall));
    const auto valueKind = ColumnKind(database, record.field(0));
    const auto captionKind = ColumnKind(database, record.field(1));
    const bool textAsBytes = engine == TKEngine::MySQL;
    TValueList list;
    while (query.next()) {
        list.values.push_back(CellOf(query, 0, valueKind, textAsBytes).text);
        list.captions.push_back(CellOf(query, 1, captionKind, textAsBytes).text);
    }
    if (query.lastError().isValid()) RaiseDriverError(query.lastError());
    return list;
}

namespace {

/// A connection that lives as long as this object.
class TCopiedConnection {
public:
    explicit TCopiedConnection(const QString& connection) {
        static std::atomic<unsigned> count{0};
        name = QStringLiteral("tern7-list-%1").arg(++count);
        if (!QSqlDatabase::cloneDatabase(connection, name).isValid())
            throw EKDBInfoError(FormatMessage(messages::NoSuchConnection, {FromQt(connection)}));
    }
    ~TCopiedConnection() { QSqlDatabase::removeDatabase(name); }
    TCopiedConnection(const TCopiedConnection&) = delete;
    TCopiedConnection& operator=(const TCopiedConnection&) = delete;

    QSqlDatabase Open() const {
        QSqlDatabase database = QSqlDatabase::database(name, false);
        if (!database.open()) throw EKDBInfoError(OpenErrorText(database));
        return database;
    }

private:
    QString name;
};

} // namespace

QString SchemaChoice(const QSqlDatabase& database, TKEngine engine) {
    const bool postgres = engine == TKEngine::PostgreSQL;
    if (!postgres && engine != TKEngine::MySQL) return {};
    QString schemas;
    ForEachRow(database,
               postgres ? QStringLiteral("SELECT current_setting('search_path')")
                        : QStringLiteral("SELECT DATABASE()"),
               {}, [&](const QSqlQuery& query) { schemas = ToQt(TextOf(query, 0)); });
    if (schemas.isEmpty()) return {};
    if (postgres) return QStringLiteral("SET search_path = ") + schemas;
    return QStringLiteral("USE ") +
           database.driver()->escapeIdentifier(schemas, QSqlDriver::TableName);
}

TValueList ReadValueListOnCopy(const QString& connection, const QString& schemaChoice,
                               TKEngine engine, const std::string& sql) {
    const TCopiedConnection copy(connection);
    const QSqlDatabase database = copy.Open();
    if (!schemaChoice.isEmpty()) Execute(database, schemaChoice);
    return ReadValueList(database, engine, sql);
}

} // namespace tern7
