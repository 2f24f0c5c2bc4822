#include <tern7/core/titles/default_titles.h>

#include <span>

namespace tern7 {

namespace {

struct TTitle {
    std::string_view key, text;
};

// Translations are matched by key: keys stay as they are, "Mgs" included.
constexpr TTitle QueryPanel[] = {
    {"ttlFilter", "Choose records where @ of the following apply"},
    {"ttlBracket", "@ of the following apply"},
    {"ttlAll", "all"},
    {"ttlAny", "any"},
    {"ttlNone", "none"},
    {"ttlNotAll", "not all"},
    {"ttlAddBracket", "Add &Bracket"},
    {"ttlAddCond", "Add &Condition"},
    {"ttlDelRow", "&Delete Current Row"},
    {"ttlEnableDisable", "&Enable/Disable Row"},
    {"ttlClickToAdd", "Click here to add new condition"},
    {"ttlSubQueryCaption", "Sub-query"},
    {"ttlResultField", "Result Field"},
    {"ttlAnd", "and"},
    {"ttlOr", "or"},
    {"ttlConstant", "Constant value"},
    {"ttlParameter", "Parameter"},
};

constexpr TTitle ResultFieldsEditor[] = {
    {"ttlRFETitle", "Result Fields Editor"},
    {"ttlFields", "&Available fields"},
    {"ttlResFields", "Result fields"},
    {"ttlMakeFldHint", "Create result field"},
    {"ttlDelFldHint", "Delete result field"},
    {"ttlNewFldHint", "New result field"},
    {"ttlAddRFldHint", "Add to result field"},
    {"ttlSubRFldHint", "Subtract from result field"},
    {"ttlMulRFldHint", "Multiply by result field"},
    {"ttlDivRFldHint", "Divide by result field"},
    {"ttlSortRFldHint", "Sort result field"},
    {"ttlNotSorted", "Not Sorted"},
    {"ttlAscending", "Ascending"},
    {"ttlDescending", "Descending"},
    {"ttlSortCaption", "Sorted fields"},
    {"ttlSortingColName", "Sorting type"},
    {"ttlFieldNmColName", "Field Name"},
    {"ttlFieldExprColName", "Expression"},
    {"ttlMgsDeleteField", "Delete Field \"%s\"?"},
    {"ttlOkBtnCaption", "OK"},
    {"ttlCancelBtnCaption", "Cancel"},
    {"ttlAsIs", "as is"},
    {"ttlJustSorting", "just sorting"},
    {"ttlAddBtnCaption", "&Add"},
    {"ttlAddBtnHint", "Add result field"},
    {"ttlHelpBtnCaption", "&Help"},
    {"ttlSUMCaption", "SUM"},
    {"ttlCOUNTCaption", "COUNT"},
    {"ttlMINCaption", "MIN"},
    {"ttlMAXCaption", "MAX"},
    {"ttlAVERAGECaption", "AVERAGE"},
};

constexpr TTitle ResultFieldsPanel[] = {
    {"ttlDelField", "Delete current field"},
    {"ttlMoveUp", "Move Up"},
    {"ttlMoveDown", "Move Down"},
    {"ttlNotSorted", "Not Sorted"},
    {"ttlAscending", "Ascending"},
    {"ttlDescending", "Descending"},
    {"ttlClickToAdd", "Click to add new field"},
};

void AddLines(TStrings& lines, std::span<const TTitle> titles) {
    for (const TTitle& title : titles)
        lines.push_back(std::string(title.key).append("=").append(title.text));
}

void AddSection(TStrings& lines, std::string_view name, std::span<const TTitle> titles) {
    lines.push_back("[" + std::string(name) + "]");
    AddLines(lines, titles);
    lines.emplace_back();
}

} // namespace

const TStrings& DefaultQueryTitles() {
    static const TStrings titles = [] {
        TStrings lines;
        AddSection(lines, QueryPanelTitles, QueryPanel);
        AddSection(lines, ResultFieldsEditorTitles, ResultFieldsEditor);
        return lines;
    }();
    return titles;
}

const TStrings& DefaultResultFieldsPanelTitles() {
    static const TStrings titles = [] {
        TStrings lines;
        AddLines(lines, ResultFieldsPanel);
        return lines;
    }();
    return titles;
}

} // namespace tern7
