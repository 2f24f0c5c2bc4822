// What the query makes of an imported statement: its tables and joins beside those of the text.

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include <tern7/core/query/query.h>
#include <tern7/core/query/query_state.h>
#include <tern7/core/query/read_sql/import_sql.h>

namespace tern7 {

namespace {

using TReport = TSQLReportKind;

constexpr std::string_view keepsTable = "a condition keeps this table, which nothing else uses";
constexpr std::string_view notUsed = "no column and no condition uses it";
constexpr std::string_view addedTable = "the query needs a further table: ";
constexpr std::string_view otherJoin = "the structure joins it in another way";
constexpr std::string_view otherOrder = "the query joins the tables in another order";

} // namespace

/// Builds the query; gives the reason why it can not be built.
std::string TSQLImporter::Build() {
    // the application is not asked while a text is read
    const auto handler = std::exchange(query.OnBuildSQL, TEvent<TFilterCond&, std::string&>());
    std::string failure;
    try {
        query.BuildQuery();
    } catch (const EKTernError& error) {
        failure = error.what();
    }
    query.OnBuildSQL = handler;
    return failure;
}

bool TSQLImporter::IsBuiltInOrder() const {
    const TRTableList& built = query.QResult().ResultTables();
    size_t last = 0;
    for (int i = 0; i < built.GetCount(); ++i) {
        const size_t place = joins->Names().PlaceOf(*built[i].Table).value_or(last);
        if (place < last) return false;
        last = place;
    }
    return true;
}

/// The query that was built lacks tables of the statement, and can have them: true when it has to
/// be built again.
bool TSQLImporter::AskForTables() {
    if (statement.tables.size() < 2) return false;
    return statement.allFields ? AskForTablesOfAllFields() : AskForJoinedTables();
}

bool TSQLImporter::AskForTablesOfAllFields() {
    const TRTableList& built = query.QResult().ResultTables();
    std::unordered_map<const TDSTable*, size_t> wanted;
    bool anyUnused = false;
    for (size_t i = 1; i < statement.tables.size(); ++i)
        if (const TDSTable* table = joins->Names().TableOf(i)) {
            anyUnused = anyUnused || !built.Contains(table);
            wanted.emplace(table, i);
        }
    if (!anyUnused && IsBuiltInOrder()) return false;
    for (const auto& field : structure.Fields()) {
        const auto found = wanted.find(field->Table());
        if (found == wanted.end()) continue;
        listed.push_back({field.get(), found->second, 0, false});
        wanted.erase(found);
    }
    ListAllFields();
    return true;
}

/// A table that only an inner join brings in comes with that join as a condition.
bool TSQLImporter::AskForJoinedTables() {
    if (statement.nestedJoins) return false; // what stands in brackets need not be joined to all
    const TRTableList& built = query.QResult().ResultTables();
    for (size_t i = 0; i < statement.tables.size(); ++i) {
        const TDSTable* const table = joins->Names().TableOf(i);
        if (!table || built.Contains(table)) continue;
        std::string text = joins->InnerJoinText(*table);
        if (text.empty()) continue;
        heldJoins.push_back(std::move(text));
        report.CutTo(toldBeforeRows);
        Report(TReport::rkKeptAsText, "join", statement.tables[i].all, keepsTable);
        toldBeforeRows = report.Count();
    }
    if (heldJoins.empty()) return false;
    query.Root().ClearRows();
    query.Root().SetLinkType(TFilterLinkType::fltAll);
    paramNames.clear();
    AddRows();
    return true;
}

void TSQLImporter::CheckJoins() {
    const TRTableList& built = query.QResult().ResultTables();
    std::unordered_set<const TDSLink*> said;
    for (const TImportedJoin& join : joins->Joins())
        said.insert(join.link);

    const TTokenRange from{statement.tables.front().all.from, statement.tables.back().all.to};
    for (int i = 0; i < built.GetCount(); ++i) {
        const TResultTable& entry = built[i];
        const std::optional<size_t> place = joins->Names().PlaceOf(*entry.Table);
        if (!place) {
            Report(TReport::rkDropped, "join", from,
                   std::string(addedTable) + entry.Table->TableAlias());
            continue;
        }
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
    if (((orderCounts || statement.allFields) && !IsBuiltInOrder()) || nestedCounts)
        Report(TReport::rkDropped, "join", from, otherOrder);
}

} // namespace tern7
