// The steps by name: each is one call of the core.

#include <tern7/ui/panels/query_editor.h>

#include <unordered_set>

#include <QMimeData>
#include <QPointer>

#include <tern7/core/query/query_text.h>
#include <tern7/core/query/row_guard.h>
#include <tern7/ui/panels/result_fields_edit.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

// keeps unfinished rows; plain text holds what a saved query would
constexpr const char* rowsMimeType = "application/x-tern7-rows";

/// The rows without those that stand below others of them.
std::vector<TFilterRow*> Topmost(const std::vector<TFilterRow*>& rows) {
    const std::unordered_set<const TFilterRow*> all(rows.begin(), rows.end());
    std::vector<TFilterRow*> topmost;
    for (TFilterRow* row : rows) {
        const TFilterRow* around = row->Parent();
        while (around && !all.contains(around))
            around = around->Parent();
        if (!around) topmost.push_back(row);
    }
    return topmost;
}

} // namespace

// --- rows

TFilterCond* TKQueryEditor::AddCondition(TFilterBracket& parent, int index) {
    TFilterCond* added = nullptr;
    Run(QT_TR_NOOP("Add condition"), [&] { added = edits.AddCondition(parent, index); });
    return added;
}

TFilterBracket* TKQueryEditor::AddBracket(TFilterBracket& parent, int index) {
    TFilterBracket* added = nullptr;
    Run(QT_TR_NOOP("Add bracket"), [&] { added = edits.AddBracket(parent, index); });
    return added;
}

TFilterRow* TKQueryEditor::Delete(TFilterRow& row) {
    TFilterRow* next = nullptr;
    Run(row.IsBracket() ? QT_TR_NOOP("Delete bracket") : QT_TR_NOOP("Delete condition"),
        [&] { next = edits.Delete(row); });
    return next;
}

bool TKQueryEditor::Move(TFilterRow& row, TFilterBracket& to, int index) {
    return Run(QT_TR_NOOP("Move"), [&] { edits.Move(row, to, index); });
}

bool TKQueryEditor::MoveUp(TFilterRow& row) {
    return Run(QT_TR_NOOP("Move up"), [&] { edits.MoveUp(row); });
}

bool TKQueryEditor::MoveDown(TFilterRow& row) {
    return Run(QT_TR_NOOP("Move down"), [&] { edits.MoveDown(row); });
}

TFilterRow* TKQueryEditor::Duplicate(TFilterRow& row) {
    TFilterBracket* parent = row.Parent();
    if (!parent) return nullptr;
    TFilterRow* copy = nullptr;
    Run(QT_TR_NOOP("Duplicate"),
        [&] { copy = edits.CopyTo(row, *parent, parent->GetRowIndex(&row) + 1); });
    return copy;
}

TFilterRow* TKQueryEditor::CopyTo(TFilterRow& row, TFilterBracket& to, int index) {
    TFilterRow* copy = nullptr;
    Run(QT_TR_NOOP("Copy"), [&] { copy = edits.CopyTo(row, to, index); });
    return copy;
}

void TKQueryEditor::SetEnabled(TFilterRow& row, bool value) {
    Run(value ? QT_TR_NOOP("Enable") : QT_TR_NOOP("Disable"),
        [&] { edits.SetEnabled(row, value); });
}

void TKQueryEditor::SetBracketKind(TFilterBracket& bracket, TFilterLinkType value) {
    Run(QT_TR_NOOP("Change bracket"), [&] { edits.SetBracketKind(bracket, value); });
}

void TKQueryEditor::SetBracketJoin(TFilterBracket& bracket, bool byAnd) {
    Run(QT_TR_NOOP("Change joining word"), [&] { edits.SetBracketJoin(bracket, byAnd); });
}

// --- conditions

void TKQueryEditor::SetField(TFilterCond& condition, TDSField& field) {
    Run(QT_TR_NOOP("Choose field"), [&] { edits.SetField(condition, field); });
}

void TKQueryEditor::SetOperator(TFilterCond& condition, TDSOperator& op) {
    Run(QT_TR_NOOP("Choose operator"), [&] { edits.SetOperator(condition, op); });
}

void TKQueryEditor::SetValue(TFilterCond& condition, int n, std::string text, std::string caption) {
    Run(QT_TR_NOOP("Change value"),
        [&] { edits.SetValue(condition, n, std::move(text), std::move(caption)); });
}

void TKQueryEditor::SetParameter(TFilterCond& condition, int n, bool value) {
    Run(value ? QT_TR_NOOP("Make parameter") : QT_TR_NOOP("Make constant"),
        [&] { edits.SetParameter(condition, n, value); });
}

void TKQueryEditor::SetParameterTexts(TFilterCond& condition, int n, std::string caption,
                                      std::string format) {
    Run(QT_TR_NOOP("Change parameter"),
        [&] { condition.SetParamTexts(n, std::move(caption), std::move(format)); });
}

void TKQueryEditor::SetSubQuery(TFilterCond& condition, std::string text, TSQLOptions options) {
    Run(QT_TR_NOOP("Edit sub-query"), [&] { condition.SetSubQuery(std::move(text), options); });
}

bool TKQueryEditor::EditSubQuery(TFilterCond& condition) {
    const QPointer<QUndoStack> alive(stack.get());
    const TRowGuard guard(condition);
    const auto copy = condition.Clone();
    TFilterCond& edited = *copy->AsCond();
    if (!edited.RunSubQueryEditor() || !alive || !guard.Row()) return false;
    return Run(QT_TR_NOOP("Edit sub-query"), [&] {
        condition.SetSubQuery(edited.SubQuery(), edited.SubQueryOptions());
        edits.SetValue(condition, 1, edited.Value(1), edited.ValueCaption(1));
    });
}

