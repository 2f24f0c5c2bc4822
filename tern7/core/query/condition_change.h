#pragma once

#include <string>

#include <tern7/core/query/filter_row.h>

namespace tern7 {

/// What a condition becomes when a user chooses another field or operator: as much of it as makes
/// sense there stays.
///
/// - The operator stays when the new field offers it; else the field's first operator.
/// - A value stays when it can be a value of the new operand: a text always, a number where it is
///   one, a date or time where it can be read, a member of a list when the new list has it.
/// - Between one value and a list of values the value becomes the list's only item, and of a list
///   its first item stays. Nothing passes between sub-queries and values; the sub-query itself is
///   kept for a later change of mind.
/// - A new condition takes the value that the field's editor proposes.
struct TConditionChange {
    TDSField* field = nullptr;
    TDSOperator* op = nullptr;
    std::string values[2];
    bool keepsCaptions = true; ///< values and their list are the same as before
    bool entered = true;       ///< see TFilterCond::Entered
};

TConditionChange WithField(const TFilterCond& condition, TDSField& field);
TConditionChange WithOperator(const TFilterCond& condition, TDSOperator& op);
/// Makes the change; the application hears of it once.
void ApplyChange(TFilterCond& condition, const TConditionChange& change);

} // namespace tern7
