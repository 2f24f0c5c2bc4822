#pragma once

class QKeyEvent;
class QWidget;

namespace tern7 {

/// Moves the focus from a control to the nearest sibling that takes it, in the direction of an
/// arrow key (`Qt::Key_Left` ...). False when there is none that way. Left and right stay on the
/// line.
bool FocusNeighbour(const QWidget& from, int arrowKey);
/// The same for a key that was pressed; false for a key with modifiers or one that is no arrow.
bool FocusNeighbour(const QWidget& from, const QKeyEvent& key);

bool IsArrow(const QKeyEvent& key);

} // namespace tern7
