#include <tern7/ui/controls/menu_split.h>

#include <algorithm>

#include <tern7/ui/controls/control_events.h>

namespace tern7 {

std::vector<int> ColumnBreaks(int count, int limit, TKPopupSplitType type) {
    limit = std::max(limit, 1);
    const int breakCount = count / limit;
    const int columns = breakCount + 1;
    const bool fillFirst = type == TKPopupSplitType::pstFillFirst;
    const int perColumn = fillFirst ? limit : (count + columns - 1) / columns;
    std::vector<int> breaks;
    for (int k = 1; k <= breakCount; ++k) {
        const int at = perColumn * k;
        if (at < count)
            breaks.push_back(at);
        else if (fillFirst)
            throw EDDLabelError(EDDLabelError::menuIndexOutOfRange);
    }
    return breaks;
}

} // namespace tern7
