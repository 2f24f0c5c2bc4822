#include <tern7/ui/panels/result_field_row.h>

#include <map>

#include <QKeyEvent>

#include <tern7/core/global/messages.h>
#include <tern7/core/query/row_text.h>
#include <tern7/core/structure/offered_fields.h>
#include <tern7/ui/controls/drop_down_list_box.h>
#include <tern7/ui/controls/editor_events.h>
#include <tern7/ui/panels/column_drag.h>
#include <tern7/ui/panels/result_fields_panel.h>
#include <tern7/ui/support/colors.h>
#include <tern7/ui/support/text.h>
#include <tern7/ui/support/tool_tip_text.h>

namespace tern7 {

namespace {

/// The texts of the offered fields. Where the group is not shown beside a field, or holds several
/// of that name, the field says its table too.
QStringList FieldItems(const std::vector<TOfferedField>& offered, bool groupsShown) {
    std::map<std::pair<std::string_view, std::string_view>, int> count;
    for (const TOfferedField& each : offered)
        ++count[{each.group, each.field->DisplayName()}];
    const TKRowTexts texts;
    QStringList items;
    for (const TOfferedField& each : offered) {
        const bool clear = groupsShown && !each.group.empty() &&
                           count[{each.group, each.field->DisplayName()}] == 1;
        items << ToQt(clear ? each.field->DisplayName() : texts.FieldText(*each.field));
    }
    return items;
}

bool IsPlain(const TResultField& column) {
    return column.Formula() == "@1" && column.GetDSFieldCount() == 1;
}

} // namespace

TResultFieldRow::TResultFieldRow(TKResultFieldsPanel& owner, TResultField& shown)
    : panel(owner), field(&shown) {
    panel.RequireStruct();
    MakeControls();
}

TResultFieldRow::~TResultFieldRow() {
    Close();
    DiscardEditor(button);
    DiscardEditor(fieldLabel);
    DiscardEditor(sortLabel);
}

void TResultFieldRow::MakeControls() {
    button = new TRFRowButton(panel.canvas);
    button->setContextMenuPolicy(Qt::CustomContextMenu);
    const auto showMenu = [this] { panel.RowButtonClick(*this, button); };
    connect(button, &QPushButton::clicked, this, showMenu);
    connect(button, &QWidget::customContextMenuRequested, this, showMenu);
    panel.drag->Watch(*button);
    MakeFieldLabel();
    MakeSortLabel();
}

void TResultFieldRow::MakeFieldLabel() {
    DiscardEditor(fieldLabel);
    if (panel.Appearance().Has(TRFPAppearance::aoPopupField))
        fieldLabel = new TDropDownPopup(panel.canvas);
    else
        fieldLabel = new TDropDownListBox(panel.canvas);
    filledStructure = nullptr;
    const QPointer<TResultFieldRow> alive(this);
    // the items are made when they are first asked for: there may be many rows and many fields
    fieldLabel->BeforeDropDown = [alive](TDropDownLabel*) {
        if (alive) alive->FillFields();
    };
    connect(fieldLabel, &TDropDownLabel::droppedUp, this, [this, alive](bool accepted) {
        if (accepted) FieldChosen();
        if (alive && panel.newRow == this) panel.newRow = nullptr;
    });
    connect(fieldLabel, &TDropDownLabel::rightClicked, this,
            [this] { panel.RowButtonClick(*this, fieldLabel); });
    connect(fieldLabel, &TDropDownLabel::altClicked, this, [this] { panel.EditRowLater(*this); });
    fieldLabel->installEventFilter(this);
}

/// Enter on a formula does not offer to replace it, as a click does, but leads to the formula.
bool TResultFieldRow::eventFilter(QObject* watched, QEvent* event) {
    if (watched != fieldLabel || event->type() != QEvent::KeyPress) return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    const bool plainKey = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (!enter || !plainKey || !panel.Holds(*this) || IsPlain(*field)) return false;
    panel.EditRowLater(*this);
    return true;
}

void TResultFieldRow::MakeSortLabel() {
    sortLabel = new TDropDownPopup(panel.canvas);
    connect(sortLabel, &TDropDownLabel::droppedUp, this, [this](bool accepted) {
        if (accepted) SortingChosen();
    });
    connect(sortLabel, &TDropDownLabel::rightClicked, this,
            [this] { panel.RowButtonClick(*this, sortLabel); });
}

void TResultFieldRow::FillFields() {
    const TKCustomDBStructure* structure = panel.DBStruct();
    if (!structure) return;
    if (filledStructure == structure && filledRevision == structure->Revision()) return;
    filledStructure = structure;
    filledRevision = structure->Revision();
    const std::vector<TOfferedField> offered = OfferedFields(*structure, TFieldUse::Result);
    const bool groupsShown = qobject_cast<TDropDownPopup*>(fieldLabel) != nullptr;
    const QStringList items = FieldItems(offered, groupsShown);
    const QString value = fieldLabel->Value(), caption = fieldLabel->Caption();
    fieldLabel->SetValue(QString()); // so that it is looked for anew
    fieldLabel->ClearAll();
    for (size_t i = 0; i < offered.size(); ++i)
        fieldLabel->AddItem(ToQt(offered[i].group), items[static_cast<qsizetype>(i)],
                            QString::number(offered[i].field->ID()));
    fieldLabel->SetValue(value);
    fieldLabel->SetCaption(caption);
}

void TResultFieldRow::FieldChosen() {
    bool known = false;
    const int id = fieldLabel->Value().toInt(&known);
    if (known) panel.RowFieldChosen(*this, id);
}

void TResultFieldRow::SortingChosen() {
    panel.RowSortingChosen(*this);
}

TSortingType TResultFieldRow::Sorting() const {
    return static_cast<TSortingType>(sortLabel->Value().toInt());
}

void TResultFieldRow::SetSorting(TSortingType sorting) {
    sortLabel->SetItemIndex(static_cast<int>(sorting));
}

bool TResultFieldRow::HasFocus() const {
    return button->hasFocus() || fieldLabel->hasFocus() || sortLabel->hasFocus() ||
           fieldLabel->Dropped() || sortLabel->Dropped();
}

void TResultFieldRow::Close() {
    const QPointer<TResultFieldRow> alive(this);
    if (fieldLabel) fieldLabel->DropUp(false);
    if (alive && sortLabel) sortLabel->DropUp(false);
}

// --- what is shown

void TResultFieldRow::Refresh(const TKRowTexts& texts, int number, int count) {
    const bool popup = panel.Appearance().Has(TRFPAppearance::aoPopupField);
    if (popup != (qobject_cast<TDropDownPopup*>(fieldLabel) != nullptr)) {
        const bool focused = fieldLabel->hasFocus();
        MakeFieldLabel();
        fieldLabel->show();
        if (focused) fieldLabel->setFocus();
    }
    ShowLook();
    ShowField(texts);
    const QStringList sortings = {panel.Title("ttlNotSorted"), panel.Title("ttlAscending"),
                                  panel.Title("ttlDescending")};
    if (sortLabel->Items() != sortings) {
        sortLabel->ClearAll();
        sortLabel->AddItems(QString(), sortings, {"0", "1", "2"});
    }
    SetSorting(field->Sorting());
    button->SetCaption(QString::number(number));
    const QString what = fieldLabel->Caption();
    button->setAccessibleName(
        TKResultFieldsPanel::tr("Column %1: %2, %3").arg(number).arg(what, sortLabel->Caption()));
    button->setAccessibleDescription(TKResultFieldsPanel::tr("%1 of %2").arg(number).arg(count));
    fieldLabel->setAccessibleName(TKResultFieldsPanel::tr("Column %1").arg(number));
    sortLabel->setAccessibleName(TKResultFieldsPanel::tr("Sorting of %1").arg(what));
}

/// A plain field shows its name; another formula its caption, with the expression as tool tip.
void TResultFieldRow::ShowField(const TKRowTexts& texts) {
    const TDSField* shown = IsPlain(*field) ? field->GetDSField(0) : nullptr;
    const QString caption = ToQt(field->Caption());
    const QString text = shown ? ToQt(texts.FieldText(*shown)) : caption;
    QString more;
    if (!shown)
        more = ToQt(field->GetExpression());
    else if (caption != ToQt(shown->DisplayName()) && caption != text)
        more = caption;
    const bool known = shown && !shown->IsPlaceholder();
    fieldLabel->SetValue(known ? QString::number(shown->ID()) : QString());
    fieldLabel->SetCaption(text);
    const QString hint = TKResultFieldsPanel::tr("Ctrl and a click: formula, function, caption");
    fieldLabel->setToolTip(ToolTipText(more.isEmpty() ? hint : more + '\n' + hint));
    fieldLabel->setAccessibleDescription(more);
}

void TResultFieldRow::ShowLook() {
    const TRFPAppearance& look = panel.Appearance();
    const QColor blue = ColorFromNumber(clBlue);
    fieldLabel->SetFontColor(ReadableColor(look.FieldColor(), blue, panel.palette()));
    sortLabel->SetFontColor(ReadableColor(look.SortColor(), blue, panel.palette()));
    button->SetFlat(look.Has(TRFPAppearance::aoFlatButtons));
    button->SetRoundCorners(look.Has(TRFPAppearance::aoRoundButtons));
}

} // namespace tern7
