#include <tern7/ui/controls/popup_place.h>

#include <algorithm>

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace tern7 {

QRect ScreenRoom(const QWidget& popup, QPoint at) {
    const QScreen* screen = QGuiApplication::screenAt(at);
    return (screen ? screen : popup.screen())->availableGeometry();
}

QPoint PlaceBelow(const QRect& anchor, QSize size, const QRect& room, bool fromRight) {
    const int x = fromRight ? anchor.right() + 1 - size.width() : anchor.left();
    const bool fitsBelow = anchor.bottom() + size.height() <= room.bottom();
    const bool fitsAbove = anchor.top() - size.height() >= room.top();
    return {x, fitsBelow || !fitsAbove ? anchor.bottom() + 1 : anchor.top() - size.height()};
}

QRect MovedInto(const QRect& room, QPoint at, QSize size) {
    const auto inside = [](int begin, int from, int to) {
        return std::clamp(begin, from, std::max(from, to));
    };
    return {{inside(at.x(), room.left(), room.right() + 1 - size.width()),
             inside(at.y(), room.top(), room.bottom() + 1 - size.height())},
            size};
}

} // namespace tern7
