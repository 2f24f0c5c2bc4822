#pragma once

#include <string>

#include <QtCore/QTemporaryDir>
#include <gtest/gtest.h>

#include <tern7/sql/connection.h>
#include <tern7/sql/driver_call.h>
#include <tern7/sql/qt_text.h>

/// What the tests of Tern7::Sql run against: a SQLite file in a temporary folder, and the servers
/// of TERN7_TEST_POSTGRESQL and TERN7_TEST_MARIADB where these addresses are given.
namespace tern7::test {

/// The address of an engine's test database; empty when there is none.
inline std::string AddressOf(TKEngine engine, const QTemporaryDir& folder) {
    switch (engine) {
    case TKEngine::SQLite:
        return "sqlite:" + FromQt(folder.filePath(QStringLiteral("test.db")));
    case TKEngine::PostgreSQL:
        return qgetenv("TERN7_TEST_POSTGRESQL").toStdString();
    case TKEngine::MySQL:
        return qgetenv("TERN7_TEST_MARIADB").toStdString();
    case TKEngine::Generic:
        break;
    }
    return {};
}

inline std::string EngineName(const ::testing::TestParamInfo<TKEngine>& info) {
    constexpr const char* names[] = {"Generic", "SQLite", "PostgreSQL", "MariaDB"};
    return names[static_cast<size_t>(info.param)];
}

/// A writable connection to an empty database of each engine.
class TEngineTest : public ::testing::TestWithParam<TKEngine> {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Statements, each ended by ";" and a line end.
    void Run(const std::string& script);

    QTemporaryDir folder;
    std::string address;
    std::unique_ptr<TKConnection> writer;

private:
    void DropEverything();
};

} // namespace tern7::test
