#include "engines.h"

#include <thread>

#include <gmock/gmock.h>

#include <QtSql/QSqlDatabase>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/corekit/strings.h>
#include <tern7/kbdeinfo.h>

namespace tern7::test {

namespace {

using TLines = std::vector<std::string>;

/// "name type size", with " required".
TLines Described(const TDBFieldList& fields) {
    TLines lines;
    for (const TDBFieldInfo& field : fields)
        lines.push_back(field.FieldName + " " + std::string(FldTypeToStr(field.FieldType)) + " " +
                        std::to_string(field.FieldSize) + (field.Required ? " required" : ""));
    return lines;
}

std::string Described(const TDBForeignKey& key) {
    return key.Table + "(" + ComposeCommaText(key.Columns) + ") -> " + key.RefTable + "(" +
           ComposeCommaText(key.RefColumns) + ")" + (key.Optional ? " optional" : "");
}

class TBDEInfo : public TEngineTest {
protected:
    void SetUp() override {
        TEngineTest::SetUp();
        if (!writer) return;
        info.SetDatabaseName("test");
        // other schemas of a shared server are none of our business
        if (GetParam() == TKEngine::PostgreSQL) info.SetSchema("tern7test");
    }
    void TearDown() override {
        info.SetDatabaseName("");
        TEngineTest::TearDown();
    }
    TLines Tables() {
        TStrings tables;
        info.GetTableNames(tables);
        return tables;
    }
    TLines Keys() {
        std::vector<TDBForeignKey> keys;
        info.GetForeignKeys(keys);
        TLines lines;
        for (const TDBForeignKey& key : keys)
            lines.push_back(Described(key));
        return lines;
    }

    TKBDEInfo info;
};

class TSQLiteInfo : public TBDEInfo {};

} // namespace

INSTANTIATE_TEST_SUITE_P(Engines, TBDEInfo,
                         ::testing::Values(TKEngine::SQLite, TKEngine::PostgreSQL, TKEngine::MySQL),
                         EngineName);

INSTANTIATE_TEST_SUITE_P(Engines, TSQLiteInfo, ::testing::Values(TKEngine::SQLite), EngineName);

namespace {

// How each column is declared; its type, size and whether it is required.
constexpr const char* postgreSQLColumns = R"(
id serial PRIMARY KEY: ftAutoInc 0 required;
gid int GENERATED ALWAYS AS IDENTITY: ftAutoInc 0 required;
big bigserial: ftLargeint 0 required; s int2: ftSmallint 0; r float4: ftFloat 0;
d float8: ftFloat 0; n numeric(10,2): ftBCD 2; n0 numeric: ftBCD 0; b bool: ftBoolean 0;
c char(5): ftString 5; v varchar(30): ftString 30; v0 varchar: ftString 0; t text: ftString 0;
m mood: ftString 0; dom code: ftString 7; dom2 strict_code: ftString 7 required;
dt date: ftDate 0; tm time: ftTime 0; ts timestamp: ftDateTime 0; tz timestamptz: ftDateTime 0;
j jsonb: ftMemo 0; u uuid: ftString 36; by bytea: ftBlob 0; a int[]: ftString 0;
cash money: ftString 0; bits bit(12): ftString 12;
calc int GENERATED ALWAYS AS (s + 1) STORED: ftInteger 0)";
constexpr const char* mySQLColumns = R"(
id int AUTO_INCREMENT PRIMARY KEY: ftAutoInc 0 required; flag tinyint(1): ftBoolean 0;
t1 tinyint: ftSmallint 0; s smallint unsigned: ftWord 0; mi mediumint: ftInteger 0;
iu int unsigned: ftLargeint 0; bi bigint: ftLargeint 0; y year: ftSmallint 0;
f float: ftFloat 0; d decimal(12,3): ftBCD 3; c char(5): ftString 5;
v varchar(30) NOT NULL: ftString 30 required; e enum('a','bcd'): ftString 3; tx text: ftMemo 0;
j json: ftMemo 0; dt date: ftDate 0; tm time: ftTime 0; ts datetime: ftDateTime 0;
b1 bit(1): ftBoolean 0; b9 bit(9): ftBytes 2; bin binary(4): ftBytes 4;
vb varbinary(6): ftVarBytes 6; bl blob: ftBlob 0; calc int AS (mi + 1): ftInteger 0)";
constexpr const char* sqliteColumns = R"(
id INTEGER PRIMARY KEY: ftAutoInc 0 required; big bigint: ftLargeint 0;
s SMALLINT: ftSmallint 0; i int unsigned: ftInteger 0; r REAL: ftFloat 0;
dp double precision: ftFloat 0; n DECIMAL( 10 , 2 ): ftBCD 2; n0 numeric: ftBCD 0;
b BOOLEAN: ftBoolean 0; v VARCHAR ( 30 ) NOT NULL: ftString 30 required;
nc native character(70): ftString 70; t TEXT: ftString 0; cl clob: ftMemo 0; dt DATE: ftDate 0;
tm TIME: ftTime 0; ts TIMESTAMP WITH TIME ZONE: ftDateTime 0; m money: ftCurrency 0;
bl BLOB: ftBlob 0; none: ftString 0; odd FLOATING POINT: ftInteger 0; word whatever: ftBCD 0;
calc INT AS (s + 1): ftInteger 0)";

