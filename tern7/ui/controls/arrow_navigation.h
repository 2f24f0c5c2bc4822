#pragma once

class QWidget;

namespace tern7 {

/// Moves the focus from a control to the nearest sibling that takes it, in the direction of an
/// arrow key (`Qt::Key_Left` ...). False when there is none that way. Left and right stay on the
/// line.
bool FocusNeighbour(const QWidget& from, int arrowKey);

} // namespace tern7
