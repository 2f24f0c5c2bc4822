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

constexpr uint32_t caseCount = 420;

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
    std::string text = std::to_string(surplus.size()) + " of " + std::to_string(of.size());
    for (size_t i = 0; i < surplus.size() && i < 5; ++i)
        text += "\n    " + surplus[i];
    return text + "\n";
}

std::string Difference(const TRows& rows, const TRows& expected) {
    const std::vector<std::string> found = SortedTexts(rows), wanted = SortedTexts(expected);
    if (found == wanted) return {};
    return "  missing: " + Surplus(wanted, found) + "  too many: " + Surplus(found, wanted);
}

using TForm = TRows (*)(const TEngine&, TKQuery&);
TRows TextForm(const TEngine& engine, TKQuery& query) {
    return engine.Text(query);
}
TRows BoundForm(const TEngine& engine, TKQuery& query) {
    return engine.Bound(query);
}

/// Without the lines that say nothing; nested queries can be seen in the statement.
std::string CompactText(TKQuery& query) {
    std::string compact;
    for (const std::string& line : SplitLines(query.GetQueryString()))
        if (!line.empty() && !line.ends_with('=') && !line.ends_with("=0") &&
            !line.starts_with("SubQuery"))
            compact += line + "\n";
    return compact;
}

/// Empty when the form of the query gives the rows; else all there is to say about it.
std::string Failure(const TEngine& engine, TKQuery& query, const char* name, TForm form,
                    const TRows& expected) {
    std::string what;
    try {
        what = Difference(form(engine, query), expected);
    } catch (const std::exception& error) {
        what = std::string("  ") + error.what() + "\n";
    }
    return what.empty() ? what
                        : std::string(name) + " form:\n" + what + query.QResult().GetSQL().Text() +
                              "\n" + CompactText(query);
}

/// Stops after a few, each is long.
template <class Check>
int CheckCases(Check check) {
    int checked = 0, failed = 0;
    for (uint32_t seed = 1; seed <= caseCount && failed < 3; ++seed) {
        const std::optional<std::string> failure = check(Cases()[seed - 1]);
        if (!failure) continue;
        ++checked;
        if (failure->empty()) continue;
        ++failed;
        ADD_FAILURE() << "seed " << seed << ", " << *failure;
    }
    return checked;
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
int CheckEngine(const TEngine& engine, bool (*canNot)(const TKQuery&), bool textForm = true) {
    return CheckCases([&](const TCase& made) -> std::optional<std::string> {
        if (canNot && AnyOf(*made.query, canNot)) return std::nullopt;
        std::string failure;
        if (textForm) failure = Failure(engine, *made.query, "text", TextForm, made.expected);
        if (failure.empty())
            failure = Failure(engine, *made.query, "bound", BoundForm, made.expected);
        return failure;
    });
}

void CountRows(const TFilterBracket& bracket, std::map<std::string, int>& seen) {
    ++seen["bracket " + std::to_string(static_cast<int>(bracket.LinkType()))];
    if (bracket.Rows().empty()) ++seen["empty bracket"];
    for (const auto& row : bracket.Rows()) {
        if (!row->GetEnabled()) {
            ++seen["disabled"];
        } else if (const TFilterBracket* inner = row->AsBracket()) {
            CountRows(*inner, seen);
        } else {
            const TFilterCond& condition = *row->AsCond();
            ++seen[condition.Unfinished() == TUnfinished::No ? condition.OperatorName()
                                                             : "unfinished"];
            if (condition.Param(1) || condition.Param(2)) ++seen["parameter"];
        }
    }
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
    EXPECT_EQ(CheckEngine(*OpenSQLite(TSample::Shared().Address()), nullptr), caseCount);
}

TEST(Proof, PostgreSQL) {
    const auto engine = OpenPostgreSQL();
    if (!engine) GTEST_SKIP() << "TERN7_TEST_POSTGRESQL is not set";
    EXPECT_GT(CheckEngine(*engine, SortsByStrangeNames), 250);
}

TEST(Proof, MariaDB) {
    const auto engine = OpenMariaDB(false);
    if (!engine) GTEST_SKIP() << "TERN7_TEST_MARIADB is not set";
    EXPECT_GT(CheckEngine(*engine, HasFullJoin), 250);
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
    EXPECT_GT(CheckEngine(*engine, HasFullJoin, false), 250);
    quoteWith('"');
}

TEST(Proof, RowsComeSorted) {
    const auto engine = OpenSQLite(TSample::Shared().Address());
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
            CountRows(query->Root(), seen);
        }
    }
    for (const char* kind :
         {"no rows",       "syntax 0", "syntax 1",   "syntax 2",  "link 0",    "link 1",
          "link 2",        "link 3",   "bracket 0",  "bracket 1", "bracket 2", "bracket 3",
          "empty bracket", "disabled", "unfinished", "parameter", "InQuery",   "NotInQuery",
          "IsNull",        "InList",   "Between"})
        EXPECT_GE(seen[kind], 15) << kind;
    for (const TDefaultOperator& op : DefaultOperators)
        EXPECT_GE(seen[std::string(op.name)], 15) << op.name;
    EXPECT_GT(seen["rows"], static_cast<int>(caseCount) / 2);
}

} // namespace tern7::proof
