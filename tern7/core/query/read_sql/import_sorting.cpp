// ORDER BY and GROUP BY of an imported statement.

#include <algorithm>
#include <unordered_set>

#include <tern7/core/corekit/numbers.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/read_sql/import_sorting.h>
#include <tern7/core/query/read_sql/import_sql.h>
#include <tern7/core/query/read_sql/report_reasons.h>

namespace tern7 {

namespace {

using TReport = TSQLReportKind;

int NumberOf(std::string_view text) {
    return text.empty() || !std::all_of(text.begin(), text.end(), IsDigit) ? 0 : XStrToInt(text);
}

} // namespace

std::string ComparableText(std::string_view text) {
    std::string comparable;
    bool inLiteral = false;
    for (const char c : text) {
        if (c == '\'') inLiteral = !inLiteral;
        if (inLiteral)
            comparable += c;
        else if (!IsSpace(c))
            comparable += LowerChar(c);
    }
    return comparable;
}

std::string SortText(const TResultField& field) {
    return field.GetDSFieldCount() > 0 ? field.GetDSField(0)->GetSQLExpr() : field.GetSQLExpr();
}

TImportSorter::TImportSorter(TRFieldList& list) : fields(list) {
    for (const bool plain : {true, false})
        for (const auto& field : fields) {
            const std::string expression = ComparableText(field->GetSQLExpr());
            const std::string sortText = ComparableText(SortText(*field));
            if ((expression == sortText) != plain) continue;
            bySortText[sortText].push_back(field.get());
            byExpression.try_emplace(expression, field.get());
            if (!field->Alias().empty())
                byAlias.try_emplace(LowerCase(field->Alias()), field.get());
        }
    for (auto& [text, sorted] : bySortText)
        std::reverse(sorted.begin(), sorted.end()); // taken from the end
}

TImportSorter::TChoice TImportSorter::ChoiceFor(const TItem& item) {
    if (item.number > 0) {
        const bool exists = item.number <= fields.GetCount();
        return {nullptr, exists ? fields[item.number - 1] : nullptr};
    }
    const auto isPlain = [](const TResultField& field) {
        return ComparableText(SortText(field)) == ComparableText(field.GetSQLExpr());
    };
    if (const auto found = byAlias.find(LowerCase(item.name));
        !item.name.empty() && found != byAlias.end())
        return {nullptr, found->second};
    const std::string text = ComparableText(item.text);
    if (const auto found = bySortText.find(text); found != bySortText.end()) {
        std::vector<TResultField*>& sorted = found->second;
        TResultField* const field = sorted.back();
        if (sorted.size() > 1) sorted.pop_back();
        return {field, isPlain(*field) ? field : nullptr};
    }
    const auto found = byExpression.find(text);
    return {nullptr, found == byExpression.end() ? nullptr : found->second};
}

std::vector<size_t> TImportSorter::Sort(const std::vector<TItem>& items) {
    std::vector<TChoice> choices;
    choices.reserve(items.size());
    for (const TItem& item : items)
        choices.push_back(ChoiceFor(item));
    const auto canByName = [](const TChoice& choice) { return choice.byName != nullptr; };
    const auto canByNumber = [](const TChoice& choice) { return choice.byNumber != nullptr; };
    const auto count = [&](auto can) { return std::count_if(choices.begin(), choices.end(), can); };
    byNames = count(canByName) == static_cast<std::ptrdiff_t>(items.size()) ||
              count(canByName) > count(canByNumber);
    std::vector<size_t> lost;
    int rank = 0;
    for (size_t i = 0; i < items.size(); ++i) {
        TResultField* const field = byNames ? choices[i].byName : choices[i].byNumber;
        if (!field) {
            lost.push_back(i);
        } else if (field->Sorting() == TSortingType::stNoSort) { // a second time changes nothing
            field->SetSortOrder(++rank);
            field->SetSorting(items[i].descending ? TSortingType::stDescending
                                                  : TSortingType::stAscending);
        }
    }
    return lost;
}

void TSQLImporter::AddSorting() {
    if (statement.sorting.empty()) return;
    if (statement.allFields) {
        SortAllFields();
        return ListAllFields();
    }
    std::vector<TImportSorter::TItem> items;
    for (const TImportSorting& sorting : statement.sorting) {
        TImportSorter::TItem item;
        item.number = NumberOf(parser.Written(sorting.expression));
        item.text = Rewrite(sorting.expression);
        const auto column = joins->Names().ColumnAt(sorting.expression);
        if (column && column->qualifier.empty()) item.name = column->name;
        item.descending = sorting.descending;
        items.push_back(std::move(item));
    }
    joins->Names().TakeUnknown();
    joins->Names().TakeObstacle();
    TImportSorter sorter(query.QResult().ResultFields());
    const std::vector<size_t> lost = sorter.Sort(items);
    for (size_t i = 0; i < items.size(); ++i) {
        const bool isLost = std::binary_search(lost.begin(), lost.end(), i);
        Report(isLost ? TReport::rkDropped : TReport::rkRecognised, "sorting",
               statement.sorting[i].expression, isLost ? reasons::NoColumn : std::string_view());
    }
    TSQLOptions options = query.SQLOptions();
    sorter.ByNames() ? options.Include(TSQLOption::soSortByNames)
                     : options.Exclude(TSQLOption::soSortByNames);
    query.SetSQLOptions(options);
}

/// The place in FROM of the last table that a field needs.
size_t TSQLImporter::LastTableOf(const TDSField& field) const {
    size_t last = 0;
    for (const TDSTable* table : field.GetTables())
        last = std::max(last, joins->Names().PlaceOf(*table).value_or(0));
    return last;
}

void TSQLImporter::SortAllFields() {
    for (const TImportSorting& sorting : statement.sorting) {
        TDSField* const field = structure.FieldBySQLExpr(Rewrite(sorting.expression));
        Report(field ? TReport::rkRecognised : TReport::rkDropped, "sorting", sorting.expression,
               field ? std::string_view() : reasons::NoColumn);
        const int rank = static_cast<int>(listed.size()) + 1;
        if (field) listed.push_back({field, LastTableOf(*field), rank, sorting.descending});
    }
    joins->Names().TakeUnknown();
    joins->Names().TakeObstacle();
}

/// The columns of "select *" only say how to sort, and which tables there are. Their order is free:
/// a table is joined right behind the one that it hangs on, so that the last tables have to be
/// asked for first.
void TSQLImporter::ListAllFields() {
    std::stable_sort(
        listed.begin(), listed.end(),
        [](const TListedField& a, const TListedField& b) { return a.table > b.table; });
    TRFieldList& fields = query.QResult().ResultFields();
    fields.Clear();
    fields.SetJustSorting(true);
    for (const TListedField& each : listed) {
        TResultField& added =
            *fields.AddBySQLExpr({}, TSortingType::stNoSort, each.field->GetSQLExpr());
        if (each.rank == 0) continue;
        added.SetSortOrder(each.rank);
        added.SetSorting(each.descending ? TSortingType::stDescending : TSortingType::stAscending);
    }
}

/// What a group is made by: an expression, or a column by its number or by its alias, which counts
/// when no table has a column of that name.
std::string TSQLImporter::GroupText(TTokenRange item, const TColumnsByAlias& byAlias) {
    const TRFieldList& fields = query.QResult().ResultFields();
    const int number = NumberOf(parser.Written(item));
    if (number > 0 && number <= fields.GetCount()) return fields[number - 1]->GetSQLExpr();
    const auto name = joins->Names().ColumnAt(item);
    if (name && name->qualifier.empty() && !joins->Names().FindTable(*name)) {
        const auto found = byAlias.find(LowerCase(name->name));
        if (found != byAlias.end()) return found->second->GetSQLExpr();
    }
    return Rewrite(item);
}

void TSQLImporter::CheckGrouping() {
    const TRFieldList& fields = query.QResult().ResultFields();
    std::unordered_set<std::string> wanted, given;
    bool anyAggregate = false;
    for (const auto& field : fields) {
        if (field->GetAgregate()) {
            anyAggregate = true;
            continue;
        }
        for (const TDSField* used : field->Fields().Items())
            wanted.insert(ComparableText(used->GetSQLExpr()));
    }
    if (!anyAggregate) wanted.clear();
    std::unordered_set<std::string> columns;
    TColumnsByAlias byAlias;
    for (const auto& field : fields) {
        columns.insert(ComparableText(field->GetSQLExpr()));
        byAlias.try_emplace(LowerCase(field->Alias()), field.get());
    }
    for (const TTokenRange& item : statement.grouping)
        given.insert(ComparableText(GroupText(item, byAlias)));
    joins->Names().TakeUnknown();
    joins->Names().TakeObstacle();
    if (statement.grouping.empty() && wanted.empty()) return;
    if (!anyAggregate && !statement.allFields && given == columns) {
        // groups of all that is shown say that no row comes twice
        TSQLOptions options = query.SQLOptions();
        options.Include(TSQLOption::soSelectDistinct);
        query.SetSQLOptions(options);
        wanted = given;
    }
    const TTokenRange all =
        statement.grouping.empty()
            ? statement.tables.front().all
            : TTokenRange{statement.grouping.front().from, statement.grouping.back().to};
    Report(given == wanted ? TReport::rkRecognised : TReport::rkDropped, "grouping", all,
           given == wanted ? std::string_view() : reasons::OtherGroups);
}

} // namespace tern7
