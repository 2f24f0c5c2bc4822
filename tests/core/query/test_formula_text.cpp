#include <gtest/gtest.h>

#include <tern7/core/query/formula_text.h>

namespace tern7 {

TEST(FormulaText, Aggregates) {
    using enum TAggregate;
    const struct {
        const char* text;
        TAggregate aggregate;
        const char* inner;
        bool holds; // a function further inside
    } cases[] = {
        {"{Price}", None, "{Price}", false},
        {"", None, "", false},
        {" sum ( {Price} * 2 ) ", Sum, "{Price} * 2", false},
        {"AVG({a)b})", Average, "{a)b}", false},
        {"COUNT(')')", Count, "')'", false},
        {"SUM({A}) / SUM({B})", None, "SUM({A}) / SUM({B})", true},
        {"MAX(MIN({A}))", Max, "MIN({A})", true},
        {"SUMMER({A})", None, "SUMMER({A})", false},
        {"MYSUM({A})", None, "MYSUM({A})", false},
        {"({A} + SUM ({B}))", None, "({A} + SUM ({B}))", true},
        {"'SUM(' + {A}", None, "'SUM(' + {A}", false},
        {"SUM(", None, "SUM(", true},
    };
    for (const auto& c : cases) {
        const TAggregateParts parts = SplitAggregate(c.text);
        EXPECT_EQ(parts.aggregate, c.aggregate) << c.text;
        EXPECT_EQ(parts.inner, c.inner);
        EXPECT_EQ(HoldsAggregate(c.text), c.holds) << c.text;
    }
    EXPECT_EQ(WithAggregate("SUM({A} + 1)", Average), "AVG({A} + 1)");
    EXPECT_EQ(WithAggregate("SUM({A} + 1)", None), "{A} + 1");
    EXPECT_EQ(WithAggregate("{@1}", Count), "COUNT({@1})");
}

TEST(FormulaText, Joins) {
    const struct {
        char operation;
        const char *expression, *operand, *joined;
    } cases[] = {
        {'+', "", "{A}", "{A}"},
        {'+', "{A}", "{B}", "{A} + {B}"},
        {'*', "{A} + {B}", "{C}", "({A} + {B}) * {C}"},
        {'*', "({A} + {B})", "{C}", "({A} + {B}) * {C}"},
        {'*', "{A - B}", "{C}", "{A - B} * {C}"},
        {'/', "-{A}", "{C}", "-{A} / {C}"},
        {'/', "{A} * {B}", "{C}", "{A} * {B} / {C}"},
        {'-', "{A}", "{B} + {C}", "{A} - ({B} + {C})"},
        {'/', "{A}", "{B} * {C}", "{A} / ({B} * {C})"},
        {'+', "{A} || 'x - y'", "{B}", "({A} || 'x - y') + {B}"},
        {'*', "SUM({A} - {B})", "{C}", "SUM(({A} - {B}) * {C})"},
        {'*', "SUM({A}) - SUM({B})", "{C}", "(SUM({A}) - SUM({B})) * {C}"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(JoinedBy(c.operation, c.expression, c.operand), c.joined);
}

TEST(FormulaText, Unclosed) {
    const struct {
        const char* text;
        int at; // -1: all is closed
    } cases[] = {
        {"({A} + 'it''s (') * \"x)\"", -1},
        {"1 + ({A}", 4},
        {"{A})", 3},
        {"'abc", 0},
        {"'ab''", 0},
        {"{A", 0},
        {"({A}) + (1 * (2)", 8},
        {"{a'b} + 1", -1},
    };
    for (const auto& c : cases) {
        const std::optional<size_t> at = UnclosedAt(c.text);
        EXPECT_EQ(at ? static_cast<int>(*at) : -1, c.at) << c.text;
    }
}

TEST(FormulaText, CommentsAndWords) {
    const struct {
        const char* text;
        int comment; // where it begins, -1: none
        bool words;
    } cases[] = {
        {"{A} - -1", -1, false},
        {"{A} --1", 4, false},
        {"1 /* x */", 2, true},
        {"ROUND({A; --B}, ';') / 2", -1, true},
        {"'Price' * {Price; }", -1, false},
        {"Price; 2", 5, true},
    };
    for (const auto& c : cases) {
        const std::optional<size_t> at = CommentOrEndAt(c.text);
        EXPECT_EQ(at ? static_cast<int>(*at) : -1, c.comment) << c.text;
        EXPECT_EQ(HoldsWords(c.text), c.words) << c.text;
    }
}

} // namespace tern7
