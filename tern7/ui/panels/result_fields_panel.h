#pragma once

#include <memory>

#include <QScrollArea>

#include <tern7/core/global/errors.h>
#include <tern7/core/query/query.h>
#include <tern7/core/titles/titles.h>
#include <tern7/ui/panels/result_field_row.h>
#include <tern7/ui/panels/result_fields_appearance.h>
#include <tern7/ui/support/dialog_services.h>

namespace tern7 {

class TKPopupMenu;
class TKQueryEditor;
class TKQueryPanel;
class TColumnDrag;
class TKResultFieldsPanel;
class TResultFieldsEdit;

using TRFPanelChangeEvent = TEvent<TKResultFieldsPanel*>;

/// Shows the columns of a query one below the other; users choose their fields and sort order, add,
/// move and delete them.
///
///     (1) Name      Ascending
///     (2) City      Not Sorted
///     < Click to add new field >
///
/// It shows a list of result fields and changes it as the user does; changes of the list by others
/// are seen at once. Without `SetResultFields` it has a list of its own.
class TKResultFieldsPanel : public QScrollArea, private TKQueryView {
    Q_OBJECT
    Q_PROPERTY(QString DBStructName READ DBStructName WRITE SetDBStructName)
    Q_PROPERTY(QString QueryPanelName READ QueryPanelName WRITE SetQueryPanelName)
    Q_PROPERTY(QByteArray Titles READ TitlesText WRITE SetTitlesText)
    // of the appearance, for form editors
    Q_PROPERTY(int AppearanceLeftMargin READ LeftMargin WRITE SetLeftMargin)
    Q_PROPERTY(int AppearanceTopMargin READ TopMargin WRITE SetTopMargin)
    Q_PROPERTY(int AppearanceRowSpace READ RowSpace WRITE SetRowSpace)
    Q_PROPERTY(int AppearanceElemSpace READ ElemSpace WRITE SetElemSpace)
    Q_PROPERTY(
        QColor AppearanceFieldColor READ FieldColor WRITE SetFieldColor RESET ResetFieldColor)
    Q_PROPERTY(QColor AppearanceSortColor READ SortColor WRITE SetSortColor RESET ResetSortColor)
    Q_PROPERTY(tern7::TRFPAppearance::TRFPAppearanceOptions AppearanceOptions READ Options WRITE
                   SetOptions)

public:
    explicit TKResultFieldsPanel(QWidget* parent = nullptr);
    ~TKResultFieldsPanel() override;

    /// The structure whose fields are offered: that of the shown query when it has one, else the
    /// one that was set, else that of the form's component DBStructName. Not owned.
    TKCustomDBStructure* DBStruct() const;
    void SetDBStruct(TKCustomDBStructure* structure);
    /// Object name of a TKDBStructure on the same form; it is looked for when it is needed.
    QString DBStructName() const { return structName; }
    void SetDBStructName(const QString& name);
    /// Object name of a TKQueryPanel on the same form whose columns are shown while no other list
    /// is set; it is looked for when it is needed.
    QString QueryPanelName() const { return queryPanelName; }
    void SetQueryPanelName(const QString& name);
    /// Texts by key, without sections; what is missing takes the default text.
    const TStrings& Titles() const { return titleLines; }
    void SetTitles(TStrings lines);
    QByteArray TitlesText() const;
    void SetTitlesText(const QByteArray& text);
    TRFPAppearance& Appearance() { return appearance; }
    const TRFPAppearance& Appearance() const { return appearance; }

    /// Shows this list from now on; null: that of the form's QueryPanelName, else the panel's own.
    /// The panel forgets a list whose query is destroyed. What users do are steps of the query:
    /// they can be taken back where it has a TKQueryEditor, in one history with all else; the
    /// panel's own list has one.
    void SetResultFields(TRFieldList* list);
    TRFieldList& ResultFields();

    const TResultFieldRows& Rows();
    /// Rows are dragged by their numbers.
    TColumnDrag& Drag() const { return *drag; }
    /// The row that has the focus, -1 when none has.
    int CurrentRow();
    TDropDownLabel* AddLabel() const { return addLabel; }
    /// The menu of the row whose button was pressed.
    TKPopupMenu* RowMenu() const { return rowMenu; }

    /// Appends a column that shows the first field and gives its row the focus. ERFPanelError
    /// "Database structure is not specified" without a structure; without fields to offer nothing
    /// is added.
    void AddRow();
    /// std::out_of_range for these when there is no such row.
    void DeleteRow(int index);
    /// A second column like it, not sorted, behind it.
    void DuplicateRow(int index);
    void MoveRowUp(int index);   ///< nothing for the first row
    void MoveRowDown(int index); ///< nothing for the last row
    void MoveRow(int from, int to);
    /// The sorted columns get the ranks 1, 2 ... in the order of the rows.
    void RefreshSortOrder();
    void ClearAll();
    /// Shows everything anew.
    void Refresh();
    /// Take the last step back and do it again; nothing happens where no steps are kept.
    void Undo() { Replay(&TKQuerySteps::UndoStep); }
    void Redo() { Replay(&TKQuerySteps::RedoStep); }
    /// Opens the result fields editor with the texts of a title list (section "Result Fields
    /// Editor"; without one those of the query); true when something was changed. ERFPanelError
    /// without a structure.
    bool EditResultFields(const TStrings& editorTitles = {},
                          const std::function<void()>& help = {});
    /// The same, beginning with the column of a row. std::out_of_range when there is none.
    bool EditRow(int index);
    /// Opens the titles editor; true when it was accepted.
    bool EditTitles();
    /// Fires OnChange.
    void Changed();

