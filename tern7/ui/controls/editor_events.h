#pragma once

#include <QChar>
#include <QColor>

#include <tern7/core/global/events.h>

class QFocusEvent;
class QKeyEvent;
class QWidget;

namespace tern7 {

/// What an editor control tells its label.
struct TEditorEvents {
    TEvent<QWidget*> OnExit;
    /// The handler may replace the key by a null character, and then the key is swallowed.
    TEvent<QWidget*, QChar&> OnKeyPress;
    TEvent<QWidget*> OnDblClick;

    void Clear() { OnExit = OnDblClick = nullptr, OnKeyPress = nullptr; }
};

/// Keys that have a character of their own beside the printable ones.
constexpr QChar keyBackspace(8), keyEnter(13), keyEscape(27);

/// The character of a key, or a null character for one that types nothing (arrows, shortcuts).
QChar KeyCharacter(const QKeyEvent& event);

/// True when the focus went to another control, and not just to a menu or another window.
bool LeavesControl(const QFocusEvent& event);

/// A line around an editor; an invalid colour means the palette's highlight.
void DrawEditorBorder(QWidget& editor, const QColor& color);

/// Takes an editor out of sight at once and deletes it when no event of its own is running any
/// more.
void DiscardEditor(QWidget* editor);

} // namespace tern7