TStrings Columns(TKEngine engine) {
    const std::string text = engine == TKEngine::PostgreSQL ? postgreSQLColumns
                             : engine == TKEngine::MySQL    ? mySQLColumns
                                                            : sqliteColumns;
    return SplitLines(ReplaceStr(ReplaceStr(text.substr(1), ";\n", "\n"), "; ", "\n"));
}

} // namespace

TEST_P(TBDEInfo, ColumnsHaveTheTypesThatWereDeclared) {
    TStrings declared;
    TLines expected;
    for (const std::string& column : Columns(GetParam())) {
        declared.emplace_back(GetBeforeSep(column, ": "));
        const std::string type(GetAfterSep(TrimRight(column), ": "));
        expected.push_back(column.substr(0, column.find_first_of(" :")) + " " + type);
    }
    const bool isPostgreSQL = GetParam() == TKEngine::PostgreSQL;
    if (isPostgreSQL) {
        Run("CREATE DOMAIN code AS varchar(7);\nCREATE DOMAIN strict_code AS code NOT NULL;\n"
            "CREATE TYPE mood AS ENUM ('sad', 'happy');\n");
        declared.insert(declared.begin() + 3, "gone int");
    }
    Run("CREATE TABLE every (" + JoinStrings(declared, ", ") + ");\n");
    if (isPostgreSQL) Run("ALTER TABLE every DROP COLUMN gone");
    EXPECT_EQ(Described(info.GetFieldList("every")), expected);
    EXPECT_EQ(Described(info.GetFieldList("EVERY")), expected) << "names ignore case";
}

TEST_P(TSQLiteInfo, OnlyARowIdIsAutomatic) {
    Run("CREATE TABLE two (a INTEGER, b INTEGER, PRIMARY KEY (a, b));\n"
        "CREATE TABLE plain (a INT PRIMARY KEY);\n"
        "CREATE TABLE noid (a INTEGER PRIMARY KEY) WITHOUT ROWID;\n");
    EXPECT_EQ(Described(info.GetFieldList("two")), (TLines{"a ftInteger 0", "b ftInteger 0"}));
    EXPECT_EQ(Described(info.GetFieldList("plain")), (TLines{"a ftInteger 0"}));
    EXPECT_EQ(Described(info.GetFieldList("noid")), (TLines{"a ftInteger 0 required"}));
}

