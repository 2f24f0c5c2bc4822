#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tern7/core/query/query_record.h>

#include "shop.h"

namespace tern7 {
namespace {

struct TConditionCase {
    const char* field;
    const char* op;
    const char* value1;
    const char* value2;
    const char* text;
    const char* bound; // the bound text, then "kind:value" of each value after a blank line
};

class TConditionText : public TShop {};

TEST_F(TConditionText, OfEveryKind) {
    structure.SQLFormats().SetDate("dd.mm.yyyy");
    const TConditionCase cases[] = {
        {"C.city", "Equal", "Berlin", "", "C.city = 'Berlin'", "C.city = ?|text:Berlin"},
        {"C.city", "Equal", "O'Hara", "", "C.city = 'O''Hara'", "C.city = ?|text:O'Hara"},
        {"C.city", "Equal", "", "", "C.city = ''", "C.city = ?|text:"},
        {"C.city", "Equal", "a@2b", "", "C.city = 'a@2b'", "C.city = ?|text:a@2b"},
        {"C.id", "Equal", "5", "", "C.id = 5", "C.id = ?|integer:5"},
        {"C.id", "GreaterThan", "-5", "", "C.id >-5", "C.id >?|integer:-5"},
        {"C.id", "Equal", "0x1F", "", "C.id = 0x1F", "C.id = ?|integer:31"},
        {"C.id", "Equal", "NULL", "", "C.id = NULL", "C.id = NULL|"},
        {"O.amount", "LessThan", "12.50", "", "O.amount < 12.50", "O.amount < ?|decimal:12.50"},
        {"O.paid", "Equal", "1", "", "O.paid = '1'", "O.paid = ?|boolean:1"},
        {"O.placed", "Equal", "2024-02-01", "", "O.placed = '01.02.2024'",
         "O.placed = ?|text:01.02.2024"},
        {"O.placed", "Equal", "12:30", "", "O.placed = '12:30'", "O.placed = ?|text:12:30"},
        {"O.sent", "Equal", "2024-02-01 10:00:00", "", "O.sent = '2024-02-01 10:00:00'",
         "O.sent = ?|timestamp:2024-02-01 10:00:00"},
        {"O.sent", "Equal", "2024-02-01 10:00:00.25", "", "O.sent = '2024-02-01 10:00:00.25'",
         "O.sent = ?|timestamp:2024-02-01 10:00:00.250"},
        {"C.city", "IsNull", "", "", "C.city is null", "C.city is null|"},
        {"C.city", "InList", "Rome,\"New York\"", "", "C.city in ('Rome','New York')",
         "C.city in (?, ?)|text:Rome|text:New York"},
        {"C.id", "InList", "1, 2", "", "C.id in (1, 2)", "C.id in (?, ?)|integer:1|integer:2"},
        {"C.city", "StartsWith", "50%", "", "C.city like '50%%'", "C.city like ?|text:50%%"},
        {"C.city", "NotContains", "x", "", "not(C.city like '%x%')", "not(C.city like ?)|text:%x%"},
        {"O.amount", "Between", "1", "2", "O.amount between 1 and 2",
         "O.amount between ? and ?|integer:1|integer:2"},
        // replaced one after the other: the second value is looked for in the first one, too
        {"C.city", "Between", "@2", "b", "C.city between 'b' and 'b'",
         "C.city between ? and ?|text:@2|text:b"},
        {"Gross amount", "Equal", "3", "", "O.amount * 1.19 = 3", "O.amount * 1.19 = ?|integer:3"},
    };
    for (const TConditionCase& c : cases) {
        SCOPED_TRACE(c.text);
        query.Root().ClearRows();
        Add(c.field, c.op, c.value1, c.value2);
        query.BuildQuery();
        ASSERT_EQ(query.QResult().Conditions().GetCount(), 3);
        EXPECT_EQ(query.QResult().Conditions().Line(1), c.text);
        const TBoundSQL bound = query.QResult().GetBoundSQL();
        std::string shown = bound.text.substr(bound.text.find(" (\n") + 3);
        shown.resize(shown.size() - 2);
        shown += '|';
        for (size_t i = 0; i < bound.values.size(); ++i)
            shown += (i ? "|" : "") + std::string(BoundKindToStr(bound.values[i].kind)) + ":" +
                     bound.values[i].text;
        EXPECT_EQ(shown, c.bound);
    }
}

TEST_F(TConditionText, QuotesAreDoubledWhateverWayTheValueCame) {
    TFilterCond* row = Add("C.city", "equal", "O'Hara");
    TKQueryRecord record(query);
    {
        TKQueryRecording recording(query, record);
        row->SetValue(1, "Hague");
    }
    EXPECT_THAT(SQL(), testing::HasSubstr("C.city = 'Hague'"));
    record.Undo();
    EXPECT_THAT(SQL(), testing::HasSubstr("C.city = 'O''Hara'"));
    record.Redo();
    EXPECT_THAT(SQL(), testing::HasSubstr("C.city = 'Hague'"));
}

TEST_F(TConditionText, BareValuesAreOneTokenEach) {
    Add("C.city", "Equal", "x");
    query.BuildQuery();
    const std::string before = query.QResult().GetSQL().Text();
    for (const char* value : {"1 OR 1=1", "1;", "1--", "a.b", "'5'", "1/**/", "5)", "--1", "1 2"}) {
        SCOPED_TRACE(value);
        TFilterCond* row = Add("C.id", "Equal", value);
        try {
            query.BuildQuery();
            FAIL() << "must be refused";
        } catch (const EKWrongValueError& error) {
            EXPECT_EQ(&error.Condition(), row);
            EXPECT_EQ(error.what(),
                      "Wrong value for field \"Customer number\": " + std::string(value));
        }
        EXPECT_EQ(query.QResult().GetSQL().Text(), before) << "a refused build changes nothing";
        query.CheckValues = false;
        EXPECT_THAT(SQL(), testing::HasSubstr("C.id = "));
        query.CheckValues = true;
        query.Root().DeleteRow(row);
        query.BuildQuery();
    }
    TFilterCond* list = Add("C.id", "InList", "1,\"2\"");
    EXPECT_THROW(query.BuildQuery(), EKWrongValueError);
    list->SetValue(1, "1,x) or (1=1");
    EXPECT_THROW(query.BuildQuery(), EKWrongValueError);
    // what was a parameter is checked as soon as it is none
    list->SetValue1IsParam(true);
    query.BuildQuery();
    query.QResult().ClearParams();
    EXPECT_FALSE(list->ValueIsParam(1));
    EXPECT_THROW(query.BuildQuery(), EKWrongValueError);
    list->SetValue1IsParam(true);
    query.QResult().DeleteParameter(list->Param(1));
    EXPECT_FALSE(list->ValueIsParam(1));
    EXPECT_THROW(query.BuildQuery(), EKWrongValueError);
}

TEST_F(TConditionText, ParametersReplaceTheWholeLiteral) {
    TFilterCond* like = Add("C.city", "Contains", "er");
    like->SetValue1IsParam(true);
    TFilterCond* between = Add("O.amount", "Between", "1", "2");
    between->SetValue2IsParam(true);
    EXPECT_THAT(SQL(), testing::HasSubstr(" (\n"
                                          "C.city like :Param1 AND\n"
                                          "O.amount between 1 and :Param2\n"
                                          ")"));
    EXPECT_EQ(like->Param(1)->ValueFormat(), "%@v%");
    EXPECT_EQ(like->Param(1)->GetFullValue(), "%er%");
    EXPECT_EQ(like->Param(1)->Caption(), "City param");
    between->SetValue1IsParam(true);
    EXPECT_EQ(between->Param(1)->Caption(), "Amount param 1");
    EXPECT_EQ(between->Param(2)->Caption(), "Amount param 2");
    EXPECT_EQ(query.QResult().AddParameter(*between), between->Param(2)) << "there is no third one";
    EXPECT_EQ(query.QResult().GetParamCount(), 3);
    query.FindParam("City param")->SetValue("x%");
    const TBoundSQL bound = query.QResult().GetBoundSQL(TPlaceholderStyle::Numbered);
    EXPECT_THAT(bound.text, testing::HasSubstr("C.city like $1 AND\nO.amount between $2 and $3"));
    EXPECT_EQ(bound.values[0].text, "%x%%");

    query.FindParam("Param2")->SetValue("1 OR 1=1");
    EXPECT_EQ(query.QResult().GetBoundSQL().values[2],
              (TBoundValue{TBoundValue::TKind::Text, "1 OR 1=1"}));
}

TEST_F(TConditionText, WildcardsInValuesCanBeEscaped) {
    Add("C.city", "Contains", "50%_!");
    query.BuildQuery();
    const TBoundSQL bound = query.QResult().GetBoundSQL(TPlaceholderStyle::Question, true);
    EXPECT_THAT(bound.text, testing::HasSubstr("C.city like ? ESCAPE '!'"));
    EXPECT_EQ(bound.values[0].text, "%50!%!_!!%");
}

TEST_F(TConditionText, NulIsRefusedBeforeAnythingRuns) {
    for (const char* op : {"Equal", "Contains", "InList"})
        for (const bool parameter : {false, true}) {
            query.Root().ClearRows();
            Add("C.city", op, std::string("a\0b", 3))->SetValue1IsParam(parameter);
            query.BuildQuery();
            EXPECT_THAT([&] { query.QResult().GetBoundSQL(); },
                        testing::ThrowsMessage<EKQueryPanelError>("A value holds a NUL character"));
        }
}

TEST_F(TConditionText, SQLByNatureRunsOnlyWhenItIsClosed) {
    TFilterCond* row = Add("C.city", "Equal", "x");
    for (const char* text :
         {"1=1; drop table c", "a --", "a /* b", "(a", "a)", "'a", "'a\\'", "a #"}) {
        SCOPED_TRACE(text);
        query.OnBuildSQL = [text](TFilterCond&, std::string& sql) { sql = text; };
        query.BuildQuery();
        EXPECT_EQ(query.QResult().Conditions().Line(1), text);
        EXPECT_THROW(query.QResult().GetBoundSQL(), EKQueryPanelError);
    }
    query.OnBuildSQL = [](TFilterCond&, std::string& sql) { sql = "lower(C.city) = 'it''s (x'"; };
    query.BuildQuery();
    EXPECT_THAT(query.QResult().GetBoundSQL().text,
                testing::HasSubstr("lower(C.city) = 'it''s (x'"));
    query.OnBuildSQL = [row](TFilterCond&, std::string&) { row->Query()->Root().DeleteRow(row); };
    EXPECT_THROW(query.BuildQuery(), EKQueryPanelError) << "rows stay while the query is built";
    query.OnBuildSQL = [](TFilterCond&, std::string& sql) { sql.clear(); };
    query.BuildQuery();
    EXPECT_EQ(query.QResult().Conditions().Lines(), (TStrings{" (", "", ")"}));
}

TEST_F(TConditionText, HandlersMaySaveButChangeNothing) {
    TFilterCond* row = Add("C.city", "Equal", "x");
    Add("C.city", "NotEqual", "y");
    const std::string text = query.GetQueryString(), sql = SQL();
    query.OnBuildSQL = [&](TFilterCond&, std::string&) {
        EXPECT_EQ(query.GetQueryString(), text);
        EXPECT_THROW(query.Root().DeleteRow(row), EKQueryPanelError) << "the build goes on";
    };
    EXPECT_EQ(SQL(), sql);
    const std::function<void()> changes[] = {
        [&] { query.SetQueryString(text); },
        [&] { structure.OperatorByName("NotEqual")->SetSQLName("@f != '@1'"); },
        [&] { structure.DelTable(0); },
    };
    for (const auto& change : changes) {
        query.OnBuildSQL = [&](TFilterCond&, std::string&) { change(); };
        EXPECT_THROW(query.BuildQuery(), EKQueryPanelError);
    }
    query.OnBuildSQL = nullptr;
    EXPECT_EQ(query.UnfinishedRows().size(), 2u) << "their field went with its table";
}

TEST_F(TConditionText, TextsOfUnrecognizedConditionsBringTheirTable) {
    TFilterCond* row = query.Root().AddCond();
    row->SetField(Field("O.amount"));
    row->SetUnknownOperator("Near");
    row->SetSQLText("O.amount ~ 5");
    EXPECT_EQ(SQL(), "SELECT *\nFROM Orders O\nWHERE\n (\nO.amount ~ 5\n)");
}

/// Most conditions are written in one pass; the text of one alone takes the replacements one after
/// the other, as they are meant.
TEST_F(TConditionText, OnePassGivesWhatTheReplacementsGive) {
    query.CheckValues = false;
    structure.AddOperator("Both")->SetSQLName("'@2' <> '@1' or @f = '@1x@2'");
    structure.AddOperator("Tables")->SetSQLName("@t.@m.@f ~ @1");
    const std::string values[] = {"",
                                  "7",
                                  "O'Hara",
                                  "''",
                                  "@2",
                                  "@f@1",
                                  "a b",
                                  "1234567",
                                  "12345678901234567",
                                  std::string(40, 'x')};
    Add("C.id", "IsNull");
    TFilterCond* row = Add("C.id", "Equal");
    for (const char* field : {"C.id", "C.city", "O.placed", "Gross amount"})
        for (int op = 0; op < structure.GetOperatCount(); ++op)
            for (const std::string& first : values)
                for (const std::string& second : {values[1], values[2], values[4]}) {
                    row->SetField(Field(field));
                    row->SetOperator(structure.GetOperator(op));
                    row->SetValue(1, first);
                    row->SetValue(2, second);
                    query.BuildQuery();
                    if (query.QResult().Conditions().GetCount() < 4) continue; // unfinished
                    ASSERT_EQ(query.QResult().Conditions().Line(2), query.ConditionText(*row))
                        << field << " " << row->OperatorName() << " " << first << ", " << second;
                }
}

TEST_F(TConditionText, BareDatesAreCheckedInTheirSQLForm) {
    structure.SQLFormats().SetDate("yyyymmdd");
    structure.SetQuotedTypes({TFieldType::ftString});
    Add("O.placed", "Equal", "2024-02-01");
    Add("O.placed", "InList", "2024-02-01,2024-03-01");
    EXPECT_THAT(SQL(), testing::EndsWith("O.placed = 20240201 AND\n"
                                         "O.placed in (20240201,20240301)\n)"));
    const TBoundSQL bound = query.QResult().GetBoundSQL();
    ASSERT_EQ(bound.values.size(), 3u);
    EXPECT_EQ(bound.values[2], (TBoundValue{TBoundValue::TKind::Integer, "20240301"}));
    Add("O.placed", "Equal", "2024-02-30");
    EXPECT_THAT([&] { query.BuildQuery(); },
                testing::ThrowsMessage<EKWrongValueError>(
                    "Wrong value for field \"Placed on\": 2024-02-30"));
}

TEST_F(TConditionText, UnfinishedRowsAreLeftOutAndNamed) {
    Add("C.city", "Equal", "Rome");
    TFilterBracket* bracket = query.Root().AddBracket();
    struct {
        TFilterCond* row;
        TUnfinished reason;
    } const wanted[] = {
        {bracket->AddCond(), TUnfinished::NoField},
        {Add(*bracket, "C.city", "missing"), TUnfinished::NoOperator},
        {Add(*bracket, "C.id", "Equal", " "), TUnfinished::NoValue},
        {Add(*bracket, "C.id", "Between", "1", ""), TUnfinished::NoValue},
        {Add(*bracket, "C.city", "InList", ""), TUnfinished::NoValue},
    };
    EXPECT_EQ(SQL(), "SELECT *\nFROM Customer C\nWHERE\n (\nC.city = 'Rome'\n)");
    const std::vector<TUnfinishedRow> rows = query.UnfinishedRows();
    ASSERT_EQ(rows.size(), std::size(wanted));
    for (size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].row, wanted[i].row);
        EXPECT_EQ(rows[i].reason, wanted[i].reason);
    }
    bracket->SetEnabled(false);
    EXPECT_TRUE(query.UnfinishedRows().empty());
    TFilterCond* added = Add("C.city", "Equal", "");
    added->SetEntered(false);
    EXPECT_EQ(added->Unfinished(), TUnfinished::NotEntered);
    added->EnterValue(1, "");
    EXPECT_EQ(added->Unfinished(), TUnfinished::No) << "accepting an empty text counts";
}

