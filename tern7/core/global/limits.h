#pragma once

/// How deep statements and queries may be nested; deeper ones are refused before any recursion.
namespace tern7 {

/// Brackets of a statement, and of rows.
inline constexpr int MaxBracketLevel = 1000;
/// Sub-selects of a statement.
inline constexpr int MaxSubQueryLevel = 200;

} // namespace tern7