TEST_P(TBDEInfo, TablesAndViewsThatCanBeRead) {
    Run("CREATE TABLE b (x int);\nCREATE TABLE a (y int);\n"
        "CREATE VIEW v AS SELECT x AS z FROM b;\n");
    TLines expected = {"a", "b", "v"};
    if (GetParam() == TKEngine::SQLite) {
        Run("CREATE TABLE counted (id INTEGER PRIMARY KEY AUTOINCREMENT);\n"
            "CREATE VIEW broken AS SELECT x FROM nowhere;\n"
            "CREATE VIRTUAL TABLE words USING fts5(t);\n");
        expected = {"a", "b", "counted", "v", "words"};
    } else if (GetParam() == TKEngine::PostgreSQL) {
        Run("CREATE TABLE p (k int) PARTITION BY HASH (k);\n"
            "CREATE TABLE p1 PARTITION OF p FOR VALUES WITH (MODULUS 1, REMAINDER 0);\n"
            "CREATE MATERIALIZED VIEW m AS SELECT 1 AS one;\n");
        expected = {"a", "b", "m", "p", "v"};
    }
    EXPECT_EQ(Tables(), expected);
    EXPECT_EQ(Described(info.GetFieldList("v")), TLines{"z ftInteger 0"});
}

TEST_P(TBDEInfo, ColumnsOfAllTablesAreReadAtTheSecondTable) {
    Run("CREATE TABLE a (x int);\nCREATE TABLE b (y int);\nCREATE TABLE c (z int);\n");
    const TLines column = {"x ftInteger 0"};
    EXPECT_EQ(Described(info.GetFieldList("a")), column);
    Run("ALTER TABLE a ADD COLUMN x2 int;\n");
    EXPECT_EQ(Described(info.GetFieldList("a")), column) << "one request for one table";
    EXPECT_EQ(info.GetFieldList("b").GetCount(), 1);
    Run("DROP TABLE c;\nCREATE TABLE d (w int);\n");
    EXPECT_EQ(info.GetFieldList("c").GetCount(), 1) << "was read together with b";
    EXPECT_EQ(info.GetFieldList("d").GetCount(), 1) << "made since";
    info.Update();
    EXPECT_EQ(info.GetFieldList("a").GetCount(), 2);
    EXPECT_THROW(info.GetFieldList("c"), EKDBInfoError);
}

TEST_P(TBDEInfo, ForeignKeysInTheOrderOfTheirColumns) {
    Run("CREATE TABLE parent (p1 int NOT NULL, p2 int NOT NULL, PRIMARY KEY (p1, p2));\n"
        "CREATE TABLE person (id int NOT NULL PRIMARY KEY, boss int,"
        " FOREIGN KEY (boss) REFERENCES person (id));\n"
        "CREATE TABLE child (c2 int, c1 int NOT NULL, made_by int NOT NULL, sent_by int,"
        " FOREIGN KEY (sent_by) REFERENCES person (id),"
        " FOREIGN KEY (made_by) REFERENCES person (id),"
        " FOREIGN KEY (c1, c2) REFERENCES parent (p1, p2));\n");
    EXPECT_EQ(
        Keys(),
        (TLines{"child(c1,c2) -> parent(p1,p2) optional", "child(made_by) -> person(id)",
                "child(sent_by) -> person(id) optional", "person(boss) -> person(id) optional"}));
}

TEST_P(TSQLiteInfo, KeysThatLeadNowhereAreLeftOut) {
    Run("CREATE TABLE Parent (a INT, b INT, PRIMARY KEY (b, a));\n"
        "CREATE TABLE child (x INT NOT NULL, y INT NOT NULL, z INT REFERENCES missing,"
        " w INT REFERENCES parent (nocolumn),"
        " FOREIGN KEY (X, y) REFERENCES parent, FOREIGN KEY (x, y) REFERENCES parent (b, a));\n");
    EXPECT_EQ(Keys(), TLines{"child(x,y) -> Parent(b,a)"});
}

