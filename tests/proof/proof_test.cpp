// Random queries: the text form, the bound form and the evaluator give the same rows, on every
// engine there is.

#include <algorithm>
#include <map>

#include <gtest/gtest.h>

#include "engines.h"
#include "evaluator.h"
#include "query_generator.h"

#include <tern7/core/corekit/strings.h>
#include <tern7/core/structure/default_operators.h>

namespace tern7::proof {

namespace {

constexpr uint32_t caseCount = 440;

const std::vector<TCase>& Cases() {
    static const std::vector<TCase> cases = [] {
        std::vector<TCase> made;
        for (uint32_t seed = 1; seed <= caseCount; ++seed)
            made.push_back(MakeCase(TSample::Shared(), seed));
        return made;
    }();
    return cases;
}

/// What one list has more of than the other, the first few.
std::string Surplus(const std::vector<std::string>& of, const std::vector<std::string>& over) {
    std::vector<std::string> surplus;
    std::set_difference(of.begin(), of.end(), over.begin(), over.end(),
                        std::back_inserter(surplus));
    surplus.resize(std::min<size_t>(surplus.size(), 5));
    return JoinStrings(surplus, "\n");
}

bool HasFullJoin(const TKQuery& query) {
    for (int i = 1; i < query.QResult().ResultTables().GetCount(); ++i)
        if (query.QResult().ResultTables()[i].Link->LinkType() == TDSLinkType::ltOuterFull)
            return query.SQLSyntax() == TSQLSyntax::ssSQL2;
    return false;
}

/// Sorting by what is neither a column nor a group; SQLite alone takes it.
bool SortsByStrangeNames(const TKQuery& query) {
    return !query.QResult().OrderByText().empty() &&
           query.SQLOptions().Contains(TSQLOption::soSortByNames) &&
           (query.SQLOptions().Contains(TSQLOption::soSelectDistinct) ||
            !query.QResult().GroupByText().empty());
}

bool AnyOf(const TKQuery& query, bool (*property)(const TKQuery&)) {
    const std::vector<const TKQuery*> all = WithNested(query);
    return std::any_of(all.begin(), all.end(), [&](const TKQuery* q) { return property(*q); });
}

/// Compares both forms on an engine with the evaluator's rows, as far as the engine can answer.
/// The number of queries that were compared; stops at the first that fails, they are long.
int CheckEngine(const TEngine& engine, bool (*canNot)(const TKQuery&), bool textForm = true) {
    int checked = 0;
    for (const TCase& made : Cases()) {
        TKQuery& query = *made.query;
        if (canNot && AnyOf(query, canNot)) continue;
        ++checked;
        const std::vector<std::string> wanted = SortedTexts(made.expected);
        for (const bool bound : {true, false}) {
            if (!bound && !textForm) continue;
            try {
                const TRows rows = bound ? engine.Bound(query) : engine.Text(query);
                const std::vector<std::string> found = SortedTexts(rows);
                EXPECT_EQ(Surplus(wanted, found), "") << "missing";
                EXPECT_EQ(Surplus(found, wanted), "") << "too many";
            } catch (const std::exception& error) {
                ADD_FAILURE() << error.what();
            }
            if (!::testing::Test::HasFailure()) continue;
            ADD_FAILURE() << (bound ? "bound form of\n" : "text form of\n")
                          << query.QResult().GetSQL().Text() << "\n"
                          << query.GetQueryString();
            return checked;
        }
    }
    return checked;
}

/// Sorting of SQLite: NULL first.
bool IsSorted(const TKQuery& query, const TRows& rows) {
    struct TKey {
        int order;
        size_t column;
        bool descending;
    };
    std::vector<TKey> keys;
    for (const auto& field : query.QResult().ResultFields())
        if (field->Sorting() != TSortingType::stNoSort)
            keys.push_back({field->SortOrder(), static_cast<size_t>(field->Number() - 1),
                            field->Sorting() == TSortingType::stDescending});
    std::stable_sort(keys.begin(), keys.end(),
                     [](const TKey& a, const TKey& b) { return a.order < b.order; });
    return std::is_sorted(rows.begin(), rows.end(), [&](const TRow& a, const TRow& b) {
        for (const TKey& key : keys)
            if (const int order = Compare(a.at(key.column), b.at(key.column)))
                return key.descending ? order > 0 : order < 0;
        return false;
    });
}

} // namespace

TEST(Proof, SQLite) {
    EXPECT_EQ(CheckEngine(*OpenSQLite(), nullptr), caseCount);
}

TEST(Proof, PostgreSQL) {
    const auto engine = OpenPostgreSQL();
    if (!engine) GTEST_SKIP() << "TERN7_TEST_POSTGRESQL is not set";
    EXPECT_GE(CheckEngine(*engine, SortsByStrangeNames), 300);
}

TEST(Proof, MariaDB) {
    const auto engine = OpenMariaDB(false);
    if (!engine) GTEST_SKIP() << "TERN7_TEST_MARIADB is not set";
    EXPECT_GE(CheckEngine(*engine, HasFullJoin), 300);
}

/// A backslash in a literal is an escape there and a double quote begins one: the bound form is not
/// harmed.
TEST(Proof, BoundFormOnMariaDBInItsDefaultMode) {
    const auto engine = OpenMariaDB(true);
    if (!engine) GTEST_SKIP() << "TERN7_TEST_MARIADB is not set";
    auto quoteWith = [](char symbol) {
        for (const auto& structure : TSample::Shared().Structures()) {
            structure->SQLFormats().SetQuoteSymbol1(symbol);
            structure->SQLFormats().SetQuoteSymbol2(symbol);
        }
        for (const TCase& made : Cases())
            made.query->BuildQuery();
    };
    Cases();
    quoteWith('`');
    EXPECT_GE(CheckEngine(*engine, HasFullJoin, false), 300);
    quoteWith('"');
}

TEST(Proof, RowsComeSorted) {
    const auto engine = OpenSQLite();
    int sorted = 0;
    for (const TCase& made : Cases()) {
        const TQueryResult& result = made.query->QResult();
        if (result.OrderByText().empty() || result.ResultFields().JustSorting() ||
            made.query->SQLOptions().Contains(TSQLOption::soSortByNames))
            continue;
        ++sorted;
        EXPECT_TRUE(IsSorted(*made.query, engine->Text(*made.query)))
            << made.query->QResult().GetSQL().Text();
    }
    EXPECT_GT(sorted, 50);
}

/// What the other tests prove depends on what was made up.
TEST(Proof, CasesAreOfAllKinds) {
    std::map<std::string, int> seen;
    for (const TCase& made : Cases()) {
        ++seen[made.expected.empty() ? "no rows" : "rows"];
        for (const TKQuery* query : WithNested(*made.query)) {
            ++seen["syntax " + std::to_string(static_cast<int>(query->SQLSyntax()))];
            for (int i = 1; i < query->QResult().ResultTables().GetCount(); ++i) {
                const TDSLink& link = *query->QResult().ResultTables()[i].Link;
                ++seen["link " + std::to_string(static_cast<int>(link.LinkType()))];
            }
            if (!query->UnfinishedRows().empty()) ++seen["unfinished"];
            for (const std::string& line :
                 SplitLines(const_cast<TKQuery*>(query)->GetQueryString()))
                ++seen[line];
        }
    }
    std::vector<std::string> kinds = {
        "no rows",    "unfinished",       "Enabled=0",          "RowCount=0", "Param1=1",
        "syntax 0",   "syntax 1",         "syntax 2",           "link 0",     "link 1",
        "link 2",     "link 3",           "LinkType=0",         "LinkType=1", "LinkType=2",
        "LinkType=3", "Operator=InQuery", "Operator=NotInQuery"};
    for (const TDefaultOperator& op : DefaultOperators)
        kinds.push_back("Operator=" + std::string(op.name));
    for (const std::string& kind : kinds)
        EXPECT_GE(seen[kind], 15) << kind;
    EXPECT_GT(seen["rows"], static_cast<int>(caseCount) / 2);
}

} // namespace tern7::proof
