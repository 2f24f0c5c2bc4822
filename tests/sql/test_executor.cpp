#include "engines.h"

#include <tern7/core/global/errors.h>
#include <tern7/sql/executor.h>

namespace tern7::test {

namespace {

using TKind = TBoundValue::TKind;

class TExecutor : public TEngineTest {
protected:
    void SetUp() override {
        TEngineTest::SetUp();
        if (!writer) return;
        Run("CREATE TABLE t (i int, big bigint, n decimal(20,2), f double precision, b boolean,"
            " d date, tm time, ts timestamp, s varchar(40));\n"
            "INSERT INTO t VALUES (10, 9007199254740993, 12.30, 1.5, true, '2024-01-02',"
            " '03:04:05', '2024-01-02 03:04:05', 'O''Hara'),"
            " (NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL)");
    }
    /// Rows of t where the condition holds.
    std::string CountWhere(const std::string& condition, std::vector<TBoundValue> values) {
        TKExecutor executor(*writer);
        executor.Open({"SELECT count(*) FROM t WHERE " + condition, std::move(values)});
        return executor.Next() ? executor.Value(0).text : "no row";
    }
    std::string MessageOf(const TBoundSQL& statement) {
        try {
            TKExecutor executor(*writer);
            executor.Open(statement);
            while (executor.Next()) {
            }
        } catch (const EKDBInfoError& error) {
            return error.what();
        }
        return "no error";
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Engines, TExecutor,
                         ::testing::Values(TKEngine::SQLite, TKEngine::PostgreSQL, TKEngine::MySQL),
                         EngineName);

TEST_P(TExecutor, BoundValuesCompareAsConstantsDo) {
    struct TCase {
        const char* condition;
        std::vector<TBoundValue> values;
        const char* count;
    };
    const TCase cases[] = {
        {"i = ?", {{TKind::Integer, "10"}}, "1"},
        {"i > ?", {{TKind::Decimal, "9.5"}}, "1"},
        {"i < ?", {{TKind::Float, "1e3"}}, "1"},
        {"i < ?", {{TKind::Decimal, "123456789012345678901234567890"}}, "1"},
        {"i + n > ?", {{TKind::Integer, "9"}}, "1"},
        {"i + n < ?", {{TKind::Integer, "9"}}, "0"},
        {"i in (?, ?)", {{TKind::Integer, "1"}, {TKind::Integer, "10"}}, "1"},
        {"big = ?", {{TKind::Integer, "9007199254740993"}}, "1"},
        {"big = ?", {{TKind::Integer, "9007199254740992"}}, "0"},
        {"n = ?", {{TKind::Decimal, "12.3"}}, "1"},
        {"n between ? and ?", {{TKind::Decimal, "-.5"}, {TKind::Decimal, "12.30"}}, "1"},
        {"n * 2 = ?", {{TKind::Decimal, "24.6"}}, "1"},
        {"f = ?", {{TKind::Float, "1.5"}}, "1"},
        {"b = ?", {{TKind::Boolean, "1"}}, "1"},
        {"b = ?", {{TKind::Boolean, "0"}}, "0"},
        {"d = ?", {{TKind::Date, "2024-01-02"}}, "1"},
        {"tm = ?", {{TKind::Time, "03:04:05"}}, "1"},
        {"ts = ?", {{TKind::Timestamp, "2024-01-02 03:04:05"}}, "1"},
        {"ts > ?", {{TKind::Date, "2024-01-02"}}, "1"},
        {"s = ?", {{TKind::Text, "O'Hara"}}, "1"},
        {"s like ?", {{TKind::Text, "%'H%"}}, "1"},
        {"s = ?", {{TKind::Null, ""}}, "0"},
        {"coalesce(s, ?) = ?", {{TKind::Text, "?"}, {TKind::Text, "?"}}, "1"},
        {"s <> '?' /* ? ' */ and i = ? -- ?", {{TKind::Integer, "10"}}, "1"},
        {"i = (SELECT max(x.i) FROM t x WHERE x.i > ?)", {{TKind::Integer, "1"}}, "1"},
    };
    for (const TCase& each : cases)
        EXPECT_EQ(CountWhere(each.condition, each.values), each.count)
            << each.condition << " " << each.values[0].text;
}

TEST_P(TExecutor, LongDecimalsAreExact) {
    if (GetParam() == TKEngine::SQLite) return; // keeps binary numbers
    Run("INSERT INTO t (n) VALUES (123456789012345678.25)");
    EXPECT_EQ(CountWhere("n = ?", {{TKind::Decimal, "123456789012345678.25"}}), "1");
    EXPECT_EQ(CountWhere("n * 1 = ?", {{TKind::Decimal, "123456789012345678.25"}}), "1");
    EXPECT_EQ(CountWhere("n = ?", {{TKind::Decimal, "123456789012345678.24"}}), "0");
}

TEST_P(TExecutor, RowsAreInCanonicalForm) {
    TKExecutor executor(*writer);
    executor.Open(
        {"SELECT i, big, n, f, b, d, tm, ts, s AS \"who\" FROM t ORDER BY i IS NULL", {}});
    ASSERT_TRUE(executor.Next());
    const bool sqlite = GetParam() == TKEngine::SQLite;
    const std::vector<TBoundValue> expected = {
        {TKind::Integer, "10"},
        {TKind::Integer, "9007199254740993"},
        {sqlite ? TKind::Float : TKind::Decimal, sqlite ? "12.3" : "12.30"},
        {TKind::Float, "1.5"},
        {GetParam() == TKEngine::MySQL ? TKind::Integer : TKind::Boolean, "1"},
        {sqlite ? TKind::Text : TKind::Date, "2024-01-02"},
        {sqlite ? TKind::Text : TKind::Time, "03:04:05"},
        {sqlite ? TKind::Text : TKind::Timestamp, "2024-01-02 03:04:05"},
        {TKind::Text, "O'Hara"},
    };
    ASSERT_EQ(executor.Row().size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(executor.Row()[i].text, expected[i].text);
        EXPECT_EQ(BoundKindToStr(executor.Row()[i].kind), BoundKindToStr(expected[i].kind)) << i;
    }
    ASSERT_TRUE(executor.Next());
    for (const TBoundValue& value : executor.Row())
        EXPECT_EQ(value, TBoundValue());
    EXPECT_FALSE(executor.Next());
    EXPECT_EQ(executor.Columns().front().name, "i");
    EXPECT_EQ(executor.Columns().back().name, "who");
}

TEST_P(TExecutor, BytesAndEmptyTexts) {
    const char* bytes[] = {"", "x'ff00'", "'\\xff00'::bytea", "x'ff00'"};
    TKExecutor executor(*writer);
    executor.Open({std::string("SELECT ") + bytes[static_cast<size_t>(GetParam())] + ", ''", {}});
    ASSERT_TRUE(executor.Next());
    EXPECT_EQ(executor.Value(0), (TBoundValue{TKind::Text, "0xff00"}));
    EXPECT_EQ(executor.Value(1), (TBoundValue{TKind::Text, ""}));
}

TEST_P(TExecutor, LimitKeepsRowsBackAndSaysSo) {
    struct TCase {
        const char* sql;
        long long limit;
        int rows;
        bool truncated;
    };
    const TCase cases[] = {
        {"SELECT s FROM t", 1, 1, true},
        {"SELECT s FROM t", 2, 2, false},
        {"SELECT s FROM t;", 0, 2, false},
        {"SELECT s FROM t LIMIT 2", 1, 1, true},
        {"SELECT s FROM t WHERE i in (SELECT i FROM t LIMIT 9)", 5, 1, false},
        {"SELECT s FROM t UNION ALL SELECT s FROM t ORDER BY 1", 3, 3, true},
        {"WITH x AS (SELECT s FROM t) SELECT * FROM x -- all", 1, 1, true},
    };
    for (const TCase& each : cases) {
        if (GetParam() == TKEngine::MySQL &&
            std::string(each.sql).find("in (SELECT i FROM t L") != std::string::npos)
            continue; // MariaDB knows no LIMIT there
        TKExecutor executor(*writer);
        executor.Open({each.sql, {}}, each.limit);
        int rows = 0;
        while (executor.Next())
            ++rows;
        EXPECT_EQ(rows, each.rows) << each.sql;
        EXPECT_EQ(executor.IsTruncated(), each.truncated) << each.sql;
    }
}

TEST_P(TExecutor, WritingIsRefusedWhateverTheConnectionMay) {
    Run("CREATE TABLE victim (x int)");
    for (const char* sql :
         {"DROP TABLE victim", "SELECT 1; DROP TABLE victim", "INSERT INTO victim VALUES (1)",
          "WITH x AS (DELETE FROM victim RETURNING x) SELECT * FROM x", "SELECT 1 INTO victim2",
          "SELECT 1 -- \n; DROP TABLE victim"})
        EXPECT_NE(MessageOf({sql, {}}), "no error") << sql;
    MessageOf({"SELECT '\\'' ; INSERT INTO victim VALUES (1); -- '", {}});
    if (GetParam() == TKEngine::PostgreSQL) {
        Run("CREATE FUNCTION sneak() RETURNS int LANGUAGE sql AS 'INSERT INTO victim VALUES (1)"
            " RETURNING 1'");
        EXPECT_NE(MessageOf({"SELECT sneak()", {}}).find("read-only transaction"),
                  std::string::npos);
    }
    TKExecutor executor(*writer);
    executor.Open({"SELECT count(*) FROM victim", {}});
    ASSERT_TRUE(executor.Next());
    EXPECT_EQ(executor.Value(0).text, "0");
    executor.Close();
    EXPECT_NO_THROW(Run("INSERT INTO victim VALUES (1)")) << "the connection is writable again";
}

TEST_P(TExecutor, ErrorsHaveTheWordsOfTheDatabaseAndLeaveTheConnectionUsable) {
    EXPECT_EQ(MessageOf({"SELECT ?", {{TKind::Text, std::string("a\0b", 3)}}}),
              "A value holds a NUL character");
    EXPECT_NE(MessageOf({"SELECT nothing FROM t", {}}).find("nothing"), std::string::npos);
    EXPECT_EQ(MessageOf({"SELECT ? FROM t", {}}),
              "The statement has 1 placeholders, but 0 values are given");
    if (GetParam() == TKEngine::PostgreSQL) {
        EXPECT_NE(MessageOf({"SELECT 1 / (i - 10) FROM t", {}}).find("division by zero"),
                  std::string::npos);
    }
    EXPECT_EQ(CountWhere("i = ?", {{TKind::Integer, "10"}}), "1");
    Run("INSERT INTO t (i) VALUES (11)");
    {
        TKExecutor abandoned(*writer);
        abandoned.Open({"SELECT i FROM t", {}});
        ASSERT_TRUE(abandoned.Next());
    }
    Run("INSERT INTO t (i) VALUES (12)");
    EXPECT_EQ(CountWhere("i > ?", {{TKind::Integer, "0"}}), "3") << "nothing was rolled back";
}

} // namespace tern7::test