TEST_P(TBDEInfo, NamesThatNeedNoQuotesWorkWithoutThem) {
    const TLines names = {"plain", "_x1",    "order", "select", "user", "value", "key",  "offset",
                          "level", "window", "rank",  "name",   "date", "index", "year", "groups"};
    for (const std::string& name : names) {
        if (info.NeedsQuotes(name)) continue;
        SCOPED_TRACE(name);
        Run("CREATE TABLE " + name + " (" + name + " int);\n");
        EXPECT_NO_THROW(Run("SELECT " + name + "." + name + " FROM " + name + " ORDER BY " + name));
        EXPECT_EQ(Tables(), TLines{name});
        Run("DROP TABLE " + name);
    }
    for (const char* name : {"order", "select", "a b", "9a", "a-b", "gr\u00f6\u00dfe", ""})
        EXPECT_TRUE(info.NeedsQuotes(name)) << name;
    EXPECT_FALSE(info.NeedsQuotes("plain"));
    EXPECT_EQ(info.NeedsQuotes("MixedCase"), GetParam() == TKEngine::PostgreSQL);
    const char quote = GetParam() == TKEngine::MySQL ? '`' : '"';
    EXPECT_EQ(info.QuoteSymbol1(), quote);
    EXPECT_EQ(info.QuoteSymbol2(), quote);
}

TEST_P(TBDEInfo, TablesOfAnotherSchemaCarryItsName) {
    const bool quoted = GetParam() != TKEngine::MySQL;
    const std::string odd = quoted ? "\"Odd Name\"" : "`Odd Name`";
    if (GetParam() == TKEngine::SQLite)
        Run("ATTACH ':memory:' AS sales");
    else
        Run("CREATE SCHEMA sales");
    Run("CREATE TABLE items (a int);\nCREATE TABLE sales.items (id int NOT NULL PRIMARY KEY);\n"
        "CREATE TABLE sales." +
        odd + " (line int, FOREIGN KEY (line) REFERENCES " +
        (GetParam() == TKEngine::SQLite ? "items" : "sales.items") + " (id));\n");
    info.SetSchema("sales");
    EXPECT_EQ(Tables(), (TLines{"sales." + odd, "sales.items"}));
    for (const std::string& table : Tables()) {
        EXPECT_FALSE(info.NeedsQuotes(table)) << table;
        EXPECT_NO_THROW(Run("SELECT * FROM " + table));
    }
    EXPECT_EQ(Described(info.GetFieldList("sales.items")), TLines{"id ftInteger 0 required"});
    EXPECT_EQ(Described(info.GetFieldList("sales." + odd)), TLines{"line ftInteger 0"});
    std::vector<TDBForeignKey> keys;
    info.GetForeignKeys(keys);
    ASSERT_EQ(keys.size(), 1u);
    EXPECT_EQ(keys[0].Table, "sales." + odd);
    EXPECT_EQ(keys[0].RefTable, "sales.items");
    TStrings saved;
    info.SaveInfo(saved);
    EXPECT_EQ(saved, (TStrings{"DatabaseName=test", "Schema=sales"}));
}

TEST_P(TBDEInfo, ValueListsComeInCanonicalForm) {
    Run("CREATE TABLE t (id int, n decimal(10,2), d date, name varchar(20));\n"
        "INSERT INTO t VALUES (1, 12.30, '2024-01-02', 'one'), (2, NULL, NULL, 'two; it''s');\n");
    std::vector<bool> busy;
    info.OnBusy = [&](bool on) { busy.push_back(on); };
    TStrings values = {"old"};
    TStrings captions = {"old"};
    info.GetSQLValues("SELECT id, name -- of all\nFROM t ORDER BY id;", values, captions);
    EXPECT_EQ(values, (TStrings{"1", "2"}));
    EXPECT_EQ(captions, (TStrings{"one", "two; it's"}));
    EXPECT_EQ(busy, (std::vector<bool>{true, false}));
    info.GetSQLValues("SELECT d, n FROM t ORDER BY id", values, captions);
    EXPECT_EQ(values, (TStrings{"2024-01-02", ""}));
    const bool exact = GetParam() != TKEngine::SQLite; // which keeps a binary number
    EXPECT_EQ(captions, (TStrings{exact ? "12.30" : "12.3", ""}));
}

