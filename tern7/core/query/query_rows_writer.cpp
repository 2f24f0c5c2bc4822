#include <tern7/core/query/query_rows_text.h>

#include <algorithm>

#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_text.h>

namespace tern7 {

namespace {

/// For whom rows are written.
enum class TRowsFor : uint8_t {
    File,     ///< numbers the rows, and leaves out conditions without a field
    Others,   ///< leaves them out as well
    Ourselves ///< nothing is left out
};

class TRowsWriter {
public:
    TRowsWriter(TKIniWriter& target, const TKQuery& owner, TRowsFor whom)
        : out(target), query(owner), reader(whom) {}
    void WriteRow(TFilterRow& row);
    void WriteUnderRoot(const std::vector<TFilterRow*>& rows);

private:
    bool IsWritten(const TFilterRow& row) const;
    void WriteHead(TFilterRowType type, bool enabled);
    void WriteBracket(TFilterLinkType type, const std::vector<TFilterRow*>& rows);
    void WriteCondition(TFilterCond& condition);
    void WriteValueDetails(const TFilterCond& condition, int n);
    std::string StoredValue(const TFilterCond& condition, int n) const;

    TKIniWriter& out;
    const TKQuery& query;
    TRowsFor reader;
    int nextID = 0;
};

/// A condition without a field is still being made up; one with a field that the structure doesn't
/// know is not.
bool IsChosen(const TFilterCond& condition) {
    return condition.Field() || condition.FieldID() >= 0 || !condition.UnknownFieldName().empty() ||
           !condition.SQLText().empty();
}

bool TRowsWriter::IsWritten(const TFilterRow& row) const {
    return reader == TRowsFor::Ourselves || row.IsBracket() || IsChosen(*row.AsCond());
}

void TRowsWriter::WriteHead(TFilterRowType type, bool enabled) {
    out.Section("Row" + std::to_string(nextID++));
    out.Bool("Enabled", enabled);
    out.Key("RowType", static_cast<int>(type));
}

void TRowsWriter::WriteRow(TFilterRow& row) {
    const bool written = IsWritten(row);
    if (reader == TRowsFor::File) row.SetRowID(written ? nextID : -1);
    if (!written) return;
    WriteHead(row.RowType(), row.GetEnabled());
    TFilterBracket* bracket = row.AsBracket();
    if (!bracket) return WriteCondition(*row.AsCond());
    std::vector<TFilterRow*> rows;
    for (const auto& inner : bracket->Rows())
        rows.push_back(inner.get());
    WriteBracket(bracket->LinkType(), rows);
}

void TRowsWriter::WriteUnderRoot(const std::vector<TFilterRow*>& rows) {
    WriteHead(TFilterRowType::frtBracket, true);
    WriteBracket(TFilterLinkType::fltAll, rows);
}

void TRowsWriter::WriteBracket(TFilterLinkType type, const std::vector<TFilterRow*>& rows) {
    out.Key("LinkType", static_cast<int>(type));
    out.Key("RowCount",
            static_cast<int>(std::count_if(rows.begin(), rows.end(), [this](const TFilterRow* row) {
                return IsWritten(*row);
            })));
    for (TFilterRow* row : rows)
        WriteRow(*row);
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
        if (param && param->IsNamed()) out.Text("ParamName" + number, param->Name());
    } else if (!condition.ValueCaption(n).empty() &&
               condition.ValueCaption(n) != condition.Value(n)) {
        // what the application's own editor showed; nobody could find it again when loading
        out.Text("Caption" + number, condition.ValueCaption(n));
    }
}

void TRowsWriter::WriteCondition(TFilterCond& condition) {
    if (!IsChosen(condition)) out.Bool("Chosen", false);
    if (reader == TRowsFor::Ourselves && !condition.Entered()) out.Bool("Entered", false);
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
    TRowsWriter(out, query, TRowsFor::File).WriteRow(query.Root());
}

void WriteRows(TKIniWriter& out, const TKQuery& query, const std::vector<TFilterRow*>& rows,
               bool unfinishedToo) {
    const TRowsFor reader = unfinishedToo ? TRowsFor::Ourselves : TRowsFor::Others;
    TRowsWriter(out, query, reader).WriteUnderRoot(rows);
}

} // namespace tern7
