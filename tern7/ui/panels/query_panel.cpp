#include <tern7/ui/panels/query_panel.h>

#include <QApplication>
#include <QStyle>

#include <tern7/core/query/row_guard.h>
#include <tern7/ui/controls/drop_down_label.h>
#include <tern7/ui/controls/popup_menu.h>
#include <tern7/ui/panels/accessible_panel.h>
#include <tern7/ui/panels/filter_row_view.h>
#include <tern7/ui/panels/row_drag.h>
#include <tern7/ui/panels/sql_list_reader.h>
#include <tern7/ui/support/guarded.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

TKQueryPanel::TKQueryPanel(QWidget* parent) : TKQueryPanel(std::make_unique<TKQuery>(), parent) {}

TKQueryPanel::TKQueryPanel(std::unique_ptr<TKQuery> shownQuery, QWidget* parent)
    : QAbstractScrollArea(parent), OnBuildSQL(shownQuery->OnBuildSQL),
      OnSetValue(shownQuery->OnSetValue), OnChangeValue(shownQuery->OnChangeValue),
      OnCustomEdit(shownQuery->OnCustomEdit), OnCustomValue(shownQuery->OnCustomValue),
      OnValueDblClick(shownQuery->OnValueDblClick), query(std::move(shownQuery)),
      editor(std::make_shared<TKQueryEditor>(*query)), baseLink(*query),
      appearance(new TQPAppearance(this)), addRowLabel(new TDropDownLabel(viewport())),
      addMenu(new TKPopupMenu(this)), rowMenu(new TKPopupMenu(this)),
      valueMenu(new TKPopupMenu(this)), listMenu(new TKPopupMenu(this)),
      listReader(new TSQLListReader([this] { return DbStruct(); }, this)),
      rowDrag(new TRowDrag(*this)) {
    Init();
}

void TKQueryPanel::Init() {
    InstallAccessiblePanel();
    viewport()->setBackgroundRole(QPalette::Window);
    viewport()->setAutoFillBackground(true);
    setFocusPolicy(Qt::StrongFocus);
    addRowLabel->hide();
    connect(addRowLabel, &TDropDownLabel::clicked, this,
            [this] { Guarded(this, [this] { AddRowClicked(); }); });
    connect(addRowLabel, &TDropDownLabel::rightClicked, this,
            [this] { PopupAddMenu(QCursor::pos()); });
    connect(appearance, &TQPAppearance::changed, this, [this] { RefreshPanel(); });
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { FocusChanged(now); });
    connect(listReader, &TSQLListReader::finished, this,
            [this] { Guarded(this, [this] { ListFinished(); }); });
    const TKCustomDBStructure* structure = query->DbStruct();
    const bool ofStructure = structure && structure->Services.editSubQuery;
    // that of a nested query is the panel's around it
    if (query->Outer() && !ofStructure) query->Services.editSubQuery = nullptr;
    FillServices();
    query->AddView(this);
    HookEvents();
    ReadTitles();
    MeasureLine();
    Invalidate();
}

/// Those events whose sender is the panel, and those that are signals too.
void TKQueryPanel::HookEvents() {
    query->OnActive = [this](TKQuery&) {
        const QPointer<TKQueryPanel> alive(this);
        OnActive(*this);
        if (alive) emit activated();
    };
    query->OnChange = [this](TKQuery&) {
        const QPointer<TKQueryPanel> alive(this);
        OnChange(*this);
        if (alive) emit changed();
    };
    query->OnParamListChange = [this](TKQuery&) {
        const QPointer<TKQueryPanel> alive(this);
        OnParamListChange(*this);
        if (alive) emit paramListChanged();
    };
    query->OnConditionChange = [this](TFilterCond& condition, int whatChanged) {
        const QPointer<TKQueryPanel> alive(this);
        const TRowGuard guard(condition);
        OnConditionChange(condition, whatChanged);
        if (alive && guard.Row()) emit conditionChanged(&condition, whatChanged);
    };
}

TKQueryPanel::~TKQueryPanel() {
    disconnect(qApp, nullptr, this, nullptr);
    query->RemoveView(this);
    // whoever still works with the query does not call a panel that is gone
    query->OnActive = query->OnChange = query->OnParamListChange = nullptr;
    query->OnConditionChange = nullptr;
    views.clear();
}

