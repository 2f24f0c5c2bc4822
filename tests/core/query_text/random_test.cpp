// Whatever a query holds, its text brings it back.
#include "text_fixture.h"

#include <random>
#include <regex>

namespace tern7 {
namespace {

class RandomQueryText : public TQueryTextTest {
protected:
    int Pick(int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); }

    std::string Value() {
        static const char* const values[] = {"",     "7",        "-3.5",       "Berlin",
                                             "a,b",  "it's",     "2024-02-05", "\"quoted\"",
                                             " x ",  "a\nb%0A",  "[Row1]",     "\xC3\xA9t\xC3\xA9",
                                             "@1@v", "Value1=x", "100%"};
        return values[Pick(static_cast<int>(std::size(values)))];
    }

    void FillCondition(TFilterCond& condition, int depth) {
        if (Pick(9) != 0) condition.SetField(structure.GetField(Pick(structure.GetFieldCount())));
        if (Pick(9) == 0) condition.SetUnknownField(4000 + Pick(9));
        if (Pick(9) != 0) {
            condition.SetOperator(structure.GetOperator(Pick(structure.GetOperatCount())));
        } else {
            condition.SetUnknownOperator("Op" + std::to_string(Pick(3)));
            if (Pick(2)) condition.SetSQLText("f(" + Value() + ")");
        }
        for (int n = 1; n <= 2; ++n) {
            condition.SetValue(n, Value(), Pick(5) == 0 ? Value() : std::string());
            condition.SetValueIsParam(n, Pick(4) == 0);
            if (TSQLParam* param = Pick(2) ? condition.Param(n) : nullptr)
                param->SetCaption(Value());
        }
        if (Pick(6) != 0 || depth > 1) return;
        std::unique_ptr<TKQuery> nested = query.NewNested();
        Fill(*nested, depth + 1);
        condition.SetSubQuery(nested->GetQueryString(), IntToSQLOptions(Pick(64)));
    }

    void FillBracket(TFilterBracket& bracket, int level, int depth) {
        bracket.SetLinkType(static_cast<TFilterLinkType>(Pick(4)));
        for (int i = Pick(4); i > 0; --i) {
            TFilterRow* row;
            if (level < 4 && Pick(3) == 0) {
                FillBracket(*(row = bracket.AddBracket())->AsBracket(), level + 1, depth);
            } else {
                FillCondition(*(row = bracket.AddCond())->AsCond(), depth);
            }
            row->SetEnabled(Pick(4) != 0);
        }
    }

    void Fill(TKQuery& target, int depth = 0) {
        target.SetQueryName(Value());
        target.Description = {Value(), "end"};
        target.UserData = {Value(), Value(), "end"};
        target.SetSQLOptions(IntToSQLOptions(Pick(64)));
        TRFieldList& fields = target.QResult().ResultFields();
        fields.SetJustSorting(Pick(5) == 0);
        for (int i = Pick(4); i > 0; --i) {
            TResultField* field =
                fields.AddByExpression(Value(), static_cast<TSortingType>(Pick(3)),
                                       Pick(2) ? "{City}" : "SUM({Amount}) / 2");
            if (Pick(4) == 0) field->AddDSFieldByID(3000);
            if (Pick(4) == 0) field->SetAlias(Value());
        }
        FillBracket(target.Root(), 0, depth);
    }

    /// The statement, its parameters without their numbers (they are numbered as the rows stand,
    /// not as they were made), or why there is none.
    std::string StatementOf(TKQuery& built) {
        try {
            built.BuildQuery();
            static const std::regex parameter(":Param[0-9]+");
            return std::regex_replace(built.QResult().GetSQL().Text(), parameter, ":Param");
        } catch (const EKTernError& error) {
            return error.what();
        }
    }

    std::mt19937 random;
};

TEST_F(RandomQueryText, TextAndStatementComeBack) {
    query.SaveSQLOptions = query.SaveMainTable = true;
    for (unsigned seed = 1; seed <= 400; ++seed) {
        random.seed(seed);
        query.ClearAll();
        Fill(query);
        const std::string text = query.GetQueryString();
        TKQuery other(&structure);
        other.SaveTitles = false;
        other.SaveSQLOptions = other.SaveMainTable = true;
        other.SetQueryString(text);
        ASSERT_EQ(other.GetQueryString(), text) << "seed " << seed;
        ASSERT_EQ(StatementOf(other), StatementOf(query)) << "seed " << seed << "\n" << text;

        TStrings lines;
        query.SaveToStrings(lines);
        query.LoadFromStrings(lines);
        ASSERT_EQ(query.GetQueryString(), other.GetQueryString()) << "seed " << seed;
    }
}

TEST_F(RandomQueryText, ManyRowsAndParameters) {
    // 10,000 rows, half of them parameters: reading goes through them once
    TFilterBracket* bracket = query.Root().AddBracket();
    for (int i = 0; i < 10000; ++i) {
        if (i % 100 == 0) bracket = query.Root().AddBracket();
        Add(*bracket, "City", "Equal", "x")->SetValue1IsParam(i % 2 == 0);
    }
    const std::string text = query.GetQueryString();
    query.SetQueryString(text);
    EXPECT_EQ(query.QResult().GetParamCount(), 5000);
    EXPECT_EQ(query.GetQueryString(), text);
}

} // namespace
} // namespace tern7
