#include <tern7/ui/controls/drop_down_label.h>

#include <QAccessible>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QMetaMethod>
#include <QMouseEvent>

#include <tern7/ui/controls/accessible_label.h>
#include <tern7/ui/controls/arrow_navigation.h>
#include <tern7/ui/support/guarded.h>

namespace tern7 {

namespace {

const QString emptyCaption = QStringLiteral("_____");

} // namespace

TDropDownLabel::TDropDownLabel(QWidget* parent) : QLabel(parent) {
    InstallAccessibleControls();
    setTextFormat(Qt::PlainText);
    setText(emptyCaption);
    setFocusPolicy(Qt::StrongFocus);
    // The line keeps its shape in a layout while an editor stands in the label's place.
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    ShowCursor();
    FitToText();
}

TDropDownLabel::~TDropDownLabel() = default;

// --- caption and value

QString TDropDownLabel::Caption() const {
    return text().replace(QStringLiteral("&&"), QStringLiteral("&"));
}

void TDropDownLabel::SetCaption(const QString& caption) {
    QString shown = caption.isEmpty() ? emptyCaption : caption;
    shown.replace(u'&', QStringLiteral("&&"));
    if (shown == text()) return;
    setText(shown);
    FitToText();
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent changed(this, Caption());
        QAccessible::updateAccessibility(&changed);
    }
    emit captionChanged(Caption());
}

void TDropDownLabel::SetValue(const QString& newValue) {
    if (newValue == value) return;
    value = newValue;
    const QPointer<TDropDownLabel> alive(this);
    ValueChanged();
    if (alive) emit valueChanged(value);
}

void TDropDownLabel::ShowValue(const QString& newValue, const QString& caption) {
    value = newValue;
    SetCaption(caption);
}

void TDropDownLabel::ValueChanged() {
    SetCaption(value);
}

void TDropDownLabel::SetFixed(bool on) {
    if (on == fixed) return;
    fixed = on;
    ShowCursor();
    update();
}

void TDropDownLabel::SetFocused(bool on) {
    focused = on;
    update();
}

void TDropDownLabel::SetFontColor(const QColor& color) {
    fontColor = color;
    update();
}

void TDropDownLabel::SetEditMode(bool on) {
    if (on == IsEditMode()) return;
    if (on)
        DropDown();
    else
        DropUp(true);
}

// --- drop-down and drop-up

void TDropDownLabel::DropDown() {
    if (fixed || dropped) return;
    const QPointer<TDropDownLabel> alive(this);
    EnsureControl();
    BeforeDropDown(this);
    if (!alive) return;
    dropped = true;
    try {
        ShowControl();
    } catch (...) {
        if (alive) AbortDropDown();
        throw;
    }
    // The editor may be closed again, as a dialog is.
    if (!alive || !dropped) return;
    AfterDropDown(this);
    if (alive) emit droppedDown();
}

void TDropDownLabel::DropUp(bool accept) {
    if (!dropped || droppingUp) return;
    const QPointer<TDropDownLabel> alive(this);
    droppingUp = true;
    try {
        DoBeforeDropUp(accept);
        if (alive && accept) AcceptInput();
    } catch (...) {
        if (alive) AbortDropDown();
        throw;
    }
    if (alive) FinishDropUp(accept);
}

void TDropDownLabel::FinishDropUp(bool accepted) {
    const QPointer<TDropDownLabel> alive(this);
    HideControl();
    if (!alive) return;
    if (parentWidget()) parentWidget()->update();
    dropped = false;
    droppingUp = false;
    DoAfterDropUp(accepted);
}

/// After a handler raised an error: idle again, and no further event.
void TDropDownLabel::AbortDropDown() {
    const QPointer<TDropDownLabel> alive(this);
    droppingUp = true;
    HideControl();
    if (!alive) return;
    editValue.clear();
    dropped = false;
    droppingUp = false;
}

void TDropDownLabel::DoBeforeDropUp(bool& accept) {
    BeforeDropUp(this, QString(), accept);
}

void TDropDownLabel::DoAfterDropUp(bool accepted) {
    const QPointer<TDropDownLabel> alive(this);
    AfterDropUp(this, accepted);
    if (alive) emit droppedUp(accepted);
}

void TDropDownLabel::ShowControl() {
    const QPointer<TDropDownLabel> alive(this);
    QString edited = value; // a local, because the handler may delete this label
    bool accept = true;
    OnCustomDropDown(this, edited, accept);
    if (!alive) return;
    editValue = edited;
    DropUp(accept);
    if (alive) editValue.clear();
}

