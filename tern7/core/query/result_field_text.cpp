#include <tern7/core/query/result_field_text.h>

#include <memory>

#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/corekit/numbers.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_text.h>
#include <tern7/core/query/query_text_keys.h>
#include <tern7/core/query/result_field.h>

namespace tern7 {

namespace {

constexpr int highestSortOrder = 1'000'000'000;

std::string ColumnSection(int i) {
    return "RField" + std::to_string(i);
}

std::vector<int> ParseFieldIDs(const TKIniSection& section) {
    std::vector<int> ids;
    std::string_view rest = Trim(section.Raw("Fields"));
    if (rest.empty()) return ids;
    for (;;) {
        const size_t comma = rest.find(',');
        const std::optional<int> id = StrToIntExact(rest.substr(0, comma));
        if (!id) RaiseWrongValue(section, "Fields");
        ids.push_back(*id);
        if (comma == std::string_view::npos) return ids;
        rest.remove_prefix(comma + 1);
    }
}

TRFieldListText::TColumn ParseColumn(const TKIniSection& section) {
    TRFieldListText::TColumn column;
    column.formula = section.Text("Formula");
    column.fieldIDs = ParseFieldIDs(section);
    column.alias = section.Text("Alias");
    column.caption = section.Text("Caption");
    column.sorting = static_cast<TSortingType>(IntInRange(section, "Sorting", 0, 0, 2));
    column.sortOrder = IntInRange(section, "SortOrder", 0, 0, highestSortOrder);
    return column;
}

std::string JoinIDs(const TResultField& field) {
    std::string text;
    for (int i = 0; i < field.GetDSFieldCount(); ++i) {
        if (i > 0) text += ',';
        text += std::to_string(field.GetDSFieldID(i));
    }
    return text;
}

} // namespace

TRFieldListText ParseResultFields(const TKIniText& text) {
    TRFieldListText list;
    const TKIniSection* head = text.Find("RFields");
    if (!head) {
        if (text.Find(ColumnSection(0))) RaiseSectionNotFound("RFields");
        return list;
    }
    const int count = IntInRange(*head, "Count", 0, 0, INT_MAX);
    list.justSorting = head->Bool("JustSorting");
    for (int i = 0; i < count; ++i) {
        const TKIniSection* section = text.Find(ColumnSection(i));
        if (!section) RaiseSectionNotFound(ColumnSection(i));
        list.columns.push_back(ParseColumn(*section));
    }
    if (text.Find(ColumnSection(count))) RaiseWrongValue(*head, "Count");
    return list;
}

void WriteResultFields(TKIniWriter& out, const TRFieldList& list) {
    out.Section("RFields");
    out.Key("Count", list.GetCount());
    out.Key("Version", XFloatToStr(QueryTextVersion));
    out.Bool("JustSorting", list.JustSorting());
    for (int i = 0; i < list.GetCount(); ++i) {
        const TResultField& field = *list[i];
        out.Section(ColumnSection(i));
        out.Text("Formula", field.Formula());
        out.Key("Fields", JoinIDs(field));
        out.Text("Alias", field.Alias());
        out.Text("Caption", field.Caption());
        out.Key("Sorting", static_cast<int>(field.Sorting()));
        out.Key("SortOrder", field.SortOrder());
    }
}

void TRFieldList::Assign(const TRFieldListText& text) {
    Clear();
    SetJustSorting(text.justSorting);
    for (const TRFieldListText::TColumn& column : text.columns) {
        // the strings as they stand: setters would make another alias, or drop fields
        std::unique_ptr<TResultField> field = CreateRField();
        for (int id : column.fieldIDs)
            field->AddDSFieldByID(id);
        field->formula = column.formula;
        field->alias = column.alias;
        field->caption = column.caption;
        field->sorting = column.sorting;
        field->sortOrder = column.sortOrder;
        PutField(GetCount(), std::move(field));
    }
    Tell();
}

void TRFieldList::LoadFromStrings(const TStrings& lines) {
    const std::string joined = JoinStrings(lines, "\n");
    const TRFieldListText text = AsQueryError([&] { return ParseResultFields(TKIniText(joined)); });
    const TKQueryUpdate update(Query());
    Assign(text);
}

void TRFieldList::SaveToStrings(TStrings& lines) const {
    TKIniWriter out;
    WriteResultFields(out, *this);
    lines = SplitLines(out.Take());
}

} // namespace tern7
