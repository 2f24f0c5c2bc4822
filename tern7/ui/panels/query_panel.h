#pragma once

#include <functional>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

#include <QAbstractScrollArea>
#include <QIcon>
#include <QKeySequence>
#include <QPointer>

#include <tern7/core/query/query.h>
#include <tern7/core/query/row_geometry.h>
#include <tern7/core/query/row_lines.h>
#include <tern7/core/query/row_text.h>
#include <tern7/core/querybase/query_base.h>
#include <tern7/ui/panels/appearance.h>
#include <tern7/ui/panels/query_editor.h>
#include <tern7/ui/support/dialog_services.h>

namespace tern7 {

class TAccessibleRows;
class TDropDownLabel;
class TFilterRowView;
class TKPopupMenu;
class TRowDrag;
class TSQLListReader;

/// The condition builder: shows the rows of a query as lines of labels that are clicked and edited
/// in place, under a header line. It owns the query (a TKQuery) and shows it whoever changes it.
///
///     auto* panel = new TKQueryPanel(form);
///     panel->SetDbStruct(&structure);
///     panel->OnChange = [](TKQueryPanel& p) { p.BuildQuery(); show(p.QResult().GetSQL()); };
///
/// Rows have controls only while they are in sight: ten thousand conditions open as fast as ten.
/// Every event may delete rows, the structure or the panel. What users do goes through `Editor`.
class TKQueryPanel : public QAbstractScrollArea, private TKQueryView {
    Q_OBJECT
    Q_PROPERTY(QString QueryName READ QueryName WRITE SetQueryName)
    Q_PROPERTY(QString MainTableName READ MainTableName WRITE SetMainTableName)
    Q_PROPERTY(bool SaveTitles READ SaveTitles WRITE SetSaveTitles)
    Q_PROPERTY(bool SaveSQLOptions READ SaveSQLOptions WRITE SetSaveSQLOptions)
    Q_PROPERTY(int RowSpace READ RowSpace WRITE SetRowSpace)
    Q_PROPERTY(int TabSpace READ TabSpace WRITE SetTabSpace)
    Q_PROPERTY(int ElemSpace READ ElemSpace WRITE SetElemSpace)
    Q_PROPERTY(int HeaderLeft READ HeaderLeft WRITE SetHeaderLeft)
    Q_PROPERTY(int HeaderTop READ HeaderTop WRITE SetHeaderTop)
    Q_PROPERTY(int MaxPopupItemCount READ MaxPopupItemCount WRITE SetMaxPopupItemCount)
    Q_PROPERTY(QString HelpFileName READ HelpFileName WRITE SetHelpFileName)
    Q_PROPERTY(int RFEHelpContext READ RFEHelpContext WRITE SetRFEHelpContext)
    Q_PROPERTY(QString DbStructName READ DbStructName WRITE SetDbStructName)
    Q_PROPERTY(bool CheckValues READ CheckValues WRITE SetCheckValues)
    Q_PROPERTY(TSyntax SQLSyntax READ FormSQLSyntax WRITE SetFormSQLSyntax)
    Q_PROPERTY(TOptions SQLOptions READ FormSQLOptions WRITE SetFormSQLOptions)
    // the appearance, which is an object of its own, as forms keep it
    Q_PROPERTY(QColor AppearanceActiveRowColor READ AppearanceActiveRowColor WRITE
                   SetAppearanceActiveRowColor RESET ResetAppearanceActiveRowColor)
    Q_PROPERTY(QColor AppearanceControlBorderColor READ AppearanceControlBorderColor WRITE
                   SetAppearanceControlBorderColor RESET ResetAppearanceControlBorderColor)
    Q_PROPERTY(QColor AppearanceFieldColor READ AppearanceFieldColor WRITE SetAppearanceFieldColor
                   RESET ResetAppearanceFieldColor)
    Q_PROPERTY(QColor AppearanceOperatorColor READ AppearanceOperatorColor WRITE
                   SetAppearanceOperatorColor RESET ResetAppearanceOperatorColor)
    Q_PROPERTY(QColor AppearanceValueColor READ AppearanceValueColor WRITE SetAppearanceValueColor
                   RESET ResetAppearanceValueColor)
    Q_PROPERTY(QColor AppearanceBoolOpColor READ AppearanceBoolOpColor WRITE
                   SetAppearanceBoolOpColor RESET ResetAppearanceBoolOpColor)
    Q_PROPERTY(TQPAppearance::TQPAppearanceOptions AppearanceOptions READ AppearanceOptions WRITE
                   SetAppearanceOptions)
    Q_PROPERTY(TQPAppearance::TStyle AppearanceStyle READ AppearanceStyle WRITE SetAppearanceStyle)
    Q_PROPERTY(QByteArray Titles READ TitlesText WRITE SetTitlesText)
    Q_PROPERTY(QByteArray Description READ DescriptionText WRITE SetDescriptionText)
    Q_PROPERTY(QByteArray UserData READ UserDataText WRITE SetUserDataText)

public:
    /// TSQLSyntax and TSQLOptions as forms keep them.
    enum TSyntax { ssSQL1, ssSQL2, ssOracle };
    Q_ENUM(TSyntax)
    enum TOption {
        soASCIIRFields = 1 << 0,
        soSelectDistinct = 1 << 1,
        soQuoteAliases = 1 << 2,
        soBracketJoins = 1 << 3,
        soBracketConditions = 1 << 4,
        soSortByNames = 1 << 5
    };
    Q_DECLARE_FLAGS(TOptions, TOption)
    Q_FLAG(TOptions)