TEST_P(TBDEInfo, ValueListsAreRefusedInWords) {
    Run("CREATE TABLE t (id int)");
    const std::pair<const char*, const char*> cases[] = {
        {"SELECT id FROM t", "Field count must be >= 2"},
        {"DROP TABLE t", "Only SELECT statements are executed"},
        {"SELECT 1, 2; DROP TABLE t", "Only one statement is executed at a time"},
        {"SELECT id, id FROM t WHERE id = :id", "A parameter has no value: :id"},
        {"SELECT id, nothing FROM t", "nothing"},
    };
    for (const auto& [sql, message] : cases) {
        TStrings values = {"old"};
        TStrings captions = {"old"};
        bool isBusy = false;
        info.OnBusy = [&](bool on) { isBusy = on; };
        try {
            info.GetSQLValues(sql, values, captions);
            ADD_FAILURE() << sql;
        } catch (const EKDBInfoError& error) {
            EXPECT_NE(std::string(error.what()).find(message), std::string::npos) << error.what();
        }
        EXPECT_TRUE(values.empty() && captions.empty()) << sql;
        EXPECT_FALSE(isBusy) << sql;
    }
    EXPECT_EQ(Tables(), TLines{"t"});
}

TEST_P(TBDEInfo, ValueListsLeaveTheApplicationsTransactionAlone) {
    Run("CREATE TABLE t (id int)");
    QSqlDatabase database = writer->Database();
    ASSERT_TRUE(database.transaction());
    Run("INSERT INTO t VALUES (5)");
    TStrings values;
    TStrings captions;
    info.GetSQLValues("SELECT id, id FROM t", values, captions);
    EXPECT_EQ(values, TStrings{"5"}) << "sees what the application wrote";
    Run("INSERT INTO t VALUES (6)");
    ASSERT_TRUE(database.rollback());
    info.GetSQLValues("SELECT id, id FROM t", values, captions);
    EXPECT_TRUE(values.empty());
    Run("INSERT INTO t VALUES (7)");
}

TEST_P(TBDEInfo, ValueListsCanBeReadInAnotherThread) {
    Run("CREATE TABLE t (id int, name varchar(20));\n"
        "INSERT INTO t VALUES (1, 'one'), (2, 'two');\n");
    const qsizetype connections = QSqlDatabase::connectionNames().size();
    TStrings values;
    TStrings captions;
    std::string error;
    auto readThere = [&](const char* sql) {
        const auto job = info.SQLValuesJob(sql);
        ASSERT_TRUE(job);
        std::thread([&] {
            try {
                job(values, captions);
            } catch (const EKDBInfoError& e) {
                error = e.what();
            }
        }).join();
    };
    readThere("SELECT id, name FROM t ORDER BY id");
    EXPECT_EQ(values, (TStrings{"1", "2"})) << error;
    EXPECT_EQ(captions, (TStrings{"one", "two"}));
    readThere("SELECT id, nothing FROM t");
    EXPECT_NE(error.find("nothing"), std::string::npos) << error;
    EXPECT_EQ(QSqlDatabase::connectionNames().size(), connections);
}

TEST(BDEInfo, DatabaseInMemoryIsSeenByItsConnectionOnly) {
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "in memory");
        database.setDatabaseName(":memory:");
        TKBDEInfo info;
        info.SetDatabaseName("in memory");
        EXPECT_FALSE(info.SQLValuesJob("SELECT 1, 2"));
    }
    QSqlDatabase::removeDatabase("in memory");
}

TEST(BDEInfo, ConnectionName) {
    TKBDEInfo info;
    info.LoadInfo({"DatabaseName=some", "Schema=s"});
    info.LoadInfo({"DatabaseName=nobody"}); // without a schema, and so it was when it was saved
    EXPECT_EQ(info.DatabaseName() + info.Schema(), "nobody");
    info.LoadInfo({"DatabaseName="});
    EXPECT_EQ(info.DatabaseName(), "nobody");
    TStrings lines;
    info.SaveInfo(lines);
    EXPECT_EQ(lines, TStrings{"DatabaseName=nobody"});
    TStrings tables;
    EXPECT_THAT([&] { info.GetTableNames(tables); },
                testing::ThrowsMessage<EKDBInfoError>("No such database connection: nobody"));
}

} // namespace tern7::test
