#include <algorithm>
#include <vector>

#include <tern7/core/query/query.h>
#include <tern7/core/query/row_text.h>
#include <tern7/core/titles/default_titles.h>
#include <tern7/core/titles/titles.h>

namespace tern7 {

namespace {

/// Writes a query as sentences; those nested in it by calling itself.
class TQueryDescription {
public:
    TQueryDescription(const TStrings& captions, TStrings& target)
        : titles(DefaultQueryTitles(), captions), texts(captions), lines(target) {}
    void Add(const TKQuery& query, size_t level);

private:
    void AddColumns(const TKQuery& query, size_t level);
    void AddRow(const TFilterRow& row, size_t level);
    void AddNested(const TFilterCond& condition, size_t level);
    std::string ColumnText(const TResultField& field) const;
    std::string Caption(std::string_view key) const { return std::string(titles.Text(key)); }
    void Line(size_t level, std::string text) {
        lines.push_back(std::string(2 * level, ' ') + std::move(text));
    }

    TKTitles titles;
    TKRowTexts texts;
    TStrings& lines;
};

std::string TQueryDescription::ColumnText(const TResultField& field) const {
    std::string text = field.Caption();
    const bool plain =
        field.Formula() == "@1" && field.GetDSFieldCount() == 1 && field.GetDSField(0);
    const std::string source =
        plain ? texts.FieldText(*field.GetDSField(0)) : field.GetExpression();
    if (text.empty()) return OneLine(source);
    if (text != source) text += ": " + source;
    return OneLine(text);
}

void TQueryDescription::AddColumns(const TKQuery& query, size_t level) {
    const TRFieldList& fields = query.QResult().ResultFields();
    Line(level, Caption("ttlResFields"));
    if (fields.IsEmpty() || fields.JustSorting()) Line(level + 1, "*");

    std::vector<const TResultField*> sorted;
    for (const auto& field : fields) {
        if (!fields.JustSorting()) Line(level + 1, ColumnText(*field));
        if (field->Sorting() != TSortingType::stNoSort) sorted.push_back(field.get());
    }
    if (sorted.empty()) return;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](auto* a, auto* b) { return a->SortOrder() < b->SortOrder(); });
    Line(level, Caption("ttlSortCaption"));
    for (const TResultField* field : sorted)
        Line(level + 1,
             ColumnText(*field) + ", " +
                 Caption(field->Sorting() == TSortingType::stAscending ? "ttlAscending"
                                                                       : "ttlDescending"));
}

void TQueryDescription::AddNested(const TFilterCond& condition, size_t level) {
    if (!condition.IsSubQueryOperator()) return;
    if (condition.SubQuery().empty()) {
        if (!condition.Value(1).empty()) Line(level, OneLine(condition.Value(1)));
        return;
    }
    try {
        Add(*condition.NestedQuery(), level);
    } catch (const EKTernError& error) {
        Line(level, "[" + OneLine(error.what()) + "]");
    }
}

void TQueryDescription::AddRow(const TFilterRow& row, size_t level) {
    std::string text = texts.Sentence(row, TQPStyle::psGroups);
    const TFilterCond* condition = row.AsCond();
    if (!row.GetEnabled()) text += " [disabled]";
    const TUnfinished reason = condition ? condition->Unfinished() : TUnfinished::No;
    if (reason != TUnfinished::No)
        text += " [unfinished: " + std::string(UnfinishedText(reason)) + "]";
    Line(level, std::move(text));
    if (condition) return AddNested(*condition, level + 1);
    for (const auto& inner : row.AsBracket()->Rows())
        AddRow(*inner, level + 1);
}

void TQueryDescription::Add(const TKQuery& query, size_t level) {
    AddColumns(query, level);
    if (query.Root().GetRowCount() > 0) AddRow(query.Root(), level);
}

} // namespace

TStrings DescribeQuery(const TKQuery& query, const TStrings& titles) {
    TStrings lines;
    TQueryDescription(titles, lines).Add(query, 0);
    return lines;
}

} // namespace tern7