void TDropDownLabel::AcceptInput() {
    if (!editValue.isEmpty()) SetValue(QString(editValue));
}

QRect TDropDownLabel::GetClientRect() const {
    const QWidget* editor = IsEditMode() ? EditControl() : nullptr;
    return editor ? editor->rect() : rect();
}

void TDropDownLabel::EnsureControl() const {
    if (hasControl || !parentWidget()) return;
    hasControl = true;
    const_cast<TDropDownLabel*>(this)->CreateControl();
}

void TDropDownLabel::DoGetGroupImageIndex(const QString& groupName, int& imageIndex) const {
    imageIndex = -1;
    OnGetGroupImageIndex(groupName, imageIndex);
}

void TDropDownLabel::DoGetItemImageIndex(const QString& groupName, const QString& itemName,
                                         int& imageIndex) const {
    imageIndex = -1;
    OnGetItemImageIndex(groupName, itemName, imageIndex);
}

// --- mouse and keyboard

void TDropDownLabel::Click() {
    Click(QGuiApplication::keyboardModifiers());
}

void TDropDownLabel::Click(Qt::KeyboardModifiers modifiers) {
    const QPointer<TDropDownLabel> alive(this);
    emit clicked();
    if (!alive) return;
    if (modifiers & Qt::ControlModifier)
        AltClick();
    else if (dropped)
        DropUp(false);
    else
        DropDown();
}

void TDropDownLabel::AltClick() {
    const QPointer<TDropDownLabel> alive(this);
    OnAltClick(this);
    if (alive) emit altClicked();
}

void TDropDownLabel::DoRightClick() {
    const QPointer<TDropDownLabel> alive(this);
    OnRightClick(this);
    if (alive) emit rightClicked();
}

void TDropDownLabel::mousePressEvent(QMouseEvent* event) {
    event->accept();
    pressed = event->button() == Qt::LeftButton;
    if (event->button() == Qt::RightButton) Guarded(this, [this] { DoRightClick(); });
}

void TDropDownLabel::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() != Qt::LeftButton || !pressed) return;
    pressed = false;
    const Qt::KeyboardModifiers modifiers = event->modifiers();
    if (rect().contains(event->position().toPoint()))
        Guarded(this, [this, modifiers] { Click(modifiers); });
}

/// The right mouse button was heard when it went down; here it is the keyboard's menu key.
void TDropDownLabel::contextMenuEvent(QContextMenuEvent* event) {
    const bool handled = static_cast<bool>(OnRightClick) ||
                         isSignalConnected(QMetaMethod::fromSignal(&TDropDownLabel::rightClicked));
    event->setAccepted(handled);
    if (handled && event->reason() != QContextMenuEvent::Mouse)
        Guarded(this, [this] { DoRightClick(); });
}

void TDropDownLabel::keyPressEvent(QKeyEvent* event) {
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const int key = event->key();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    const bool plainOpen = enter || key == Qt::Key_Space || key == Qt::Key_Select ||
                           key == Qt::Key_F2 || key == Qt::Key_F4;
    event->accept();
    if (enter && modifiers == Qt::ControlModifier) {
        Guarded(this, [this] { AltClick(); });
    } else if (!fixed && ((plainOpen && modifiers == Qt::NoModifier) ||
                          (key == Qt::Key_Down && modifiers == Qt::AltModifier))) {
        Guarded(this, [this] { Click(Qt::NoModifier); });
    } else if (!arrowKeys || !FocusNeighbour(*this, *event)) {
        event->ignore();
    }
}

void TDropDownLabel::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    update();
}

void TDropDownLabel::focusOutEvent(QFocusEvent* event) {
    QLabel::focusOutEvent(event);
    update();
}

// --- changes around the label

bool TDropDownLabel::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::ParentAboutToChange:
        if (dropped) DropUp(true);
        break;
    case QEvent::ParentChange:
        if (hasControl && parentWidget()) CreateControl();
        break;
    case QEvent::LayoutDirectionChange:
        BiDiModeChanged();
        break;
    default:
        break;
    }
    return QLabel::event(event);
}

void TDropDownLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) FitToText();
}

void TDropDownLabel::ShowCursor() {
    setCursor(fixed ? Qt::ArrowCursor : Qt::PointingHandCursor);
}

/// Where no layout does it, the label keeps the size of its text and the side that reading starts
/// at.
void TDropDownLabel::FitToText() {
    updateGeometry();
    if (parentWidget() && parentWidget()->layout()) return;
    QRect place(pos(), sizeHint());
    if (layoutDirection() == Qt::RightToLeft) place.moveRight(geometry().right());
    setGeometry(place);
}

} // namespace tern7
