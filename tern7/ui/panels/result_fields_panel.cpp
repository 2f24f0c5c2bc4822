#include <tern7/ui/panels/result_fields_panel.h>

#include <unordered_map>
#include <utility>
#include <vector>

#include <QEvent>
#include <QScrollBar>

#include <tern7/core/corekit/source_text.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/query/row_text.h>
#include <tern7/core/titles/default_titles.h>
#include <tern7/ui/controls/popup_menu.h>
#include <tern7/ui/panels/column_drag.h>
#include <tern7/ui/panels/db_structure.h>
#include <tern7/ui/panels/query_editor.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/support/colors.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

TKResultFieldsPanel::TKResultFieldsPanel(QWidget* parent)
    : QScrollArea(parent), titles(DefaultResultFieldsPanelTitles(), {}),
      own(std::make_unique<TKQuery>()), ownEditor(std::make_unique<TKQueryEditor>(*own)),
      fields(&own->QResult().ResultFields()), canvas(new QWidget(this)),
      addLabel(new TDropDownLabel(canvas)), rowMenu(new TKPopupMenu(this)),
      drag(new TColumnDrag(*this)) {
    titleLines = DefaultResultFieldsPanelTitles();
    ownName = tr("Result fields");
    setAccessibleName(ownName);
    setFocusPolicy(Qt::ClickFocus); // no stop on the way, and begins that of its rows
    setWidget(canvas);
    canvas->setObjectName("canvas");
    addLabel->OnCustomDropDown = [this](TDropDownLabel*, QString&, bool& accept) {
        accept = false;
        AddRowLabelClick();
    };
    connect(&appearance, &TRFPAppearance::changed, this, &TKResultFieldsPanel::Refresh);
    own->AddView(this);
    MakeRowMenu();
    LayLater();
}

TKResultFieldsPanel::~TKResultFieldsPanel() {
    fields->Query()->RemoveView(this);
    own->RemoveView(this);
    rows.FreeAll();
}

// --- what is shown

TKCustomDBStructure* TKResultFieldsPanel::DBStruct() const {
    if (TKCustomDBStructure* structure = fields->DbStruct()) return structure;
    if (!own->DbStruct())
        if (auto* component = FindComponent<TKDBStructure>(*this, structName))
            own->SetDbStruct(&component->Structure());
    return own->DbStruct();
}

void TKResultFieldsPanel::SetDBStruct(TKCustomDBStructure* structure) {
    own->SetDbStruct(structure);
    LayLater();
}

void TKResultFieldsPanel::SetDBStructName(const QString& name) {
    if (name == structName) return;
    structName = name;
    SetDBStruct(nullptr);
}

void TKResultFieldsPanel::SetQueryPanelName(const QString& name) {
    if (name == queryPanelName) return;
    queryPanelName = name;
    SetResultFields(nullptr);
    LayLater();
}

TRFieldList& TKResultFieldsPanel::ResultFields() {
    FindQueryPanel();
    return *fields;
}

void TKResultFieldsPanel::FindQueryPanel() {
    if (queryPanelName.isEmpty() || fields->Query() != own.get()) return;
    if (auto* panel = FindComponent<TKQueryPanel>(*this, queryPanelName)) {
        panel->DbStruct(); // by name too
        SetResultFields(&panel->QResult().ResultFields());
    }
}

TKCustomDBStructure& TKResultFieldsPanel::RequireStruct() const {
    if (TKCustomDBStructure* structure = DBStruct()) return *structure;
    throw ERFPanelError(std::string(messages::NoStructure));
}

void TKResultFieldsPanel::SetResultFields(TRFieldList* list) {
    TRFieldList& wanted = list && list->Query() ? *list : own->QResult().ResultFields();
    if (&wanted == fields) return;
    CloseEditors();
    if (fields->Query() != own.get()) fields->Query()->RemoveView(this);
    fields = &wanted;
    fields->Query()->AddView(this);
    LayLater();
}

void TKResultFieldsPanel::QueryDestroyed() {
    rows.Clear();
    fields = &own->QResult().ResultFields();
    LayLater();
}

void TKResultFieldsPanel::SetTitles(TStrings lines) {
    titleLines = std::move(lines);
    titles = TKTitles(DefaultResultFieldsPanelTitles(), titleLines);
    MakeRowMenu();
    Refresh();
}

QByteArray TKResultFieldsPanel::TitlesText() const {
    return QByteArray::fromStdString(JoinStrings(titleLines, "\n"));
}

void TKResultFieldsPanel::SetTitlesText(const QByteArray& text) {
    SetTitles(SplitLines(text.toStdString()));
}

QString TKResultFieldsPanel::Title(std::string_view key) const {
    return ToQt(titles.Text(key));
}

bool TKResultFieldsPanel::EditTitles() {
    TStrings edited = titleLines;
    if (!Dialogs.editTitles || !Dialogs.editTitles(this, DefaultResultFieldsPanelTitles(), edited))
        return false;
    SetTitles(std::move(edited));
    return true;
}

