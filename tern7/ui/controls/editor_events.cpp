#include <tern7/ui/controls/editor_events.h>

#include <QKeyEvent>
#include <QPainter>
#include <QWidget>

namespace tern7 {

QChar KeyCharacter(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return keyEnter;
    case Qt::Key_Escape:
        return keyEscape;
    case Qt::Key_Backspace:
        return keyBackspace;
    default:
        break;
    }
    const Qt::KeyboardModifiers control = event.modifiers() & ~Qt::ShiftModifier;
    const QString text = event.text();
    const bool types = !text.isEmpty() && text.front().unicode() >= u' ' &&
                       text.front() != QChar(127) && control != Qt::ControlModifier;
    return types ? text.front() : QChar();
}

bool LeavesControl(const QFocusEvent& event) {
    return event.reason() != Qt::PopupFocusReason && event.reason() != Qt::MenuBarFocusReason &&
           event.reason() != Qt::ActiveWindowFocusReason;
}

void DrawEditorBorder(QWidget& editor, const QColor& color) {
    QPainter painter(&editor);
    painter.setPen(color.isValid() ? color : editor.palette().color(QPalette::Highlight));
    painter.drawRect(editor.rect().adjusted(0, 0, -1, -1));
}

void DiscardEditor(QWidget* editor) {
    if (!editor) return;
    editor->hide();
    editor->deleteLater();
}

} // namespace tern7
