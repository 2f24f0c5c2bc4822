// The text as it is written, and what comes back of it.
#include <gtest/gtest.h>

#include "shop.h"

namespace tern7::test {
namespace {

class QueryFormat : public testing::Test {
protected:
    std::string Reread(const std::string& text) {
        TKQuery other(&shop.structure);
        other.SaveTitles = query.SaveTitles;
        other.SaveSQLOptions = query.SaveSQLOptions;
        other.SaveMainTable = query.SaveMainTable;
        other.SetQueryString(text);
        return other.GetQueryString();
    }
    void SetUp() override { query.SaveTitles = false; }

    TShop shop;
    TKQuery query{&shop.structure};
};

TEST_F(QueryFormat, WritesEveryPartInOrder) {
    query.SetQueryName("Late orders");
    query.Description = {"first", "", "[not a header]", "  [nor this]"};
    query.UserData = {"color=blue"};
    query.SaveMainTable = true;
    query.SetMainTableName("O");
    auto* column = query.QResult().ResultFields().AddByExpression("Sum", TSortingType::stDescending,
                                                                  "SUM({Amount})");
    ASSERT_TRUE(column);
    TFilterBracket* any = query.Root().AddBracket();
    any->SetLinkType(TFilterLinkType::fltAny);
    shop.AddCond(*any, shop.day, shop.Op("Between"), "2024-01-01", "2024-12-31");
    shop.AddCond(*any, shop.city, shop.Op("Equal"), " Bern\nWest")->SetEnabled(false);
    any->AddCond(); // no field yet: left out, and not counted
    EXPECT_EQ(query.GetQueryString(), R"([Main]
QueryName=Late orders
Version=3.3
Options=
MainTable=O

[Description]
first

 [not a header]
   [nor this]

[UserData]
color=blue

[RFields]
Count=1
Version=3.3
JustSorting=0
[RField0]
Formula=SUM(@1)
Fields=3
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
FieldID=4
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
FieldID=1
Operator=Equal
Param1=0
Param2=0
Value1.Encoded=%20Bern%0AWest
Value2=
SubQuery=
SubQueryOptions=3
)");
    EXPECT_EQ(Reread(query.GetQueryString()), query.GetQueryString());
}

} // namespace
} // namespace tern7::test