void TKQueryPanel::QueryDestroyed() {
    lines.Clear();
    current = nullptr;
}

bool TKQueryPanel::Do(const std::function<void(TKQueryEditor& editor)>& change) {
    const QPointer<TKQueryPanel> alive(this);
    const std::shared_ptr<TKQuery> holdsQuery = query;
    const std::shared_ptr<TKQueryEditor> holdsEditor = editor;
    Guarded(this, [&] { change(*holdsEditor); });
    return alive;
}

// --- rows

TFilterRow& TKQueryPanel::CurrentRow() const {
    return current ? *current : query->Root();
}

TFilterBracket& TKQueryPanel::CurrentBracket() const {
    TFilterRow& row = CurrentRow();
    return row.IsBracket() ? *row.AsBracket() : *row.Parent();
}

void TKQueryPanel::SetCurrentRow(TFilterRow& row) {
    TFilterRow* wanted = row.Parent() ? &row : nullptr;
    if (wanted == current) return;
    current = wanted;
    viewport()->update();
    TellCurrentRow();
}

/// Later: whoever made the row current goes on with it.
void TKQueryPanel::TellCurrentRow() {
    QMetaObject::invokeMethod(this, &TKQueryPanel::currentRowChanged, Qt::QueuedConnection);
}

void TKQueryPanel::FocusRow(TFilterRow& row, int control) {
    TFilterRowView* view = RowView(row);
    if (!view) return;
    SetCurrentRow(row);
    if (control < 0 || !view->FocusControl(control)) view->FirstCurControl();
}

/// The row that has the focus becomes the current one and comes into sight.
void TKQueryPanel::FocusChanged(QWidget* now) {
    if (dropping || !now || !isAncestorOf(now)) return;
    const TFilterRowView* view = ViewOf(now);
    if (!view) return;
    SetCurrentRow(view->Row());
    ScrollToControl(*now);
}

void TKQueryPanel::PassFocus(QWidget& control) {
    const bool before = std::exchange(dropping, true);
    control.setFocus(Qt::OtherFocusReason);
    dropping = before;
}

// --- commands

TFilterCond* TKQueryPanel::InsertCondition() {
    TFilterBracket& parent = CurrentBracket();
    const int index = parent.IndexForNewRow(&CurrentRow());
    TFilterCond* added = nullptr;
    if (!Do([&](TKQueryEditor& e) { added = e.AddCondition(parent, index); }) || !added)
        return nullptr;
    FocusRow(*added);
    return added;
}

TFilterBracket* TKQueryPanel::InsertBracket() {
    TFilterBracket& parent = CurrentBracket();
    const int index = parent.IndexForNewRow(&CurrentRow());
    TFilterBracket* added = nullptr;
    if (!Do([&](TKQueryEditor& e) { added = e.AddBracket(parent, index); }) || !added)
        return nullptr;
    TFilterCond* first = added->GetFirstCondition();
    FocusRow(Lines().LineOf(*added) < 0 && first ? static_cast<TFilterRow&>(*first) : *added);
    return added;
}

void TKQueryPanel::DeleteRow(TFilterRow& row) {
    TFilterRow* next = nullptr;
    if (Do([&](TKQueryEditor& e) { next = e.Delete(row); })) FocusAfterDelete(next);
}

void TKQueryPanel::FocusAfterDelete(TFilterRow* next) {
    if (next)
        FocusRow(*next);
    else if (addRowLabel->isVisible())
        addRowLabel->setFocus();
    else
        setFocus();
}

/// The add-row label adds to the outermost bracket, whatever the current row is.
void TKQueryPanel::AddRowClicked() {
    SetCurrentRow(query->Root());
    if (TFilterCond* added = InsertCondition()) OpenFieldMenu(*added);
}

void TKQueryPanel::OpenFieldMenu(TFilterCond& condition) {
    TFilterRowView* view = RowView(condition);
    TDropDownLabel* label = view ? view->Label(TRowLabelKind::rlField) : nullptr;
    if (label && label->isVisible()) label->DropDown();
}

} // namespace tern7
