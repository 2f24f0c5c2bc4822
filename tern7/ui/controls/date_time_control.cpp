#include <tern7/ui/controls/date_time_control.h>

#include <QKeyEvent>
#include <QLineEdit>

#include <tern7/ui/support/guarded.h>

namespace tern7 {

TDateTimeControl::TDateTimeControl(QWidget* parent) : QDateTimeEdit(parent) {
    setFrame(false);
    // The first year of the calendar that Qt offers by itself would change older dates.
    setDateRange(QDate(1, 1, 1), QDate(9999, 12, 31));
    lineEdit()->installEventFilter(this);
}

void TDateTimeControl::SetBorderColor(const QColor& color) {
    borderColor = color;
    update();
}

void TDateTimeControl::UseWholeHeight() {
    QRect place = lineEdit()->geometry();
    place.setTop(1);
    place.setHeight(height() - 2);
    lineEdit()->setGeometry(place);
}

bool TDateTimeControl::event(QEvent* event) {
    const bool pressed = event->type() == QEvent::KeyPress;
    if (!pressed && event->type() != QEvent::ShortcutOverride) return QDateTimeEdit::event(event);
    const QChar typed = KeyCharacter(*static_cast<QKeyEvent*>(event));
    if (typed != keyEnter && typed != keyEscape) return QDateTimeEdit::event(event);
    event->accept();
    QChar key = typed;
    if (pressed) Guarded(this, [&] { Events.OnKeyPress(this, key); });
    return true;
}

bool TDateTimeControl::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonDblClick && watched == lineEdit())
        Guarded(this, [this] { Events.OnDblClick(this); });
    return QDateTimeEdit::eventFilter(watched, event);
}

/// Typing begins with the first part, also where Qt would begin from the right.
void TDateTimeControl::focusInEvent(QFocusEvent* event) {
    QDateTimeEdit::focusInEvent(event);
    if (event->reason() == Qt::OtherFocusReason) setSelectedSection(sectionAt(0));
}

void TDateTimeControl::focusOutEvent(QFocusEvent* event) {
    const bool leaves = LeavesControl(*event);
    QDateTimeEdit::focusOutEvent(event);
    if (leaves) Guarded(this, [this] { Events.OnExit(this); });
}

void TDateTimeControl::hideEvent(QHideEvent* event) {
    QDateTimeEdit::hideEvent(event);
    if (!event->spontaneous()) Guarded(this, [this] { Events.OnExit(this); });
}

void TDateTimeControl::paintEvent(QPaintEvent* event) {
    QDateTimeEdit::paintEvent(event);
    DrawEditorBorder(*this, borderColor);
}

} // namespace tern7
