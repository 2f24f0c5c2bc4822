#include <tern7/ui/controls/menu_layout.h>

#include <algorithm>

namespace tern7 {

namespace {

void Mirror(std::vector<QRect>& rects, int width) {
    for (QRect& rect : rects)
        rect.moveLeft(width - rect.right() - 1);
}

} // namespace

TMenuLayout LayoutMenu(const std::vector<TMenuRow>& rows, const TMenuMetrics& metrics,
                       bool fromRight) {
    TMenuLayout layout;
    layout.rows.reserve(rows.size());
    int left = 0, top = 0, width = 0, height = 0;
    size_t start = 0;
    const auto closeColumn = [&] {
        for (size_t i = start; i < layout.rows.size(); ++i)
            layout.rows[i].setWidth(width);
        height = std::max(height, top);
        left += width;
    };
    for (size_t i = 0; i < rows.size(); ++i) {
        if (i == 0 || rows[i].newColumn) {
            if (i > 0) closeColumn();
            if (i > 0 && rows[i].bar) {
                layout.bars.emplace_back(left, 0, metrics.barWidth, 0);
                left += metrics.barWidth;
            }
            layout.columnStarts.push_back(static_cast<int>(i));
            start = i;
            top = width = 0;
        }
        const int rowHeight = rows[i].separator ? metrics.separatorHeight : metrics.rowHeight;
        layout.rows.emplace_back(left, top, 0, rowHeight);
        width = std::max(width, rows[i].textWidth + metrics.extraWidth);
        top += rowHeight;
    }
    if (layout.columnStarts.size() == 1) width = std::max(width, metrics.leastWidth);
    closeColumn();
    layout.size = {left, height};
    for (QRect& bar : layout.bars)
        bar.setHeight(height);
    if (fromRight) {
        Mirror(layout.rows, left);
        Mirror(layout.bars, left);
    }
    return layout;
}

int TMenuLayout::ColumnOf(int row) const {
    const auto next = std::upper_bound(columnStarts.begin(), columnStarts.end(), row);
    return static_cast<int>(next - columnStarts.begin()) - 1;
}

int TMenuLayout::RowAt(QPoint at) const {
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [&](const QRect& rect) { return rect.contains(at); });
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

} // namespace tern7
