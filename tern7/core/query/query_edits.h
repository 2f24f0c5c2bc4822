#pragma once

#include <string>

#include <tern7/core/query/filter_row.h>

namespace tern7 {

class TKQuery;

/// What a user does to the rows of a query: every change on the screen is one call here, for which
/// the application hears of one change. The rows must be in the query; an index is a position in
/// the bracket, 0..count.
class TQueryEdits {
public:
    explicit TQueryEdits(TKQuery& owner) : query(owner) {}

    /// A new bracket gets a first condition, and a bracket whose last row goes, goes with it. Holds
    /// always in the style with and/or words, where an empty bracket could not be seen.
    bool NonEmptyBrackets = true;

    /// A condition without field, unfinished until its values are entered.
    TFilterCond* AddCondition(TFilterBracket& parent, int index);
    TFilterBracket* AddBracket(TFilterBracket& parent, int index);
    /// The row to go on with, or none. The root is left alone.
    TFilterRow* Delete(TFilterRow& row);
    void SetEnabled(TFilterRow& row, bool value);
    void SetBracketKind(TFilterBracket& bracket, TFilterLinkType value);
    /// The joining word of the and/or style: the negation stays.
    void SetBracketJoin(TFilterBracket& bracket, bool byAnd);
    /// Keep of operator and values what makes sense there, see TConditionChange.
    void SetField(TFilterCond& condition, TDSField& field);
    void SetOperator(TFilterCond& condition, TDSOperator& op);
    void SetValue(TFilterCond& condition, int n, std::string text, std::string caption = {});
    void SetParameter(TFilterCond& condition, int n, bool value);
    bool EditSubQuery(TFilterCond& condition) { return condition.RunSubQueryEditor(); }

    // --- places; an index counts the rows as they stand before
    bool CanMove(const TFilterRow& row, const TFilterBracket& to) const;
    /// False when nothing was moved: to where it stands, or where it can not be.
    bool Move(TFilterRow& row, TFilterBracket& to, int index);
    /// One line up or down: past its neighbour, into a bracket that stands there, out of its own
    /// bracket at the end. False at the ends of the filter.
    bool MoveUp(TFilterRow& row);
    bool MoveDown(TFilterRow& row);
    /// A copy of the row and all below it.
    TFilterRow* CopyTo(const TFilterRow& row, TFilterBracket& to, int index);

private:
    bool KeepsBracketsFilled() const;

    TKQuery& query;
};

} // namespace tern7
