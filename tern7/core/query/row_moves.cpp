#include <algorithm>
#include <stdexcept>

#include <tern7/core/query/query.h>
#include <tern7/core/query/query_edits.h>

namespace tern7 {

bool TQueryEdits::CanMove(const TFilterRow& row, const TFilterBracket& to) const {
    return row.Parent() && to.CanHold(row);
}

bool TQueryEdits::Move(TFilterRow& row, TFilterBracket& to, int index) {
    if (index < 0 || index > to.GetRowCount()) throw std::out_of_range("row index out of range");
    if (!CanMove(row, to)) return false;
    TFilterBracket& from = *row.Parent();
    const int at = from.GetRowIndex(&row);
    if (&from == &to && (index == at || index == at + 1)) return false;
    if (&from == &to && index > at) --index;

    TKQuery::THeldEvents events(query);
    to.InsertRow(index, from.TakeRow(&row));
    if (KeepsBracketsFilled() && from.GetRowCount() == 0) Delete(from);
    events.Send();
    return true;
}

bool TQueryEdits::MoveUp(TFilterRow& row) {
    TFilterBracket* parent = row.Parent();
    if (!parent) return false;
    const int at = parent->GetRowIndex(&row);
    if (at == 0)
        return parent->Parent() &&
               Move(row, *parent->Parent(), parent->Parent()->GetRowIndex(parent));
    TFilterBracket* above = parent->GetRow(at - 1)->AsBracket();
    if (above && CanMove(row, *above)) return Move(row, *above, above->GetRowCount());
    return Move(row, *parent, at - 1);
}

bool TQueryEdits::MoveDown(TFilterRow& row) {
    TFilterBracket* parent = row.Parent();
    if (!parent) return false;
    const int at = parent->GetRowIndex(&row);
    if (at == parent->GetRowCount() - 1)
        return parent->Parent() &&
               Move(row, *parent->Parent(), parent->Parent()->GetRowIndex(parent) + 1);
    TFilterBracket* below = parent->GetRow(at + 1)->AsBracket();
    if (below && CanMove(row, *below)) return Move(row, *below, 0);
    return Move(row, *parent, at + 2);
}

TFilterRow* TQueryEdits::CopyTo(const TFilterRow& row, TFilterBracket& to, int index) {
    return to.InsertRow(index, row.Clone());
}

} // namespace tern7
