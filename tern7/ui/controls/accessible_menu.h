#pragma once

class QAccessibleInterface;

namespace tern7 {

class TKPopupMenu;

/// The menu for screen readers: its rows are children without widgets, then comes the search field.
/// Who asks for it owns it.
QAccessibleInterface* MakeAccessibleMenu(TKPopupMenu* menu);

} // namespace tern7
