// Texts of up to four megabytes that are meant to do harm: each is read or refused, none hangs or
// exhausts the stack. The time limit is that of the test run; bench/ has the times.

#include <gtest/gtest.h>

#include <tern7/core/corekit/numbers.h>
#include <tern7/core/parser/sql_parser.h>
#include <tern7/core/query/read_sql/sql_report.h>

#include "../query/shop.h"

namespace tern7 {
namespace {

constexpr size_t megabyte = size_t{1} << 20;

std::string Repeated(std::string_view piece, size_t size = megabyte / 4) {
    return Replicate(piece, size / piece.size());
}

class HostileSQL : public TShop {
protected:
    HostileSQL() {
        AddSubQueryOperator();
        query.SetMainTableName("C");
    }

    /// True when the text is read, false when it is refused as wrong SQL.
    static bool IsRead(const std::function<void()>& read) {
        try {
            read();
        } catch (const ESQLParserError&) {
            return false;
        }
        return true;
    }
    void ReadAll(const std::string& sql) {
        IsRead([&] {
            TKSQLParser parser;
            parser.SetText(sql);
            parser.Parse();
        });
        IsRead([&] { query.ParseSQL(sql); });
        IsRead([&] { query.ImportSQL(sql); });
        query.SetActive(true);
    }
};

TEST_F(HostileSQL, IsReadOrRefused) {
    const std::string select = "select C.name from Customer C", where = select + " where ";
    const std::string texts[] = {
        where + Repeated("(", 200'000),
        where + Repeated("(", 200'000) + "C.id = 1" + Repeated(")", 200'000),
        where + "C.name = 'never closed" + Repeated(" x", megabyte),
        "select count(" + Repeated("a, ", megabyte),
        where + Repeated("not ", 4 * megabyte) + "C.id = 1",
        where + Repeated("not (", 4'000) + "C.id = 1" + Repeated(")", 800),
        where + Repeated("C.id = 1 and ") + "C.id = 2",
        where + Repeated("C.id between 1 and 2 or ") + "C.id = 2",
        where + "C.id in (" + Repeated("1,") + "2)",
        where + "C.name like '" + Repeated("%_") + "'",
        where + Repeated("C.id in (select O.id from Orders O where ", 9'000),
        where + Repeated("C.id in (select O.id from Orders O where ", 4'000) + "C.id = 1 " +
            Repeated("and O.id = 2 ") + Repeated(")", 97),
        where + Repeated("exists (select 1 from Orders o where o.x = C.id and ", 9'000) +
            "C.id = 1" + Repeated(")", 173),
        where + Repeated("case when C.id = "),
        where + Repeated("C.id = C.name and ") + "C.id = 2",
        "select " + Repeated("C.name, ") + "C.id from Customer C order by " + Repeated("1, ") + "2",
        "select " + Repeated("C.id as c, ") + "C.id from Customer C",
        "select " + Repeated("C.name || ") + "C.id from Customer C",
        "select " + Repeated("1, ") + "2 from Customer C group by " + Repeated("C.name, ") + "C.id",
        "select * from Customer C order by " + Repeated("C.name, ") + "C.id",
        "select * from Customer C" + Repeated(", Orders O"),
        "select * from Customer C" + Repeated(" join Orders O on C.id = O.customer_id"),
        "select * from Customer C" + Repeated(" join Orders O using (id)"),
        "select * from " + Repeated("(") + "Customer",
        select + Repeated(" -- x\n") + Repeated("/* x */"),
        select + " where C.name = \"" + Repeated("a b "),
        std::string(megabyte, '\0'),
        std::string(megabyte, '\xFF'),
        Repeated("\""),
    };
    for (const std::string& text : texts) {
        SCOPED_TRACE(text.substr(0, 60));
        ReadAll(text);
    }
}

TEST_F(HostileSQL, NestingHasItsLimit) {
    const auto nested = [](size_t depth, std::string_view open, std::string_view close) {
        return "select C.name from Customer C where " + Replicate(open, depth) + "C.id = 1" +
               Replicate(close, depth);
    };
    const std::string_view open = "C.id = 2 or C.id = 3 and (";
    for (const auto& [depth, isFine] : {std::pair(490, true), std::pair(510, false)}) {
        const std::string sql = nested(static_cast<size_t>(depth), open, ")");
        EXPECT_EQ(IsRead([&] { query.ParseSQL(sql); }), isFine) << depth;
        EXPECT_EQ(IsRead([&] { query.ImportSQL(sql); }), isFine) << depth;
    }
    // the line is that of the first condition that stands too deep
    const std::string lines = nested(510, "C.id = 2\nor C.id = 3 and (", ")");
    for (const bool complete : {false, true})
        try {
            complete ? static_cast<void>(query.ImportSQL(lines)) : query.ParseSQL(lines);
            ADD_FAILURE();
        } catch (const ESQLParserError& error) {
            const int line = XStrToInt(std::string_view(error.what()).substr(26));
            EXPECT_TRUE(line > 490 && line < 510) << error.what();
        }
    query.SetActive(true);
    query.ParseSQL(nested(40, "C.id in (select C.id from Customer C where ", ")"));
    int depth = 0;
    for (const TKQuery* inner = &query; inner; ++depth)
        inner = inner->Root().GetFirstCondition()->NestedQuery();
    EXPECT_EQ(depth, 41);
}

} // namespace
} // namespace tern7
