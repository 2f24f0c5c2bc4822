#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QPainter>
#include <QScrollBar>

#include <tern7/ui/panels/filter_row_view.h>
#include <tern7/ui/panels/query_panel.h>

namespace tern7 {

void TKQueryPanel::paintEvent(QPaintEvent* event) {
    if (!linesKnown || lines.Count() == 0) return;
    QPainter painter(viewport());
    const int top = verticalScrollBar()->value();
    const int first = std::max(geometry.LineAt(top + event->rect().top()), 0);
    const int last = std::min(geometry.LineAt(top + event->rect().bottom()), lines.Count() - 1);
    const int line = current ? lines.LineOf(*current) : -1;
    if (line >= first && line <= last) {
        const QColor color = appearance->ActiveRowColor();
        const QRect band = LineRect(line).adjusted(0, -1, 0, 1);
        painter.fillRect(band, color.isValid() ? color : palette().color(QPalette::Light));
    }
    PaintGuides(painter, first, last);
}

/// A thin line below the button of a bracket leads along its rows.
void TKQueryPanel::PaintGuides(QPainter& painter, int firstLine, int lastLine) const {
    QColor color = palette().color(QPalette::WindowText);
    color.setAlpha(50);
    painter.setPen(color);
    const int step = geometry.LineHeight + geometry.RowSpace;
    const int sideways = horizontalScrollBar()->value();
    for (int line = firstLine; line <= lastLine; ++line) {
        const int y = geometry.LineTop(line) - geometry.RowSpace - verticalScrollBar()->value();
        for (int level = lines.At(line).level - 1; level >= 0; --level) {
            const int x = geometry.LevelLeft(level) + buttonWidth / 2 - sideways;
            if (x < 0) break;
            const int at = ReadsFromRight() ? Mirrored(x, 1, viewport()->width()) : x;
            painter.drawLine(at, y, at, y + step - 1);
        }
    }
}

// --- the mouse beside the controls

void TKQueryPanel::mousePressEvent(QMouseEvent* event) {
    TFilterRow* row = RowAt(event->position().toPoint());
    if (row && event->button() == Qt::LeftButton) FocusRow(*row);
    QAbstractScrollArea::mousePressEvent(event);
}

void TKQueryPanel::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    if (event->reason() != QContextMenuEvent::Mouse) {
        const int line = Lines().LineOf(CurrentRow());
        if (line < 0) return PopupAddMenu(event->globalPos());
        const QRect place = LineRect(line);
        return PopupRowMenu(CurrentRow(), {viewport()->mapToGlobal(place.topLeft()), place.size()});
    }
    TFilterRow* row = RowAt(viewport()->mapFromGlobal(event->globalPos()));
    if (row)
        PopupRowMenu(*row, {event->globalPos(), QSize(1, 1)});
    else
        PopupAddMenu(event->globalPos());
}

/// The focus is for the controls; by Tab it comes to them without passing here.
void TKQueryPanel::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    if (event->reason() == Qt::BacktabFocusReason || event->reason() == Qt::PopupFocusReason)
        return;
    if (Lines().LineOf(CurrentRow()) >= 0) FocusRow(CurrentRow());
}

} // namespace tern7