TEST_F(TConditionText, SubQueriesAreBuiltIntoTheirCondition) {
    AddSubQueryOperator();
    TKQuery inner(&structure);
    inner.QResult().ResultFields().AddByExpression("n", TSortingType::stNoSort, "{C.id}");
    TFilterCond* city = inner.Root().AddCond();
    city->SetField(Field("C.city"));
    city->SetOperator(structure.OperatorByName("Equal"));
    city->SetValue(1, "O'Hara");
    city->SetValue1IsParam(true);
    Add("O.id", "Equal", "7")->SetValue1IsParam(true);
    TFilterCond* row = Add("C.id", "InQuery");
    EXPECT_EQ(row->Unfinished(), TUnfinished::NoSubQuery);
    row->SetSubQuery(inner.GetQueryString(), TSQLOptions{});
    Add("O.id", "Equal", "8")->SetValue1IsParam(true);
    EXPECT_THAT(SQL(), testing::EndsWith(" (\n"
                                         "O.id = :Param1 AND\n"
                                         "C.id in (SELECT C.id as n FROM Customer C WHERE ( "
                                         "C.city = :Param2 )) AND\n"
                                         "O.id = :Param3\n"
                                         ")"));
    TStrings names;
    for (const TSQLParam* param : query.AllParams())
        names.push_back(param->Name());
    EXPECT_EQ(names, (TStrings{"Param1", "Param2", "Param3"}));
    const TBoundSQL bound = query.QResult().GetBoundSQL();
    ASSERT_EQ(bound.values.size(), 3u);
    EXPECT_EQ(bound.values[1].text, "O'Hara");

    // a handler that is assigned when the nested query is there already
    query.OnBuildSQL = [](TFilterCond& condition, std::string& text) {
        if (condition.Value(1) == "O'Hara") text = "upper(" + text + ")";
    };
    EXPECT_THAT(SQL(), testing::HasSubstr("WHERE ( upper(C.city = :Param2) )"));
    query.OnBuildSQL = nullptr;

    // a damaged text matters only where its row takes part
    row->SetEnabled(false);
    row->SetSubQuery("damaged");
    EXPECT_THAT(SQL(), testing::EndsWith(" (\nO.id = :Param1 AND\nO.id = :Param3\n)"));
    EXPECT_EQ(query.AllParams().size(), 2u);
    row->SetEnabled(true);
    EXPECT_THROW(query.BuildQuery(), EKQueryPanelError);

    row->SetSubQuery("");
    row->SetValue(1, "select id from Customer");
    EXPECT_THAT(SQL(), testing::HasSubstr("C.id in (select id from Customer)"));
    row->SetValue(1, "select id from Customer) or (1=1");
    query.BuildQuery();
    EXPECT_THROW(query.QResult().GetBoundSQL(), EKQueryPanelError);
}

} // namespace
} // namespace tern7
