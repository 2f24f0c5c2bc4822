#pragma once

#include <string_view>

#include <tern7/sql/engine.h>

namespace tern7 {

/// True when a column or table of that name must stand in quotes: the engine would take the bare
/// name for another one (PostgreSQL folds to lower case), for a word of its own, or not at all.
bool NameNeedsQuotes(std::string_view name, TKEngine engine);

} // namespace tern7
