#pragma once

#include <QObject>
#include <QPoint>
#include <QRect>
#include <QTimer>

class QAbstractButton;
class QAbstractScrollArea;
class QWidget;

namespace tern7 {

/// Lines of a scrolled panel are dragged by their buttons: an indicator shows where a line would
/// go; near the edges the panel scrolls. Alt copies; Escape, another mouse button, and whatever
/// hides the panel or takes the window away cancel.
class TButtonDrag : public QObject {
    Q_OBJECT

public:
    explicit TButtonDrag(QAbstractScrollArea& owner);
    ~TButtonDrag() override;

    /// Dragging this button drags its line.
    void Watch(QAbstractButton& button);
    /// The line that shows the place; hidden when there is none.
    QWidget* Indicator() const { return indicator; }
    void Cancel();

protected:
    static constexpr int thickness = 3; // of the indicator

    /// False when there is nothing to drag. It may delete the panel, and say false then.
    virtual bool Begin(QAbstractButton& button) = 0;
    /// Where the indicator stands, in the viewport; empty when the line can not be put there.
    virtual QRect PlaceAt(const QPoint& inViewport) const = 0;
    /// Calls End before it changes anything.
    virtual void Drop(const QPoint& inViewport, bool copy) = 0;
    /// The drag is over.
    virtual void Ended() = 0;
    virtual int LineHeight() const = 0;

    bool eventFilter(QObject* watched, QEvent* event) override;
    void End();
    bool Copies() const { return copies; }

private:
    bool ButtonEvent(QAbstractButton& button, QEvent& event);
    bool KeyEvent(const QObject* watched, QEvent& event);
    bool Start(QAbstractButton& button);
    void ScrollAtEdges();
    void ShowPlace();

    QAbstractScrollArea& area;
    QWidget* indicator;
    QTimer scrolling;
    QAbstractButton* pressed = nullptr;
    QPoint pressedAt; // on the screen
    QPoint at;        // in the viewport
    bool running = false;
    bool copies = false;
};

} // namespace tern7
