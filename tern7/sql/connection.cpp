#include <tern7/sql/connection.h>

#include <atomic>

#include <QtCore/QFileInfo>
#include <QtSql/QSqlError>

#include <tern7/core/corekit/strings.h>
#include <tern7/core/global/errors.h>
#include <tern7/core/global/messages.h>
#include <tern7/sql/driver_call.h>
#include <tern7/sql/qt_text.h>
#include <tern7/sql/read_only_session.h>

namespace tern7 {

namespace {

using TDriver = TKDatabaseURL::TDriver;

const char* DriverName(TDriver driver) {
    switch (driver) {
    case TDriver::SQLite:
        return "QSQLITE";
    case TDriver::PostgreSQL:
        return "QPSQL";
    case TDriver::MySQL:
        return "QMYSQL";
    case TDriver::ODBC:
        break;
    }
    return "QODBC";
}

std::string FreeName() {
    static std::atomic<int> last = 0;
    std::string name;
    do
        name = "tern7-" + std::to_string(++last);
    while (QSqlDatabase::contains(ToQt(name)));
    return name;
}

QString PasswordOf(const TKDatabaseURL& url) {
    if (!url.password.empty()) return ToQt(url.password);
    const char* own = url.driver == TDriver::PostgreSQL ? "PGPASSWORD"
                      : url.driver == TDriver::MySQL    ? "MYSQL_PWD"
                                                        : nullptr;
    const QString password = own ? qEnvironmentVariable(own) : QString();
    return password.isEmpty() ? qEnvironmentVariable("TERN_PASSWORD") : password;
}

/// The absolute path, which no engine takes for an URI or a special name.
QString DatabaseFile(const std::string& path) {
    const QFileInfo file(ToQt(path));
    if (!file.isFile()) throw EKDBInfoError(FormatMessage(messages::NoSuchDatabaseFile, {path}));
    return file.absoluteFilePath();
}

QString ConnectOptions(const TKDatabaseURL& url) {
    QStringList options;
    for (const auto& [option, value] : url.options) {
        // the driver has a host of its own, set by SetAddress
        if (url.driver == TDriver::PostgreSQL && option == "host") continue;
        const QString name =
            url.driver == TDriver::MySQL ? QStringLiteral("UNIX_SOCKET") : ToQt(option);
        options << name + QLatin1Char('=') + ToQt(value);
    }
    return options.join(QLatin1Char(';'));
}

void SetAddress(QSqlDatabase& database, const TKDatabaseURL& url, TKConnection::TMode mode) {
    if (url.driver == TDriver::SQLite) {
        database.setDatabaseName(DatabaseFile(url.database));
        if (mode == TKConnection::TMode::ReadOnly)
            database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        return;
    }
    database.setDatabaseName(ToQt(url.database));
    database.setUserName(ToQt(url.user));
    database.setPassword(PasswordOf(url));
    database.setHostName(ToQt(url.host));
    for (const auto& [option, value] : url.options)
        if (option == "host") database.setHostName(ToQt(value));
    if (url.port != 0) database.setPort(url.port);
    database.setConnectOptions(ConnectOptions(url));
}

} // namespace

TKConnection::TKConnection(const TKDatabaseURL& url, TMode mode, std::string connectionName)
    : name(connectionName.empty() ? FreeName() : std::move(connectionName)) {
    const QString driver = QLatin1String(DriverName(url.driver));
    if (!QSqlDatabase::isDriverAvailable(driver))
        throw EKDBInfoError(FormatMessage(messages::NoDatabaseDriver, {FromQt(driver)}));
    try {
        QSqlDatabase database = QSqlDatabase::addDatabase(driver, ToQt(name));
        SetAddress(database, url, mode);
        if (!database.open())
            throw EKDBInfoError(FormatMessage(messages::CanNotOpenDatabase,
                                              {url.DisplayText(), OpenErrorText(database)}));
        engine = EngineOf(database);
        // a file is not looked at before the first statement
        if (engine == TKEngine::SQLite) Execute(database, QStringLiteral("PRAGMA schema_version"));
        if (mode == TMode::ReadOnly) MakeReadOnly(database, engine);
    } catch (...) {
        Remove();
        throw;
    }
}

TKConnection::~TKConnection() {
    Remove();
}

QSqlDatabase TKConnection::Database() const {
    return QSqlDatabase::database(ToQt(name), false);
}

void TKConnection::Remove() {
    Database().close();
    QSqlDatabase::removeDatabase(ToQt(name));
}

} // namespace tern7
