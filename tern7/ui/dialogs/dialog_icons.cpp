#include <tern7/ui/dialogs/dialog_icons.h>

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace tern7 {

namespace {

constexpr int iconSide = 16; // the pictures are drawn on a square of this side

void AddLines(QPainterPath& path, std::initializer_list<QPointF> points) {
    bool first = true;
    for (const QPointF& point : points) {
        if (first)
            path.moveTo(point);
        else
            path.lineTo(point);
        first = false;
    }
}

/// Strokes; dots are lines of no length with round ends.
QPainterPath Strokes(TDialogIcon kind) {
    QPainterPath path;
    switch (kind) {
    case TDialogIcon::Create:
        AddLines(path, {{2.5, 8}, {13, 8}});
        AddLines(path, {{8.5, 3.5}, {13, 8}, {8.5, 12.5}});
        break;
    case TDialogIcon::Plus:
        AddLines(path, {{3, 8}, {13, 8}});
        AddLines(path, {{8, 3}, {8, 13}});
        break;
    case TDialogIcon::Minus:
        AddLines(path, {{3, 8}, {13, 8}});
        break;
    case TDialogIcon::Times:
        AddLines(path, {{4.5, 4.5}, {11.5, 11.5}});
        AddLines(path, {{11.5, 4.5}, {4.5, 11.5}});
        break;
    case TDialogIcon::Divide:
        AddLines(path, {{3, 8}, {13, 8}});
        AddLines(path, {{8, 4}, {8, 4.01}});
        AddLines(path, {{8, 12}, {8, 12.01}});
        break;
    case TDialogIcon::New:
        AddLines(path, {{7, 14}, {2.5, 14}, {2.5, 2}, {12, 2}, {12, 6}});
        AddLines(path, {{8.5, 11}, {14.5, 11}});
        AddLines(path, {{11.5, 8}, {11.5, 14}});
        break;
    case TDialogIcon::Delete:
        AddLines(path, {{3, 4.5}, {13, 4.5}});
        AddLines(path, {{6, 4}, {6.5, 2.5}, {9.5, 2.5}, {10, 4}});
        AddLines(path, {{4.5, 4.5}, {5, 13.5}, {11, 13.5}, {11.5, 4.5}});
        AddLines(path, {{8, 7}, {8, 11}});
        break;
    case TDialogIcon::Sort:
        AddLines(path, {{4.5, 3}, {4.5, 13}});
        AddLines(path, {{2, 10.5}, {4.5, 13}, {7, 10.5}});
        AddLines(path, {{9, 4}, {10.5, 4}});
        AddLines(path, {{9, 8}, {12, 8}});
        AddLines(path, {{9, 12}, {14, 12}});
        break;
    case TDialogIcon::Up:
        AddLines(path, {{3.5, 10}, {8, 5.5}, {12.5, 10}});
        break;
    case TDialogIcon::Down:
        AddLines(path, {{3.5, 6}, {8, 10.5}, {12.5, 6}});
        break;
    }
    return path;
}

QPixmap Picture(const QPainterPath& path, const QColor& color, bool mirrored, int scale) {
    QPixmap picture(iconSide * scale, iconSide * scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    if (mirrored) {
        painter.translate(iconSide, 0);
        painter.scale(-1, 1);
    }
    painter.setPen(QPen(color, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
    painter.end();
    picture.setDevicePixelRatio(scale);
    return picture;
}

} // namespace

QIcon DialogIcon(TDialogIcon kind, const QPalette& palette, Qt::LayoutDirection direction) {
    const QPainterPath path = Strokes(kind);
    const bool mirrored = kind == TDialogIcon::Create && direction == Qt::RightToLeft;
    const QColor color = palette.color(QPalette::Active, QPalette::ButtonText);
    const QColor off = palette.color(QPalette::Disabled, QPalette::ButtonText);
    QIcon icon;
    for (const int scale : {1, 2, 3}) {
        icon.addPixmap(Picture(path, color, mirrored, scale));
        icon.addPixmap(Picture(path, off, mirrored, scale), QIcon::Disabled);
    }
    return icon;
}

} // namespace tern7
