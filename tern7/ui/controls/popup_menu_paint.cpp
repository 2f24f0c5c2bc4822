#include <tern7/ui/controls/popup_menu.h>

#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QStyleOptionMenuItem>

namespace tern7 {

TMenuMetrics TKPopupMenu::Metrics() const {
    QStyleOptionMenuItem option;
    InitOption(option, -1);
    const QSize text(0, QFontMetrics(font()).height());
    TMenuMetrics metrics;
    metrics.rowHeight = RowHeight();
    metrics.extraWidth =
        style()->sizeFromContents(QStyle::CT_MenuItem, &option, text, this).width();
    option.menuItemType = QStyleOptionMenuItem::Separator;
    metrics.separatorHeight =
        style()->sizeFromContents(QStyle::CT_MenuItem, &option, text, this).height();
    metrics.barWidth = metrics.separatorHeight;
    if (search) metrics.leastWidth = QFontMetrics(font()).averageCharWidth() * 24;
    return metrics;
}

/// Row -1 stands for the widest kind of row that the menu has.
void TKPopupMenu::InitOption(QStyleOptionMenuItem& option, int row) const {
    option.initFrom(this);
    option.state &= ~(QStyle::State_MouseOver | QStyle::State_HasFocus);
    option.font = font();
    option.menuRect = rect();
    option.menuHasCheckableItems = checkable;
    if (!images.isEmpty())
        option.maxIconWidth = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this) + 4;
    if (row < 0) {
        option.menuItemType = QStyleOptionMenuItem::SubMenu;
        return;
    }
    const TMenuItem& item = *Row(row);
    option.rect = layout.rows[static_cast<size_t>(row)];
    option.state.setFlag(QStyle::State_Enabled, item.Enabled);
    if (!item.Enabled) option.palette.setCurrentColorGroup(QPalette::Disabled);
    option.state.setFlag(QStyle::State_Selected, row == current);
    option.menuItemType = item.IsSeparator()  ? QStyleOptionMenuItem::Separator
                          : item.HasSubMenu() ? QStyleOptionMenuItem::SubMenu
                                              : QStyleOptionMenuItem::Normal;
    if (option.menuHasCheckableItems) {
        option.checkType = item.RadioItem ? QStyleOptionMenuItem::Exclusive
                           : item.Checked ? QStyleOptionMenuItem::NonExclusive
                                          : QStyleOptionMenuItem::NotCheckable;
        option.checked = item.Checked;
    }
    if (item.IsSeparator()) return;
    option.text = item.Caption;
    option.reservedShortcutWidth = groupWidth;
    if (const QString group = GroupText(row); !group.isEmpty()) option.text += u'\t' + group;
    if (item.ImageIndex >= 0) option.icon = images.value(item.ImageIndex);
}

void TKPopupMenu::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().window());
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.lineWidth = style()->pixelMetric(QStyle::PM_MenuPanelWidth, nullptr, this);
    style()->drawPrimitive(QStyle::PE_PanelMenu, &frame, &painter, this);
    if (frame.lineWidth > 0) style()->drawPrimitive(QStyle::PE_FrameMenu, &frame, &painter, this);
    DrawRows(painter, event->rect());
    DrawScrollers(painter);
}

void TKPopupMenu::DrawRows(QPainter& painter, const QRect& clip) const {
    const QRect view = ViewRect();
    if (shown.empty()) {
        painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
        painter.drawText(view, Qt::AlignCenter, tr("Nothing found"));
        return;
    }
    painter.save();
    painter.setClipRect(view & clip);
    painter.translate(view.topLeft() - scroll);
    const QRect seen = (view & clip).translated(scroll - view.topLeft());
    QColor line = palette().color(QPalette::WindowText); // seen on light and dark ground
    line.setAlpha(70);
    for (const QRect& bar : layout.bars)
        painter.fillRect(bar.center().x(), bar.top(), 1, bar.height(), line);
    for (int i = 0; i < RowCount(); ++i) {
        if (!layout.rows[static_cast<size_t>(i)].intersects(seen)) continue;
        QStyleOptionMenuItem option;
        InitOption(option, i);
        style()->drawControl(QStyle::CE_MenuItem, &option, &painter, this);
    }
    painter.restore();
}

QPoint TKPopupMenu::ScrollZone(QPoint at) const {
    const QRect view = ViewRect();
    if (!view.contains(at)) return {};
    const QPoint most(layout.size.width() - view.width(), layout.size.height() - view.height());
    if (scroll.y() > 0 && at.y() < view.top() + scrollerSize) return {0, -1};
    if (scroll.y() < most.y() && at.y() > view.bottom() - scrollerSize) return {0, 1};
    if (scroll.x() > 0 && at.x() < view.left() + scrollerSize) return {-1, 0};
    if (scroll.x() < most.x() && at.x() > view.right() - scrollerSize) return {1, 0};
    return {};
}

void TKPopupMenu::DrawScrollers(QPainter& painter) const {
    const QRect view = ViewRect();
    const struct {
        QPoint probe; // a point in the strip
        QRect strip;
        QStyle::PrimitiveElement arrow;
    } edges[] = {
        {{view.center().x(), view.top()},
         {view.left(), view.top(), view.width(), scrollerSize},
         QStyle::PE_IndicatorArrowUp},
        {{view.center().x(), view.bottom()},
         {view.left(), view.bottom() + 1 - scrollerSize, view.width(), scrollerSize},
         QStyle::PE_IndicatorArrowDown},
        {{view.left(), view.center().y()},
         {view.left(), view.top(), scrollerSize, view.height()},
         QStyle::PE_IndicatorArrowLeft},
        {{view.right(), view.center().y()},
         {view.right() + 1 - scrollerSize, view.top(), scrollerSize, view.height()},
         QStyle::PE_IndicatorArrowRight},
    };
    for (const auto& edge : edges) {
        if (ScrollZone(edge.probe).isNull()) continue;
        painter.fillRect(edge.strip, palette().button());
        QStyleOption option;
        option.initFrom(this);
        option.rect = QRect(0, 0, scrollerSize, scrollerSize);
        option.rect.moveCenter(edge.strip.center());
        style()->drawPrimitive(edge.arrow, &option, &painter, this);
    }
}

} // namespace tern7