// --- rows

/// Many changes of the list are shown at once, before anybody can see the panel.
void TKResultFieldsPanel::LayLater() {
    pending = true;
    if (std::exchange(posted, true)) return;
    const auto lay = [this] {
        posted = false;
        EnsureRows();
    };
    QMetaObject::invokeMethod(this, lay, Qt::QueuedConnection);
}

void TKResultFieldsPanel::Refresh() {
    LayLater();
    EnsureRows();
}

void TKResultFieldsPanel::EnsureRows() {
    FindQueryPanel();
    if (!pending || !fields->Query()->Active()) return;
    pending = false;
    const int focused = CurrentRow();
    const TPart part = FocusedPart(focused);
    const QPointer<TResultFieldRow> row = focused < 0 ? nullptr : rows[focused];
    MatchRows();
    RefreshTexts();
    PlaceAll();
    OrderControls();
    // a row that goes hands its focus to the one in its place
    if (focused >= 0 && !row) FocusRow(focused, part);
}

/// Columns that had a row keep it, with its focus and whatever is open there.
void TKResultFieldsPanel::MatchRows() {
    std::unordered_map<const TResultField*, std::unique_ptr<TResultFieldRow>> before;
    while (!rows.IsEmpty()) {
        std::unique_ptr<TResultFieldRow> row = rows.Erase(rows.GetCount() - 1);
        before.emplace(row->Field(), std::move(row));
    }
    if (!DBStruct()) return;
    for (const auto& column : *fields) {
        const auto found = before.find(column.get());
        rows.Add(found != before.end() ? std::move(found->second)
                                       : std::make_unique<TResultFieldRow>(*this, *column));
    }
}

void TKResultFieldsPanel::RefreshTexts() {
    TKRowTexts texts;
    texts.ShowGroupName = appearance.Has(TRFPAppearance::aoShowGroupName);
    for (int i = 0; i < rows.GetCount(); ++i)
        rows[i]->Refresh(texts, i + 1, rows.GetCount());
    const QString add = ToQt(PlainTitle(titles.Text("ttlClickToAdd")));
    addLabel->SetCaption("< " + add + " >");
    addLabel->setAccessibleName(add);
    addLabel->SetFontColor(
        ReadableColor(appearance.FieldColor(), ColorFromNumber(clBlue), palette()));
}

/// In the order of reading: for the Tab key, and for screen readers, which go by the order of the
/// canvas' children.
void TKResultFieldsPanel::OrderControls() {
    std::vector<QWidget*> wanted;
    for (const auto& row : rows)
        wanted.insert(wanted.end(), {row->Button(), row->FieldLabel(), row->SortLabel()});
    wanted.push_back(addLabel);
    size_t inOrder = 0;
    for (const QObject* child : canvas->children())
        if (inOrder < wanted.size() && child == wanted[inOrder]) ++inOrder;
    if (inOrder == wanted.size()) return;
    QWidget* last = this; // the rows come where the panel has its place
    for (QWidget* widget : wanted) {
        QWidget::setTabOrder(std::exchange(last, widget), widget);
        widget->raise();
    }
    for (const auto& row : rows) // what is open stays in front
        if (QWidget* editor =
                row->FieldLabel()->Dropped() ? row->FieldLabel()->EditControl() : nullptr)
            editor->raise();
}

const TResultFieldRows& TKResultFieldsPanel::Rows() {
    EnsureRows();
    return rows;
}

int TKResultFieldsPanel::CurrentRow() {
    EnsureRows();
    for (int i = 0; i < rows.GetCount(); ++i)
        if (rows[i]->HasFocus()) return i;
    return -1;
}

bool TKResultFieldsPanel::Holds(const TResultFieldRow& row) const {
    return fields->IndexOf(row.Field()) >= 0;
}

void TKResultFieldsPanel::CloseEditors() {
    for (int i = 0; i < rows.GetCount(); ++i)
        rows[i]->Close();
}

void TKResultFieldsPanel::Changed() {
    const QPointer<TKResultFieldsPanel> alive(this);
    OnChange(this);
    if (alive) emit changed();
}

// --- events of the widget

void TKResultFieldsPanel::changeEvent(QEvent* event) {
    QScrollArea::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::LayoutDirectionChange:
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
        LayLater();
        break;
    case QEvent::LanguageChange: {
        const bool isOwn = accessibleName() == ownName;
        ownName = tr("Result fields");
        if (isOwn) setAccessibleName(ownName);
        if (ownEditor) ownEditor->TranslateSteps();
        LayLater();
        break;
    }
    default:
        break;
    }
}

void TKResultFieldsPanel::showEvent(QShowEvent* event) {
    EnsureRows();
    QScrollArea::showEvent(event);
}

void TKResultFieldsPanel::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    FitCanvas();
}

} // namespace tern7
