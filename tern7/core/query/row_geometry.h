#pragma once

#include <vector>

namespace tern7 {

/// Where the lines of a query stand and what stands in them, in pixels of the whole content, from
/// sizes that the screen measured. Reading from the right is the mirror image: see Mirrored.
///
///     |<- HeaderLeft
///     v          HeaderTop (from the upper edge)
///     (1)  Choose records where [all] of the following apply         line 0, level 0
///     |<-- TabSpace
///          v                                                 RowSpace between the lines
///          (2) [x]  City  is equal to  Berlin                        line 1, level 1
///             ^   ElemSpace between the elements
///          (3) [x]  [any] of the following apply                     line 2, level 1
///               (4) [x]  Name  starts with  A                        line 3, level 2
///                        Click here to add new condition             RowSpace + 2 below the last
///                        ^ at the left of the last line's first label
///
/// In the style with and/or words there is no header line, and the outermost rows are at level 0.
struct TRowGeometry {
    int RowSpace = 3;
    int TabSpace = 20;
    int ElemSpace = 5;
    int HeaderLeft = 5;
    int HeaderTop = 5;
    int LineHeight = 1; ///< of every line, at least 1

    int LineTop(int line) const { return HeaderTop + line * (LineHeight + RowSpace); }
    int LineBottom(int line) const { return LineTop(line) + LineHeight; }
    /// The line at a height, the gap below it included; below 0 above the first line, and without
    /// regard to how many lines there are.
    int LineAt(int y) const;
    int LevelLeft(int level) const { return HeaderLeft + level * TabSpace; }
    /// Where an element of a height stands in its line: in the middle.
    int ElementTop(int line, int height) const { return LineTop(line) + (LineHeight - height) / 2; }
    /// The lefts of elements with these widths, one after the other.
    std::vector<int> Lefts(int left, const std::vector<int>& widths) const;
    /// The upper edge of the add-row label below the last line's label.
    int AddRowTop(int lastLabelBottom) const { return lastLabelBottom + RowSpace + 2; }
};

/// The left of an element in content that is read from the right: as far from the right edge as it
/// was from the left one.
constexpr int Mirrored(int left, int width, int contentWidth) {
    return contentWidth - left - width;
}

} // namespace tern7
