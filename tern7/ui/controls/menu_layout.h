#pragma once

#include <vector>

#include <QRect>
#include <QSize>

namespace tern7 {

/// What the layout needs to know of a menu row.
struct TMenuRow {
    int textWidth = 0;
    bool separator = false;
    bool newColumn = false;
    bool bar = false; // with a line before the new column
};

/// Where the rows of a menu stand. Reading from the left:
///
///     +----------+-+----------+
///     | row 0    |b| row 3    |    b: room for a bar
///     | row 1    |a|----------|    a separator is lower than a row
///     | row 2    |r| row 5    |
///     +----------+-+----------+
struct TMenuLayout {
    std::vector<QRect> rows;
    std::vector<QRect> bars;
    std::vector<int> columnStarts; // the first row of each column
    QSize size;

    int ColumnOf(int row) const;
    /// The row at a point, or -1.
    int RowAt(QPoint at) const;
};

struct TMenuMetrics {
    int rowHeight = 0;
    int separatorHeight = 0;
    int barWidth = 0;
    int extraWidth = 0; // of icon, check mark, arrow and margins, beside the text
    int leastWidth = 0; // of a menu with one column
};

/// One pass over the rows; `fromRight` mirrors the result.
TMenuLayout LayoutMenu(const std::vector<TMenuRow>& rows, const TMenuMetrics& metrics,
                       bool fromRight);

} // namespace tern7
