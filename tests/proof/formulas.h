#pragma once

#include <map>
#include <string_view>
#include <vector>

#include "cells.h"

#include <tern7/core/structure/structure.h>

namespace tern7::proof {

/// What types have in common as far as formulas and comparisons go.
enum class TKindOfType { Whole, Exact, Floating, Boolean, Text, Date, Time, Timestamp };
TKindOfType KindOf(TFieldType type);
inline bool IsNumeric(TKindOfType kind) {
    return kind == TKindOfType::Whole || kind == TKindOfType::Exact ||
           kind == TKindOfType::Floating;
}

enum class TAggregate { None, CountRows, Count, Sum, Min, Max };

/// A formula that both SQL and the evaluator know. It gives the same on every engine: whole results
/// of whole numbers, no text functions.
struct TFormula {
    std::string_view text;
    int fieldCount;
    TAggregate aggregate = TAggregate::None;
    TCell (*value)(const TRow& fields); ///< of one row
    bool (*takes)(TFieldType first, TFieldType second);
};
const std::vector<TFormula>& Formulas();
const TFormula& FormulaByText(std::string_view text);

/// A virtual field: a formula over columns.
struct TVirtualField {
    const TFormula* formula;
    std::vector<int> fieldIDs;
};
using TVirtualFields = std::map<int, TVirtualField>;

} // namespace tern7::proof
