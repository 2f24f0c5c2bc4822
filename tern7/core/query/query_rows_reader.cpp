#include <tern7/core/query/query_rows_text.h>

#include <algorithm>

#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/corekit/numbers.h>
#include <tern7/core/global/limits.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_text.h>
#include <tern7/core/query/query_text_keys.h>

namespace tern7 {

namespace {

constexpr std::string_view valueKeys[] = {"Value1", "Value2"};
constexpr std::string_view paramKeys[] = {"Param1", "Param2"};
constexpr std::string_view formatKeys[] = {"VFormat1", "VFormat2"};
constexpr std::string_view captionKeys[] = {"Caption1", "Caption2"};
constexpr std::string_view nameKeys[] = {"ParamName1", "ParamName2"};

bool IsRowSection(std::string_view name) {
    return name.size() > 3 && StartsText(name, "Row") &&
           std::all_of(name.begin() + 3, name.end(), IsDigit);
}

/// What a row without a type can only be; -1 when it can be either, as in a text that was cut off.
int MissingRowType(const TKIniSection& section, int number) {
    if (number == 0 || section.Has("RowCount")) return 1;
    return section.Has("Operator") ? 0 : -1;
}

class TRowsParser {
public:
    TRowsParser(double formatVersion, const TKQuery& owner)
        : version(formatVersion), query(owner), structure(owner.RequireStruct()) {}

    std::vector<TRowText> Parse(const TKIniText& text);

private:
    TRowText ParseRow(const TKIniSection& section) const;
    void ParseCondition(const TKIniSection& section, TRowText& row) const;
    void ParseField(const TKIniSection& section, TRowText& row) const;
    void ParseOperator(const TKIniSection& section, TRowText& row) const;
    void ParseValue(const TKIniSection& section, TRowText& row, int slot) const;
    size_t FirstGap() const;
    [[noreturn]] void RaiseMissingRow() const;
    [[noreturn]] void RaiseTooManyRows(const TKIniSection& root) const;

