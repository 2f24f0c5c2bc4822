#include <tern7/core/query/drop_places.h>

#include <algorithm>
#include <cstdlib>

namespace tern7 {

namespace {

class TPlaces {
public:
    explicit TPlaces(TQPStyle lineStyle) : style(lineStyle) {}
    /// Behind a row, and behind all brackets that end with it.
    void AddBehind(TFilterRow& above) {
        TFilterBracket* bracket = above.AsBracket();
        if (bracket && (bracket->GetRowCount() > 0 || !bracket->Parent()))
            return Add(*bracket, 0); // its first row is the next line
        if (bracket) Add(*bracket, 0);
        for (TFilterRow* row = &above; row->Parent(); row = row->Parent()) {
            TFilterBracket& parent = *row->Parent();
            const int index = parent.GetRowIndex(row) + 1;
            Add(parent, index);
            if (index < parent.GetRowCount()) return;
        }
    }
    /// Before a row, and before all brackets without a line that begin with it.
    void AddBefore(TFilterRow& below) {
        for (TFilterRow* row = &below; row->Parent(); row = row->Parent()) {
            const int index = row->Parent()->GetRowIndex(row);
            Add(*row->Parent(), index);
            if (index > 0 || style == TQPStyle::psGroups) return;
        }
    }
    std::vector<TDropPlace> Take() {
        std::stable_sort(places.begin(), places.end(),
                         [](const auto& a, const auto& b) { return a.level > b.level; });
        return std::move(places);
    }

private:
    void Add(TFilterBracket& parent, int index) {
        for (const TDropPlace& place : places)
            if (place.parent == &parent && place.index == index) return;
        places.push_back({&parent, index, parent.Level() + (style == TQPStyle::psGroups ? 1 : 0)});
    }
    TQPStyle style;
    std::vector<TDropPlace> places;
};

} // namespace

std::vector<TDropPlace> DropPlaces(const TRowLines& lines, int gap, TQPStyle style) {
    TPlaces places(style);
    if (gap > 0 && gap <= lines.Count()) places.AddBehind(*lines.At(gap - 1).row);
    if (gap >= 0 && gap < lines.Count()) places.AddBefore(*lines.At(gap).row);
    return places.Take();
}

const TDropPlace* NearestPlace(const std::vector<TDropPlace>& places, int level) {
    const auto nearest =
        std::min_element(places.begin(), places.end(), [level](const auto& a, const auto& b) {
            return std::abs(a.level - level) < std::abs(b.level - level);
        });
    return nearest == places.end() ? nullptr : &*nearest;
}

} // namespace tern7
