#pragma once

#include <vector>

namespace tern7 {

/// How a long menu is spread over columns: all of about the same length, or each filled to the
/// limit before the next begins.
enum class TKPopupSplitType { pstBalanced = 0, pstFillFirst = 1 };

/// The positions at which a menu of `count` items begins a new column, when a column may hold
/// `limit` items (at least 1). A menu of exactly `limit` balanced items gets two columns. Raises
/// EDDLabelError for a position behind the last item, which pstFillFirst asks for when `count` is a
/// multiple of `limit`; this is kept because applications rely on being told.
std::vector<int> ColumnBreaks(int count, int limit, TKPopupSplitType type);

} // namespace tern7
