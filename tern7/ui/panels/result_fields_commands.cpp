// What users do on a result fields panel, by mouse and by keys.

#include <algorithm>

#include <QKeyEvent>

#include <tern7/core/query/row_text.h>
#include <tern7/core/structure/offered_fields.h>
#include <tern7/ui/controls/popup_menu.h>
#include <tern7/ui/panels/result_fields_edit.h>
#include <tern7/ui/panels/result_fields_panel.h>
#include <tern7/ui/support/guarded.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

constexpr const char* addColumn = QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Add column");

/// What a column is called that shows this field.
std::string CaptionOf(const TDSField& field) {
    return TKRowTexts().FieldText(field);
}

} // namespace

/// Every change by the user goes through here. What continues a step of the name `last` is part of
/// it where it comes just behind.
void TKResultFieldsPanel::Edit(const char* name,
                               const std::function<void(TResultFieldsEdit&)>& step,
                               const char* last) {
    TResultFieldsEdit edit(*fields);
    const QPointer<TKResultFieldsPanel> alive(this);
    TKQuerySteps* steps = fields->Query()->Steps();
    if (last && steps)
        steps->ContinueStep(last, name, [&] { step(edit); });
    else
        fields->Query()->RunStep(name, [&] { step(edit); });
    if (!alive) return;
    EnsureRows();
    Changed();
}

void TKResultFieldsPanel::Replay(void (TKQuerySteps::*step)()) {
    TKQuerySteps* steps = fields->Query()->Steps();
    if (!steps) return;
    const QPointer<TKResultFieldsPanel> alive(this);
    (steps->*step)();
    if (!alive) return;
    EnsureRows();
    Changed();
}

// --- operations

void TKResultFieldsPanel::AddRow() {
    FindQueryPanel();
    InsertRow(fields->GetCount());
}

void TKResultFieldsPanel::InsertRow(int index) {
    const std::vector<TOfferedField> offered = OfferedFields(RequireStruct(), TFieldUse::Result);
    if (offered.empty()) return;
    TDSField& field = *offered.front().field;
    const QPointer<TKResultFieldsPanel> alive(this);
    Edit(addColumn, [&](TResultFieldsEdit& edit) { edit.Insert(index, field, CaptionOf(field)); });
    if (alive) FocusRow(index, TPart::Field);
}

void TKResultFieldsPanel::DuplicateRow(int index) {
    fields->GetItem(index);
    const TPart part = FocusedPart(index);
    const QPointer<TKResultFieldsPanel> alive(this);
    Edit(QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Duplicate column"),
         [&](TResultFieldsEdit& edit) { edit.Duplicate(index); });
    if (alive && part != TPart::None) FocusRow(index + 1, part);
}

void TKResultFieldsPanel::DeleteRow(int index) {
    Edit(QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Delete column"),
         [&](TResultFieldsEdit& edit) { edit.Delete(index); });
}

void TKResultFieldsPanel::MoveRow(int from, int to) {
    if (from == to) return;
    Edit(QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Move column"),
         [&](TResultFieldsEdit& edit) { edit.Move(from, to); });
}

void TKResultFieldsPanel::CopyRow(int from, int to) {
    Edit(QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Duplicate column"),
         [&](TResultFieldsEdit& edit) {
             edit.Duplicate(from);
             edit.Move(from + 1, to);
         });
}

void TKResultFieldsPanel::MoveRowUp(int index) {
    fields->GetItem(index);
    if (index > 0) MoveRow(index, index - 1);
}

void TKResultFieldsPanel::MoveRowDown(int index) {
    fields->GetItem(index);
    if (index + 1 < fields->GetCount()) MoveRow(index, index + 1);
}

void TKResultFieldsPanel::RefreshSortOrder() {
    Edit(QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Renumber sorting"),
         [](TResultFieldsEdit& edit) { edit.RefreshSortOrder(); });
}

void TKResultFieldsPanel::ClearAll() {
    if (fields->IsEmpty()) return;
    Edit(QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Clear columns"),
         [](TResultFieldsEdit& edit) { edit.Clear(); });
}

