#pragma once

#include <string>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

class TKQuery;

/// One line for each enabled condition that the statement leaves out, sub-queries included: the
/// name of its section in the query text, why, and its sentence.
TStrings LeftOutRows(const TKQuery& query);
/// Tells them; true when there were any.
bool TellLeftOutRows(const TKQuery& query);

/// One line for each row, column or table that the structure doesn't know, sub-queries included.
TStrings UnknownParts(const TKQuery& query);

} // namespace tern7