    explicit TKQueryPanel(QWidget* parent = nullptr);
    /// A panel over a query that was made elsewhere, as a sub-query is.
    TKQueryPanel(std::unique_ptr<TKQuery> shownQuery, QWidget* parent);
    ~TKQueryPanel() override;

    // --- the query
    TKQuery& Query() const { return *query; }
    TFilterBracket& Root() const { return query->Root(); }
    TQueryResult& QResult() const { return query->QResult(); }
    /// What users do, in steps that can be undone; for menus, keys and buttons of an application as
    /// well.
    TKQueryEditor& Editor() { return *editor; }
    /// The structure that was set, else that of the form's component DbStructName.
    TKCustomDBStructure* DbStruct();
    /// Not owned; it may go first.
    void SetDbStruct(TKCustomDBStructure* structure);
    /// Object name of a TKDBStructure on the same form; it is looked for when it is needed.
    QString DbStructName() const { return dbStructName; }
    void SetDbStructName(const QString& name);
    /// Stored queries that the panel shows one of; not owned, it may go first.
    TKQueryBase* QueryBase() const { return baseLink.QueryBase(); }
    /// EKQueryPanelError when the base is open and its current text can not be read.
    void SetQueryBase(TKQueryBase* base);
    TKQueryBaseLink& QueryBaseLink() { return baseLink; }
    void BuildQuery();
    void ClearAll() { query->ClearAll(); }
    bool Active() const { return query->Active(); }
    void SetActive(bool value) { query->SetActive(value); }
    void SaveToStrings(TStrings& text) { query->SaveToStrings(text); }
    /// EKQueryPanelError for a text that can not be read; the query is as it was then, and shown.
    void LoadFromStrings(const TStrings& text);
    void SaveToFile(const QString& fileName);
    void LoadFromFile(const QString& fileName);
    /// See TKQuery. ESQLParserError for a syntax error: ParseSQL leaves no rows then, ImportSQL the
    /// query as it was; either is shown. What was not taken over is in Query().SQLReport().
    void ParseSQL(const QString& sql);
    void ImportSQL(const QString& sql);