bool TKResultFieldsPanel::EditResultFields(const TStrings& editorTitles,
                                           const std::function<void()>& help) {
    FindQueryPanel();
    return EditFrom(-1, editorTitles, help);
}

bool TKResultFieldsPanel::EditRow(int index) {
    FindQueryPanel();
    fields->GetItem(index);
    return EditFrom(index, {}, {});
}

bool TKResultFieldsPanel::EditFrom(int row, const TStrings& editorTitles,
                                   const std::function<void()>& help) {
    RequireStruct();
    const TKDialogServices dialogs = Dialogs; // which may go with the panel
    if (!dialogs.editResultFields) return false;
    const QPointer<TKResultFieldsPanel> alive(this);
    const TRFieldList* const edited = fields;
    const TStrings texts = editorTitles.empty() ? fields->Query()->Titles : editorTitles;
    const bool begins = row >= 0 && dialogs.editResultField;
    const TResultFieldsChange change =
        begins ? dialogs.editResultField(this, *fields, row, texts, help)
               : dialogs.editResultFields(this, *fields, texts, help);
    if (!alive || !change || fields != edited) return false;
    Edit(QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Edit columns"),
         [&](TResultFieldsEdit&) { change(*fields); });
    return true;
}

// --- what rows tell

void TKResultFieldsPanel::RowFieldChosen(TResultFieldRow& row, int fieldID) {
    TDSField* field = RequireStruct().FieldByID(fieldID);
    if (!field || !Holds(row)) return;
    TResultField& column = *row.Field();
    const bool same =
        column.Formula() == "@1" && column.GetDSFieldCount() == 1 && column.GetDSField(0) == field;
    if (same) return LayLater(); // the caption may be that of the menu
    Edit(
        QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Choose field"),
        [&](TResultFieldsEdit& edit) { edit.Replace(column, *field, CaptionOf(*field)); },
        newRow == &row ? addColumn : nullptr);
}

void TKResultFieldsPanel::RowSortingChosen(TResultFieldRow& row) {
    if (!Holds(row) || row.Sorting() == row.Field()->Sorting()) return;
    Edit(QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Change sorting"),
         [&](TResultFieldsEdit& edit) { edit.SetSorting(*row.Field(), row.Sorting()); });
}

/// When the event of the row's label is over: the dialog may bring its end.
void TKResultFieldsPanel::EditRowLater(TResultFieldRow& row) {
    const auto edit = [this, edited = QPointer<TResultFieldRow>(&row)] {
        const int index = edited && Holds(*edited) ? Rows().IndexOf(edited.data()) : -1;
        if (index >= 0) Guarded(this, [this, index] { EditRow(index); });
    };
    QMetaObject::invokeMethod(this, edit, Qt::QueuedConnection);
}

/// The new row shows the first field until another one is chosen from its list, which opens at
/// once.
void TKResultFieldsPanel::AddRowLabelClick() {
    const QPointer<TKResultFieldsPanel> alive(this);
    const int before = ResultFields().GetCount();
    AddRow();
    if (!alive || Rows().GetCount() != before + 1) return;
    newRow = rows[before];
    rows[before]->FieldLabel()->DropDown();
}

// --- the row menu

void TKResultFieldsPanel::MakeRowMenu() {
    TMenuItem& items = rowMenu->Items();
    items.Clear();
    const auto add = [&](const char* key, void (TKResultFieldsPanel::*operation)(int)) {
        items.Add(Title(key)).OnClick = [this, operation](TMenuItem*) { MenuItemClick(operation); };
    };
    add("ttlDelField", &TKResultFieldsPanel::DeleteRow);
    add("ttlMoveUp", &TKResultFieldsPanel::MoveRowUp);
    add("ttlMoveDown", &TKResultFieldsPanel::MoveRowDown);
}

