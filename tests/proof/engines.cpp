#include "engines.h"

#include <stdexcept>

#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtSql/QSqlError>
#include <QtSql/QSqlRecord>

#include "formulas.h"
#include "sample.h"

#include <tern7/core/corekit/strings.h>
#include <tern7/sql/executor.h>
#include <tern7/sql/qt_text.h>

namespace tern7::proof {

namespace {

TCell CellOf(const QVariant& value) {
    if (value.isNull()) return {};
    switch (value.typeId()) {
    case QMetaType::Double:
        return value.toDouble();
    case QMetaType::QString:
        return FromQt(value.toString());
    case QMetaType::QByteArray:
        return value.toByteArray().toStdString();
    case QMetaType::QDate:
        return FromQt(value.toDate().toString(QStringLiteral("yyyy-MM-dd")));
    case QMetaType::QTime:
        return FromQt(value.toTime().toString(QStringLiteral("HH:mm:ss")));
    case QMetaType::QDateTime:
        return FromQt(value.toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
    default:
        return static_cast<int64_t>(value.toLongLong());
    }
}

TCell CellOf(const TBoundValue& value) {
    using enum TBoundValue::TKind;
    switch (value.kind) {
    case Null:
        return {};
    case Integer:
    case Float:
    case Decimal:
    case Boolean:
        return NumberCell(value.text);
    default:
        return value.text;
    }
}

QVariant VariantOf(const TCell& cell) {
    const auto* text = std::get_if<std::string>(&cell);
    return text ? QVariant(ToQt(*text)) : QVariant(qlonglong{std::get<int64_t>(cell)});
}

/// ":name" as a word of its own, outside literals.
bool HoldsParameter(const std::string& sql, const std::string& name) {
    bool inLiteral = false;
    for (size_t i = 0; i < sql.size(); ++i) {
        if (sql[i] == '\'') inLiteral = !inLiteral;
        if (inLiteral || sql[i] != ':' || sql.compare(i + 1, name.size(), name) != 0) continue;
        const size_t behind = i + 1 + name.size();
        const char c = behind == sql.size() ? ' ' : sql[behind];
        if (!IsLetter(c) && !IsDigit(c)) return true;
    }
    return false;
}

const std::vector<std::string> bytewise = {"pragma case_sensitive_like = on"};

[[noreturn]] void Fail(const QSqlQuery& query) {
    throw std::runtime_error(FromQt(query.lastError().text()));
}

QSqlQuery Prepared(const TKConnection& connection, const QString& sql) {
    QSqlQuery query(connection.Database());
    query.setForwardOnly(true);
    if (!query.prepare(sql)) Fail(query);
    return query;
}

void Run(QSqlQuery& query) {
    if (!query.exec()) Fail(query);
}

/// Numbers as numbers, since SQLite keeps the type of what it compares with an expression and
/// MariaDB compares texts as floating-point numbers; PostgreSQL takes them in as texts exactly.
QVariant ParamValue(const TSQLParam& param, TKEngine engine) {
    const std::string value = param.GetFullValue();
    if (!IsNumeric(KindOf(param.ExprType())) || engine == TKEngine::PostgreSQL) return ToQt(value);
    const TCell number = NumberCell(Trim(value));
    if (const auto* whole = std::get_if<int64_t>(&number)) return qlonglong{*whole};
    return std::get<double>(number);
}

/// The address of a database of ours on the server of the variable, with the sample in it.
std::string LoadedServer(const char* variable, const std::vector<std::string>& createStatements) {
    const std::string address = qgetenv(variable).toStdString();
    if (address.empty()) return address;
    {
        const TEngine server(address, {}, TKConnection::TMode::ReadWrite);
        for (const std::string& statement : createStatements)
            server.Execute(statement);
    }
    std::string own = address.substr(0, address.rfind('/')) + "/tern7_proof";
    RunProgram(SampleFolder() + "/load_server", {"--replace", own});
    return own;
}

} // namespace

TRows RowsOf(QSqlQuery& query) {
    TRows rows;
    const int columns = query.record().count();
    while (query.next()) {
        TRow& row = rows.emplace_back();
        for (int i = 0; i < columns; ++i)
            row.push_back(CellOf(query.value(i)));
    }
    return rows;
}

TEngine::TEngine(const std::string& address, const std::vector<std::string>& settings,
                 TKConnection::TMode mode)
    : connection(ParseDatabaseURL(address), mode) {
    for (const std::string& statement : settings)
        Execute(statement);
}

TRows TEngine::Text(TKQuery& query) const {
    const QString text = ToQt(query.QResult().GetSQL().Text());
    const std::vector<TSQLParam*> params = query.AllParams();
    if (params.empty()) {
        QSqlQuery statement(connection.Database());
        statement.setForwardOnly(true);
        if (!statement.exec(text)) Fail(statement);
        return RowsOf(statement);
    }
    QSqlQuery statement = Prepared(connection, text);
    for (const TSQLParam* param : params)
        statement.bindValue(ToQt(":" + param->Name()), ParamValue(*param, connection.Engine()));
    Run(statement);
    return RowsOf(statement);
}

TRows TEngine::Bound(TKQuery& query, bool escapeWildcards) const {
    TKExecutor executor(connection);
    executor.Open(query.QResult().GetBoundSQL(TPlaceholderStyle::Question, escapeWildcards));
    TRows rows;
    while (executor.Next()) {
        TRow& row = rows.emplace_back();
        for (const TBoundValue& value : executor.Row())
            row.push_back(CellOf(value));
    }
    return rows;
}

void TEngine::Execute(const std::string& sql, const TRow& values) const {
    if (values.empty()) {
        QSqlQuery query(connection.Database());
        if (!query.exec(ToQt(sql))) Fail(query);
        return;
    }
    QSqlQuery query = Prepared(connection, ToQt(sql));
    for (const TCell& cell : values)
        query.addBindValue(VariantOf(cell));
    Run(query);
}

TRows TEngine::Select(const std::string& sql,
                      const std::map<std::string, TCell>& parameters) const {
    QSqlQuery query = Prepared(connection, ToQt(sql));
    for (const auto& [name, value] : parameters)
        if (HoldsParameter(sql, name)) query.bindValue(ToQt(":" + name), VariantOf(value));
    Run(query);
    return RowsOf(query);
}

std::unique_ptr<TEngine> OpenSQLite() {
    return std::make_unique<TEngine>(TSample::Shared().Address(), bytewise);
}

std::unique_ptr<TEngine> OpenSQLiteCopy(const QTemporaryDir& folder) {
    const QString sample = ToQt(TSample::Shared().Address()).section(QLatin1Char(':'), 1);
    const QString copy = folder.filePath(QStringLiteral("copy.db"));
    QFile::copy(sample, copy);
    return std::make_unique<TEngine>("sqlite:" + FromQt(copy), bytewise,
                                     TKConnection::TMode::ReadWrite);
}

std::unique_ptr<TEngine> OpenPostgreSQL() {
    static const std::string address =
        LoadedServer("TERN7_TEST_POSTGRESQL",
                     {"set client_min_messages = warning", "drop database if exists tern7_proof",
                      "create database tern7_proof template template0 encoding 'UTF8' locale 'C'"});
    return address.empty()
               ? nullptr
               : std::make_unique<TEngine>(
                     address, std::vector<std::string>{"set client_min_messages = warning"},
                     TKConnection::TMode::ReadWrite);
}

std::unique_ptr<TEngine> OpenMariaDB(bool defaultMode) {
    static const std::string address =
        LoadedServer("TERN7_TEST_MARIADB", {"drop database if exists tern7_proof",
                                            "create database tern7_proof character set utf8mb4"});
    std::vector<std::string> settings;
    if (!defaultMode)
        settings.emplace_back("set session sql_mode = 'ANSI_QUOTES,NO_BACKSLASH_ESCAPES'");
    return address.empty()
               ? nullptr
               : std::make_unique<TEngine>(address, settings, TKConnection::TMode::ReadWrite);
}

} // namespace tern7::proof
