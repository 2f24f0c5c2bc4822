#include <tern7/ui/controls/flat_check_box.h>

#include <algorithm>

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include <tern7/ui/controls/arrow_navigation.h>
#include <tern7/ui/support/colors.h>
#include <tern7/ui/support/text_size.h>

namespace tern7 {

namespace {

constexpr int gap = 4; // between box and text

} // namespace

TFlatCheckBox::TFlatCheckBox(QWidget* parent) : QCheckBox(parent) {
    setAttribute(Qt::WA_Hover);
    resize(sizeHint());
}

int TFlatCheckBox::BoxSize() const {
    return std::max(ternTextHeight(QStringLiteral("1"), font()) * 3 / 4, 7);
}

QSize TFlatCheckBox::sizeHint() const {
    const int textWidth = text().isEmpty() ? 0 : gap + ternTextWidth(text(), font()) + 2;
    return {BoxSize() + 2 + textWidth, ternTextHeight(QStringLiteral("1"), font())};
}

void TFlatCheckBox::keyPressEvent(QKeyEvent* event) {
    if (!IsArrow(*event))
        QCheckBox::keyPressEvent(event);
    else if (!FocusNeighbour(*this, *event))
        event->ignore();
}

void TFlatCheckBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    const QColor navy = ColorFromNumber(clNavy);
    const int side = BoxSize();
    QRect box(1, (height() - side) / 2, side, side);
    box = QStyle::visualRect(layoutDirection(), rect(), box);
    painter.setPen(hasFocus() || (isEnabled() && underMouse())
                       ? ReadableColor(navy, navy, palette())
                       : palette().color(QPalette::Disabled, QPalette::WindowText));
    painter.setBrush(palette().color(group, QPalette::Base));
    painter.drawRect(box.adjusted(0, 0, -1, -1));
    if (hasFocus()) painter.drawRect(box.adjusted(-1, -1, 0, 0));

    const QColor ink = palette().color(group, QPalette::Text);
    if (checkState() == Qt::Checked) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(ink, side / 7.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QPointF corner = box.topLeft();
        const QPointF mark[] = {corner + QPointF(0.22, 0.52) * side,
                                corner + QPointF(0.42, 0.72) * side,
                                corner + QPointF(0.78, 0.28) * side};
        painter.drawPolyline(mark, 3);
    } else if (checkState() == Qt::PartiallyChecked) {
        painter.fillRect(box.adjusted(side / 4, side / 4, -side / 4, -side / 4), ink);
    }
    if (text().isEmpty()) return;
    const QRect room(side + 2 + gap, 0, width() - side - 2 - gap, height());
    painter.setPen(palette().color(group, QPalette::WindowText));
    const Qt::Alignment start =
        QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), room),
                     static_cast<int>(start) | Qt::TextShowMnemonic, text());
}

} // namespace tern7
