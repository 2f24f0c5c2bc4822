#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

class QWidget;

namespace tern7 {

// Where popup windows open. All rectangles are of the screen.

/// What a popup may cover on the screen that a point is on.
QRect ScreenRoom(const QWidget& popup, QPoint at);

/// Below the anchor, or above it when it fits only there; the side that reading starts at is that
/// of the anchor.
QPoint PlaceBelow(const QRect& anchor, QSize size, const QRect& room, bool fromRight);

/// A place moved into the room; of what is too big the upper left corner stays in sight.
QRect MovedInto(const QRect& room, QPoint at, QSize size);

} // namespace tern7
