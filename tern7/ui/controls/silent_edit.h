#pragma once

#include <QLineEdit>

#include <tern7/ui/controls/editor_events.h>

namespace tern7 {

/// An edit box without a frame of the style that swallows Enter: no beep, no default button.
class TSilentEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit TSilentEdit(QWidget* parent = nullptr);

    void SetBorderColor(const QColor& color);

    TEditorEvents Events;

protected:
    bool event(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void KeyPress(QKeyEvent* event);

    QColor borderColor;
};

} // namespace tern7
