// What the query makes of an imported statement: its tables and joins beside those of the text.

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include <tern7/core/query/query.h>
#include <tern7/core/query/query_state.h>
#include <tern7/core/query/read_sql/import_sql.h>
#include <tern7/core/query/read_sql/report_reasons.h>

namespace tern7 {

namespace {

using TReport = TSQLReportKind;

/// So often the query is built to find the statement's joins; each time avoids further ones.
constexpr int mostDetours = 8;

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

std::unordered_set<const TDSLink*> TSQLImporter::BuiltLinks() const {
    const TRTableList& built = query.QResult().ResultTables();
    std::unordered_set<const TDSLink*> links;
    for (int i = 0; i < built.GetCount(); ++i)
        links.insert(built[i].Link);
    return links;
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

/// True when a join that the query makes keeps rows of its table that no row of the several tables
/// before it fits.
bool TSQLImporter::BringsRowsBack() const {
    const TRTableList& built = query.QResult().ResultTables();
    for (int i = 2; i < built.GetCount() && query.SQLSyntax() == TSQLSyntax::ssSQL2; ++i) {
        const TDSLink& link = *built[i].Link;
        const bool isFirst = link.Table1() == built[i].Table;
        if (link.LinkType() == TDSLinkType::ltOuterFull ||
            link.LinkType() == (isFirst ? TDSLinkType::ltOuterLeft : TDSLinkType::ltOuterRight))
            return true;
    }
    return false;
}

/// "select *" has all tables of the statement, in their order; true when the query that was built
/// lacks some, and has to be built again.
bool TSQLImporter::AskForAllTables() {
    if (!statement.allFields || statement.tables.size() < 2) return false;
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

/// Where the query goes another way than the statement, it avoids the joins that the statement does
/// not have. True when that gave a query of other joins; as it was when it still goes other ways.
bool TSQLImporter::AskForWays() {
    const TAvoidedJoins before = query.AvoidedJoins();
    std::unordered_set<const TDSLink*> said;
    for (const TImportedJoin& join : joins->Joins())
        if (join.isTaken) said.insert(join.link);
    TAvoidedJoins avoided = before;
    for (int rounds = 0;; ++rounds) {
        const size_t known = avoided.size();
        const TRTableList& built = query.QResult().ResultTables();
        for (int i = 1; i < built.GetCount(); ++i) {
            const TDSLink* const link = built[i].Link;
            if (!said.contains(link))
                avoided.push_back({link->Table1()->TableAlias(), link->Table2()->TableAlias()});
        }
        if (avoided.size() == known) return rounds > 0;
        query.SetAvoidedJoins(avoided);
        if (rounds < mostDetours && Build().empty()) continue;
        query.SetAvoidedJoins(before);
        Build();
        return false;
    }
}

/// An inner join that the query does not make comes as a condition: of a table that nothing else
/// asks for, or of two that the structure joins by way of others. True when the query has to be
/// built again.
bool TSQLImporter::AskForJoins() {
    if (statement.nestedJoins) return false; // what stands in brackets need not be joined to all
    const TRTableList& built = query.QResult().ResultTables();
    const std::unordered_set<const TDSLink*> made = BuiltLinks();
    for (const TImportedJoin& join : joins->Joins()) {
        if (!join.isTaken || made.contains(join.link) || !joins->IsInner(join)) continue;
        if (held.empty()) report.CutTo(toldBeforeRows);
        const bool isUnused =
            !built.Contains(join.link->Table1()) || !built.Contains(join.link->Table2());
        const TDSTable* const table =
            built.Contains(join.link->Table2()) ? join.link->Table1() : join.link->Table2();
        const size_t place = joins->Names().PlaceOf(*table).value_or(0);
        Report(TReport::rkKeptAsText, "join", statement.tables[place].all,
               isUnused ? reasons::KeepsTable : reasons::KeepsJoin);
        for (const TColumnPair* pair : join.pairs)
            heldJoins.push_back(joins->PairText(*pair));
        held.insert(join.link);
    }
    if (held.empty()) return false;
    toldBeforeRows = report.Count();
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
                   std::string(reasons::AddedTable) + ": " + entry.Table->TableAlias());
            continue;
        }
        const TTokenRange all = statement.tables[*place].all;
        const bool isSaid = !entry.Link || said.contains(entry.Link);
        const bool isUnwritten = !isSaid && query.SQLSyntax() == TSQLSyntax::ssSQL1 &&
                                 entry.Link->LinkType() != TDSLinkType::ltInner;
        if (isSaid || (isUnwritten && !joins->IsCompared(*entry.Table)))
            Report(TReport::rkRecognised, "table", all);
        else if (isUnwritten)
            Report(TReport::rkKeptAsText, "table", all, reasons::UnwrittenJoin);
        else
            Report(TReport::rkDropped, "table", all, reasons::OtherJoin);
    }
    for (size_t i = 0; i < statement.tables.size(); ++i)
        if (const TDSTable* table = joins->Names().TableOf(i); table && !built.Contains(table))
            Report(TReport::rkDropped, "table", statement.tables[i].all, reasons::NotUsed);
    const std::unordered_set<const TDSLink*> made = BuiltLinks();
    for (const TImportedJoin& join : joins->Joins())
        if (join.isTaken && !made.contains(join.link) && !held.contains(join.link) &&
            built.Contains(join.link->Table1()) && built.Contains(join.link->Table2()))
            Report(TReport::rkDropped, "join", from, reasons::OtherJoin);
    const auto hasJoin = [this](std::initializer_list<TImportJoin> kinds) {
        return std::any_of(statement.tables.begin(), statement.tables.end(), [&](const auto& each) {
            return std::find(kinds.begin(), kinds.end(), each.join) != kinds.end();
        });
    };
    // left joins that hang on what stands before them can be moved among each other
    const bool orderCounts = hasJoin({TImportJoin::Right, TImportJoin::Full}) || BringsRowsBack();
    const bool nestedCounts =
        statement.nestedJoins && (orderCounts || hasJoin({TImportJoin::Left}));
    if (((orderCounts || statement.allFields) && !IsBuiltInOrder()) || nestedCounts)
        Report(TReport::rkDropped, "join", from, reasons::OtherOrder);
}

} // namespace tern7
