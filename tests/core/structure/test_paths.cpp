#include <algorithm>

#include <gmock/gmock.h>

#include "structure_fixture.h"

namespace tern7::test {

namespace {

using testing::ElementsAre;

/// The search as it is defined: whole paths, generation by generation, a table kept out only of the
/// paths that hold it already.
std::vector<TDSTable*> LiteralPath(TDSTable* start, const TDSTable* end,
                                   const TAvoidedJoins& avoided = {}) {
    const auto isAvoided = [&avoided](const TDSLink* link) {
        return std::any_of(avoided.begin(), avoided.end(), [link](const TAvoidedJoin& join) {
            const std::string &a = link->Table1()->TableAlias(), &b = link->Table2()->TableAlias();
            return (join.alias1 == a && join.alias2 == b) || (join.alias1 == b && join.alias2 == a);
        });
    };
    std::vector<std::vector<TDSTable*>> generation = {{start}};
    while (!generation.empty()) {
        std::vector<std::vector<TDSTable*>> next;
        for (const std::vector<TDSTable*>& path : generation)
            for (const TDSLink* link : path.back()->Links()) {
                if (isAvoided(link)) continue;
                TDSTable* other = link->OtherTable(path.back());
                std::vector<TDSTable*> longer = path;
                longer.push_back(other);
                if (other == end) return longer;
                if (std::find(path.begin(), path.end(), other) == path.end())
                    next.push_back(std::move(longer));
            }
        generation = std::move(next);
    }
    return {};
}

void AddTables(TKCustomDBStructure& structure, int count) {
    for (int i = 0; i < count; ++i)
        structure.AddTable("t", std::string(1, static_cast<char>('A' + i)));
}

} // namespace

TEST(Paths, FirstLinksDecide) {
    TKCustomDBStructure structure;
    AddTables(structure, 5);
    structure.AddLink("A", "B");
    structure.AddLink("A", "C");
    structure.AddLink("B", "D");
    structure.AddLink("C", "D");
    EXPECT_THAT(Aliases(structure.GetPath("a", "d")), ElementsAre("A", "B", "D"));
    EXPECT_THAT(Aliases(structure.GetPath("A", "A")), ElementsAre("A", "B", "A"));
    EXPECT_EQ(structure.GetPath("D", "A").TableByIndex(1), structure.GetTable(1));
    EXPECT_EQ(structure.GetPath("D", "A").TableByIndex(2), nullptr);
    EXPECT_EQ(ErrorOf([&] { structure.GetPath("X", "Y"); }), "No such table X");
    EXPECT_EQ(ErrorOf([&] { structure.GetPath("A", "Y"); }), "No such table Y");
    for (const char* start : {"A", "E"})
        EXPECT_EQ(ErrorOf([&] { structure.GetPath(start, "E"); }),
                  "Can not find path between tables");
    structure.AddLink("E", "E");
    EXPECT_THAT(Aliases(structure.GetPath("E", "E")), ElementsAre("E", "E"));
}

TEST(Paths, SameAsTheLiteralSearch) {
    std::mt19937 random(7);
    auto below = [&](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    for (int round = 0; round < 200; ++round) {
        TKCustomDBStructure structure;
        AddTables(structure, 1 + below(7));
        if (round % 20 == 0) // and a chain
            for (int i = 0; i < 30; ++i) {
                const TDSTable* last = structure.GetTable(structure.GetTableCount() - 1);
                structure.AddLink(last->TableAlias(), structure.AddTable("t", "")->TableAlias());
            }
        auto any = [&] { return structure.GetTable(below(structure.GetTableCount())); };
        for (int links = below(12); links > 0; --links) // with several between two, and loops
            structure.AddLink(any()->TableAlias(), any()->TableAlias());
        for (int query = 0; query < 60; ++query) {
            if (below(15) == 0 && structure.GetLinkCount() > 0) structure.DelLink(0);
            if (below(15) == 0) structure.AddLink(any()->TableAlias(), any()->TableAlias());
            if (below(15) == 0 && structure.GetLinkCount() > 0)
                structure.GetLink(0)->SetTable2(any());
            if (below(15) == 0) structure.AddTable("t", "");
            if (below(15) == 0 && structure.GetTableCount() > 1) structure.DelTable(any()->Index());
            TDSTable *start = any(), *end = any();
            const std::vector<TDSTable*> expected = LiteralPath(start, end);
            if (expected.empty())
                ASSERT_NE(ErrorOf([&] { structure.GetPath(*start, *end); }), "no error");
            else
                ASSERT_EQ(structure.GetPath(*start, *end).Tables(), expected);

            const TAvoidedJoins avoided{{any()->TableAlias(), any()->TableAlias()},
                                        {any()->TableAlias(), "nowhere"},
                                        {any()->TableAlias(), any()->TableAlias()}};
            if (start == end) continue;
            const std::vector<TDSTable*> around = LiteralPath(start, end, avoided);
            std::vector<TDSTable*> found;
            ErrorOf([&] { found = structure.GetPath(*start, *end, avoided).Tables(); });
            ASSERT_EQ(found, around);
        }
    }
}

TEST(Paths, JoinConditions) {
    TKCustomDBStructure structure;
    AddTables(structure, 2);
    TDSLink* link = structure.AddLink("A", "B");
    EXPECT_EQ(link->GetSQLExpr(TSQLSyntax::ssSQL1), "");
    link->SetFields1({"id", "no"});
    link->SetFields2({"a_id", "a_no"});
    link->SetOperators({"=", "<>"});
    EXPECT_EQ(link->GetSQLExpr(TSQLSyntax::ssSQL2), "(A.id=B.a_id) and (A.no<>B.a_no)");
    link->SetOperators({});
    link->SetFields1({"id"});
    link->SetLinkType(TDSLinkType::ltOuterLeft);
    EXPECT_EQ(link->GetSQLExpr(TSQLSyntax::ssSQL2), "(A.id=B.a_id)");
    EXPECT_EQ(link->GetSQLExpr(TSQLSyntax::ssOracle), "(A.id=B.a_id (+) )");
    link->SetLinkType(TDSLinkType::ltOuterRight);
    link->SetQuoteFields(true);
    EXPECT_EQ(link->GetSQLExpr(TSQLSyntax::ssOracle), "(A.\"id\" (+) =B.\"a_id\")");
    link->ApplyDefOperator();
    EXPECT_THAT(link->Operators(), ElementsAre("="));
}

} // namespace tern7::test
