#pragma once

#include <QObject>
#include <QPoint>
#include <QTimer>

#include <tern7/core/query/drop_places.h>

class QAbstractButton;
class QWidget;

namespace tern7 {

class TKQueryPanel;

/// Rows of a panel are dragged by their buttons: a line shows where the row would go, and how deep;
/// near the edges the panel scrolls. Alt copies, Escape cancels; a drop is one step. Whatever ends
/// the row or hides the panel cancels too.
class TRowDrag : public QObject {
    Q_OBJECT

public:
    explicit TRowDrag(TKQueryPanel& owner);
    ~TRowDrag() override;

    /// Dragging this button drags the row.
    void Watch(QAbstractButton& button);
    /// The row that is being dragged; none when there is no drag.
    TFilterRow* Row() const { return row; }
    /// The line that shows the place; hidden when the row can not be put there.
    QWidget* Indicator() const { return indicator; }
    void Cancel();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool ButtonEvent(QAbstractButton& button, QEvent& event);
    bool KeyEvent(const QObject* watched, QEvent& event);
    bool Start(QAbstractButton& button);
    void Drop();
    void End();
    void ScrollAtEdges();
    void ShowPlace();
    void ShowCursor();
    bool IsAllowed(const TDropPlace& place) const;
    TDropPlace PlaceAt(const QPoint& inViewport) const;
    QRect IndicatorRect(const TDropPlace& place, int gap) const;
    int GapAt(int y) const;

    TKQueryPanel& panel;
    QWidget* indicator;
    QTimer scrolling;
    QAbstractButton* pressed = nullptr;
    QPoint pressedAt; // on the screen
    QPoint at;        // in the viewport
    TFilterRow* row = nullptr;
    bool copies = false;
};

} // namespace tern7
