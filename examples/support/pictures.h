#pragma once

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

/// A dark look to try things in.
inline QPalette Dark() {
    QPalette dark(QColor(53, 56, 60), QColor(43, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 31, 34));
    dark.setColor(QPalette::Link, QColor(110, 170, 255));
    dark.setColor(QPalette::Highlight, QColor(46, 90, 160));
    return dark;
}

/// The window with the popups that stand above it.
inline QPixmap Picture(QWidget& window) {
    QCoreApplication::processEvents();
    QRect area(window.pos(), window.size());
    QList<QWidget*> popups;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->isVisible() && widget->windowType() == Qt::Popup) popups << widget;
    for (const QWidget* widget : popups)
        area |= widget->geometry();
    QPixmap picture(area.size() * window.devicePixelRatioF());
    picture.setDevicePixelRatio(window.devicePixelRatioF());
    picture.fill(Qt::gray);
    QPainter painter(&picture);
    painter.drawPixmap(window.pos() - area.topLeft(), window.grab());
    for (QWidget* widget : popups)
        painter.drawPixmap(widget->pos() - area.topLeft(), widget->grab());
    return picture;
}
