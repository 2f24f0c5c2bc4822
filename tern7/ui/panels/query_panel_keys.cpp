// The panel's keys. They come from the control that has the focus; an open editor keeps its own.

#include <algorithm>

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QMimeData>

#include <tern7/core/query/panel_menus.h>
#include <tern7/ui/panels/filter_row_view.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/panels/row_drag.h>
#include <tern7/ui/support/guarded.h>

namespace tern7 {

namespace {

using TCommand = void (*)(TKQueryPanel& panel);

struct TKey {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    TCommand command;
    const char* name; // as steps are called
};

const TKey panelKeys[] = {
    {Qt::Key_Insert, Qt::NoModifier, [](TKQueryPanel& panel) { panel.InsertCondition(); },
     QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Add condition")},
    {Qt::Key_Insert, Qt::ShiftModifier, [](TKQueryPanel& panel) { panel.InsertBracket(); },
     QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Add bracket")},
    {Qt::Key_Delete, Qt::NoModifier, [](TKQueryPanel& panel) { panel.DeleteCurrentRow(); },
     QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Delete row")},
    {Qt::Key_Space, Qt::ControlModifier, [](TKQueryPanel& panel) { panel.SwitchCurrentRow(); },
     QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Switch row on or off")},
    {Qt::Key_Up, Qt::ControlModifier, [](TKQueryPanel& panel) { panel.MoveCurrentRowUp(); },
     QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Move up")},
    {Qt::Key_Down, Qt::ControlModifier, [](TKQueryPanel& panel) { panel.MoveCurrentRowDown(); },
     QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Move down")},
    {Qt::Key_D, Qt::ControlModifier, [](TKQueryPanel& panel) { panel.DuplicateCurrentRow(); },
     QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Duplicate")},
    {Qt::Key_Z, Qt::ControlModifier, [](TKQueryPanel& panel) { panel.Undo(); },
     QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Undo")},
    {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier, [](TKQueryPanel& panel) { panel.Redo(); },
     QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Redo")},
    {Qt::Key_X, Qt::ControlModifier, [](TKQueryPanel& panel) { panel.CutCurrentRow(); },
     QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Cut")},
    {Qt::Key_C, Qt::ControlModifier, [](TKQueryPanel& panel) { panel.CopyCurrentRow(); },
     QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Copy")},
    {Qt::Key_V, Qt::ControlModifier, [](TKQueryPanel& panel) { panel.PasteRows(); },
     QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Paste")},
    {Qt::Key_F10, Qt::ShiftModifier, [](TKQueryPanel& panel) { panel.PopupCurrentRowMenu(); },
     QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Row menu")},
};

TCommand CommandOf(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    for (const TKey& known : panelKeys)
        if (known.key == event.key() && known.modifiers == modifiers) return known.command;
    return nullptr;
}

} // namespace

std::vector<std::pair<QKeySequence, QString>> TKQueryPanel::Keys() {
    std::vector<std::pair<QKeySequence, QString>> list;
    for (const TKey& known : panelKeys)
        list.emplace_back(QKeySequence(QKeyCombination(known.modifiers, known.key)),
                          QCoreApplication::translate("tern7::TKQueryEditor", known.name));
    return list;
}

bool TKQueryPanel::TakesKey(const QKeyEvent& event) const {
    const bool editing = std::any_of(views.begin(), views.end(),
                                     [](const auto& known) { return known.second->HasEditor(); });
    return appearance->Has(TQPAppearance::aoAllowKeyboard) && CommandOf(event) && !editing &&
           !rowDrag->Row();
}

void TKQueryPanel::keyPressEvent(QKeyEvent* event) {
    if (!TakesKey(*event)) return QAbstractScrollArea::keyPressEvent(event);
    event->accept();
    Guarded(this, [&] { CommandOf (*event)(*this); });
}

void TKQueryPanel::hideEvent(QHideEvent* event) {
    rowDrag->Cancel();
    QAbstractScrollArea::hideEvent(event);
}

// --- commands

void TKQueryPanel::DeleteCurrentRow() {
    if (current) DeleteRow(*current);
}

void TKQueryPanel::SwitchCurrentRow() {
    if (current) MenuItemClick(pcEnableDisable);
}

/// Runs a change of the current row that makes its controls anew, and gives the focus back.
void TKQueryPanel::ChangeCurrentRow(bool (TKQueryEditor::*change)(TFilterRow&)) {
    if (!current) return;
    TFilterRow& row = *current;
    const TFilterRowView* view = ExistingView(row);
    const int control = view ? view->GetControlIndex(view->GetCurrentControl()) : -1;
    bool changed = false;
    if (!Do([&](TKQueryEditor& e) { changed = (e.*change)(row); }) || !changed) return;
    FocusRow(row, control);
}

void TKQueryPanel::MoveCurrentRowUp() {
    ChangeCurrentRow(&TKQueryEditor::MoveUp);
}

void TKQueryPanel::MoveCurrentRowDown() {
    ChangeCurrentRow(&TKQueryEditor::MoveDown);
}

void TKQueryPanel::DuplicateCurrentRow() {
    if (!current) return;
    TFilterRow* copy = nullptr;
    if (Do([&](TKQueryEditor& e) { copy = e.Duplicate(*current); }) && copy) FocusRow(*copy);
}

void TKQueryPanel::Undo() {
    Replay(&TKQueryEditor::Undo);
}

void TKQueryPanel::Redo() {
    Replay(&TKQueryEditor::Redo);
}

void TKQueryPanel::Replay(void (TKQueryEditor::*step)()) {
    CloseEdit(false);
    const bool focused = hasFocus() || isAncestorOf(QApplication::focusWidget());
    const int steps = editor->Stack().index();
    if (!Do([&](TKQueryEditor& e) { (e.*step)(); }) || editor->Stack().index() == steps) return;
    TFilterRow* row = editor->ReplayedRow();
    if (row && Lines().LineOf(*row) < 0 && row->IsBracket())
        row = row->AsBracket()->GetFirstCondition();
    if (focused && (row || !isAncestorOf(QApplication::focusWidget()))) FocusAfterDelete(row);
}

void TKQueryPanel::CopyCurrentRow() {
    QApplication::clipboard()->setMimeData(editor->Copy({&CurrentRow()}).release());
}

void TKQueryPanel::CutCurrentRow() {
    if (!current) return;
    TFilterRow* next = nullptr;
    const bool alive = Do([&](TKQueryEditor& e) {
        QApplication::clipboard()->setMimeData(e.Cut(*current, &next).release());
    });
    if (alive) FocusAfterDelete(next);
}

void TKQueryPanel::PasteRows() {
    const QMimeData* rows = QApplication::clipboard()->mimeData();
    if (!TKQueryEditor::CanPaste(rows)) return;
    TFilterBracket& parent = CurrentBracket();
    const int index = parent.IndexForNewRow(&CurrentRow());
    std::vector<TFilterRow*> pasted;
    if (Do([&](TKQueryEditor& e) { pasted = e.Paste(parent, index, *rows); }) && !pasted.empty())
        FocusRow(*pasted.back());
}

void TKQueryPanel::PopupCurrentRowMenu() {
    const int line = Lines().LineOf(CurrentRow());
    if (line < 0) return;
    ScrollToLine(line);
    const QRect place = LineRect(line);
    PopupRowMenu(CurrentRow(), {viewport()->mapToGlobal(place.topLeft()), place.size()});
}

} // namespace tern7
