#include <tern7/ui/panels/button_drag.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>

namespace tern7 {

namespace {

constexpr int scrollInterval = 40;

} // namespace

TButtonDrag::TButtonDrag(QAbstractScrollArea& owner)
    : QObject(&owner), area(owner), indicator(new QWidget(owner.viewport())) {
    indicator->setObjectName(QStringLiteral("dropIndicator"));
    indicator->setAutoFillBackground(true);
    indicator->setBackgroundRole(QPalette::Highlight);
    indicator->setAttribute(Qt::WA_TransparentForMouseEvents);
    indicator->hide();
    scrolling.setInterval(scrollInterval);
    connect(&scrolling, &QTimer::timeout, this, [this] { ScrollAtEdges(); });
}

TButtonDrag::~TButtonDrag() {
    if (running) QApplication::restoreOverrideCursor();
}

void TButtonDrag::Watch(QAbstractButton& button) {
    button.installEventFilter(this);
    connect(&button, &QObject::destroyed, this, [this](QObject* gone) {
        if (gone == pressed) pressed = nullptr;
    });
}

// --- mouse and keys

bool TButtonDrag::eventFilter(QObject* watched, QEvent* event) {
    if (running && KeyEvent(watched, *event)) return true;
    auto* button = qobject_cast<QAbstractButton*>(watched);
    return button && ButtonEvent(*button, *event);
}

bool TButtonDrag::ButtonEvent(QAbstractButton& button, QEvent& event) {
    switch (event.type()) {
    case QEvent::MouseButtonPress: {
        const auto& mouse = static_cast<QMouseEvent&>(event);
        if (running) Cancel(); // another button of the mouse
        if (mouse.button() != Qt::LeftButton) return false;
        pressed = &button;
        pressedAt = mouse.globalPosition().toPoint();
        return false;
    }
    case QEvent::MouseMove: {
        const auto& mouse = static_cast<QMouseEvent&>(event);
        if (&button != pressed || !(mouse.buttons() & Qt::LeftButton)) return false;
        const QPoint now = mouse.globalPosition().toPoint();
        const int distance = (now - pressedAt).manhattanLength();
        if (!running && distance < QApplication::startDragDistance()) return false;
        at = area.viewport()->mapFromGlobal(now);
        copies = mouse.modifiers() & Qt::AltModifier;
        if (!running && !Start(button)) return false;
        ShowPlace();
        return true;
    }
    case QEvent::MouseButtonRelease:
        if (&button != pressed) return false;
        pressed = nullptr;
        if (running) Drop(at, static_cast<QMouseEvent&>(event).modifiers() & Qt::AltModifier);
        return false; // the button, which is not down any more, comes to rest
    default:
        return false;
    }
}

/// While a line is dragged, keys are for the drag, whoever has the focus.
bool TButtonDrag::KeyEvent(const QObject* watched, QEvent& event) {
    if ((event.type() == QEvent::WindowDeactivate && watched == area.window()) ||
        (event.type() == QEvent::Hide && watched == &area)) {
        Cancel();
        return false;
    }
    const bool press = event.type() == QEvent::KeyPress;
    if (!press && event.type() != QEvent::KeyRelease && event.type() != QEvent::ShortcutOverride)
        return false;
    const int key = static_cast<QKeyEvent&>(event).key();
    if (key == Qt::Key_Alt && event.type() != QEvent::ShortcutOverride) {
        copies = press;
        ShowPlace();
    }
    if (press && key == Qt::Key_Escape) Cancel();
    event.accept();
    return true;
}

// --- the drag

/// False when there is nothing to drag (any more).
bool TButtonDrag::Start(QAbstractButton& button) {
    const QPointer<TButtonDrag> alive(this);
    if (!Begin(button) || !alive) return false;
    if (!pressed) return Ended(), false;
    running = true;
    button.setDown(false);                 // it will not be clicked
    button.setFocus(Qt::MouseFocusReason); // and so it is kept when it scrolls out of sight
    qApp->installEventFilter(this);
    QApplication::setOverrideCursor(Qt::DragMoveCursor);
    scrolling.start();
    return true;
}

void TButtonDrag::End() {
    running = false;
    scrolling.stop();
    indicator->hide();
    qApp->removeEventFilter(this);
    QApplication::restoreOverrideCursor();
    Ended();
}

void TButtonDrag::Cancel() {
    if (running) End();
}

void TButtonDrag::ShowPlace() {
    QApplication::changeOverrideCursor(copies ? Qt::DragCopyCursor : Qt::DragMoveCursor);
    const QRect place = PlaceAt(at);
    indicator->setVisible(!place.isEmpty());
    if (place.isEmpty()) return;
    indicator->setGeometry(place);
    indicator->raise();
}

void TButtonDrag::ScrollAtEdges() {
    QScrollBar* bar = area.verticalScrollBar();
    const int edge = LineHeight();
    const int before = bar->value();
    if (at.y() < edge) bar->setValue(before - bar->singleStep());
    if (at.y() > area.viewport()->height() - edge) bar->setValue(before + bar->singleStep());
    if (running && bar->value() != before) ShowPlace();
}

} // namespace tern7