    QString QueryName() const;
    void SetQueryName(const QString& value);
    QString MainTableName() const;
    void SetMainTableName(const QString& value);
    bool SaveTitles() const { return query->SaveTitles; }
    void SetSaveTitles(bool value) { query->SaveTitles = value; }
    bool SaveSQLOptions() const { return query->SaveSQLOptions; }
    void SetSaveSQLOptions(bool value) { query->SaveSQLOptions = value; }
    TSQLOptions SQLOptions() const { return query->SQLOptions(); }
    void SetSQLOptions(TSQLOptions value) { query->SetSQLOptions(value); }
    TSQLSyntax SQLSyntax() const { return query->SQLSyntax(); }
    void SetSQLSyntax(TSQLSyntax value) { query->SetSQLSyntax(value); }
    bool CheckValues() const { return query->CheckValues; }
    void SetCheckValues(bool value);
    TStrings& Description() const { return query->Description; }
    TStrings& UserData() const { return query->UserData; }
    /// The captions; the panel shows others at once.
    const TStrings& Titles() const { return query->Titles; }
    void SetTitles(const TStrings& titles);
    QByteArray TitlesText() const;
    void SetTitlesText(const QByteArray& text);
    QByteArray DescriptionText() const;
    void SetDescriptionText(const QByteArray& text);
    QByteArray UserDataText() const;
    void SetUserDataText(const QByteArray& text);
    /// The caption of a key, the default one where Titles have none.
    QString Title(std::string_view key) const;

    // --- looks
    TQPAppearance& Appearance() const { return *appearance; }
    TQPAppearance& ViewOptions() const { return *appearance; }
    int RowSpace() const { return geometry.RowSpace; }
    void SetRowSpace(int value) { SetGeometryValue(geometry.RowSpace, value); }
    int TabSpace() const { return geometry.TabSpace; }
    void SetTabSpace(int value) { SetGeometryValue(geometry.TabSpace, value); }
    int ElemSpace() const { return geometry.ElemSpace; }
    void SetElemSpace(int value) { SetGeometryValue(geometry.ElemSpace, value); }
    int HeaderLeft() const { return geometry.HeaderLeft; }
    void SetHeaderLeft(int value) { SetGeometryValue(geometry.HeaderLeft, value); }
    int HeaderTop() const { return geometry.HeaderTop; }
    void SetHeaderTop(int value) { SetGeometryValue(geometry.HeaderTop, value); }
    /// How many items a column of the field menu holds; 0 leaves that to the screen.
    int MaxPopupItemCount() const { return maxPopupItemCount; }
    void SetMaxPopupItemCount(int value) { maxPopupItemCount = value; }
    /// The images that the image events mean.
    const QList<QIcon>& Images() const { return images; }
    void SetImages(const QList<QIcon>& icons) { images = icons; }
    QString HelpFileName() const { return helpFileName; }
    void SetHelpFileName(const QString& name) { helpFileName = name; }
    int RFEHelpContext() const { return rfeHelpContext; }
    void SetRFEHelpContext(int context) { rfeHelpContext = context; }

    // --- rows on the screen
    /// The lines as they are shown.
    const TRowLines& Lines();
    const TRowGeometry& Geometry() const { return geometry; }
    /// Scrolls to the row and gives its controls, which are the row's until the panel scrolls on;
    /// none for a row without a line.
    TFilterRowView* RowView(TFilterRow& row);
    /// The controls of a row that has some now; else none.
    TFilterRowView* ExistingView(const TFilterRow& row) const;
    /// The row that a widget (a label, its editor, a button) belongs to; none for others.
    TFilterRowView* ViewOf(const QWidget* widget) const;
    TFilterRow* RowAt(const QPoint& inViewport);
    /// Where a line stands in the viewport, over its whole width.
    QRect LineRect(int line) const;
    TDropDownLabel* AddRowLabel() const { return addRowLabel; }
    /// The row that commands work on: the one that had the focus last; the root at first.
    TFilterRow& CurrentRow() const;
    void SetCurrentRow(TFilterRow& row);
    /// The current row when it is a bracket, else the bracket around it.
    TFilterBracket& CurrentBracket() const;
    /// Scrolls to the row and gives it the focus: its control of that index, or the nearest one.
    void FocusRow(TFilterRow& row, int control = -1);
    /// The last row of the screen's page, for page keys.
    int LinesInSight() const;
    void ScrollToLine(int line);
    /// Scrolls a control of a row into sight.
    void ScrollToControl(const QWidget& control);
    /// Closes an open editor, menu or list of a row; true when there was one.
    bool CloseEdit(bool accept = true);
    /// Numbers all rows and places them again, at once.
    void PlaceAllRows();
    void EnumerateRows() { query->EnumerateRows(); }
    /// Shows everything anew.
    void RefreshPanel();

