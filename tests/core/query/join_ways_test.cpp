#include <algorithm>

#include <gtest/gtest.h>

#include <tern7/core/query/join_ways.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/read_sql/sql_report.h>
#include <tern7/core/structure/link.h>

namespace tern7 {

namespace {

/// Countries and orders share a currency, which is not how they belong together.
struct TTrade : testing::Test {
    TTrade() {
        for (const char* alias : {"orders", "customers", "countries", "currencies", "cities"})
            structure.AddField(TKFieldKind::kfkData, "id", std::string(alias) + " id",
                               structure.AddTable(alias, alias));
        for (const auto& [from, to] : {std::pair("orders", "currencies"),
                                       {"countries", "currencies"},
                                       {"orders", "customers"},
                                       {"customers", "cities"},
                                       {"cities", "countries"}})
            structure.AddLink(from, to)->AddPair("other", "id");
        for (const char* field : {"countries id", "orders id"})
            query.QResult().ResultFields().AddByExpression(field, TSortingType::stNoSort,
                                                           "{" + std::string(field) + "}");
        query.SaveMainTable = true;
        query.BuildQuery();
    }
    static std::string Aliases(const std::vector<TDSTable*>& tables) {
        std::string text;
        for (const TDSTable* table : tables)
            text += table->TableAlias() + " ";
        return text;
    }
    std::string Joined() {
        query.BuildQuery();
        std::vector<TDSTable*> tables;
        const TRTableList& list = query.QResult().ResultTables();
        for (int i = 0; i < list.GetCount(); ++i)
            tables.push_back(list[i].Table);
        return Aliases(tables);
    }

    TKCustomDBStructure structure;
    TKQuery query{&structure};
};

} // namespace

TEST_F(TTrade, AnotherWayIsFoundTakenAndLeft) {
    const std::vector<TSharedTable> shared = SharedTables(query);
    ASSERT_EQ(shared.size(), 1u);
    EXPECT_EQ(shared[0].first->TableAlias() + shared[0].shared->TableAlias() +
                  shared[0].second->TableAlias(),
              "countriescurrenciesorders");
    ASSERT_EQ(Aliases(JoinEnds(query)), "orders ");
    const TDSTable& orders = *JoinEnds(query)[0];
    std::vector<TJoinWay> ways = JoinWays(query, orders);
    ASSERT_EQ(ways.size(), 2u);
    EXPECT_EQ(Aliases(ways[0].tables), "countries currencies orders ");
    EXPECT_EQ(Aliases(ways[1].tables), "countries cities customers orders ");

    query.SetAvoidedJoins(ways[1].avoided);
    EXPECT_EQ(Joined(), "countries cities customers orders ");
    EXPECT_TRUE(SharedTables(query).empty());
    ways = JoinWays(query, orders);
    ASSERT_EQ(ways.size(), 2u);
    EXPECT_TRUE(ways[1].avoided.empty()) << "back again";

    query.SetAvoidedJoins({{"countries", "currencies"}, {"customers", "orders"}});
    EXPECT_THROW(query.BuildQuery(), EKDBStructError);
    query.SetAvoidedJoins({{"elsewhere", "currencies"}});
    EXPECT_EQ(Joined(), "countries currencies orders ");

    query.SetAvoidedJoins({});
    structure.AddLink("orders", "cities")->AddPair("other", "id");
    query.BuildQuery();
    const std::vector<TJoinWay> first = JoinWays(query, orders);
    ASSERT_EQ(first.size(), 2u);
    for (const char* last : {"countries cities orders ", "countries cities customers orders "}) {
        query.SetAvoidedJoins(JoinWays(query, orders).back().avoided);
        EXPECT_EQ(Joined(), last);
        const std::vector<TJoinWay> offered = JoinWays(query, orders);
        for (const TJoinWay& way : first)
            EXPECT_TRUE(std::any_of(offered.begin(), offered.end(), [&](const TJoinWay& each) {
                return each.tables == way.tables;
            })) << Aliases(way.tables);
    }
}

TEST_F(TTrade, AvoidedJoinsAreKeptInTheText) {
    query.SetAvoidedJoins({{"countries", "currencies"}, {"a,b", "\"c\" "}});
    const std::string text = query.GetQueryString();
    TKQuery again(&structure);
    again.SaveMainTable = true;
    again.SetQueryString(text);
    EXPECT_EQ(again.AvoidedJoins(), query.AvoidedJoins());
    EXPECT_EQ(again.GetQueryString(), text);
    const size_t place = text.find("AvoidedJoins=");
    ASSERT_NE(place, std::string::npos);
    EXPECT_THROW(again.SetQueryString(std::string(text).insert(place + 13, "alone,")),
                 EKQueryPanelError);
    EXPECT_EQ(again.AvoidedJoins(), query.AvoidedJoins());
}

TEST_F(TTrade, StatementsAreReadWithTheirWay) {
    for (const TSQLSyntax syntax : {TSQLSyntax::ssSQL1, TSQLSyntax::ssSQL2, TSQLSyntax::ssOracle}) {
        query.SetSQLSyntax(syntax);
        query.SetAvoidedJoins({{"currencies", "orders"}});
        query.BuildQuery();
        const std::string sql = query.QResult().GetSQL().Text();
        TKQuery read(&structure);
        const TSQLReport& report = read.ImportSQL(sql);
        EXPECT_FALSE(report.AnyDropped() || report.Has(TSQLReportKind::rkKeptAsText)) << sql;
        EXPECT_EQ(read.Root().GetRowCount(), 0) << sql;
        read.BuildQuery();
        EXPECT_EQ(read.QResult().GetSQL().Text(), sql);
    }
}

} // namespace tern7
