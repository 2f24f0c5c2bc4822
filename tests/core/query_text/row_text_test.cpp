// What rows show, and the description of a whole query.
#include "text_fixture.h"

#include <tern7/core/query/row_text.h>

namespace tern7 {
namespace {

class RowText : public TQueryTextTest {
protected:
    TDSListEditor& GiveList(const char* field, int items) {
        Field(field)->SetEditType(TDSEditType::etList);
        auto& list = *Field(field)->ValueEditorAs<TDSListEditor>();
        for (int i = 0; i < items; ++i) {
            list.Values.push_back(std::to_string(i));
            list.Items.push_back("item " + std::to_string(i));
        }
        return list;
    }
    std::string Sentences(TQPStyle style) {
        std::string all;
        auto add = [&](auto&& self, const TFilterRow& row) -> void {
            const std::string text = texts.Sentence(row, style);
            if (!text.empty()) all += text + "\n";
            if (const TFilterBracket* bracket = row.AsBracket())
                for (const auto& inner : bracket->Rows())
                    self(self, *inner);
        };
        add(add, query.Root());
        return all;
    }
    TKRowTexts texts;
};

TEST_F(RowText, SentencesInBothStyles) {
    Add("City", "Equal", "Berlin");
    TFilterBracket* none = query.Root().AddBracket();
    none->SetLinkType(TFilterLinkType::fltNone);
    none->AddBracket(); // empty: shows nothing between words
    TFilterBracket* any = none->AddBracket();
    any->SetLinkType(TFilterLinkType::fltAny);
    Add(*any, "Amount", "Between", "1", "2");
    Add(*any, "C.name", "IsNull");
    Add(*none, "City", "Equal", "");
    query.Root().AddCond();
    EXPECT_EQ(Sentences(TQPStyle::psGroups), R"(Choose records where all of the following apply
City is equal to Berlin
none of the following apply
all of the following apply
any of the following apply
Amount is between 1 and 2
Customer Name is null
City is equal to ""
_____
)");
    const char* const words = R"(City is equal to Berlin
and none ((Amount is between 1 and 2
or Customer Name is null)
or City is equal to "")
and _____
)";
    customer->SetDisplayName("Customer");
    EXPECT_EQ(Sentences(TQPStyle::psAndOr), words);
    query.Root().SetLinkType(TFilterLinkType::fltNotAll);
    EXPECT_TRUE(Sentences(TQPStyle::psAndOr).starts_with("not all (City is equal"));
    EXPECT_TRUE(Sentences(TQPStyle::psAndOr).ends_with("and _____)\n"));
}

TEST_F(RowText, LabelsSayWhatTheyAre) {
    texts = TKRowTexts({"[Query Panel]", "ttlBracket=Wenn @ davon", "ttlAny=eines", "ttlOr=oder",
                        "ttlParameter=Frage", "ttlFilter=@"});
    query.Root().SetLinkType(TFilterLinkType::fltAny);
    TFilterBracket* bracket = query.Root().AddBracket();
    TFilterCond* row = Add("Amount", "Between", "1", "2");
    row->SetValue2IsParam(true);
    row->Param(2)->SetCaption("How much?");

    auto labels = texts.Labels(*bracket, TQPStyle::psGroups);
    ASSERT_EQ(labels.size(), 3u);
    EXPECT_EQ(labels[0].text, "Wenn");
    EXPECT_EQ(labels[1].text, "all");
    EXPECT_EQ(labels[1].kind, TRowLabelKind::rlBracketWord);
    EXPECT_EQ(labels[1].bracket, bracket);
    EXPECT_EQ(texts.Labels(query.Root(), TQPStyle::psGroups).size(), 1u); // "@" alone
    EXPECT_TRUE(texts.Labels(*bracket, TQPStyle::psAndOr).empty());

    bracket->AddCond();
    labels = texts.Labels(*row, TQPStyle::psAndOr);
    ASSERT_EQ(labels.size(), 6u);
    const TRowLabelKind kinds[] = {TRowLabelKind::rlBoolWord,    TRowLabelKind::rlField,
                                   TRowLabelKind::rlOperator,    TRowLabelKind::rlValue,
                                   TRowLabelKind::rlValueJoiner, TRowLabelKind::rlParameter};
    const char* shown[] = {"oder", "Amount", "is between", "1", "and", "Frage"};
    for (size_t i = 0; i < labels.size(); ++i) {
        EXPECT_EQ(labels[i].kind, kinds[i]);
        EXPECT_EQ(labels[i].text, shown[i]);
    }
    EXPECT_EQ(labels[0].bracket, &query.Root());
    EXPECT_EQ(labels[3].valueNumber, 1);
    EXPECT_EQ(labels[5].hint, "How much?\n@v");
}

TEST_F(RowText, CaptionsOfValues) {
    GiveList("City", 40);
    TFilterCond* row = Add("City", "Equal", "7");
    EXPECT_EQ(texts.ValueText(*row, 1), "item 7");
    row->SetValue(1, "unlisted");
    EXPECT_EQ(texts.ValueText(*row, 1), "unlisted");
    row->SetOperator(structure.OperatorByName("InList"));
    row->SetValue(1, "3, 39,\"a b\"");
    EXPECT_EQ(texts.ValueText(*row, 1), "item 3, item 39, a b");
    // the list is exchanged behind the texts' back
    GiveList("City", 0).Items = TStrings(40, "other");
    EXPECT_EQ(texts.ValueText(*row, 1), "other, other, a b");
    row->SetValue(1, "3", "the application's");
    EXPECT_EQ(texts.ValueText(*row, 1), "the application's");
    row->SetOperator(structure.OperatorByName("InQuery"));
    EXPECT_EQ(texts.ValueText(*row, 1), "Sub-query");
    row->SetOperator(structure.OperatorByName("Equal"));
    row->SetValue1IsParam(true);
    EXPECT_EQ(texts.ValueText(*row, 1), "Parameter");
}

TEST_F(RowText, LongListsTakeTimeInProportion) {
    // 20,000 rows over a list of 20,000, and a value of 20,000 items
    GiveList("City", 20000);
    std::string items;
    for (int i = 0; i < 20000; ++i)
        items += (i ? "," : "") + std::to_string(i);
    TFilterCond* row = Add("City", "InList", items);
    EXPECT_TRUE(texts.ValueText(*row, 1).ends_with(", item 19999"));
    row->SetOperator(structure.OperatorByName("Equal"));
    for (int i = 0; i < 20000; ++i) {
        row->SetValue(1, std::to_string(i));
        ASSERT_EQ(texts.ValueText(*row, 1), "item " + std::to_string(i));
    }
}

TEST_F(RowText, OneLineCutsBetweenCharacters) {
    EXPECT_EQ(OneLine("a\r\nb\nc\rd"), "a b c d");
    EXPECT_EQ(OneLine("\xC3\xA4\xC3\xB6\xC3\xBC", 3), "\xC3\xA4\xC3\xB6\xC3\xBC");
    EXPECT_EQ(OneLine("\xC3\xA4\xC3\xB6\xC3\xBC", 2), "\xC3\xA4\xC3\xB6\u2026");
    const std::string big(300, 'x');
    const auto labels = texts.Labels(*Add("City", "Equal", big), TQPStyle::psGroups);
    EXPECT_EQ(labels[2].text, big.substr(0, 200) + "\u2026");
    EXPECT_EQ(labels[2].hint, big);
}

TEST_F(RowText, WhatWasNotRecognisedIsShown) {
    const struct {
        int fieldID; // -1: City
        const char* fieldName;
        const char* op;
        const char* values[2];
        const char* sql;
        const char* sentence;
    } cases[] = {
        {77, "", "Equal", {"x", ""}, "", "Unrecognized field (ID 77) is equal to x"},
        {77, "C.gone", "Equal", {"", ""}, "", "Unrecognized field (C.gone) is equal to _____"},
        {-1, "", "?Sounds", {"a", "b"}, "", "City Unrecognized operator (Sounds: a, b)"},
        {77, "", "?", {"a", ""}, "", "Unrecognized field (ID 77) Unrecognized operator (a)"},
        {77, "", "?", {"", ""}, "a.x\n= 1", "Unrecognized field Unrecognized operator: a.x = 1"},
    };
    for (const auto& c : cases) {
        TFilterCond* row = Add("City", "Equal", c.values[0], c.values[1]);
        if (c.fieldID >= 0) row->SetUnknownField(c.fieldID, c.fieldName);
        if (c.op[0] == '?') row->SetUnknownOperator(c.op + 1);
        row->SetSQLText(c.sql);
        EXPECT_EQ(texts.Sentence(*row, TQPStyle::psGroups), c.sentence);
    }
    TFilterCond* row = query.Root().GetRow(4)->AsCond();
    EXPECT_EQ(texts.Labels(*row, TQPStyle::psGroups).back().hint, "a.x\n= 1");
    row->SetField(Field("City"));
    row->SetOperator(structure.OperatorByName("IsNull"));
    EXPECT_EQ(texts.Sentence(*row, TQPStyle::psGroups), "City is null");
}

TEST_F(RowText, DescribesTheWholeQuery) {
    query.SetQueryString(""); // numbers of parameters begin anew
    TRFieldList& fields = query.QResult().ResultFields();
    fields.AddByExpression("City", TSortingType::stNoSort, "{City}");
    fields.AddByExpression("Sum", TSortingType::stDescending, "SUM({Amount})");
    Add("City", "Equal", "Berlin")->SetEnabled(false);
    TFilterBracket* any = query.Root().AddBracket();
    any->SetLinkType(TFilterLinkType::fltAny);
    Add(*any, "Amount", "GreaterThan", "")->SetValue1IsParam(true);
    Add(*any, "Amount", "GreaterThan", "");
    TFilterCond* row = any->AddCond();
    row->SetUnknownField(77);
    row->SetUnknownOperator("");
    row->SetSQLText("a.x = b.y");
    TKQuery nested(&structure);
    nested.QResult().ResultFields().AddByExpression("No", TSortingType::stNoSort,
                                                    "{Customer number}");
    Add("Order number", "InQuery")->SetSubQuery(nested.GetQueryString());
    Add("Order number", "InQuery")->SetSubQuery("damaged");
    EXPECT_EQ(JoinStrings(DescribeQuery(query, {"ttlDescending=Absteigend"}), "\n"),
              R"(Result fields
  City
  Sum: SUM({Amount})
Sorted fields
  Sum: SUM({Amount}), Absteigend
Choose records where all of the following apply
  City is equal to Berlin [disabled]
  any of the following apply
    Amount is greater than Parameter (Amount param)
    Amount is greater than _____ [unfinished: a value is missing]
    Unrecognized field Unrecognized operator: a.x = b.y
  Order number is found by Sub-query
    Result fields
      No: Customer number
  Order number is found by Sub-query
    [Can not find section Main])");
}

} // namespace
} // namespace tern7
