#pragma once

#include <array>
#include <string_view>

#include <tern7/core/global/messages.h>
#include <tern7/core/structure/operator.h>

namespace tern7 {

/// The default operators: the one table of their names, captions, templates and types.
struct TDefaultOperator {
    std::string_view name;
    std::string_view caption;
    std::string_view sqlTemplate;
    TAppliedTypes appliedTypes;
    std::optional<TExOperator> optional = {}; // made only when it is in ExOperators
    TOpValueType valueType = TOpValueType::vtScalar;
    std::string_view valFormat = {};
};

namespace default_types {
using enum TFieldType;
inline constexpr TAppliedTypes Comparable = {
    ftString, ftSmallint, ftInteger, ftWord,     ftBoolean, ftFloat,    ftCurrency,
    ftBCD,    ftDate,     ftTime,    ftDateTime, ftAutoInc, ftLargeint, ftTimeStamp};
inline constexpr TAppliedTypes Texts = {ftString, ftMemo, ftFmtMemo, ftWideString};
inline constexpr TAppliedTypes Nullable = Comparable | TAppliedTypes{ftMemo, ftFmtMemo};
} // namespace default_types

inline constexpr std::array<TDefaultOperator, 13> DefaultOperators = {{
    {"Equal", "is equal to", "@f = '@1'", default_types::Comparable},
    {"NotEqual", "is not equal to", "@f <> '@1'", default_types::Comparable},
    {"LessThan", "is less than", "@f < '@1'", default_types::Comparable},
    {"LessOrEqual", "is less than or equal to", "@f <= '@1'", default_types::Comparable},
    // no blank before the quote: kept, statements are recognised by this very text
    {"GreaterThan", "is greater than", "@f >'@1'", default_types::Comparable},
    {"GreaterOrEqual", "is greater than or equal to", "@f >= '@1'", default_types::Comparable},
    {"IsNull", "is null", "@f is null", default_types::Nullable},
    {"InList", "is in list", "@f in (@1)", default_types::Comparable, TExOperator::xoInList,
     TOpValueType::vtList},
    {"StartsWith", "starts with", "@f like '@1%'", default_types::Texts, TExOperator::xoStartsWith},
    {"NotStartsWith", "does not start with", "not(@f like '@1%')", default_types::Texts,
     TExOperator::xoStartsWith},
    {"Contains", "contains", "@f like '%@1%'", default_types::Texts, TExOperator::xoContains},
    {"NotContains", "does not contain", "not(@f like '%@1%')", default_types::Texts,
     TExOperator::xoContains},
    {"Between", "is between", "@f between '@1' and '@2'", default_types::Comparable,
     TExOperator::xoBetween, TOpValueType::vtScalar, messages::And},
}};

} // namespace tern7
