#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tern7/core/query/bound_value.h>
#include <tern7/core/query/filter_row.h>

namespace tern7 {

/// What the text of a condition depends on beside the condition itself.
struct TConditionContext {
    const TKQuery& query;
    std::string_view mainTable; ///< stands for "@m"
};

/// Appends the text of a condition, its values in place. EKWrongValueError for a value that may not
/// stand without quotes.
void AppendConditionText(const TConditionContext& context, const TFilterCond& condition,
                         std::string& out);

/// Where bound values go: placeholders in the present style, values in text order.
class TBoundValues {
public:
    TBoundValues(TPlaceholderStyle placeholderStyle, bool escape)
        : style(placeholderStyle), escapeWildcards(escape) {}
    /// Appends a placeholder to the text and the value to the list. EKQueryPanelError for a NUL.
    void Bind(std::string& out, TBoundValue value);
    bool EscapeWildcards() const { return escapeWildcards; }
    std::vector<TBoundValue> Take() { return std::move(values); }

private:
    TPlaceholderStyle style;
    bool escapeWildcards;
    std::vector<TBoundValue> values;
};

/// Appends the text of a condition with its constants as placeholders.
void AppendBoundCondition(const TConditionContext& context, const TFilterCond& condition,
                          TBoundValues& values, std::string& out);

/// The statement of a condition's nested query on one line: lines trimmed, joined with one blank.
std::string NestedStatement(const TFilterCond& condition);
std::string NestedBoundStatement(const TFilterCond& condition, TBoundValues& values);

/// EKWrongValueError unless value n, where it stands without quotes, is one number or word (one per
/// item of a list).
void CheckBareValue(const TFilterCond& condition, int n);

/// True for a number with sign, a hex literal, or one word; blanks around it aside.
bool IsBareToken(std::string_view text);

/// True when the text can stand in a statement that is executed: no ";", no comment, no bracket or
/// quote left open, under both readings of a backslash in a literal.
bool IsSafeFragment(std::string_view text);

} // namespace tern7
