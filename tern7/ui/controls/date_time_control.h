#pragma once

#include <QDateTimeEdit>

#include <tern7/ui/controls/editor_events.h>

namespace tern7 {

/// The date/time picker of TDropDownDateTimeEdit.
class TDateTimeControl : public QDateTimeEdit {
    Q_OBJECT

public:
    explicit TDateTimeControl(QWidget* parent = nullptr);

    void SetBorderColor(const QColor& color);
    /// Styles leave room for a frame, which this has none of: in the height of a line the text
    /// would be cut.
    void UseWholeHeight();

    TEditorEvents Events;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QColor borderColor;
};

} // namespace tern7
