#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tern7::proof {

/// A value as databases compare them: NULL, number, or text (dates and times in their ISO form,
/// booleans as 1 and 0).
using TCell = std::variant<std::monostate, int64_t, double, std::string>;
using TRow = std::vector<TCell>;
using TRows = std::vector<TRow>;

inline bool IsNull(const TCell& cell) {
    return std::holds_alternative<std::monostate>(cell);
}

/// A whole number, else one with a fraction.
TCell NumberCell(std::string_view text);

/// Below, equal to or above 0; numbers by value, texts by bytes. NULL stands before everything.
int Compare(const TCell& a, const TCell& b);

/// The same text for equal values, whatever type an engine gives them. Fractions are cut where
/// exact and floating-point arithmetic differ.
std::string TextOf(const TCell& cell);

/// The rows as texts, sorted, so that equal multisets are equal.
std::vector<std::string> SortedTexts(const TRows& rows);

} // namespace tern7::proof
