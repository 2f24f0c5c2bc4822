#include <tern7/core/query/query_rows_text.h>

#include <algorithm>

#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_text.h>

namespace tern7 {

namespace {

class TRowsWriter {
public:
    TRowsWriter(TKIniWriter& target, const TKQuery& owner) : out(target), query(owner) {}
    void WriteBracket(TFilterBracket& bracket);

private:
    void WriteHead(TFilterRow& row);
    void WriteCondition(TFilterCond& condition);
    void WriteValueDetails(const TFilterCond& condition, int n);
    std::string StoredValue(const TFilterCond& condition, int n) const;

    TKIniWriter& out;
    const TKQuery& query;
    int nextID = 0;
};

/// A condition without a field is still being made up; one with a field that the structure doesn't
/// know is not.
bool IsWritten(const TFilterRow& row) {
    const TFilterCond* condition = row.AsCond();
    return !condition || condition->Field() || condition->FieldID() >= 0 ||
           !condition->UnknownFieldName().empty() || !condition->SQLText().empty();
}

void TRowsWriter::WriteHead(TFilterRow& row) {
    row.SetRowID(nextID++);
    out.Section("Row" + std::to_string(row.RowID()));
    out.Bool("Enabled", row.GetEnabled());
    out.Key("RowType", static_cast<int>(row.RowType()));
}

void TRowsWriter::WriteBracket(TFilterBracket& bracket) {
    const auto& rows = bracket.Rows();
    WriteHead(bracket);
    out.Key("LinkType", static_cast<int>(bracket.LinkType()));
    out.Key("RowCount", static_cast<int>(std::count_if(rows.begin(), rows.end(),
                                                       [](auto& row) { return IsWritten(*row); })));
    for (const auto& row : rows) {
        if (TFilterBracket* inner = row->AsBracket())
            WriteBracket(*inner);
        else if (IsWritten(*row))
            WriteCondition(*row->AsCond());
        else
            row->SetRowID(-1);
    }
}

std::string TRowsWriter::StoredValue(const TFilterCond& condition, int n) const {
    if (condition.IsSubQueryOperator()) return condition.Value(n);
    return SaveValue(query.Services, condition.GetExprType(), condition.IsListOperator(),
                     condition.Value(n));
}

void TRowsWriter::WriteValueDetails(const TFilterCond& condition, int n) {
    const std::string number = std::to_string(n);
    if (condition.ValueIsParam(n)) {
        const TSQLParam* param = condition.Param(n);
        out.Text("VFormat" + number, param ? param->ValueFormat() : "@v");
        out.Text("Caption" + number, param ? param->Caption() : condition.ValueCaption(n));
    } else if (!condition.ValueCaption(n).empty() &&
               condition.ValueCaption(n) != condition.Value(n)) {
        // what the application's own editor showed; nobody could find it again when loading
        out.Text("Caption" + number, condition.ValueCaption(n));
    }
}

void TRowsWriter::WriteCondition(TFilterCond& condition) {
    WriteHead(condition);
    out.Key("FieldID", condition.FieldID());
    if (!condition.UnknownFieldName().empty()) out.Text("FldName", condition.UnknownFieldName());
    out.Text("Operator", condition.OperatorName());
    out.Bool("Param1", condition.ValueIsParam(1));
    out.Bool("Param2", condition.ValueIsParam(2));
    out.Text("Value1", StoredValue(condition, 1));
    out.Text("Value2", StoredValue(condition, 2));
    WriteValueDetails(condition, 1);
    WriteValueDetails(condition, 2);
    out.Key("SubQuery", EncodePercent(condition.SubQuery()));
    out.Key("SubQueryOptions", SQLOptionsToInt(condition.SubQueryOptions()));
    if (!condition.SQLText().empty()) out.Text("SQLText", condition.SQLText());
}

} // namespace

void WriteRows(TKIniWriter& out, TKQuery& query) {
    TRowsWriter(out, query).WriteBracket(query.Root());
}

} // namespace tern7
