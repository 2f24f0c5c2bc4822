#include <tern7/ui/panels/result_fields_panel.h>

#include <unordered_map>

#include <QEvent>
#include <QScrollBar>

#include <tern7/core/corekit/source_text.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/query/row_text.h>
#include <tern7/core/titles/default_titles.h>
#include <tern7/ui/controls/popup_menu.h>
#include <tern7/ui/panels/query_editor.h>
#include <tern7/ui/support/colors.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

TKResultFieldsPanel::TKResultFieldsPanel(QWidget* parent)
    : QScrollArea(parent), titles(DefaultResultFieldsPanelTitles(), {}),
      own(std::make_unique<TKQuery>()), ownEditor(std::make_unique<TKQueryEditor>(*own)),
      fields(&own->QResult().ResultFields()), canvas(new QWidget(this)),
      addLabel(new TDropDownLabel(canvas)), rowMenu(new TKPopupMenu(this)) {
    titleLines = DefaultResultFieldsPanelTitles();
    ownName = tr("Result fields");
    setAccessibleName(ownName);
    setFocusPolicy(Qt::NoFocus);
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
    TKCustomDBStructure* structure = fields->DbStruct();
    return structure ? structure : own->DbStruct();
}

void TKResultFieldsPanel::SetDBStruct(TKCustomDBStructure* structure) {
    own->SetDbStruct(structure);
    LayLater();
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
    if (pending) return;
    pending = true;
    QMetaObject::invokeMethod(this, &TKResultFieldsPanel::EnsureRows, Qt::QueuedConnection);
}

void TKResultFieldsPanel::Refresh() {
    LayLater();
    EnsureRows();
}

void TKResultFieldsPanel::EnsureRows() {
    if (!pending || !fields->Query()->Active()) return;
    pending = false;
    const int focused = CurrentRow();
    const TPart part = FocusedPart(focused);
    const QPointer<TResultFieldRow> row = focused < 0 ? nullptr : rows[focused];
    MatchRows();
    RefreshTexts();
    PlaceAll();
    OrderTabs();
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
        rows[i]->Refresh(texts, i + 1);
    const QString add = ToQt(PlainTitle(titles.Text("ttlClickToAdd")));
    addLabel->SetCaption("< " + add + " >");
    addLabel->setAccessibleName(add);
    addLabel->SetFontColor(
        ReadableColor(appearance.FieldColor(), ColorFromNumber(clBlue), palette()));
}

void TKResultFieldsPanel::OrderTabs() {
    QWidget* last = nullptr;
    const auto next = [&last](QWidget* widget) {
        if (last) setTabOrder(last, widget);
        last = widget;
    };
    for (const auto& row : rows) {
        next(row->Button());
        next(row->FieldLabel());
        next(row->SortLabel());
    }
    next(addLabel);
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
