// The text as it is written, and what comes back of it.
#include "text_fixture.h"

#include <tern7/core/corekit/ini_text.h>

namespace tern7 {
namespace {

using QueryFormat = TQueryTextTest;

TEST_F(QueryFormat, WritesEveryPartInOrder) {
    query.SetQueryName("Late orders");
    query.Description = {"first", "", "[no header]", "  [nor this]", "two\n[lines]"};
    query.UserData = {"color=blue"};
    query.SaveMainTable = true;
    query.SetMainTableName("O");
    query.QResult().ResultFields().AddByExpression("Sum", TSortingType::stDescending,
                                                   "SUM({Amount})");
    TFilterBracket* any = query.Root().AddBracket();
    any->SetLinkType(TFilterLinkType::fltAny);
    Add(*any, "Placed on", "Between", "2024-01-01", "2024-12-31");
    Add(*any, "City", "Equal", " Bern\nWest")->SetEnabled(false);
    any->AddCond(); // no field yet: left out, and not counted
    EXPECT_EQ(query.GetQueryString(), R"([Main]
QueryName=Late orders
Version=3.3
Options=
MainTable=O

[Description]
first

 [no header]
   [nor this]
two
 [lines]

[UserData]
color=blue

[RFields]
Count=1
Version=3.3
JustSorting=0
[RField0]
Formula=SUM(@1)
Fields=5
Alias=Sum
Caption=Sum
Sorting=2
SortOrder=1
[Row0]
Enabled=1
RowType=1
LinkType=0
RowCount=1
[Row1]
Enabled=1
RowType=1
LinkType=1
RowCount=2
[Row2]
Enabled=1
RowType=0
FieldID=6
Operator=Between
Param1=0
Param2=0
Value1=2024-01-01
Value2=2024-12-31
SubQuery=
SubQueryOptions=3
[Row3]
Enabled=0
RowType=0
FieldID=2
Operator=Equal
Param1=0
Param2=0
Value1.Encoded=%20Bern%0AWest
Value2=
SubQuery=
SubQueryOptions=3
)");
    EXPECT_EQ(Reread(query.GetQueryString()), query.GetQueryString());
    EXPECT_EQ(query.RowByID(3), any->GetRow(1));
}

TEST_F(QueryFormat, KeepsAnyTextAnywhere) {
    for (std::string text :
         {"", " ", "a ", "\t", "a\r\nb", "%0A", "100%", "[Row7]", "=", "Value2=x", "a,b \"c\"",
          "\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80", "it's"}) {
        query.ClearAll();
        query.SetQueryName(text);
        TRFieldList& fields = query.QResult().ResultFields();
        fields.AddByExpression(text, TSortingType::stNoSort, "{City}")->SetFormula("@1 ||" + text);
        Add("City", "Between", text, text);
        TKQuery other(&structure);
        other.SetQueryString(query.GetQueryString());
        EXPECT_EQ(other.QueryName(), text);
        const TResultField& field = *other.QResult().ResultFields()[0];
        EXPECT_EQ(field.Caption(), text);
        EXPECT_EQ(field.Formula(), "@1 ||" + text);
        EXPECT_EQ(field.Alias(), fields[0]->Alias());
        EXPECT_EQ(other.Root().GetRow(0)->AsCond()->Value(1), text);
        EXPECT_EQ(other.Root().GetRow(0)->AsCond()->Value(2), text);
    }
}

TEST_F(QueryFormat, OptionsAndMainTableOnlyWhenAskedFor) {
    const TSQLOptions quoted{TSQLOption::soQuoteAliases};
    query.SetSQLOptions(quoted);
    query.SetMainTableName("E");
    EXPECT_NE(query.GetQueryString().find("\nOptions=\n"), std::string::npos);
    TKQuery other(&structure);
    other.SetMainTableName("C");
    other.SetQueryString(query.GetQueryString());
    EXPECT_EQ(other.SQLOptions(), DefaultSQLOptions); // unchanged
    EXPECT_EQ(other.MainTableName(), "C");
    query.SaveSQLOptions = query.SaveMainTable = true;
    other.SetQueryString(query.GetQueryString());
    EXPECT_EQ(other.SQLOptions(), quoted);
    EXPECT_EQ(other.MainTableName(), "E");
    // one that keeps main tables takes it that a text has none
    query.SetMainTableName("");
    EXPECT_EQ(query.GetQueryString().find("MainTable"), std::string::npos);
    other.SaveMainTable = true;
    other.SetQueryString(query.GetQueryString());
    EXPECT_EQ(other.MainTableName(), "");
}

TEST_F(QueryFormat, Captions) {
    query.SaveTitles = true;
    query.Titles = {"[Query Panel]", "ttlAll=alle", "[Result Fields Editor]",
                    "ttlSUMCaption=SUMME"};
    const std::string text = query.GetQueryString();
    EXPECT_TRUE(text.starts_with("[Query Panel]\nttlAll=alle\n")) << text;
    TKQuery other(&structure);
    other.SetQueryString(text);
    EXPECT_EQ(ValueOf(other.Titles, "ttlAll"), "alle");
    EXPECT_EQ(ValueOf(other.Titles, "ttlSUMCaption"), "SUMME");
    EXPECT_EQ(ValueOf(other.Titles, "ttlAny"), "any");
    // a text without captions leaves those of the application alone; so does SaveTitles off
    query.SaveTitles = false;
    other.SetQueryString(query.GetQueryString());
    EXPECT_EQ(ValueOf(other.Titles, "ttlAll"), "alle");
    query.Titles = {"[Query Panel]", "ttlAll=all of them"};
    query.SetQueryString(text);
    EXPECT_EQ(ValueOf(query.Titles, "ttlAll"), "all of them");
}

TEST_F(QueryFormat, DatesDoNotDependOnTheLocale) {
    query.Services.readLocalDate = [](TFieldType, std::string_view text, TKDateTime& value) {
        const bool time = text.find(':') != std::string_view::npos;
        auto read = ParseDateTime(time ? "d.m.yyyy hh:nn" : "d.m.yyyy", text);
        if (read) value = *read;
        return read.has_value();
    };
    query.Services.writeLocalDate = [](TFieldType type, const TKDateTime& value) {
        return FormatDateTime(type == TFieldType::ftDate ? "dd.mm.yyyy" : "dd.mm.yyyy hh:nn",
                              value);
    };
    const struct {
        const char *field, *op, *local, *stored, *reread;
    } cases[] = {
        {"Placed on", "Equal", "5.2.2024", "2024-02-05", "05.02.2024"},
        {"Placed on", "Equal", "2024-02-05", "2024-02-05", "05.02.2024"},
        {"Placed on", "Equal", "31.2.2024", "31.2.2024", "31.2.2024"},
        {"Placed on", "Equal", "yesterday", "yesterday", "yesterday"},
        {"Placed on", "InList", "5.2.2024,soon,\"6.2.2024\"", "2024-02-05,soon,2024-02-06",
         "05.02.2024,soon,06.02.2024"},
        {"Sent at", "Equal", "5.2.2024 7:08", "2024-02-05 07:08:00", "05.02.2024 07:08"},
        {"Sent at", "Equal", "2024-02-05 07:08:09.250", "2024-02-05 07:08:09.250",
         "2024-02-05 07:08:09.250"},
        {"City", "Equal", "5.2.2024", "5.2.2024", "5.2.2024"},
        {"Placed on", "InQuery", "5.2.2024", "5.2.2024", "5.2.2024"},
    };
    for (const auto& c : cases) {
        query.ClearAll();
        Add(c.field, c.op, c.local);
        const std::string text = query.GetQueryString();
        EXPECT_NE(text.find("\nValue1=" + std::string(c.stored) + "\n"), std::string::npos) << text;
        query.SetQueryString(text);
        EXPECT_EQ(Cond(0).Value(1), c.reread);
        EXPECT_EQ(query.GetQueryString(), text);
    }
}

TEST_F(QueryFormat, ParametersKeepFormatAndCaptionAndAreNamedInReadingOrder) {
    TFilterCond* second = Add("Amount", "Between", "1", "2");
    second->SetValue1IsParam(true);
    second->SetValue2IsParam(true);
    TFilterBracket* bracket = query.Root().InsertBracket(0);
    TFilterCond* first = Add(*bracket, "City", "Contains", "ber");
    first->SetValue1IsParam(true);
    first->Param(1)->SetCaption("Part of the city");
    query.BuildQuery(); // finds the value formats

    const std::string text = query.GetQueryString();
    int lists = 0, others = 0;
    query.OnParamListChange = [&](TKQuery&) { ++lists; };
    query.OnChange = [&](TKQuery&) { ++others; };
    query.OnConditionChange = [&](TFilterCond&, int) { ++others; };
    query.SetQueryString(text);
    EXPECT_EQ(lists, 1);
    EXPECT_EQ(others, 0);
    EXPECT_EQ(query.GetQueryString(), text);
    ASSERT_EQ(query.QResult().GetParamCount(), 3);
    const char* captions[] = {"Part of the city", "Amount param 1", "Amount param 2"};
    const char* formats[] = {"%@v%", "@v", "@v"};
    for (int i = 0; i < 3; ++i) {
        const TSQLParam& param = *query.QResult().GetParam(i);
        EXPECT_EQ(param.Name(), "Param" + std::to_string(i + 1));
        EXPECT_EQ(param.Caption(), captions[i]);
        EXPECT_EQ(param.ValueFormat(), formats[i]);
    }
    // a caption that was only generated still follows the field
    Cond(1).SetField(Field("Gross amount"));
    EXPECT_EQ(Cond(1).Param(1)->Caption(), "Gross amount param 1");
}

TEST_F(QueryFormat, UnknownThingsSurvive) {
    query.QResult().ResultFields().Add()->AddDSFieldByID(98);
    TFilterCond* row = query.Root().AddCond();
    row->SetUnknownField(99);
    row->SetUnknownOperator("SoundsLike");
    row->SetValue(1, "2024-01-02");
    row->SetValue(2, "x", "shown as X");
    row->SetValue2IsParam(true);
    row->Param(2)->SetCaption("kept");
    row->Param(2)->SetValueFormat("<@v>");
    row = query.Root().AddCond();
    row->SetField(Field("City"));
    row->SetUnknownOperator("");
    row->SetSQLText("soundex(C.city) =\n 'B600'");
    row = Add("City", "Equal", "17", "");
    row->SetValue(1, "17", "seventeen");
    Add("City", "")->SetOperator(nullptr);

    const std::string text = query.GetQueryString();
    EXPECT_NE(text.find("FieldID=99\nOperator=SoundsLike\n"), std::string::npos);
    query.SetQueryString(text);
    EXPECT_EQ(query.GetQueryString(), text);
    EXPECT_EQ(Cond(0).Field(), structure.PlaceholderField());
    EXPECT_EQ(Cond(0).Operator(), structure.PlaceholderOperator());
    EXPECT_EQ(Cond(1).SQLText(), "soundex(C.city) =\n 'B600'");
    EXPECT_EQ(Cond(2).ValueCaption(1), "seventeen");
    EXPECT_EQ(Cond(3).Operator(), nullptr);
}

TEST_F(QueryFormat, SubQueriesNestNoDeeperThan200) {
    std::vector<std::unique_ptr<TKQuery>> chain; // the outer one and 198 inside of it
    for (int depth = 0; depth < 199; ++depth)
        chain.push_back(chain.empty() ? query.NewNested() : chain.back()->NewNested());
    TFilterCond* row = Add(chain.back()->Root(), "Order number", "InQuery");
    TKQuery below(&structure);
    Add(below.Root(), "Order number", "InQuery")->SetSubQuery("[Main]\n[Row0]\nRowCount=0\n");
    row->SetSubQuery(below.GetQueryString());
    ASSERT_TRUE(row->NestedQuery());
    EXPECT_THROW(row->NestedQuery()->Root().GetFirstCondition()->NestedQuery(), EKQueryPanelError);
    while (!chain.empty())
        chain.pop_back(); // the innermost first
}

TEST_F(QueryFormat, ManyRowsAndParameters) {
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

TEST_F(QueryFormat, ContentsChangeAndObjectsStay) {
    const auto* result = &query.QResult();
    const auto* fields = &query.QResult().ResultFields();
    const auto* root = &query.Root();
    Add("City", "Equal", "x");
    query.Description = {"gone"};
    query.QResult().ResultFields().Add();
    query.SetQueryString(
        "[Main]\nQueryName=new\nVersion=3.3\n[Row0]\nRowType=1\nLinkType=3\nRowCount=0\n");
    EXPECT_EQ(&query.QResult(), result);
    EXPECT_EQ(&query.QResult().ResultFields(), fields);
    EXPECT_EQ(&query.Root(), root);
    EXPECT_EQ(root->GetRowCount() + fields->GetCount(), 0);
    EXPECT_EQ(root->LinkType(), TFilterLinkType::fltNotAll);
    EXPECT_TRUE(query.Description.empty());
    EXPECT_EQ(query.QueryName(), "new");
}

TEST_F(QueryFormat, AnEmptyTextOnlyClears) {
    for (bool active : {true, false}) {
        query.SetActive(active);
        query.SetQueryName("kept");
        Add("City", "Equal", "x");
        query.LoadFromStrings({});
        EXPECT_EQ(query.Root().GetRowCount(), 0);
        EXPECT_EQ(query.QueryName(), "kept");
        EXPECT_EQ(query.Active(), active);
    }
}

} // namespace
} // namespace tern7
