#include <tern7/ui/controls/silent_edit.h>

#include <limits>

#include <QInputMethodEvent>
#include <QKeyEvent>

#include <tern7/ui/support/guarded.h>

namespace tern7 {

TSilentEdit::TSilentEdit(QWidget* parent) : QLineEdit(parent) {
    setFrame(false);
    setMaxLength(std::numeric_limits<int>::max());
}

void TSilentEdit::SetBorderColor(const QColor& color) {
    borderColor = color;
    update();
}

bool TSilentEdit::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        // Enter and Escape belong to the edit, whatever shortcut the window has for them.
        const QChar key = KeyCharacter(*static_cast<QKeyEvent*>(event));
        if (key == keyEnter || key == keyEscape) {
            event->accept();
            return true;
        }
    }
    if (event->type() != QEvent::KeyPress) return QLineEdit::event(event);
    KeyPress(static_cast<QKeyEvent*>(event));
    return true;
}

void TSilentEdit::KeyPress(QKeyEvent* event) {
    const QPointer<TSilentEdit> alive(this);
    const QChar pressed = KeyCharacter(*event);
    QChar key = pressed;
    if (!pressed.isNull()) Guarded(this, [&] { Events.OnKeyPress(this, key); });
    const bool refused = !pressed.isNull() && key.isNull();
    if (alive && !refused) QLineEdit::event(event);
    if (refused || pressed == keyEnter) event->accept();
}

/// A text that an input method hands over is held against the same rules as typed keys.
void TSilentEdit::inputMethodEvent(QInputMethodEvent* event) {
    QString allowed;
    const QString committed = event->commitString();
    for (const QChar c : committed) {
        QChar key = c;
        Guarded(this, [&] { Events.OnKeyPress(this, key); });
        if (!key.isNull()) allowed += key;
    }
    if (allowed == committed) return QLineEdit::inputMethodEvent(event);
    event->setCommitString(allowed, event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(event);
}

void TSilentEdit::focusOutEvent(QFocusEvent* event) {
    const bool leaves = LeavesControl(*event);
    QLineEdit::focusOutEvent(event);
    if (leaves) Guarded(this, [this] { Events.OnExit(this); });
}

/// A window that is closed by a key takes the focus from nobody, but what was typed counts.
void TSilentEdit::hideEvent(QHideEvent* event) {
    QLineEdit::hideEvent(event);
    if (!event->spontaneous()) Guarded(this, [this] { Events.OnExit(this); });
}

void TSilentEdit::mouseDoubleClickEvent(QMouseEvent* event) {
    QLineEdit::mouseDoubleClickEvent(event);
    Guarded(this, [this] { Events.OnDblClick(this); });
}

void TSilentEdit::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    DrawEditorBorder(*this, borderColor);
}

} // namespace tern7