/// An item is enabled when it would do something.
void TKResultFieldsPanel::EnableMenuItems(int row) {
    TMenuItem& items = rowMenu->Items();
    items.Items(0).Enabled = row >= 0;
    items.Items(1).Enabled = row > 0;
    items.Items(2).Enabled = row >= 0 && row + 1 < rows.GetCount();
}

void TKResultFieldsPanel::RowButtonClick(TResultFieldRow& row, QWidget* below) {
    EnsureRows();
    menuRow = &row;
    EnableMenuItems(rows.IndexOf(&row));
    rowMenu->setLayoutDirection(layoutDirection());
    rowMenu->setAccessibleName(row.Button()->accessibleName());
    rowMenu->PopupAt(QRect(below->mapToGlobal(QPoint()), below->size()));
}

void TKResultFieldsPanel::MenuItemClick(void (TKResultFieldsPanel::*operation)(int)) {
    EnsureRows();
    const int row = menuRow && Holds(*menuRow) ? rows.IndexOf(menuRow) : -1;
    if (row >= 0) Guarded(this, [&] { (this->*operation)(row); });
}

// --- focus and keys

TKResultFieldsPanel::TPart TKResultFieldsPanel::FocusedPart(int index) {
    EnsureRows();
    if (index < 0 || index >= rows.GetCount()) return TPart::None;
    const TResultFieldRow& row = *rows[index];
    if (row.Button()->hasFocus()) return TPart::Button;
    if (row.FieldLabel()->hasFocus() || row.FieldLabel()->Dropped()) return TPart::Field;
    return row.HasFocus() ? TPart::Sorting : TPart::None;
}

/// The key of a label that belongs to the panel leads to its first row.
void TKResultFieldsPanel::focusInEvent(QFocusEvent* event) {
    QScrollArea::focusInEvent(event);
    if (event->reason() == Qt::ShortcutFocusReason) FocusRow(0, TPart::Field);
}

/// The last row, else the add label, stands in for a row that there is not.
void TKResultFieldsPanel::FocusRow(int index, TPart part) {
    EnsureRows();
    index = std::min(index, rows.GetCount() - 1);
    QWidget* target = addLabel;
    if (index >= 0) {
        const TResultFieldRow& row = *rows[index];
        target = part == TPart::Button  ? static_cast<QWidget*>(row.Button())
                 : part == TPart::Field ? row.FieldLabel()
                                        : static_cast<QWidget*>(row.SortLabel());
    }
    target->setFocus(Qt::OtherFocusReason);
    ensureWidgetVisible(target, appearance.ElemSpace(), appearance.RowSpace());
}

bool TKResultFieldsPanel::RowKey(int key, Qt::KeyboardModifiers modifiers) {
    if (key == Qt::Key_Z && modifiers == Qt::ControlModifier) return Undo(), true;
    if (key == Qt::Key_Z && modifiers == (Qt::ControlModifier | Qt::ShiftModifier))
        return Redo(), true;
    int row = CurrentRow();
    if (row >= 0 && !Holds(*rows[row])) row = -1;
    if (modifiers == Qt::NoModifier && key == Qt::Key_Insert)
        InsertRow(row < 0 ? fields->GetCount() : row + 1);
    else if (row < 0)
        return false;
    else if (modifiers == Qt::NoModifier && key == Qt::Key_Delete)
        DeleteRow(row);
    else if (modifiers == Qt::ControlModifier && key == Qt::Key_D)
        DuplicateRow(row);
    else if (modifiers == Qt::ControlModifier && key == Qt::Key_Up)
        MoveRowUp(row);
    else if (modifiers == Qt::ControlModifier && key == Qt::Key_Down)
        MoveRowDown(row);
    else
        return false;
    return true;
}

void TKResultFieldsPanel::keyPressEvent(QKeyEvent* event) {
    bool taken = false;
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const int key = event->key();
    const QPointer<TKResultFieldsPanel> alive(this);
    Guarded(this, [&] { taken = RowKey(key, modifiers); });
    if (alive && !taken) QScrollArea::keyPressEvent(event);
}

} // namespace tern7
