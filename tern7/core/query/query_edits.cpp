#include <tern7/core/query/query_edits.h>

#include <algorithm>

#include <tern7/core/query/condition_change.h>
#include <tern7/core/query/query.h>

namespace tern7 {

namespace {

/// True when value n is not needed, or is there.
bool HasValue(const TFilterCond& condition, int n) {
    return n > condition.ValueCount() || condition.ValueIsParam(n) || !condition.Value(n).empty();
}

} // namespace

bool TQueryEdits::KeepsBracketsFilled() const {
    return NonEmptyBrackets || query.Style() == TQPStyle::psAndOr;
}

TFilterCond* TQueryEdits::AddCondition(TFilterBracket& parent, int index) {
    TKQuery::THeldEvents events(query);
    TFilterCond* condition = parent.InsertCond(index);
    condition->SetEntered(false);
    events.Send();
    return condition;
}

TFilterBracket* TQueryEdits::AddBracket(TFilterBracket& parent, int index) {
    TKQuery::THeldEvents events(query);
    TFilterBracket* bracket = parent.InsertBracket(index);
    if (KeepsBracketsFilled()) bracket->AddCond()->SetEntered(false);
    events.Send();
    return bracket;
}

TFilterRow* TQueryEdits::Delete(TFilterRow& row) {
    if (!row.Parent()) return nullptr;
    TFilterRow* removed = &row;
    while (KeepsBracketsFilled() && removed->Parent()->Parent() &&
           removed->Parent()->GetRowCount() == 1)
        removed = removed->Parent();
    TFilterBracket& from = *removed->Parent();
    const int index = from.GetRowIndex(removed);
    from.DeleteRow(removed);
    if (from.GetRowCount() == 0) return from.Parent() ? &from : nullptr;
    return from.GetRow(std::min(index, from.GetRowCount() - 1));
}

void TQueryEdits::SetEnabled(TFilterRow& row, bool value) {
    row.SwitchEnabled(value);
}

void TQueryEdits::SetBracketKind(TFilterBracket& bracket, TFilterLinkType value) {
    bracket.SetLinkType(value);
}

void TQueryEdits::SetBracketJoin(TFilterBracket& bracket, bool byAnd) {
    const bool negated = IsNegated(bracket.LinkType());
    if (byAnd)
        bracket.SetLinkType(negated ? TFilterLinkType::fltNotAll : TFilterLinkType::fltAll);
    else
        bracket.SetLinkType(negated ? TFilterLinkType::fltNone : TFilterLinkType::fltAny);
}

void TQueryEdits::SetField(TFilterCond& condition, TDSField& field) {
    ApplyChange(condition, WithField(condition, field));
}

void TQueryEdits::SetOperator(TFilterCond& condition, TDSOperator& op) {
    ApplyChange(condition, WithOperator(condition, op));
}

void TQueryEdits::SetValue(TFilterCond& condition, int n, std::string text, std::string caption) {
    TKQuery::THeldEvents events(query);
    const bool complete = condition.Entered() || HasValue(condition, 3 - n);
    condition.EnterValue(n, std::move(text), std::move(caption));
    condition.SetEntered(complete);
    events.Send();
}

void TQueryEdits::SetParameter(TFilterCond& condition, int n, bool value) {
    TKQuery::THeldEvents events(query);
    condition.SetValueIsParam(n, value);
    if (value && HasValue(condition, 3 - n)) condition.SetEntered(true);
    events.Send();
}

} // namespace tern7