void TKQueryEditor::SetRowCaption(TFilterCond& condition, std::string caption) {
    Run(QT_TR_NOOP("Change caption"), [&] { condition.SetCaption(std::move(caption)); });
}

// --- clipboard

std::unique_ptr<QMimeData> TKQueryEditor::Copy(const std::vector<TFilterRow*>& rows) const {
    const std::vector<TFilterRow*> topmost = Topmost(rows);
    auto data = std::make_unique<QMimeData>();
    data->setText(ToQt(RowsToText(topmost)));
    data->setData(rowsMimeType, QByteArray::fromStdString(RowsToText(topmost, true)));
    return data;
}

std::unique_ptr<QMimeData> TKQueryEditor::Cut(TFilterRow& row, TFilterRow** next) {
    auto data = Copy({&row});
    TFilterRow* after = nullptr;
    Run(QT_TR_NOOP("Cut"), [&] { after = edits.Delete(row); });
    if (next) *next = after;
    return data;
}

bool TKQueryEditor::CanPaste(const QMimeData* data) {
    if (!data) return false;
    return data->hasFormat(rowsMimeType) || ReadQueryTextHead(FromQt(data->text())).isQuery;
}

std::vector<TFilterRow*> TKQueryEditor::Paste(TFilterBracket& parent, int index,
                                              const QMimeData& data) {
    const std::string text =
        data.hasFormat(rowsMimeType) ? data.data(rowsMimeType).toStdString() : FromQt(data.text());
    std::vector<TFilterRow*> pasted;
    Run(QT_TR_NOOP("Paste"), [&] { pasted = InsertRowsFromText(parent, index, text); });
    return pasted;
}

// --- result fields

TResultField* TKQueryEditor::AddResultField(int index, TDSField& field) {
    TResultField* added = nullptr;
    Run(QT_TR_NOOP("Add column"),
        [&] { added = TResultFieldsEdit(Columns()).Insert(index, field, field.DisplayName()); });
    return added;
}

TResultField* TKQueryEditor::AddFormula(int index, std::string caption,
                                        const std::string& expression) {
    TResultField* added = nullptr;
    Run(QT_TR_NOOP("Add column"), [&] {
        added = Columns().InsertByExpression(index, std::move(caption), TSortingType::stNoSort,
                                             expression);
    });
    return added;
}

void TKQueryEditor::DeleteResultField(int index) {
    Run(QT_TR_NOOP("Delete column"), [&] { TResultFieldsEdit(Columns()).Delete(index); });
}

bool TKQueryEditor::MoveResultField(int from, int to) {
    return Run(QT_TR_NOOP("Move column"), [&] { TResultFieldsEdit(Columns()).Move(from, to); });
}

TResultField* TKQueryEditor::DuplicateResultField(int index) {
    TResultField* copy = nullptr;
    Run(QT_TR_NOOP("Duplicate column"),
        [&] { copy = TResultFieldsEdit(Columns()).Duplicate(index); });
    return copy;
}

void TKQueryEditor::SetResultField(TResultField& column, TDSField& field) {
    Run(QT_TR_NOOP("Choose field"),
        [&] { TResultFieldsEdit(Columns()).Replace(column, field, field.DisplayName()); });
}

void TKQueryEditor::SetFormula(TResultField& column, const std::string& expression) {
    Run(QT_TR_NOOP("Change formula"), [&] { column.ProcessExpression(expression); });
}

void TKQueryEditor::SetSorting(TResultField& column, TSortingType value) {
    Run(QT_TR_NOOP("Change sorting"),
        [&] { TResultFieldsEdit(Columns()).SetSorting(column, value); });
}

void TKQueryEditor::SetSortOrder(TResultField& column, int value) {
    Run(QT_TR_NOOP("Change sort order"), [&] { column.SetSortOrder(value); });
}

void TKQueryEditor::SetResultCaption(TResultField& column, std::string caption) {
    Run(QT_TR_NOOP("Change caption"), [&] { column.SetCaption(std::move(caption)); });
}

void TKQueryEditor::SetJustSorting(bool value) {
    Run(QT_TR_NOOP("Just sorting"), [&] { Columns().SetJustSorting(value); });
}

void TKQueryEditor::SetResultFields(const TRFieldList& list) {
    Run(QT_TR_NOOP("Edit columns"), [&] { Columns().Assign(list); });
}

// --- the whole query

void TKQueryEditor::SetSQLOption(TSQLOption option, bool value) {
    if (!query) return;
    TSQLOptions options = query->SQLOptions();
    if (value)
        options.Include(option);
    else
        options.Exclude(option);
    Run(QT_TR_NOOP("Change options"), [&] { query->SetSQLOptions(options); });
}

void TKQueryEditor::SetMainTable(std::string name) {
    Run(QT_TR_NOOP("Choose main table"), [&] { query->SetMainTableName(std::move(name)); });
}

void TKQueryEditor::SetAvoidedJoins(TAvoidedJoins joins) {
    Run(QT_TR_NOOP("Join another way"), [&] { query->SetAvoidedJoins(std::move(joins)); });
}

void TKQueryEditor::ClearAll() {
    Run(QT_TR_NOOP("Clear"), [&] { query->ClearAll(); });
}

} // namespace tern7
