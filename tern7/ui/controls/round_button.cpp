#include <tern7/ui/controls/round_button.h>

#include <algorithm>
#include <cstdlib>

#include <QKeyEvent>
#include <QLayout>
#include <QPainter>

#include <tern7/ui/controls/arrow_navigation.h>
#include <tern7/ui/support/colors.h>
#include <tern7/ui/support/text_size.h>

namespace tern7 {

namespace {

/// The palette's text colour where it can be read on a ground, else black or white.
QColor TextOn(const QColor& ground, const QColor& wanted) {
    if (ground.alpha() == 0 || std::abs(ground.lightness() - wanted.lightness()) > 90)
        return wanted;
    return ground.lightness() > 127 ? Qt::black : Qt::white;
}

} // namespace

TKRndBtn::TKRndBtn(QWidget* parent) : QPushButton(parent) {
    setAutoDefault(false);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    resize(sizeHint());
}

void TKRndBtn::SetCaption(const QString& caption) {
    setText(caption);
    FitToCaption();
}

void TKRndBtn::SetAutoSize(bool on) {
    autoSize = on;
    FitToCaption();
}

void TKRndBtn::SetRoundCorners(bool on) {
    roundCorners = on;
    update();
}

void TKRndBtn::SetHoverColor(const QColor& color) {
    hoverColor = color;
    update();
}

void TKRndBtn::SetPressedColor(const QColor& color) {
    pressedColor = color;
    update();
}

QSize TKRndBtn::sizeHint() const {
    const int height = ternTextHeight(QStringLiteral("1"), font()) + 4;
    return {std::max(ternTextWidth(text(), font()) + height, height), height};
}

void TKRndBtn::FitToCaption() {
    updateGeometry();
    const bool managed = parentWidget() && parentWidget()->layout();
    if (autoSize && !managed) resize(sizeHint().width(), height());
}

void TKRndBtn::changeEvent(QEvent* event) {
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::FontChange) FitToCaption();
}

void TKRndBtn::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter)
        click();
    else if (!IsArrow(*event))
        QPushButton::keyPressEvent(event);
    else if (!FocusNeighbour(*this, *event))
        event->ignore();
}

QColor TKRndBtn::BodyColor() const {
    const QPalette& colors = palette();
    const bool lively = isEnabled() && (underMouse() || hasFocus());
    if (isDown() || isChecked())
        return pressedColor.isValid() ? pressedColor : colors.color(QPalette::Mid);
    if (isEnabled() && underMouse())
        return hoverColor.isValid() ? hoverColor : colors.color(QPalette::Midlight);
    return isFlat() && !lively ? QColor(Qt::transparent) : colors.color(QPalette::Button);
}

void TKRndBtn::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF body = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const qreal radius = roundCorners ? body.height() / 2 : 0;
    const QColor ground = BodyColor();
    const QColor navy = ColorFromNumber(clNavy);
    const bool bodiless = ground.alpha() == 0;
    const QColor line = hasFocus() ? ReadableColor(navy, navy, palette())
                        : bodiless ? QColor(Qt::transparent)
                                   : palette().color(QPalette::Dark);
    painter.setPen(line);
    painter.setBrush(ground);
    painter.drawRoundedRect(body, radius, radius);
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    painter.setPen(TextOn(
        ground, palette().color(group, bodiless ? QPalette::WindowText : QPalette::ButtonText)));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
}

} // namespace tern7
