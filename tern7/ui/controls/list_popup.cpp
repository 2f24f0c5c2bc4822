#include <tern7/ui/controls/list_popup.h>

#include <algorithm>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <tern7/ui/controls/item_list_model.h>
#include <tern7/ui/controls/popup_place.h>
#include <tern7/ui/controls/text_search.h>
#include <tern7/ui/support/guarded.h>

namespace tern7 {

namespace {

constexpr int mostRows = 12;

/// Rows with some air, as in menus.
class TListRows : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 4);
    }
};

} // namespace

TListPopup::TListPopup(QListView& listView, TItemListModel& listModel, QWidget* parent)
    : QFrame(parent, Qt::Popup), list(listView), model(listModel), search(new QLineEdit(this)) {
    setAttribute(Qt::WA_WindowPropagation);
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    list.setParent(this);
    list.setItemDelegate(new TListRows(&list));
    list.setFrameStyle(QFrame::NoFrame);
    list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list.setTextElideMode(Qt::ElideRight);
    search->setPlaceholderText(tr("Search"));
    search->setAccessibleName(tr("Search"));
    search->setClearButtonEnabled(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(1, 1, 1, 1);
    column->setSpacing(0);
    column->setSizeConstraint(QLayout::SetNoConstraint); // three rows are as high as three rows
    column->addWidget(search);
    column->addWidget(&list);
    search->installEventFilter(this);
    list.installEventFilter(this);
    list.viewport()->installEventFilter(this);
    connect(search, &QLineEdit::textChanged, this, &TListPopup::SearchFor);
}

void TListPopup::Open(const QRect& at, int width, int rowHeight) {
    anchor = at;
    chosen = false;
    const bool isLong = model.Items().size() >= searchFrom;
    search->setVisible(isLong);
    {
        const QSignalBlocker quiet(search);
        search->clear();
    }
    Place(width, rowHeight);
    // Typing begins a search at once where there is one; otherwise the list looks for first
    // letters.
    if (isLong && !model.Checkable())
        search->setFocus();
    else
        list.setFocus();
    open = true;
    show();
    list.scrollTo(list.currentIndex(), QAbstractItemView::PositionAtCenter);
}

void TListPopup::Place(int width, int rowHeight) {
    const QRect room = ScreenRoom(*this, anchor.topLeft());
    const int rows = std::clamp(static_cast<int>(model.Items().size()), 1, mostRows);
    const int above = search->isHidden() ? 0 : search->sizeHint().height();
    const QSize size(std::min(width, room.width()),
                     std::min(rows * rowHeight + above + 2 * frameWidth() + 2, room.height()));
    const bool fromRight = layoutDirection() == Qt::RightToLeft;
    setGeometry(MovedInto(room, PlaceBelow(anchor, size, room, fromRight), size));
}

QModelIndex TListPopup::SelectedRow() const {
    const QModelIndex current = list.currentIndex();
    return list.selectionModel()->isSelected(current) ? current : QModelIndex();
}

void TListPopup::SelectRow(int row) {
    if (row < 0 || row >= model.rowCount()) return;
    list.setCurrentIndex(model.index(row));
}

/// The first hit is shown as selected, but only Enter, an arrow key or a click choose.
void TListPopup::SearchFor(const QString& typed) {
    const QVariant item = list.currentIndex().data(TItemListModel::itemIndexRole);
    model.Search(typed);
    chosen = false;
    SelectRow(TTextSearch(typed).IsEmpty() && item.isValid() ? model.RowOf(item.toInt()) : 0);
}

bool TListPopup::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && (watched == search || watched == &list))
        return KeyPressed(*static_cast<QKeyEvent*>(event), watched == search);
    if (event->type() == QEvent::MouseButtonPress && watched == list.viewport() && OnMouseDown) {
        const auto& mouse = *static_cast<QMouseEvent*>(event);
        const QModelIndex hit = list.indexAt(mouse.position().toPoint());
        if (mouse.button() != Qt::LeftButton || !hit.isValid()) return true;
        list.setCurrentIndex(hit);
        chosen = true;
        Leave(OnMouseDown);
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

bool TListPopup::KeyPressed(QKeyEvent& event, bool inSearch) {
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Enter();
        return true;
    case Qt::Key_Escape:
        Leave(OnEscape);
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        Leave(OnExit);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        chosen = true;
        if (!SelectedRow().isValid()) {
            // Qt makes the first row current without selecting it: there the keys begin.
            SelectRow(0);
            return true;
        }
        if (!inSearch) return false;
        list.setFocus();
        QCoreApplication::sendEvent(&list, &event);
        return true;
    case Qt::Key_Home:
    case Qt::Key_End:
        if (inSearch) return false;
        chosen = true;
        if (SelectedRow().isValid()) return false;
        SelectRow(event.key() == Qt::Key_Home ? 0 : model.rowCount() - 1);
        return true;
    default:
        break;
    }
    if (inSearch) return false;
    const QString text = event.text();
    const bool types = !text.isEmpty() && text[0].isPrint() && event.key() != Qt::Key_Space;
    if (!types || search->isHidden()) {
        if (types) chosen = true;
        return false;
    }
    search->setFocus();
    QCoreApplication::sendEvent(search, &event);
    return true;
}

/// In a check list that is searched, Enter checks the hit and the search begins anew. A search that
/// found nothing stays.
void TListPopup::Enter() {
    if (model.rowCount() == 0 && !search->text().isEmpty()) return;
    if (model.Checkable() && !search->text().isEmpty()) {
        const QVariant item = list.currentIndex().data(TItemListModel::itemIndexRole);
        if (item.isValid()) model.SetChecked(item.toInt(), true);
        search->clear();
        return;
    }
    chosen = true;
    Leave(OnEnter);
}

/// Says once how the list was left.
void TListPopup::Leave(const std::function<void()>& how) {
    if (!open) return;
    open = false;
    const std::function<void()> call = how;
    if (call) Guarded(this, call);
}

/// A press beside the window closes it; on the label that opened it, it means nothing else.
void TListPopup::mousePressEvent(QMouseEvent* event) {
    event->accept();
    if (rect().contains(event->position().toPoint())) return;
    const bool onLabel = anchor.contains(event->globalPosition().toPoint());
    setAttribute(Qt::WA_NoMouseReplay, onLabel);
    Leave(onLabel ? OnEscape : OnExit);
}

/// Something else took the window away.
void TListPopup::hideEvent(QHideEvent* event) {
    QFrame::hideEvent(event);
    if (!open) return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!isVisible()) Leave(OnExit);
        },
        Qt::QueuedConnection);
}

} // namespace tern7