    double version;
    const TKQuery& query;
    const TKCustomDBStructure& structure;
    std::vector<TRowText> rows;
};

std::vector<TRowText> TRowsParser::Parse(const TKIniText& text) {
    std::vector<int> open; // rows that the brackets around still expect, the root's first
    const TKIniSection* root = nullptr;
    rows.reserve(text.Sections().size()); // mostly rows
    for (const TKIniSection& section : text.Sections()) {
        if (!IsRowSection(section.Name())) continue;
        if (root && open.empty()) RaiseTooManyRows(*root);
        rows.push_back(ParseRow(section));
        const TRowText& row = rows.back();
        if (!root) {
            if (!row.isBracket && row.id != 0) RaiseMissingRow();
            if (!row.isBracket) RaiseWrongValue(section, "RowType");
            root = &section;
        } else {
            --open.back();
            if (row.isBracket && open.size() > size_t{MaxBracketLevel})
                throw EKQueryPanelError(std::string(messages::NestedTooDeep));
        }
        if (row.isBracket) open.push_back(row.rowCount);
        while (!open.empty() && open.back() == 0)
            open.pop_back();
    }
    if (!root || !open.empty()) RaiseMissingRow();
    return std::move(rows);
}

size_t TRowsParser::FirstGap() const {
    // rows are numbered depth first
    int next = 0;
    for (const TRowText& row : rows)
        if (row.id == next) ++next;
    return static_cast<size_t>(next);
}

void TRowsParser::RaiseMissingRow() const {
    RaiseSectionNotFound("Row" + std::to_string(FirstGap()));
}

void TRowsParser::RaiseTooManyRows(const TKIniSection& root) const {
    if (FirstGap() < rows.size()) RaiseMissingRow(); // a bracket is missing, its rows are not
    RaiseWrongValue(root, "RowCount");
}

TRowText TRowsParser::ParseRow(const TKIniSection& section) const {
    TRowText row;
    const int number = static_cast<int>(rows.size());
    row.id = XStrToInt(section.Name().substr(3), number);
    row.enabled = section.Bool("Enabled", true);
    row.isBracket = IntInRange(section, "RowType", MissingRowType(section, number), 0, 1) == 1;
    if (row.isBracket) {
        row.linkType = static_cast<TFilterLinkType>(IntInRange(section, "LinkType", 0, 0, 3));
        // without it rows that follow could be lost unseen
        row.rowCount = IntInRange(section, "RowCount", -1, 0, INT_MAX);
    } else {
        ParseCondition(section, row);
    }
    return row;
}

void TRowsParser::ParseCondition(const TKIniSection& section, TRowText& row) const {
    ParseField(section, row);
    ParseOperator(section, row);
    ParseValue(section, row, 0);
    ParseValue(section, row, 1);
    row.subQuery = DecodePercent(section.Raw("SubQuery"));
    const int options = SQLOptionsToInt(DefaultSQLOptions);
    row.subQueryOptions =
        IntToSQLOptions(IntInRange(section, "SubQueryOptions", options, 0, INT_MAX));
    row.sqlText = section.Text("SQLText");
    row.chosen = section.Bool("Chosen", true);
    row.entered = section.Bool("Entered", true);
}

void TRowsParser::ParseField(const TKIniSection& section, TRowText& row) const {
    if (version < 2.0) {
        row.fieldName = section.Text("FldName");
        row.field = version < 1.4 ? structure.FieldByFullName(row.fieldName)
                                  : structure.FieldBySQLExpr(row.fieldName);
        return;
    }
    row.fieldID = section.Int("FieldID", -1);
    row.field = structure.FieldByID(row.fieldID);
    if (!row.field) row.fieldName = section.Text("FldName"); // a name of old, kept
}

void TRowsParser::ParseOperator(const TKIniSection& section, TRowText& row) const {
    row.operatorName = section.Text("Operator");
    row.op = structure.OperatorByName(row.operatorName);
}

void TRowsParser::ParseValue(const TKIniSection& section, TRowText& row, int slot) const {
    TRowText::TValue& value = row.values[slot];
    value.text = section.Text(valueKeys[slot]);
    if (version < 1.2) return;
    value.isParam = section.Bool(paramKeys[slot]);
    if (!row.op || row.op->ValueType() != TOpValueType::vtSubQuery) {
        TFieldType type = row.field ? row.field->FieldType() : TFieldType::ftUnknown;
        if (row.op && row.op->ExprType()) type = *row.op->ExprType();
        const bool isList = row.op && row.op->ValueType() == TOpValueType::vtList;
        value.text = LoadValue(query.Services, type, isList, value.text);
    }
    if (value.isParam) {
        value.format = section.Text(formatKeys[slot]);
        value.name = section.Text(nameKeys[slot]);
    }
    if (version < 2.1) return;
    value.caption = section.Text(captionKeys[slot]);
    value.hasCaption = !value.caption.empty() || section.Has(captionKeys[slot]);
}

void AddCondition(TFilterCond& condition, TRowText& row) {
    if (row.field)
        condition.SetField(row.field);
    else if (row.chosen)
        condition.SetUnknownField(row.fieldID, std::move(row.fieldName));
    if (row.op)
        condition.SetOperator(row.op);
    else if (!row.operatorName.empty() || !row.sqlText.empty())
        condition.SetUnknownOperator(std::move(row.operatorName));
    if (!condition.IsRecognized()) condition.SetSQLText(std::move(row.sqlText));
    for (int n = 1; n <= 2; ++n) {
        TRowText::TValue& value = row.values[n - 1];
        condition.SetValue(n, std::move(value.text));
        condition.SetValueIsParam(n, value.isParam);
    }
    // behind both flags: the second parameter gives the first one another caption
    for (int n = 1; n <= 2; ++n) {
        TRowText::TValue& value = row.values[n - 1];
        TSQLParam* param = condition.Param(n);
        if (!param) { // a constant, or a flag that the operator has no use for
            condition.SetValue(n, condition.Value(n), std::move(value.caption));
            continue;
        }
        if (!value.format.empty()) param->SetValueFormat(std::move(value.format));
        if (!value.name.empty()) // one that is taken leaves the number
            condition.Query()->QResult().RenameParameter(*param, std::move(value.name));
        // one that says what is made of the field's anyway goes on following the field
        if (value.hasCaption && value.caption != param->Caption())
            param->SetCaption(std::move(value.caption));
    }
    condition.SetSubQuery(std::move(row.subQuery), row.subQueryOptions);
    condition.SetEntered(row.entered);
}

/// The rows below the first one, which stands for `root`, from `index` on; the topmost ones.
std::vector<TFilterRow*> PutRows(TFilterBracket& root, int index, std::vector<TRowText>& rows) {
    struct TOpen {
        TFilterBracket* bracket;
        int index;
        int missing;
    };
    std::vector<TFilterRow*> topmost;
    std::vector<TOpen> open{{&root, index, rows.front().rowCount}};
    for (auto row = rows.begin() + 1; row != rows.end(); ++row) {
        while (open.back().missing == 0)
            open.pop_back();
        TOpen& place = open.back();
        --place.missing;
        TFilterRow* added =
            row->isBracket ? static_cast<TFilterRow*>(place.bracket->InsertBracket(place.index))
                           : place.bracket->InsertCond(place.index);
        ++place.index;
        if (open.size() == 1) topmost.push_back(added);
        if (TFilterBracket* bracket = added->AsBracket()) {
            bracket->SetLinkType(row->linkType);
            open.push_back({bracket, 0, row->rowCount});
        } else {
            AddCondition(*added->AsCond(), *row);
        }
        added->SetEnabled(row->enabled);
        added->SetRowID(row->id);
    }
    return topmost;
}

/// Levels of brackets below the root.
int Depth(const std::vector<TRowText>& rows) {
    size_t depth = 0;
    std::vector<int> open;
    for (const TRowText& row : rows) {
        while (!open.empty() && open.back() == 0)
            open.pop_back();
        if (!open.empty()) --open.back();
        if (!row.isBracket) continue;
        depth = std::max(depth, open.size());
        open.push_back(row.rowCount);
    }
    return static_cast<int>(depth);
}

} // namespace

std::vector<TRowText> ParseRows(const TKIniText& text, double version, const TKQuery& query) {
    return TRowsParser(version, query).Parse(text);
}

void AddRows(TKQuery& query, std::vector<TRowText> rows) {
    query.Root().SetLinkType(rows.front().linkType);
    query.Root().SetRowID(rows.front().id);
    PutRows(query.Root(), 0, rows);
}

std::vector<TFilterRow*> InsertRows(TFilterBracket& parent, int index, std::vector<TRowText> rows) {
    const TRowText& root = rows.front();
    const bool wrap = root.linkType != TFilterLinkType::fltAll && root.rowCount > 0;
    if (parent.Level() + (wrap ? 1 : 0) + Depth(rows) > MaxBracketLevel)
        throw EKQueryPanelError(std::string(messages::NestedTooDeep));
    for (TRowText& row : rows)
        row.id = -1; // numbers are given when the whole query is written
    if (!wrap) return PutRows(parent, index, rows);
    TFilterBracket* bracket = parent.InsertBracket(index);
    bracket->SetLinkType(root.linkType);
    PutRows(*bracket, 0, rows);
    return {bracket};
}

} // namespace tern7