    /// The user, or an operation above, changed the columns.
    TRFPanelChangeEvent OnChange;
    TKDialogServices Dialogs = StandardDialogs();

signals:
    void changed();

protected:
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    friend class TResultFieldRow;
    friend class TColumnDrag;

    // TKQueryView
    void RowsAdded(TFilterBracket&, int, int) override {}
    void RowsRemoved(TFilterBracket&, int, int) override {}
    void RowsRenumbered() override {}
    void RowChanged(TFilterRow&) override {}
    void ValueEditorsChanged(TFilterRow&) override {}
    void ParametersChanged() override {}
    void ResultFieldsChanged() override { LayLater(); }
    void EverythingChanged() override { LayLater(); }
    void CloseEditors() override;
    void QueryDestroyed() override;

    TKCustomDBStructure& RequireStruct() const;
    QString Title(std::string_view key) const;

    // the appearance as flat properties: seen at once
    int LeftMargin() const { return appearance.LeftMargin(); }
    void SetLeftMargin(int value) { appearance.SetLeftMargin(value), LayLater(); }
    int TopMargin() const { return appearance.TopMargin(); }
    void SetTopMargin(int value) { appearance.SetTopMargin(value), LayLater(); }
    int RowSpace() const { return appearance.RowSpace(); }
    void SetRowSpace(int value) { appearance.SetRowSpace(value), LayLater(); }
    int ElemSpace() const { return appearance.ElemSpace(); }
    void SetElemSpace(int value) { appearance.SetElemSpace(value), LayLater(); }
    QColor FieldColor() const { return appearance.FieldColor(); }
    void SetFieldColor(const QColor& color) { appearance.SetFieldColor(color); }
    void ResetFieldColor() { appearance.SetFieldColor(TRFPAppearance().FieldColor()); }
    QColor SortColor() const { return appearance.SortColor(); }
    void SetSortColor(const QColor& color) { appearance.SetSortColor(color); }
    void ResetSortColor() { appearance.SetSortColor(TRFPAppearance().SortColor()); }
    TRFPAppearance::TRFPAppearanceOptions Options() const { return appearance.Options(); }
    void SetOptions(TRFPAppearance::TRFPAppearanceOptions value) { appearance.SetOptions(value); }

    // rows
    void FindQueryPanel();
    void LayLater();
    void EnsureRows();
    void MatchRows();
    void OrderControls();
    void RefreshTexts();
    enum class TPart { None, Button, Field, Sorting };
    TPart FocusedPart(int index);
    void FocusRow(int index, TPart part);

    // geometry
    QSize Extent() const;
    int RowHeight() const;
    int RowTop(int index) const;
    int AddRowTop() const;
    static bool IsCovered(const QWidget& control);
    void PlaceControl(QWidget& control, int start, int top, QSize size);
    void PlaceRow(int index);
    void PlaceRows(int from);
    void ShowAddRow();
    void FitCanvas();
    void PlaceAll();

    // what the user does
    void InsertRow(int index);
    void AddRowLabelClick();
    void CopyRow(int from, int to);
    void RowButtonClick(TResultFieldRow& row, QWidget* below);
    void MakeRowMenu();
    void EnableMenuItems(int row);
    void MenuItemClick(void (TKResultFieldsPanel::*operation)(int));
    void RowFieldChosen(TResultFieldRow& row, int fieldID);
    void RowSortingChosen(TResultFieldRow& row);
    void EditRowLater(TResultFieldRow& row);
    bool EditFrom(int row, const TStrings& editorTitles, const std::function<void()>& help);
    void Edit(const char* name, const std::function<void(TResultFieldsEdit&)>& step,
              const char* last = nullptr);
    void Replay(void (TKQuerySteps::*step)());
    bool RowKey(int key, Qt::KeyboardModifiers modifiers);
    bool Holds(const TResultFieldRow& row) const;

    TRFPAppearance appearance;
    TStrings titleLines;
    TKTitles titles;
    QString ownName; // for a screen reader, unless the application gives another
    std::unique_ptr<TKQuery> own;
    std::unique_ptr<TKQueryEditor> ownEditor;
    TRFieldList* fields; // never null
    TResultFieldRows rows;
    QWidget* canvas;
    TDropDownLabel* addLabel;
    TKPopupMenu* rowMenu;
    QPointer<TResultFieldRow> menuRow;
    QPointer<TResultFieldRow> newRow; // its field is being chosen for the first time
    TColumnDrag* drag;
    QSize extent; // of the rows and the add label
    QString structName;
    QString queryPanelName;
    bool pending = false; // rows don't show the list as it is now
    bool posted = false;  // EnsureRows is going to be called
};

} // namespace tern7
