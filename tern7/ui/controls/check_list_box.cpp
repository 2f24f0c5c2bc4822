#include <tern7/ui/controls/check_list_box.h>

#include <QKeyEvent>
#include <QMouseEvent>

#include <tern7/ui/support/colors.h>
#include <tern7/ui/support/guarded.h>

namespace tern7 {

TKCheckListBox::TKCheckListBox(QWidget* parent) : QListView(parent) {
    itemModel.SetCheckable(true);
    setModel(&itemModel);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    ApplySelectionMode();
    connect(&itemModel, &TItemListModel::checkChanged, this, &TKCheckListBox::checkChanged);
}

void TKCheckListBox::SetExtendedSelect(bool on) {
    extendedSelect = on;
    ApplySelectionMode();
}

void TKCheckListBox::SetMultiSelect(bool on) {
    multiSelect = on;
    ApplySelectionMode();
}

void TKCheckListBox::ApplySelectionMode() {
    setSelectionMode(!multiSelect     ? SingleSelection
                     : extendedSelect ? ExtendedSelection
                                      : MultiSelection);
}

/// All selected rows take the mark that the given one gets.
void TKCheckListBox::Toggle(const QModelIndex& index) {
    if (!index.isValid()) return;
    const bool on = !itemModel.Checked(itemModel.ItemOf(index.row()));
    QModelIndexList changed = selectionModel()->selectedIndexes();
    if (!changed.contains(index)) changed = {index};
    const QPointer<TKCheckListBox> alive(this);
    for (const QModelIndex& row : changed)
        if (alive) itemModel.SetChecked(itemModel.ItemOf(row.row()), on);
    if (alive) OnClickCheck(this);
}

/// Styles draw the frame of a check mark darker than the window; on dark ground nobody sees it.
void TKCheckListBox::initViewItemOption(QStyleOptionViewItem* option) const {
    QListView::initViewItemOption(option);
    if (IsDark(option->palette))
        option->palette.setColor(QPalette::Window, option->palette.color(QPalette::Text));
}

void TKCheckListBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space || event->modifiers() != Qt::NoModifier)
        return QListView::keyPressEvent(event);
    event->accept();
    Guarded(this, [this] { Toggle(currentIndex()); });
}

// The base class would switch the mark when the small box itself is hit, too: it only selects here.
void TKCheckListBox::mousePressEvent(QMouseEvent* event) {
    event->accept();
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !index.isValid()) return;
    const bool selecting =
        multiSelect && (event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier));
    selectionModel()->setCurrentIndex(index, selectionCommand(index, event));
    if (!selecting) Guarded(this, [&] { Toggle(index); });
}

void TKCheckListBox::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
}

void TKCheckListBox::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

} // namespace tern7
