#pragma once

#include <functional>
#include <memory>

#include <QDialog>
#include <QPointer>

#include <tern7/core/titles/titles.h>
#include <tern7/ui/dialogs/dialog_icons.h>
#include <tern7/ui/dialogs/field_tree.h>
#include <tern7/ui/dialogs/result_fields_models.h>

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QKeyEvent;
class QLabel;
class QMenu;
class QPushButton;
class QTableView;
class QToolButton;

namespace tern7 {

/// The result fields editor: which columns a query has, how they are computed and sorted. It works
/// on a draft; what was changed is put into the list by `Draft()->Apply` when the dialog was
/// accepted. Its texts are those of the section "Result Fields Editor".
///
///     Available fields   |   Result fields        [function] [new] [delete] [up] [down]
///     [search]           |   | Field Name | Expression       |
///     Customers          |>  | Turnover   | SUM({Price})     |
///       City             |+  what is wrong with the expression
///       Name             |-  Sorted fields      [x] just sorting   [sort] [up] [down]
///     Orders             |*  | Field Name | Sorting type     |
///     [Add]              |/
///     [Help]                                           [OK] [Cancel]
///
/// All of it can be done by keys: each caption has its letter for Alt, the hints of the buttons
/// name their keys. A name typed into the search and Enter makes a column, Ctrl and + - * / join
/// the field found to the current column; in the tree these signs do so without Ctrl.
class T_dlgRFieldsEdit : public QDialog {
    Q_OBJECT

public:
    /// EKQueryPanelError "Database structure is not specified" when the list's query has none.
    T_dlgRFieldsEdit(const TRFieldList& columns, const TStrings& titles, QWidget* parent = nullptr);
    ~T_dlgRFieldsEdit() override;

    /// May outlive the dialog.
    const std::shared_ptr<TResultFieldsDraft>& Draft() const { return ownDraft; }
    /// Answers the Help button, which is shown only then.
    void SetHelp(std::function<void()> answer);
    /// The keyboard is there, too.
    void GoToColumn(int i);
    /// Refused, with the cursor at the place, while an expression can not be read.
    void accept() override;

    // for the keyboard, for tests and for those who add to the dialog
    TFieldTree* Fields() const { return fields; }
    QTableView* ColumnsView() const { return columnsView; }
    QTableView* SortedView() const { return sortedView; }
    QComboBox* Function() const { return function; }
    QLabel* ProblemLabel() const { return problem; }

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString Title(std::string_view key) const;
    QStringList Aggregates() const;

    // making
    QWidget* MakeFields();
    QWidget* MakeJoinButtons();
    QWidget* MakeColumns();
    QWidget* MakeSorted();
    QWidget* MakeButtons();
    QTableView* MakeView(TDraftModel& model, const QString& name, int wideColumn);
    QToolButton* MakeTool(TDialogIcon icon, const QString& hint, const char* keys,
                          void (T_dlgRFieldsEdit::*action)());
    void ShowIcons();

    // what the user does
    std::vector<TDSField*> ChosenFields() const;
    void AddFields(TAggregate aggregate);
    void CreateColumn() { AddFields(TAggregate::None); }
    void Join(char operation);
    void NewColumn();
    void DeleteColumn();
    void MoveColumn(int step);
    void ColumnUp() { MoveColumn(-1); }
    void ColumnDown() { MoveColumn(1); }
    void SortColumn();
    void Unsort();
    void MoveSorted(int step);
    void SortedUp() { MoveSorted(-1); }
    void SortedDown() { MoveSorted(1); }
    void SetFunction(int aggregate);
    void EndEditing();

    // keys
    bool FieldsKey(const QWidget& part, const QKeyEvent& event);
    bool ColumnsKey(int key, Qt::KeyboardModifiers modifiers);
    bool SortedKey(int key, Qt::KeyboardModifiers modifiers);
    bool DialogKey(const QKeyEvent& event);

    // showing
    int CurrentColumn() const;
    int CurrentSorted() const;
    void ShowColumns(int current);
    void ShowSorted(int current);
    void ShowState();
    void EditExpression(int row);
    void EditAgain(int row);

    struct TTool {
        QToolButton* button;
        TDialogIcon icon;
    };

    TKTitles titles;
    std::shared_ptr<TResultFieldsDraft> ownDraft;
    TResultFieldsDraft& draft;
    TResultColumnsModel* columns;
    TSortedColumnsModel* sorted;
    TFieldTree* fields;
    QPushButton* add = nullptr;
    QTableView* columnsView = nullptr;
    QTableView* sortedView = nullptr;
    QComboBox* function = nullptr;
    QLabel* problem = nullptr;
    QCheckBox* justSorting = nullptr;
    QDialogButtonBox* buttons = nullptr;
    QPushButton* help = nullptr;
    std::vector<TTool> tools;
    std::vector<QToolButton*> joins;
    QToolButton *create = nullptr, *remove = nullptr, *up = nullptr, *down = nullptr;
    QToolButton *sort = nullptr, *sortedUp = nullptr, *sortedDown = nullptr;
    std::function<void()> onHelp;
};

} // namespace tern7
