#include <tern7/core/query/row_lines.h>

namespace tern7 {

void TRowLines::Build(TKQuery& query) {
    lines.clear();
    const bool brackets = query.Style() == TQPStyle::psGroups;
    Add(query.Root(), brackets ? 0 : -1, 0, brackets);
}

void TRowLines::Add(TFilterRow& row, int level, int position, bool brackets) {
    if (brackets || !row.IsBracket()) lines.push_back({&row, level, position});
    const TFilterBracket* bracket = row.AsBracket();
    if (!bracket) return;
    int next = 0;
    for (const auto& below : bracket->Rows())
        Add(*below, level + 1, next++, brackets);
}

int TRowLines::LineOf(const TFilterRow& row) const {
    // the root has no number, and its line is the first
    const int line = row.Parent() ? row.RowNum() : 0;
    const bool here = line >= 0 && line < Count() && lines[static_cast<size_t>(line)].row == &row;
    return here ? line : -1;
}

} // namespace tern7
