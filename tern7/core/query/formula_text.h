#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tern7 {

/// The functions over rows that a column can be made of. "as is" is none.
enum class TAggregate : uint8_t { None, Sum, Count, Min, Max, Average };
inline constexpr int AggregateCount = 6;

/// "SUM(@1)", "COUNT(@1)", "MIN(@1)", "MAX(@1)", "AVG(@1)"; "@1" for none.
std::string_view AggregateTemplate(TAggregate aggregate);

/// An expression, in its user form or as SQL, taken apart: the function that is around the whole of
/// it, and what is inside. `SUM({Price} * 2)` is Sum of `{Price} * 2`; `SUM({A}) / SUM({B})` is
/// none of it all.
struct TAggregateParts {
    TAggregate aggregate = TAggregate::None;
    std::string_view inner;
};
TAggregateParts SplitAggregate(std::string_view expression);

/// The expression with another function around it, or none.
std::string WithAggregate(std::string_view expression, TAggregate aggregate);

/// True when a function over rows stands inside the expression, so that none can be put around it.
bool HoldsAggregate(std::string_view expression);

/// Offset of the first round bracket or quote that has no counterpart.
std::optional<size_t> UnclosedAt(std::string_view expression);

/// Offset of the first comment or semicolon, which would change or end the statement around the
/// expression.
std::optional<size_t> CommentOrEndAt(std::string_view expression);

/// True when a letter stands outside of literals, quoted names and braces.
bool HoldsWords(std::string_view expression);

/// An expression and an operand joined by + - * or /, with brackets where the meaning would change.
/// A function around the expression goes on to stand around the whole. An empty expression gives
/// the operand.
std::string JoinedBy(char operation, std::string_view expression, std::string_view operand);

} // namespace tern7
