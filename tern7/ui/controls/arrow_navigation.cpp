#include <tern7/ui/controls/arrow_navigation.h>

#include <cstdlib>
#include <limits>

#include <QKeyEvent>
#include <QWidget>

namespace tern7 {

namespace {

bool TakesFocus(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && !widget.isWindow() &&
           (widget.focusPolicy() & Qt::TabFocus);
}

/// How far a control is in a direction; negative when it is not that way at all.
int Distance(const QRect& from, const QRect& to, int arrowKey) {
    const QPoint step = to.center() - from.center();
    const bool sameLine = from.top() <= to.center().y() && to.center().y() <= from.bottom();
    switch (arrowKey) {
    case Qt::Key_Left:
        return sameLine ? -step.x() : -1;
    case Qt::Key_Right:
        return sameLine ? step.x() : -1;
    case Qt::Key_Up:
        return sameLine || step.y() >= 0 ? -1 : -step.y() * 4 + std::abs(step.x());
    case Qt::Key_Down:
        return sameLine || step.y() <= 0 ? -1 : step.y() * 4 + std::abs(step.x());
    default:
        return -1;
    }
}

} // namespace

bool FocusNeighbour(const QWidget& from, int arrowKey) {
    if (!from.parentWidget()) return false;
    QWidget* nearest = nullptr;
    int shortest = std::numeric_limits<int>::max();
    for (QObject* child : from.parentWidget()->children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (!widget || widget == &from || !TakesFocus(*widget)) continue;
        const int distance = Distance(from.geometry(), widget->geometry(), arrowKey);
        if (distance < 0 || distance >= shortest) continue;
        nearest = widget;
        shortest = distance;
    }
    if (nearest) nearest->setFocus(Qt::TabFocusReason);
    return nearest != nullptr;
}

bool FocusNeighbour(const QWidget& from, const QKeyEvent& key) {
    const bool plain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    return plain && IsArrow(key) && FocusNeighbour(from, key.key());
}

bool IsArrow(const QKeyEvent& key) {
    return key.key() == Qt::Key_Left || key.key() == Qt::Key_Right || key.key() == Qt::Key_Up ||
           key.key() == Qt::Key_Down;
}

} // namespace tern7
