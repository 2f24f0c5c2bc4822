#include <tern7/ui/controls/popup_menu.h>

#include <algorithm>

#include <QAccessible>
#include <QApplication>
#include <QDateTime>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyle>
#include <QTimerEvent>
#include <QWheelEvent>

#include <tern7/ui/controls/control_events.h>
#include <tern7/ui/support/guarded.h>

namespace tern7 {

// --- the current row

bool TKPopupMenu::Selectable(int row) const {
    return row >= 0 && row < RowCount() && Row(row)->Enabled && !Row(row)->IsSeparator();
}

TMenuItem* TKPopupMenu::Row(int i) const {
    if (i < 0 || i >= RowCount()) throw EDDLabelError(EDDLabelError::menuIndexOutOfRange);
    return shown[static_cast<size_t>(i)];
}

QRect TKPopupMenu::RowRect(int i) const {
    if (i < 0 || i >= RowCount()) throw EDDLabelError(EDDLabelError::menuIndexOutOfRange);
    return layout.rows[static_cast<size_t>(i)].translated(ViewRect().topLeft() - scroll);
}

int TKPopupMenu::RowAt(QPoint at) const {
    const QRect view = ViewRect();
    const int row = view.contains(at) ? layout.RowAt(at - view.topLeft() + scroll) : -1;
    return row < RowCount() ? row : -1;
}

void TKPopupMenu::SetCurrentRow(int row) {
    if (row == current || row >= RowCount()) return;
    MarkRow(row);
    if (row >= 0) ScrollTo(row);
}

/// Without scrolling: below the mouse the rows stay where they are.
void TKPopupMenu::MarkRow(int row) {
    if (current >= 0) update(RowRect(current));
    current = std::max(row, -1);
    if (current < 0) return;
    update(RowRect(current));
    if (!QAccessible::isActive()) return;
    QAccessibleEvent focus(this, QAccessible::Focus);
    focus.setChild(current);
    QAccessible::updateAccessibility(&focus);
}

/// The next row that can be chosen, round the end.
void TKPopupMenu::Step(int from, int direction) {
    const int count = RowCount();
    if (from < 0 && direction < 0) from = 0;
    for (int i = 1; i <= count; ++i) {
        const int row = ((from + direction * i) % count + count) % count;
        if (Selectable(row)) return SetCurrentRow(row);
    }
}

bool TKPopupMenu::StepColumn(int direction) {
    if (current < 0) return false;
    const int column = layout.ColumnOf(current);
    const int next = column + direction;
    if (next < 0 || next >= static_cast<int>(layout.columnStarts.size())) return false;
    const auto start = [&](int i) { return layout.columnStarts[static_cast<size_t>(i)]; };
    const bool last = next + 1 == static_cast<int>(layout.columnStarts.size());
    const int end = last ? RowCount() : start(next + 1);
    const int row = std::min(start(next) + current - start(column), end - 1);
    if (Selectable(row))
        SetCurrentRow(row);
    else
        Step(row, 1);
    return true;
}

void TKPopupMenu::StepPage(int direction) {
    const int page = std::max(ViewRect().height() / RowHeight() - 1, 1);
    const int row = std::clamp(std::max(current, 0) + direction * page, 0, RowCount() - 1);
    if (Selectable(row))
        SetCurrentRow(row);
    else
        Step(row, -direction);
}

// --- scrolling

void TKPopupMenu::ScrollBy(QPoint step) {
    const QSize view = ViewRect().size();
    const QPoint wanted = scroll + step;
    const auto inside = [](int at, int content, int room) {
        return std::clamp(at, 0, std::max(content - room, 0));
    };
    scroll = {inside(wanted.x(), layout.size.width(), view.width()),
              inside(wanted.y(), layout.size.height(), view.height())};
    update();
}

/// The strips with arrows leave the row free.
void TKPopupMenu::ScrollTo(int row) {
    const QRect view = ViewRect();
    const QRect content(view.topLeft() - scroll, layout.size);
    const QRect place =
        RowRect(row).marginsAdded({scrollerSize, scrollerSize, scrollerSize, scrollerSize}) &
        content;
    const auto step = [](int begin, int end, int from, int to) {
        return begin < from ? begin - from : end > to ? std::min(end - to, begin - from) : 0;
    };
    const QPoint by(step(place.left(), place.right(), view.left(), view.right()),
                    step(place.top(), place.bottom(), view.top(), view.bottom()));
    if (!by.isNull()) ScrollBy(by);
}

void TKPopupMenu::wheelEvent(QWheelEvent* event) {
    const int turned = event->angleDelta().y() + event->angleDelta().x();
    const int distance = -turned * 3 * RowHeight() / 120;
    const bool tall = layout.size.height() > ViewRect().height();
    ScrollBy(tall ? QPoint(0, distance) : QPoint(distance, 0));
    event->accept();
}

void TKPopupMenu::timerEvent(QTimerEvent* event) {
    if (event->timerId() == hoverTimer.timerId()) {
        hoverTimer.stop();
        if (current >= 0)
            OpenSub(current, false);
        else
            CloseSub();
    } else if (event->timerId() == scrollTimer.timerId()) {
        const QPoint zone = ScrollZone(mapFromGlobal(QCursor::pos()));
        if (zone.isNull())
            scrollTimer.stop();
        else
            ScrollBy(zone * RowHeight());
    }
}

// --- mouse

/// The mouse belongs to the innermost menu; it hands over what happens above the others.
TKPopupMenu* TKPopupMenu::MenuAt(QPoint global) {
    for (TKPopupMenu* menu = this; menu; menu = menu->opener)
        if (menu->rect().contains(menu->mapFromGlobal(global))) return menu;
    return nullptr;
}

void TKPopupMenu::Hover(QPoint global) {
    const QPoint at = mapFromGlobal(global);
    if (!ScrollZone(at).isNull()) {
        if (!scrollTimer.isActive()) scrollTimer.start(60, this);
        return;
    }
    const int row = RowAt(at);
    if (row == current || !ViewRect().contains(at)) return;
    MarkRow(Selectable(row) ? row : -1);
    const int delay = style()->styleHint(QStyle::SH_Menu_SubMenuPopupDelay, nullptr, this);
    hoverTimer.start(std::max(delay, 0), this);
}

void TKPopupMenu::mouseMoveEvent(QMouseEvent* event) {
    const QPoint global = event->globalPosition().toPoint();
    TKPopupMenu& outermost = Outermost();
    if ((global - outermost.openedAt).manhattanLength() > QApplication::startDragDistance())
        outermost.mouseUsed = true;
    if (TKPopupMenu* menu = MenuAt(global)) menu->Hover(global);
}

void TKPopupMenu::leaveEvent(QEvent*) {
    if (!sub) SetCurrentRow(showsHits ? current : -1);
}

void TKPopupMenu::mousePressEvent(QMouseEvent* event) {
    event->accept();
    const QPoint global = event->globalPosition().toPoint();
    TKPopupMenu& outermost = Outermost();
    TKPopupMenu* menu = MenuAt(global);
    if (!menu) {
        const bool quiet = outermost.quietArea.contains(global);
        outermost.setAttribute(Qt::WA_NoMouseReplay, quiet);
        return CloseAll();
    }
    outermost.mouseUsed = true;
    menu->Hover(global);
    const int row = menu->RowAt(menu->mapFromGlobal(global));
    if (row >= 0 && menu->Selectable(row) && menu->Row(row)->HasSubMenu())
        menu->OpenSub(row, false);
    else
        menu->CloseSub();
}

void TKPopupMenu::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    const QPoint global = event->globalPosition().toPoint();
    TKPopupMenu* menu = MenuAt(global);
    if (!menu || !Outermost().mouseUsed) return;
    const QPoint at = menu->mapFromGlobal(global);
    if (!menu->ScrollZone(at).isNull()) return;
    const int row = menu->RowAt(at);
    if (menu->Selectable(row) && !menu->Row(row)->HasSubMenu())
        Guarded(menu, [&] { menu->Activate(row); });
}

