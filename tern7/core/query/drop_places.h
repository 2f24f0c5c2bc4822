#pragma once

#include <vector>

#include <tern7/core/query/row_lines.h>

namespace tern7 {

/// Where a row that is dragged can be put: a position in a bracket, and its level of indentation.
struct TDropPlace {
    TFilterBracket* parent;
    int index;
    int level;
};

/// The places between line `gap` - 1 and line `gap`, the deepest first. Several brackets may end in
/// one gap:
///
///     (2) any of the following apply        level 1
///         (3) Name starts with A            level 2
///     ------- gap 4 -------                 in (2) behind (3): level 2; behind (2): level 1
///     (4) City is equal to Berlin           level 1
///
/// Nothing can be put above the header line.
std::vector<TDropPlace> DropPlaces(const TRowLines& lines, int gap, TQPStyle style);

/// Of these the one whose level is nearest to `level`; none when there are none.
const TDropPlace* NearestPlace(const std::vector<TDropPlace>& places, int level);

} // namespace tern7