    // --- commands
    /// Into the current bracket, behind the current row; they get the focus.
    TFilterCond* InsertCondition();
    TFilterBracket* InsertBracket();
    void DeleteRow(TFilterRow& row);
    // what the keys do, for menus and buttons of an application as well; on the current row
    void DeleteCurrentRow();
    void SwitchCurrentRow();
    void MoveCurrentRowUp();
    void MoveCurrentRowDown();
    void DuplicateCurrentRow();
    void CutCurrentRow();
    /// All rows, when the current one is the header line.
    void CopyCurrentRow();
    /// Behind the current row, or into the current bracket. Nothing when the clipboard holds no
    /// rows.
    void PasteRows();
    void PopupCurrentRowMenu();
    /// The row that came back, or was changed, gets the focus where the panel has it.
    void Undo();
    void Redo();
    /// By command number, see TPanelCommand.
    void MenuItemClick(int command);
    /// By command number, see TValueCommand; works on the value label of the current row that has
    /// the focus, else on value 1.
    void ValueMenuItemClick(int command);
    TKPopupMenu& AddMenu();
    TKPopupMenu& RowMenu();
    TKPopupMenu& ValueMenu();
    /// Opens the row menu below a rectangle of the screen.
    void PopupRowMenu(TFilterRow& row, const QRect& anchor);
    void PopupAddMenu(const QPoint& at);
    /// Opens the value menu of a value.
    void VPopup(TFilterCond& condition, int n, const QRect& anchor);
    /// Says beside a value why there is no list to choose from (yet). The list opens when it comes.
    void PopupListState(TFilterRowView& view, int n);
    /// Edits the captions in a dialog; false when they are as before.
    bool EditTitles();
    /// Opens the result fields editor on the columns of the query; true when they were changed.
    /// EKQueryPanelError "Database structure is not specified" without a structure.
    bool EditResultFields();
    /// Edits a sub-query in a dialog; false when it is as before.
    bool EditSubQuery(TFilterCond& condition);
    /// What a dialog's Help button does: OnRFEHelpClick where the result fields are edited, else it
    /// opens the help file (at the context); empty when there is neither.
    std::function<void()> HelpCall(bool forResultFields = false);
    /// Runs what a user asked for. An error is shown beside the panel. False when the panel was
    /// deleted meanwhile.
    bool Do(const std::function<void(TKQueryEditor& editor)>& change);

    // --- events
    TEvent<TKQueryPanel&> OnActive;
    TEvent<TKQueryPanel&> OnChange;
    TEvent<TKQueryPanel&> OnParamListChange;
    TEvent<TKQueryPanel&> OnRFEHelpClick;
    TEvent<TFilterCond&, int> OnConditionChange;
    TEvent<TFilterCond&, int /*value number*/> OnValueAltClick;
    TEvent<const QString& /*group*/, int& /*imageIndex*/> OnGetGroupImageIndex;
    TEvent<const QString& /*group*/, const QString& /*item*/, int& /*imageIndex*/>
        OnGetItemImageIndex;
    // these are the query's own
    TEvent<TFilterCond&, std::string&>& OnBuildSQL;
    TEvent<TFilterCond&, std::string&, std::string&>& OnSetValue;
    TEvent<TDSField&, const std::string&, std::string&>& OnChangeValue;
    TEvent<TDSField&, std::string&>& OnCustomEdit;
    TEvent<TFilterCond&, std::string&>& OnCustomValue;
    TEvent<TFilterCond&, std::string&>& OnValueDblClick;

