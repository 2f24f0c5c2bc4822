#include "engines.h"

#include <tern7/core/global/errors.h>
#include <tern7/kbdeinfo.h>
#include <tern7/sql/catalog.h>
#include <tern7/sql/executor.h>

namespace tern7::test {

namespace {

using TKind = TBoundValue::TKind;

/// The same test database through ODBC.
std::string ODBCAddress(TKEngine engine, const TKDatabaseURL& url) {
    const std::string server = ";SERVER=" + url.host + ";PORT=" + std::to_string(url.port) +
                               ";UID=" + url.user + ";PWD=" + url.password + ";DATABASE=";
    switch (engine) {
    case TKEngine::PostgreSQL:
        return "odbc:DRIVER={PostgreSQL Unicode}" + server + url.database;
    case TKEngine::MySQL:
        return "odbc:DRIVER={MariaDB Unicode};CHARSET=utf8mb4" + server + "tern7test";
    default:
        return "odbc:DRIVER={SQLite3};Database=" + url.database;
    }
}

std::string Described(const TDBFieldList& fields) {
    std::string text;
    for (const TDBFieldInfo& field : fields)
        text += field.FieldName + " " + std::string(FldTypeToStr(field.FieldType)) + " " +
                std::to_string(field.FieldSize) + ", ";
    return text;
}

class TODBC : public TEngineTest {
protected:
    void SetUp() override {
        TEngineTest::SetUp();
        if (!writer) return;
        Run("CREATE TABLE p (id int NOT NULL PRIMARY KEY);\n"
            "CREATE TABLE t (i int NOT NULL, n decimal(10,2), s varchar(30),"
            " FOREIGN KEY (i) REFERENCES p (id));\n"
            "INSERT INTO p VALUES (10);\nINSERT INTO t VALUES (10, 12.30, 'O''Hara')");
        try {
            odbc = std::make_unique<TKConnection>(
                ParseDatabaseURL(ODBCAddress(GetParam(), ParseDatabaseURL(address))),
                TKConnection::TMode::ReadOnly, "odbc");
        } catch (const EKDBInfoError& error) {
            GTEST_SKIP() << "no ODBC driver: " << error.what();
        }
        if (GetParam() == TKEngine::PostgreSQL)
            Execute(odbc->Database(), QStringLiteral("SET search_path = tern7test"));
    }
    void TearDown() override {
        odbc.reset();
        TEngineTest::TearDown();
    }

    std::unique_ptr<TKConnection> odbc;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Engines, TODBC,
                         ::testing::Values(TKEngine::SQLite, TKEngine::PostgreSQL, TKEngine::MySQL),
                         EngineName);

TEST_P(TODBC, KnownEnginesAreAskedThroughTheirCatalog) {
    EXPECT_EQ(odbc->Engine(), GetParam());
    TKBDEInfo info;
    info.SetDatabaseName("odbc");
    if (GetParam() == TKEngine::PostgreSQL) info.SetSchema("tern7test");
    TStrings tables;
    info.GetTableNames(tables);
    EXPECT_EQ(tables, (TStrings{"p", "t"}));
    EXPECT_EQ(Described(info.GetFieldList("t")), "i ftInteger 0, n ftBCD 2, s ftString 30, ");
    std::vector<TDBForeignKey> keys;
    info.GetForeignKeys(keys);
    ASSERT_EQ(keys.size(), 1u);
    EXPECT_EQ(keys[0].RefTable, "p");
}

TEST_P(TODBC, StatementsAreExecutedReadOnly) {
    EXPECT_THROW(Execute(odbc->Database(), QStringLiteral("DELETE FROM t")), EKDBInfoError);
    TKExecutor executor(*odbc);
    executor.Open({"SELECT i, s FROM t WHERE s = ? AND n = ? AND i + n > ?",
                   {{TKind::Text, "O'Hara"}, {TKind::Decimal, "12.3"}, {TKind::Integer, "9"}}},
                  5);
    ASSERT_TRUE(executor.Next());
    EXPECT_EQ(executor.Value(0), (TBoundValue{TKind::Integer, "10"}));
    EXPECT_EQ(executor.Value(1), (TBoundValue{TKind::Text, "O'Hara"}));
    EXPECT_FALSE(executor.Next());
}

TEST_P(TODBC, UnknownEnginesTellTheTypesOfAnEmptyResult) {
    const auto catalog = MakeGenericCatalog(odbc->Database(), "");
    const std::vector<TKCatalogTable> tables = catalog->Tables();
    EXPECT_NE(std::find(tables.begin(), tables.end(), TKCatalogTable{"t", false}), tables.end());
    const TKCatalogFields fields = catalog->Fields("t");
    ASSERT_EQ(fields.count("t"), 1u);
    // SQLite's driver takes DECIMAL for a text
    EXPECT_EQ(Described(fields.at("t")), GetParam() == TKEngine::SQLite
                                             ? "i ftInteger 0, n ftString 10, s ftString 30, "
                                             : "i ftInteger 0, n ftBCD 2, s ftString 30, ");
    EXPECT_TRUE(catalog->Fields("nothing").empty());
    EXPECT_TRUE(catalog->ForeignKeys().empty());
}

} // namespace tern7::test
