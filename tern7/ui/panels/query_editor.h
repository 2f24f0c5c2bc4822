#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <QCoreApplication>
#include <QString>
#include <QUndoStack>

#include <tern7/core/global/events.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_edits.h>

class QAction;
class QMimeData;

namespace tern7 {

class TKQueryRecord;

/// Everything that a user changes in a query goes through here and can be taken back: rows, columns
/// and options in one stack, each step under a name.
///
///     TKQueryEditor editor(query);
///     TFilterCond* row = editor.AddCondition(query.Root(), 0);
///     editor.SetField(*row, *city);
///     editor.Undo(); // the row has no field again
///
/// A step is whatever happens to the query during one call, changes by event handlers included; the
/// application hears of it once (OnChange), views at once. A call that fails takes its changes back
/// before the error passes on; a call that changes nothing makes no step. Rows and columns that
/// were deleted stay alive in the stack and come back as the same objects; steps survive another
/// structure or a structure that is read again.
///
/// Changes that are made behind the editor's back (by code outside of Run, by loading) empty the
/// stack: no step could be taken back after them. Code whose changes users should be able to take
/// back makes them inside Run.
class TKQueryEditor : private TKQuerySteps {
    Q_DECLARE_TR_FUNCTIONS(tern7::TKQueryEditor)

public:
    /// One editor per query; the query outlives it or tells that it goes.
    explicit TKQueryEditor(TKQuery& query);
    ~TKQueryEditor() override;
    TKQueryEditor(const TKQueryEditor&) = delete;
    TKQueryEditor& operator=(const TKQueryEditor&) = delete;

    /// None when it was destroyed.
    TKQuery* Query() const { return query; }
    /// For actions, menus and views of steps.
    QUndoStack& Stack() { return *stack; }
    const QUndoStack& Stack() const { return *stack; }

    // --- steps
    bool CanUndo() const { return stack->canUndo(); }
    bool CanRedo() const { return stack->canRedo(); }
    /// Prefer these to the stack's: handlers that hear of it may delete the editor.
    void Undo();
    void Redo();
    /// One step out of all that the call changes in the query; inside another step it is part of
    /// that. True when something was changed. The text is translated where it is shown, from the
    /// translations of this class (QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Add condition"))
    /// where they have it.
    bool Run(const QString& text, const std::function<void()>& change);
    /// The language has changed: steps get their names anew. Panels do that by themselves.
    void TranslateSteps();
    /// The row to look at after the last undo or redo; none when the query was changed since.
    TFilterRow* ReplayedRow() const { return replayedRow; }
    /// Actions with the name of the step and the usual keys; they end with their parent.
    QAction* MakeUndoAction(QObject* parent);
    QAction* MakeRedoAction(QObject* parent);

    // --- rows, see TQueryEdits
    /// A new bracket gets a first condition, and goes with its last row (default true).
    void SetNonEmptyBrackets(bool value) { edits.NonEmptyBrackets = value; }
    TFilterCond* AddCondition(TFilterBracket& parent, int index);
    TFilterBracket* AddBracket(TFilterBracket& parent, int index);
    TFilterRow* Delete(TFilterRow& row);
    bool CanMove(const TFilterRow& row, const TFilterBracket& to) const {
        return edits.CanMove(row, to);
    }
    bool Move(TFilterRow& row, TFilterBracket& to, int index);
    bool MoveUp(TFilterRow& row);
    bool MoveDown(TFilterRow& row);
    /// A copy behind the row; none of the root.
    TFilterRow* Duplicate(TFilterRow& row);
    TFilterRow* CopyTo(TFilterRow& row, TFilterBracket& to, int index);
    void SetEnabled(TFilterRow& row, bool value);
    void SetBracketKind(TFilterBracket& bracket, TFilterLinkType value);
    void SetBracketJoin(TFilterBracket& bracket, bool byAnd);