    /// The dialogs that the panel opens.
    TKDialogServices Dialogs = StandardDialogs();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// The keys that work on a row and what they do, in the present language, for lists of keys.
    static std::vector<std::pair<QKeySequence, QString>> Keys();

    // --- for the accessible object, which is not owned
    void SetAccessibleRows(TAccessibleRows* rows) { accessibleRows = rows; }

    // --- for the row views
    TSQLListReader& ListReader() const { return *listReader; }
    const TKRowTexts& RowTexts() const { return *rowTexts; }
    TRowDrag& RowDrag() const { return *rowDrag; }
    int TextHeight() const { return textHeight; }
    bool ReadsFromRight() const { return layoutDirection() == Qt::RightToLeft; }
    /// Gives the focus to a control without making its row the current one or scrolling there.
    void PassFocus(QWidget& control);
    /// Moves a widget to its place in content that is read from the left.
    void PutAt(QWidget& widget, int left, int top) const;
    /// Places everything again, soon. Without `redraw` for controls that changed their sizes: the
    /// ground below them stays as it is.
    void Invalidate(bool redraw = true);

signals:
    void changed();
    void activated();
    void paramListChanged();
    void conditionChanged(tern7::TFilterCond* condition, int whatChanged);
    /// When the event loop runs again.
    void currentRowChanged();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void showEvent(QShowEvent* event) override;

private:
    // properties as forms keep them
    TSyntax FormSQLSyntax() const { return static_cast<TSyntax>(query->SQLSyntax()); }
    void SetFormSQLSyntax(TSyntax value);
    TOptions FormSQLOptions() const { return TOptions(SQLOptionsToInt(query->SQLOptions())); }
    void SetFormSQLOptions(TOptions value) {
        query->SetSQLOptions(IntToSQLOptions(static_cast<int>(value)));
    }
    QColor AppearanceActiveRowColor() const { return appearance->ActiveRowColor(); }
    void SetAppearanceActiveRowColor(const QColor& color) { appearance->SetActiveRowColor(color); }
    void ResetAppearanceActiveRowColor() {
        appearance->SetActiveRowColor(TQPAppearance().ActiveRowColor());
    }
    QColor AppearanceControlBorderColor() const { return appearance->ControlBorderColor(); }
    void SetAppearanceControlBorderColor(const QColor& color) {
        appearance->SetControlBorderColor(color);
    }
    void ResetAppearanceControlBorderColor() {
        appearance->SetControlBorderColor(TQPAppearance().ControlBorderColor());
    }
    QColor AppearanceFieldColor() const { return appearance->FieldColor(); }
    void SetAppearanceFieldColor(const QColor& color) { appearance->SetFieldColor(color); }
    void ResetAppearanceFieldColor() { appearance->SetFieldColor(TQPAppearance().FieldColor()); }
    QColor AppearanceOperatorColor() const { return appearance->OperatorColor(); }
    void SetAppearanceOperatorColor(const QColor& color) { appearance->SetOperatorColor(color); }
    void ResetAppearanceOperatorColor() {
        appearance->SetOperatorColor(TQPAppearance().OperatorColor());
    }
    QColor AppearanceValueColor() const { return appearance->ValueColor(); }
    void SetAppearanceValueColor(const QColor& color) { appearance->SetValueColor(color); }
    void ResetAppearanceValueColor() { appearance->SetValueColor(TQPAppearance().ValueColor()); }
    QColor AppearanceBoolOpColor() const { return appearance->BoolOpColor(); }
    void SetAppearanceBoolOpColor(const QColor& color) { appearance->SetBoolOpColor(color); }
    void ResetAppearanceBoolOpColor() { appearance->SetBoolOpColor(TQPAppearance().BoolOpColor()); }
    TQPAppearance::TQPAppearanceOptions AppearanceOptions() const { return appearance->Options(); }
    void SetAppearanceOptions(TQPAppearance::TQPAppearanceOptions options) {
        appearance->SetOptions(options);
    }
    TQPAppearance::TStyle AppearanceStyle() const { return appearance->FormStyle(); }
    void SetAppearanceStyle(TQPAppearance::TStyle value) { appearance->SetFormStyle(value); }

