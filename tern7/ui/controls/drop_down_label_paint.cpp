#include <tern7/ui/controls/drop_down_label.h>

#include <algorithm>

#include <QPainter>
#include <QStyle>

#include <tern7/ui/support/colors.h>
#include <tern7/ui/support/text_size.h>

namespace tern7 {

namespace {

// Room at both sides of the text, so that the focus frame does not touch it and the text does not
// jump when an edit box takes the label's place.
constexpr int sideRoom = 2;

QString OneLine(QString text) {
    return text.replace(u'\n', u' ');
}

/// The side that a text is read from, wherever its label stands: "1 Jan 2020". One without words
/// and numbers, as "(", is part of what stands around it.
Qt::LayoutDirection OrderOf(const QString& text, Qt::LayoutDirection around) {
    if (std::none_of(text.begin(), text.end(), [](QChar c) { return c.isLetterOrNumber(); }))
        return around;
    return text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

} // namespace

QSize TDropDownLabel::sizeHint() const {
    const QMargins margins = contentsMargins();
    return TextSize() +
           QSize(2 * sideRoom + margins.left() + margins.right(), margins.top() + margins.bottom());
}

/// An underline takes no room.
const QSize& TDropDownLabel::TextSize() const {
    if (measuredSize.isValid() && measuredText == text() && measuredFont == font())
        return measuredSize;
    measuredText = text();
    measuredFont = font();
    const QString caption = OneLine(Caption());
    measuredSize = {ternTextWidth(caption, measuredFont), ternTextHeight(caption, measuredFont)};
    return measuredSize;
}

QFont TDropDownLabel::TextFont() const {
    QFont shown = font();
    if (!fixed) shown.setUnderline(true);
    return shown;
}

QColor TDropDownLabel::TextColor() const {
    if (!isEnabled()) return palette().color(QPalette::Disabled, QPalette::WindowText);
    if (fontColor.isValid()) return fontColor;
    return palette().color(fixed ? QPalette::WindowText : QPalette::Link);
}

void TDropDownLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect area = contentsRect().adjusted(sideRoom, 0, -sideRoom, 0);
    const Qt::Alignment side = QStyle::visualAlignment(layoutDirection(), alignment());
    painter.setFont(TextFont());
    painter.setPen(TextColor());
    // Asked the way the size was, so that a text which fits is never cut for a fraction of a pixel.
    QString shown = OneLine(text());
    if (TextSize().width() > area.width())
        shown = painter.fontMetrics().elidedText(shown, Qt::ElideRight, area.width(),
                                                 Qt::TextShowMnemonic);
    painter.setLayoutDirection(OrderOf(shown, layoutDirection()));
    painter.drawText(area,
                     static_cast<int>(side | Qt::AlignAbsolute) | Qt::TextShowMnemonic |
                         Qt::TextSingleLine,
                     shown);
    if (!focused && !hasFocus()) return;
    const QColor navy = ColorFromNumber(clNavy);
    painter.setPen(QPen(ReadableColor(navy, navy, palette()), 1));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace tern7
