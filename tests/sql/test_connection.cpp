#include "engines.h"

#include <QtCore/QFile>

#include <tern7/core/global/errors.h>

namespace tern7::test {

namespace {

std::string MessageOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const EKDBInfoError& error) {
        return error.what();
    }
    return "no error";
}

} // namespace

TEST(DatabaseURL, Parts) {
    struct TCase {
        const char* text;
        const char* user;
        const char* password;
        const char* host;
        int port;
        const char* database;
        const char* shown;
    };
    const TCase cases[] = {
        {"sqlite:a b%20#?.db", "", "", "", 0, "a b%20#?.db", "sqlite:a b%20#?.db"},
        {"postgresql://u:p%40%2Fw@h:5433/shop", "u", "p@/w", "h", 5433, "shop",
         "postgresql://u@h:5433/shop"},
        {"postgres://u:a/b@c?d@h/shop?sslmode=require", "u", "a/b@c?d", "h", 0, "shop",
         "postgresql://u@h/shop"},
        {"mysql://h/caf%C3%A9", "", "", "h", 0, "caf\u00e9", "mysql://h/caf\u00e9"},
        {"mariadb://u:100%@[::1]:3307/x", "u", "100%", "::1", 3307, "x", "mysql://u@::1:3307/x"},
        {"ODBC:My DSN", "", "", "", 0, "My DSN", "odbc:My DSN"},
        {"odbc:DRIVER={X};PWD=secret", "", "", "", 0, "DRIVER={X};PWD=secret", "odbc:..."},
    };
    for (const TCase& each : cases) {
        const TKDatabaseURL url = ParseDatabaseURL(each.text);
        EXPECT_EQ(url.user, each.user) << each.text;
        EXPECT_EQ(url.password, each.password) << each.text;
        EXPECT_EQ(url.host, each.host) << each.text;
        EXPECT_EQ(url.port, each.port) << each.text;
        EXPECT_EQ(url.database, each.database) << each.text;
        EXPECT_EQ(url.DisplayText(), each.shown) << each.text;
    }
}

TEST(DatabaseURL, WrongOnesAreRefusedWithoutRepeatingThem) {
    for (const char* text :
         {"", "shop.db", "sqlite:", "postgresql://u:secret@h:port/x", "postgresql://u:secret@h:0/x",
          "mysql://u:secret@h:99999/x", "mysql://u:secret@h", "oracle://u:secret@h/x",
          "postgresql://u:secret@h/x?secret=1", "postgresql://u@h/x?sslmode=a%20b",
          "mysql://u@h/x?sslmode=require", "postgresql://[::1]secret/x"}) {
        const std::string message = MessageOf([&] { ParseDatabaseURL(text); });
        EXPECT_NE(message, "no error") << text;
        EXPECT_EQ(message.find("secret"), std::string::npos) << message;
    }
}

TEST(Connection, MissingFileIsAnErrorAndNoNewDatabase) {
    const QTemporaryDir folder;
    const std::string path = FromQt(folder.filePath(QStringLiteral("new.db")));
    for (const auto mode : {TKConnection::TMode::ReadOnly, TKConnection::TMode::ReadWrite})
        EXPECT_EQ(MessageOf([&] { TKConnection(ParseDatabaseURL("sqlite:" + path), mode); }),
                  "No such database file: " + path);
    EXPECT_FALSE(QFile::exists(ToQt(path)));
    EXPECT_NE(MessageOf([&] { TKConnection(ParseDatabaseURL("sqlite:" + FromQt(folder.path()))); }),
              "no error");
    QFile text(ToQt(path));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("this is no database, but a text that is long enough to have a header");
    text.close();
    EXPECT_NE(
        MessageOf([&] { TKConnection(ParseDatabaseURL("sqlite:" + path)); }).find("not a database"),
        std::string::npos);
}

TEST(Connection, OddPathsAreFilesAndNothingElse) {
    const QTemporaryDir folder;
    for (const char* name : {"file:x?mode=rwc", "a b#c?d%20e.db", ":memory:", "\u00fcber.db"}) {
        const QString path = folder.path() + QLatin1Char('/') + QString::fromUtf8(name);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.close();
        const TKDatabaseURL url = ParseDatabaseURL("sqlite:" + FromQt(path));
        {
            const TKConnection writer(url, TKConnection::TMode::ReadWrite);
            Execute(writer.Database(), QStringLiteral("CREATE TABLE t (x)"));
        }
        EXPECT_GT(QFileInfo(path).size(), 0) << name;
    }
}

TEST(Connection, IsRemovedWithItsObject) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("x.db"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    std::string name;
    {
        const TKConnection connection(ParseDatabaseURL("sqlite:" + FromQt(path)));
        const TKConnection other(ParseDatabaseURL("sqlite:" + FromQt(path)));
        name = connection.Name();
        EXPECT_NE(name, other.Name());
        EXPECT_TRUE(QSqlDatabase::contains(ToQt(name)));
    }
    EXPECT_FALSE(QSqlDatabase::contains(ToQt(name)));
    MessageOf([&] { TKConnection(ParseDatabaseURL("sqlite:/nowhere"), {}, "failed"); });
    EXPECT_FALSE(QSqlDatabase::contains(QStringLiteral("failed")));
}

TEST(Connection, ErrorsNeverHoldThePassword) {
    // nothing listens on port 1
    for (const char* kind : {"postgresql", "mysql"}) {
        const std::string message = MessageOf([&] {
            TKConnection(ParseDatabaseURL(std::string(kind) + "://me:sesame@127.0.0.1:1/shop"));
        });
        EXPECT_NE(message.find(std::string(kind) + "://me@127.0.0.1:1/shop"), std::string::npos)
            << message;
        EXPECT_EQ(message.find("sesame"), std::string::npos) << message;
    }
    const std::string odbc =
        MessageOf([&] { TKConnection(ParseDatabaseURL("odbc:DRIVER={None};UID=me;PWD=sesame")); });
    EXPECT_NE(odbc, "no error");
    EXPECT_EQ(odbc.find("sesame"), std::string::npos) << odbc;
}

class TConnection : public TEngineTest {};
INSTANTIATE_TEST_SUITE_P(Engines, TConnection,
                         ::testing::Values(TKEngine::SQLite, TKEngine::PostgreSQL, TKEngine::MySQL),
                         EngineName);

TEST_P(TConnection, ReadOnlyConnectionsCanNotWrite) {
    const std::string table =
        GetParam() == TKEngine::SQLite ? std::string("t") : std::string("tern7test.t");
    Run("CREATE TABLE t (x int)");
    const TKConnection reader(ParseDatabaseURL(address));
    EXPECT_EQ(reader.Engine(), GetParam());
    const auto run = [&](const std::string& sql) {
        return MessageOf([&] { Execute(reader.Database(), ToQt(sql)); });
    };
    EXPECT_EQ(run("SELECT x FROM " + table), "no error");
    EXPECT_NE(run("INSERT INTO " + table + " VALUES (1)"), "no error");
    EXPECT_NE(run("CREATE TABLE " + table + "2 (x int)"), "no error");
}

} // namespace tern7::test