    using TViews = std::unordered_map<const TFilterRow*, std::unique_ptr<TFilterRowView>>;

    void Init();
    void HookEvents();
    void Read(const std::function<void(TKQuery& query)>& reading);
    void SetGeometryValue(int& member, int value);

    // what the query tells (query_panel_view.cpp)
    void RowsAdded(TFilterBracket& parent, int index, int count) override;
    void RowsRemoved(TFilterBracket& parent, int index, int count) override;
    void RowsRenumbered() override;
    void RowChanged(TFilterRow& row) override;
    void ValueEditorsChanged(TFilterRow& row) override;
    void ResultFieldsChanged() override {}
    void ParametersChanged() override;
    void EverythingChanged() override;
    void CloseEditors() override;
    void QueryDestroyed() override;

    // placing (query_panel_layout.cpp)
    void MeasureLine();
    void ReadTitles();
    void Lay();
    void BuildLines();
    void SetScrollRanges();
    void MakeViews();
    void PlaceViews();
    void PlaceAddRow();
    void ChainFocus();
    int LabelLeft(int level, bool header) const;
    int ContentHeight() const;
    int ContentWidth() const;
    void DropViewsBelow(const TFilterRow& row);
    TViews::iterator DropView(TViews::iterator view);
    TFilterRowView& MakeView(TFilterRow& row);

    // keys (query_panel_keys.cpp)
    bool TakesKey(const QKeyEvent& event) const;
    void ChangeCurrentRow(bool (TKQueryEditor::*change)(TFilterRow&));
    void Replay(void (TKQueryEditor::*step)());

    // menus and focus
    void CreateMenus();
    void FocusChanged(QWidget* now);
    void TellCurrentRow();
    void FocusAfterDelete(TFilterRow* next);
    void AddRowClicked();
    void FillServices();
    void FillListMenu(const TDSField& field);
    void ListFinished();
    void OpenFieldMenu(TFilterCond& condition);
    void PaintGuides(class QPainter& painter, int firstLine, int lastLine) const;

    std::shared_ptr<TKQuery> query; // shared with a running change, which may delete the panel
    std::shared_ptr<TKQueryEditor> editor;
    TKQueryBaseLink baseLink;
    TQPAppearance* appearance;
    TRowGeometry geometry;
    std::unique_ptr<TKRowTexts> rowTexts;
    TStrings knownTitles; // that rowTexts and menus are made of
    TRowLines lines;
    TViews views;
    std::vector<std::unique_ptr<TFilterRowView>> freeViews; // while they change their rows
    TDropDownLabel* addRowLabel;
    TKPopupMenu* addMenu;
    TKPopupMenu* rowMenu;
    TKPopupMenu* valueMenu;
    TKPopupMenu* listMenu;
    TSQLListReader* listReader;
    TRowDrag* rowDrag;
    TAccessibleRows* accessibleRows = nullptr;
    QPointer<TFilterRowView> waitingView; // where listMenu stands
    int waitingValue = 0;
    TFilterRow* current = nullptr;             // none: the root
    const TFilterCond* valueMenuRow = nullptr; // only compared
    int valueMenuNumber = 1;
    int textHeight = 1;
    int buttonWidth = 0;
    int checkBoxWidth = 0;
    int widest = 0; // of the rows seen so far
    int maxPopupItemCount = 0;
    int rfeHelpContext = 0;
    QString helpFileName;
    QString dbStructName;
    QList<QIcon> images;
    bool titlesKnown = false;
    bool linesKnown = false;
    bool linesTold = true;   // to the accessible object
    bool viewsFresh = false; // every view shows its row as it is
    bool layoutPosted = false;
    bool redrawn = false; // the next layout draws all of it
    bool laying = false;
    bool dropping = false; // controls go, and the focus with them
};

Q_DECLARE_OPERATORS_FOR_FLAGS(TKQueryPanel::TOptions)

} // namespace tern7
