#include <gtest/gtest.h>

#include <tern7/core/global/errors.h>
#include <tern7/core/global/messages.h>
#include <tern7/sql/select_text.h>

namespace tern7::test {

namespace {

constexpr TKLexis sqlite{TKEngine::SQLite};
constexpr TKLexis postgresql{TKEngine::PostgreSQL};
constexpr TKLexis mariadb{TKEngine::MySQL, true, true};
constexpr TKLexis mariadbANSI{TKEngine::MySQL};

std::string Read(std::string_view sql, const TKLexis& lexis) {
    try {
        return ReadSelect(sql, lexis).text;
    } catch (const EKDBInfoError& error) {
        return error.what();
    }
}

} // namespace

TEST(SelectText, WhatEachEngineTakesForOneStatement) {
    const std::string only(messages::OnlySelect);
    const std::string one(messages::OnlyOneStatement);
    const std::string open(messages::StatementNotClosed);
    struct TCase {
        const char* sql;
        TKLexis lexis;
        std::string expected; ///< empty: the text as it is
    };
    const TCase cases[] = {
        {"select 1", sqlite, ""},
        {" SELECT 1 ; ; ", sqlite, " SELECT 1"},
        {"(SELECT 1) UNION (SELECT 2)", postgresql, ""},
        {"", sqlite, only},
        {"()", sqlite, only},
        {"VALUES (1)", sqlite, only},
        {"EXPLAIN SELECT 1", postgresql, only},
        {"SELECT 1; SELECT 2", sqlite, one},
        {"SELECT 1 /* a ; b */ FROM t -- ; c", sqlite, "SELECT 1   FROM t"},
        {"SELECT /*+ INDEX(t) */ 1", mariadb, ""},
        {"SELECT /*+ '? */ 1", mariadb, "SELECT   1"},
        {"SELECT 1 /* open", sqlite, open},
        {"SELECT 'open", sqlite, open},
        {"SELECT (1", sqlite, open},
        {"SELECT 1)", sqlite, open},
        {"SELECT 'a;b', \"c;d\", `e;f`, 'it''s;'", sqlite, ""},
        {"SELECT [a;b] FROM [t--]", sqlite, ""},
        {"SELECT a[1] FROM t; DROP TABLE t", postgresql, one},
        {"SELECT $$ a;b ' $$, $x$ $$; $x$", postgresql, ""},
        {"SELECT $$ a", postgresql, open},
        {"SELECT a$$b; DROP TABLE t; SELECT $$", postgresql, one},
        {"SELECT E'it\\'; DROP TABLE t; --'", postgresql, ""},
        {"SELECT 'it\\'; DROP TABLE t; --'", postgresql, one},
        {"SELECT 1 /* /* */ ; DROP TABLE t; */", postgresql, "SELECT 1"},
        {"SELECT 1 /* /* */ ; DROP TABLE t; */", sqlite, one},
        {"SELECT 'it\\'; DROP TABLE t; --'", mariadb, ""},
        {"SELECT 'it\\'; DROP TABLE t; --'", mariadbANSI, one},
        {"SELECT \"it\\\"; DROP TABLE t; --\"", mariadb, ""},
        {"SELECT \"it\\\"; DROP TABLE t; -- \"", mariadbANSI, one},
        {"SELECT '\\'' ; DROP TABLE t; -- '", mariadb, one},
        {"SELECT 1 --1; DROP TABLE t", mariadb, one},
        {"SELECT 1 --1; DROP TABLE t", sqlite, "SELECT 1"},
        {"SELECT 1 # ; a", mariadb, "SELECT 1"},
        {"SELECT 1 # ; a", postgresql, one},
        {"SELECT 1 /*! INTO OUTFILE 'x' */", mariadb, only},
        {"SELECT 1 /*M! INTO OUTFILE 'x' */", mariadb, only},
        {"SELECT * INTO t2 FROM t", postgresql, only},
        {"SELECT 1INTO t2", postgresql, only},
        {"SELECT 1 into OUTFILE '/tmp/x'", mariadb, only},
        {"SELECT t.into, \"into\", 'into' FROM t", postgresql, ""},
        {"WITH x AS (DELETE FROM t RETURNING *) SELECT * FROM x", postgresql, only},
        {"WITH x AS (SELECT 1) INSERT INTO t SELECT * FROM x", sqlite, only},
        {"WITH x AS (SELECT t.update FROM t FOR UPDATE) SELECT * FROM x", postgresql, ""},
        {"SELECT a::int FROM t WHERE b = '::x'", postgresql, ""},
        {"SELECT a FROM t WHERE b = :name", postgresql, "A parameter has no value: :name"},
        {"SELECT a FROM t WHERE b = @x1", sqlite, "A parameter has no value: @x1"},
        {"SELECT @a := 1", mariadb, ""},
    };
    for (const TCase& each : cases)
        EXPECT_EQ(Read(each.sql, each.lexis), each.expected.empty() ? each.sql : each.expected)
            << each.sql;
    EXPECT_EQ(Read(std::string_view("SELECT 1\0", 9), sqlite), messages::NulInStatement);
}

TEST(SelectText, PlaceholdersStandOutsideQuotesAndComments) {
    const TKSelectText select =
        ReadSelect("SELECT '?', \"?\" /* ? */ FROM t WHERE a = ? AND b=?", sqlite);
    ASSERT_EQ(select.placeholders.size(), 2u);
    for (size_t at : select.placeholders)
        EXPECT_EQ(select.text[at], '?');
    EXPECT_EQ(select.text.substr(select.placeholders[0] - 4, 5), "a = ?");
}

TEST(SelectText, LongStatementsAreReadInOneWalk) {
    std::string sql = "SELECT 1";
    for (int i = 0; i < 200000; ++i)
        sql += " + (1) /* x */ + 'a''b'";
    EXPECT_TRUE(ReadSelect(sql, postgresql).canBeLimited);
}

} // namespace tern7::test
