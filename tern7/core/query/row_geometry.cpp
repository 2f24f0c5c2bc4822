#include <tern7/core/query/row_geometry.h>

#include <algorithm>

namespace tern7 {

int TRowGeometry::LineAt(int y) const {
    const int step = std::max(LineHeight + RowSpace, 1);
    const int below = y - HeaderTop;
    return below < 0 ? -1 : below / step;
}

std::vector<int> TRowGeometry::Lefts(int left, const std::vector<int>& widths) const {
    std::vector<int> lefts;
    lefts.reserve(widths.size());
    for (const int width : widths) {
        lefts.push_back(left);
        left += width + ElemSpace;
    }
    return lefts;
}

} // namespace tern7