    // --- conditions
    void SetField(TFilterCond& condition, TDSField& field);
    void SetOperator(TFilterCond& condition, TDSOperator& op);
    /// A value as the user entered it.
    void SetValue(TFilterCond& condition, int n, std::string text, std::string caption = {});
    void SetParameter(TFilterCond& condition, int n, bool value);
    /// Caption and value format of the parameter that stands for a value; nothing without one.
    void SetParameterTexts(TFilterCond& condition, int n, std::string caption, std::string format);
    void SetSubQuery(TFilterCond& condition, std::string text, TSQLOptions options);
    /// Asks the services, with a copy of the condition, so that nothing happens to the query while
    /// a dialog is open, and the condition may go meanwhile. False when nothing was changed.
    bool EditSubQuery(TFilterCond& condition);
    void SetRowCaption(TFilterCond& condition, std::string caption);

    // --- clipboard
    /// The rows as plain text (a query text whose root holds them) and in a form that keeps
    /// unfinished ones; nothing of the root.
    std::unique_ptr<QMimeData> Copy(const std::vector<TFilterRow*>& rows) const;
    /// The same; the row is deleted. `next` as Delete returns it.
    std::unique_ptr<QMimeData> Cut(TFilterRow& row, TFilterRow** next = nullptr);
    static bool CanPaste(const QMimeData* data);
    /// The rows that were put in; EKTernError for a text that can not be read, nothing is changed
    /// then. `index` as in AddCondition.
    std::vector<TFilterRow*> Paste(TFilterBracket& parent, int index, const QMimeData& data);

    // --- result fields
    /// A column of a structure field with its display name as caption.
    TResultField* AddResultField(int index, TDSField& field);
    /// A column from the user form of an expression; EKExpressionError as ProcessExpression.
    TResultField* AddFormula(int index, std::string caption, const std::string& expression);
    void DeleteResultField(int index);
    /// `to` is the position afterwards. False when nothing was moved.
    bool MoveResultField(int from, int to);
    TResultField* DuplicateResultField(int index);
    /// Another structure field: fields, formula and caption are replaced.
    void SetResultField(TResultField& column, TDSField& field);
    void SetFormula(TResultField& column, const std::string& expression);
    void SetSorting(TResultField& column, TSortingType value);
    void SetSortOrder(TResultField& column, int value);
    void SetResultCaption(TResultField& column, std::string caption);
    void SetJustSorting(bool value);
    /// Replaces all columns by copies, as an editor dialog does on OK.
    void SetResultFields(const TRFieldList& list);

    // --- the whole query
    void SetSQLOption(TSQLOption option, bool value);
    void SetMainTable(std::string name);
    void SetAvoidedJoins(TAvoidedJoins joins);
    /// Drops rows, columns and parameters.
    void ClearAll();

private:
    class TCommand;
    void RunStep(const std::string& name, const std::function<void()>& change) override;
    void ContinueStep(const std::string& last, const std::string& name,
                      const std::function<void()>& change) override;
    void UndoStep() override { Undo(); }
    void RedoStep() override { Redo(); }
    void ForgetSteps() override { Forget(); }
    void QueryDestroyed() override;

    bool Run(const QString& text, const std::function<void()>& change, const QByteArray& continued);
    void TakeOver(QAction& action, void (TKQueryEditor::*step)());
    void Replay(TKQueryRecord& record, bool undo);
    void ReplayFromOutside(void (QUndoStack::*step)());
    void Forget();
    void ForgetIfStale();
    TRFieldList& Columns() const { return query->QResult().ResultFields(); }

    TKQuery* query;
    TQueryEdits edits;
    std::unique_ptr<QUndoStack> stack;
    std::exception_ptr replayError;
    TFilterRow* replayedRow = nullptr;
    bool recording = false;
    bool replaying = false;
    bool stale = false; // to be emptied when the stack is at rest
};

} // namespace tern7
