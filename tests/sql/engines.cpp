#include "engines.h"

#include <QtCore/QFile>

namespace tern7::test {

void TEngineTest::SetUp() {
    address = AddressOf(GetParam(), folder);
    if (address.empty())
        GTEST_SKIP() << "no server: TERN7_TEST_POSTGRESQL or TERN7_TEST_MARIADB is not set";
    if (GetParam() == TKEngine::SQLite) {
        QFile file(folder.filePath(QStringLiteral("test.db")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    writer = std::make_unique<TKConnection>(ParseDatabaseURL(address),
                                            TKConnection::TMode::ReadWrite, "test");
    DropEverything();
}

void TEngineTest::TearDown() {
    if (writer) DropEverything();
}

void TEngineTest::Run(const std::string& script) {
    for (const QString& statement : ToQt(script).split(QStringLiteral(";\n")))
        if (!statement.trimmed().isEmpty()) Execute(writer->Database(), statement.trimmed());
}

/// Servers are shared by all tests: they get an empty schema, or an empty database.
void TEngineTest::DropEverything() {
    if (GetParam() == TKEngine::PostgreSQL) {
        Run("SET client_min_messages = warning;\nDROP SCHEMA IF EXISTS sales CASCADE;\n"
            "DROP SCHEMA IF EXISTS tern7test CASCADE;\nCREATE SCHEMA tern7test;\n"
            "SET search_path = tern7test;\n");
    } else if (GetParam() == TKEngine::MySQL) {
        Run("DROP DATABASE IF EXISTS sales;\nDROP DATABASE IF EXISTS tern7test;\n"
            "CREATE DATABASE tern7test CHARACTER SET utf8mb4;\nUSE tern7test;\n");
    }
}

} // namespace tern7::test
