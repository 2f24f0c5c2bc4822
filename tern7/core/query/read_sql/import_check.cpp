// What the query makes of an imported statement: its tables and joins beside those of the text.

#include <algorithm>
#include <unordered_set>

#include <tern7/core/query/query.h>
#include <tern7/core/query/query_state.h>
#include <tern7/core/query/read_sql/import_sql.h>

namespace tern7 {

namespace {

using TReport = TSQLReportKind;

constexpr std::string_view notUsed = "no column and no condition uses it";
constexpr std::string_view addedTable = "the query needs a further table: ";
constexpr std::string_view otherJoin = "the structure joins it in another way";
constexpr std::string_view otherOrder = "the query joins the tables in another order";

} // namespace

void TSQLImporter::CheckTables() {
    if (statement.tables.empty()) return;
    const TTokenRange from{statement.tables.front().all.from, statement.tables.back().all.to};
    // the application is not asked while a text is read
    const auto handler = std::exchange(query.OnBuildSQL, TEvent<TFilterCond&, std::string&>());
    std::string failure;
    try {
        query.BuildQuery();
    } catch (const EKTernError& error) {
        failure = error.what();
    }
    query.OnBuildSQL = handler;
    if (!failure.empty())
        Report(TReport::rkDropped, "statement", from, failure);
    else
        CheckJoins();
}

void TSQLImporter::CheckJoins() {
    const TRTableList& built = query.QResult().ResultTables();
    std::unordered_set<const TDSLink*> said;
    for (const TImportedJoin& join : joins->Joins())
        said.insert(join.link);

    const TTokenRange from{statement.tables.front().all.from, statement.tables.back().all.to};
    bool sameOrder = true;
    size_t last = 0;
    for (int i = 0; i < built.GetCount(); ++i) {
        const TResultTable& entry = built[i];
        const std::optional<size_t> place = joins->Names().PlaceOf(*entry.Table);
        if (!place) {
            Report(TReport::rkDropped, "join", from,
                   std::string(addedTable) + entry.Table->TableAlias());
            continue;
        }
        sameOrder = sameOrder && *place >= last;
        last = *place;
        const TTokenRange all = statement.tables[*place].all;
        // outer joins are not written in this syntax
        const bool isWritten = !entry.Link || said.contains(entry.Link) ||
                               (query.SQLSyntax() == TSQLSyntax::ssSQL1 &&
                                entry.Link->LinkType() != TDSLinkType::ltInner);
        Report(isWritten ? TReport::rkRecognised : TReport::rkDropped, "table", all,
               isWritten ? std::string_view() : otherJoin);
    }
    for (size_t i = 0; i < statement.tables.size(); ++i)
        if (const TDSTable* table = joins->Names().TableOf(i); table && !built.Contains(table))
            Report(TReport::rkDropped, "table", statement.tables[i].all, notUsed);
    const auto hasJoin = [this](std::initializer_list<TImportJoin> kinds) {
        return std::any_of(statement.tables.begin(), statement.tables.end(), [&](const auto& each) {
            return std::find(kinds.begin(), kinds.end(), each.join) != kinds.end();
        });
    };
    // left joins that hang on what stands before them can be moved among each other
    const bool orderCounts = hasJoin({TImportJoin::Right, TImportJoin::Full});
    const bool nestedCounts =
        statement.nestedJoins && (orderCounts || hasJoin({TImportJoin::Left}));
    if ((orderCounts && !sameOrder) || nestedCounts)
        Report(TReport::rkDropped, "join", from, otherOrder);
}

} // namespace tern7
