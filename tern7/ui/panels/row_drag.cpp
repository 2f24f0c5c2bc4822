#include <tern7/ui/panels/row_drag.h>

#include <algorithm>

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>

#include <tern7/core/query/row_guard.h>
#include <tern7/ui/panels/filter_row_view.h>
#include <tern7/ui/panels/query_panel.h>

namespace tern7 {

namespace {

constexpr int thickness = 3; // of the line that shows the place
constexpr int scrollInterval = 40;

} // namespace

TRowDrag::TRowDrag(TKQueryPanel& owner)
    : QObject(&owner), panel(owner), indicator(new QWidget(owner.viewport())) {
    indicator->setObjectName(QStringLiteral("dropIndicator"));
    indicator->setAutoFillBackground(true);
    indicator->setBackgroundRole(QPalette::Highlight);
    indicator->setAttribute(Qt::WA_TransparentForMouseEvents);
    indicator->hide();
    scrolling.setInterval(scrollInterval);
    connect(&scrolling, &QTimer::timeout, this, [this] { ScrollAtEdges(); });
}

TRowDrag::~TRowDrag() {
    if (row) QApplication::restoreOverrideCursor();
}

void TRowDrag::Watch(QAbstractButton& button) {
    button.installEventFilter(this);
    connect(&button, &QObject::destroyed, this, [this](QObject* gone) {
        if (gone == pressed) pressed = nullptr;
    });
}

// --- mouse and keys

bool TRowDrag::eventFilter(QObject* watched, QEvent* event) {
    if (row && KeyEvent(watched, *event)) return true;
    auto* button = qobject_cast<QAbstractButton*>(watched);
    return button && ButtonEvent(*button, *event);
}

bool TRowDrag::ButtonEvent(QAbstractButton& button, QEvent& event) {
    switch (event.type()) {
    case QEvent::MouseButtonPress: {
        const auto& mouse = static_cast<QMouseEvent&>(event);
        if (row) Cancel(); // another button of the mouse
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
        if (!row && distance < QApplication::startDragDistance()) return false;
        at = panel.viewport()->mapFromGlobal(now);
        copies = mouse.modifiers() & Qt::AltModifier;
        if (!row && !Start(button)) return false;
        ShowPlace();
        return true;
    }
    case QEvent::MouseButtonRelease:
        if (&button != pressed) return false;
        pressed = nullptr;
        if (row) {
            copies = static_cast<QMouseEvent&>(event).modifiers() & Qt::AltModifier;
            Drop();
        }
        return false; // the button, which is not down any more, comes to rest
    default:
        return false;
    }
}

/// While a row is dragged, keys are for the drag, whoever has the focus.
bool TRowDrag::KeyEvent(const QObject* watched, QEvent& event) {
    if (event.type() == QEvent::WindowDeactivate && watched == panel.window()) {
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
bool TRowDrag::Start(QAbstractButton& button) {
    const TFilterRowView* view = panel.ViewOf(&button);
    if (!view || !view->Row().Parent()) return false; // the header line stays
    button.setDown(false);                            // it will not be clicked
    const TRowGuard guard(view->Row());
    const QPointer<TKQueryPanel> alive(&panel);
    panel.CloseEdit(true); // may change everything
    if (!alive || !pressed || !guard.Row()) return false;
    row = guard.Row();
    button.setFocus(Qt::MouseFocusReason); // and so it is kept when it scrolls out of sight
    qApp->installEventFilter(this);
    QApplication::setOverrideCursor(Qt::DragMoveCursor);
    scrolling.start();
    return true;
}

void TRowDrag::End() {
    row = nullptr;
    scrolling.stop();
    indicator->hide();
    qApp->removeEventFilter(this);
    QApplication::restoreOverrideCursor();
}

void TRowDrag::Cancel() {
    if (row) End();
}

void TRowDrag::Drop() {
    TFilterRow& dragged = *row;
    const TDropPlace place = PlaceAt(at);
    const bool copy = copies, allowed = place.parent && IsAllowed(place);
    End();
    if (!allowed) return;
    TFilterRow* moved = &dragged;
    const bool alive = panel.Do([&](TKQueryEditor& editor) {
        if (copy)
            moved = editor.CopyTo(dragged, *place.parent, place.index);
        else
            editor.Move(dragged, *place.parent, place.index);
    });
    if (alive && moved) panel.FocusRow(*moved, 0);
}

bool TRowDrag::IsAllowed(const TDropPlace& place) const {
    return place.parent && (copies || place.parent->CanHold(*row));
}

int TRowDrag::GapAt(int y) const {
    const TRowGeometry& geometry = panel.Geometry();
    const int inContent = y + panel.verticalScrollBar()->value();
    const int line = geometry.LineAt(inContent);
    const bool lowerHalf = inContent - geometry.LineTop(line) > geometry.LineHeight / 2;
    // nothing goes above the header line
    const int first = panel.Query().Style() == TQPStyle::psGroups ? 1 : 0;
    return std::clamp(line + (lowerHalf ? 1 : 0), first, panel.Lines().Count());
}

TDropPlace TRowDrag::PlaceAt(const QPoint& inViewport) const {
    const TRowGeometry& geometry = panel.Geometry();
    int x = inViewport.x();
    if (panel.ReadsFromRight()) x = panel.viewport()->width() - 1 - x;
    x += panel.horizontalScrollBar()->value() - geometry.HeaderLeft;
    const int level = geometry.TabSpace > 0 ? x / geometry.TabSpace : 0;
    std::vector<TDropPlace> places =
        DropPlaces(panel.Lines(), GapAt(inViewport.y()), panel.Query().Style());
    std::erase_if(places, [this](const TDropPlace& place) { return !IsAllowed(place); });
    const TDropPlace* nearest = NearestPlace(places, level);
    return nearest ? *nearest : TDropPlace{nullptr, 0, 0};
}

void TRowDrag::ShowPlace() {
    ShowCursor();
    const TDropPlace place = PlaceAt(at);
    indicator->setVisible(place.parent != nullptr);
    if (!place.parent) return;
    indicator->setGeometry(IndicatorRect(place, GapAt(at.y())));
    indicator->raise();
}

/// From the indentation to the edge, in the middle of the gap.
QRect TRowDrag::IndicatorRect(const TDropPlace& place, int gap) const {
    const TRowGeometry& geometry = panel.Geometry();
    const int left = geometry.LevelLeft(place.level) - panel.horizontalScrollBar()->value();
    const int width = std::max(panel.viewport()->width() - left - geometry.HeaderLeft, thickness);
    const int middle = geometry.LineTop(gap) - (geometry.RowSpace + 1) / 2;
    const int top = middle - thickness / 2 - panel.verticalScrollBar()->value();
    const int x = panel.ReadsFromRight() ? Mirrored(left, width, panel.viewport()->width()) : left;
    return {x, std::max(top, 0), width, thickness};
}

void TRowDrag::ShowCursor() {
    QApplication::changeOverrideCursor(copies ? Qt::DragCopyCursor : Qt::DragMoveCursor);
}

void TRowDrag::ScrollAtEdges() {
    QScrollBar* bar = panel.verticalScrollBar();
    const int edge = panel.Geometry().LineHeight;
    const int before = bar->value();
    if (at.y() < edge) bar->setValue(before - bar->singleStep());
    if (at.y() > panel.viewport()->height() - edge) bar->setValue(before + bar->singleStep());
    if (row && bar->value() != before) ShowPlace();
}

} // namespace tern7