// --- keys

bool TKPopupMenu::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || watched != search)
        return QWidget::eventFilter(watched, event);
    return KeyPressed(*static_cast<QKeyEvent*>(event));
}

void TKPopupMenu::keyPressEvent(QKeyEvent* event) {
    event->accept();
    if (!KeyPressed(*event) && !event->text().isEmpty() && event->text()[0].isPrint())
        TypeAhead(event->text());
}

/// False when the key goes on: to the search field, or to the search by first letters.
bool TKPopupMenu::KeyPressed(const QKeyEvent& event) {
    const bool editing = search && !search->text().isEmpty();
    switch (event.key()) {
    case Qt::Key_Escape:
        if (opener)
            opener->CloseSub();
        else
            CloseAll();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Select:
        Guarded(this, [this] { Activate(current); });
        return true;
    case Qt::Key_Space:
        if (editing || current < 0) return false;
        Guarded(this, [this] { Activate(current); });
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
        return !editing && event.modifiers() == Qt::NoModifier && MoveKey(event.key());
    default:
        return MoveKey(event.key());
    }
}

bool TKPopupMenu::MoveKey(int key) {
    const int forward = layoutDirection() == Qt::RightToLeft ? Qt::Key_Left : Qt::Key_Right;
    if (RowCount() == 0) return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Tab;
    switch (key) {
    case Qt::Key_Down:
    case Qt::Key_Tab:
        Step(current, 1);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Backtab:
        Step(current, -1);
        return true;
    case Qt::Key_Home:
        Step(-1, 1);
        return true;
    case Qt::Key_End:
        Step(RowCount(), -1);
        return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        StepPage(key == Qt::Key_PageUp ? -1 : 1);
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (key == forward)
            StepIn();
        else
            StepOut();
        return true;
    default:
        return false;
    }
}

void TKPopupMenu::StepIn() {
    if (current >= 0 && Row(current)->HasSubMenu())
        OpenSub(current, true);
    else
        StepColumn(1);
}

void TKPopupMenu::StepOut() {
    if (!StepColumn(-1) && opener) opener->CloseSub();
}

/// A marked letter takes its item; other letters go to the next item that begins with what was
/// typed.
void TKPopupMenu::TypeAhead(const QString& text) {
    for (int i = 0; i < RowCount(); ++i) {
        if (!Selectable(i) || Row(i)->Mnemonic() != text[0].toLower()) continue;
        SetCurrentRow(i);
        return Guarded(this, [this, i] { Activate(i); });
    }
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    if (now - typedAt > QApplication::keyboardInputInterval()) typed.clear();
    typedAt = now;
    const bool again = typed == text; // the same letter once more: the next item with it
    if (!again) typed += text;
    const int from = std::max(current, 0) + (typed.size() == 1 && current >= 0 ? 1 : 0);
    for (int i = 0; i < RowCount(); ++i) {
        const int row = (from + i) % RowCount();
        if (!Selectable(row)) continue;
        if (Row(row)->PlainCaption().startsWith(typed, Qt::CaseInsensitive))
            return SetCurrentRow(row);
    }
}

} // namespace tern7
