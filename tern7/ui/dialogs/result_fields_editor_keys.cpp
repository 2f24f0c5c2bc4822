// The keys of the result fields editor. Some go to a part of it, some work wherever the focus is:
//
//     search, fields   Enter makes a column; in the tree + - * / join the field
//     grid of columns  Enter edits, Insert, Delete, Ctrl+Up and Ctrl+Down move
//     sorted columns   Enter chooses the direction, Delete, Ctrl+Up and Ctrl+Down move
//     function         Enter goes on to the grid
//     everywhere       Ctrl with + - * / joins, Ctrl+S sorts, Ctrl+Enter is OK

#include <QAbstractButton>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableView>
#include <QToolButton>
#include <QTreeWidget>

#include <tern7/ui/dialogs/result_fields_editor.h>

namespace tern7 {

namespace {

bool IsEnter(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// '\0' for other keys.
char OperationOf(int key) {
    switch (key) {
    case Qt::Key_Plus:
        return '+';
    case Qt::Key_Minus:
        return '-';
    case Qt::Key_Asterisk:
    case Qt::Key_multiply:
        return '*';
    case Qt::Key_Slash:
    case Qt::Key_division:
        return '/';
    default:
        return '\0';
    }
}

/// Shift only leads to the sign, where the keyboard has it there.
Qt::KeyboardModifiers SignModifiers(const QKeyEvent& event) {
    return event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
}

} // namespace

/// Of a group the tree itself takes + - and *: they open and close it.
bool T_dlgRFieldsEdit::FieldsKey(const QWidget& part, const QKeyEvent& event) {
    QLineEdit* search = fields->SearchField();
    if (&part == search && event.key() == Qt::Key_Escape && !search->text().isEmpty()) {
        search->clear();
        return true;
    }
    const char operation = OperationOf(event.key());
    if (&part == search || !operation || SignModifiers(event) || !fields->IsAtField()) return false;
    if (joins.front()->isEnabled()) Join(operation);
    return true;
}

bool T_dlgRFieldsEdit::ColumnsKey(int key, Qt::KeyboardModifiers modifiers) {
    const bool plain = modifiers == Qt::NoModifier, control = modifiers == Qt::ControlModifier;
    if (plain && key == Qt::Key_Insert)
        NewColumn();
    else if (plain && key == Qt::Key_Delete)
        DeleteColumn();
    else if (control && (key == Qt::Key_Up || key == Qt::Key_Down))
        MoveColumn(key == Qt::Key_Up ? -1 : 1);
    else if (plain && IsEnter(key))
        columnsView->edit(columnsView->currentIndex());
    else
        return false;
    return true;
}

bool T_dlgRFieldsEdit::SortedKey(int key, Qt::KeyboardModifiers modifiers) {
    const bool plain = modifiers == Qt::NoModifier, control = modifiers == Qt::ControlModifier;
    if (plain && key == Qt::Key_Delete)
        Unsort();
    else if (control && (key == Qt::Key_Up || key == Qt::Key_Down))
        MoveSorted(key == Qt::Key_Up ? -1 : 1);
    else if (plain && IsEnter(key))
        sortedView->edit(sorted->index(CurrentSorted(), TSortedColumnsModel::Sorting));
    else
        return false;
    return true;
}

bool T_dlgRFieldsEdit::DialogKey(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const char operation = OperationOf(event.key());
    if (operation && SignModifiers(event) == Qt::ControlModifier) {
        if (joins.front()->isEnabled()) Join(operation);
        return true;
    }
    if (modifiers != Qt::ControlModifier) return false;
    if (IsEnter(event.key())) return accept(), true;
    if (event.key() != Qt::Key_S) return false;
    EndEditing();
    SortColumn();
    if (CurrentSorted() >= 0) sortedView->setFocus(); // where Enter changes the direction
    return true;
}

bool T_dlgRFieldsEdit::eventFilter(QObject* watched, QEvent* event) {
    // a key that an open editor has not taken comes by here too
    const auto* part = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::KeyPress || !part || !part->hasFocus())
        return QDialog::eventFilter(watched, event);
    const auto& key = *static_cast<QKeyEvent*>(event);
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
    const bool inFields = part == fields->SearchField() || part == fields->Tree();
    if (inFields && FieldsKey(*part, key)) return true;
    if (part == columnsView && ColumnsKey(key.key(), modifiers)) return true;
    if (part == sortedView && SortedKey(key.key(), modifiers)) return true;
    if (part == function && modifiers == Qt::NoModifier && IsEnter(key.key())) {
        columnsView->setFocus();
        return true;
    }
    return DialogKey(key) || QDialog::eventFilter(watched, event);
}

/// Enter in a field or list is not yet OK.
void T_dlgRFieldsEdit::keyPressEvent(QKeyEvent* event) {
    const bool onButton = qobject_cast<QAbstractButton*>(focusWidget()) != nullptr;
    if (DialogKey(*event) || (IsEnter(event->key()) && !onButton)) return;
    QDialog::keyPressEvent(event);
}

} // namespace tern7
