#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tern7/core/query/bound_value.h>

namespace tern7 {

/// Appends a text as a field of comma separated values (RFC 4180): in quotes where it needs them;
/// an empty text is `""`, so that it differs from no value.
void AppendCsvField(std::string& line, std::string_view text);
/// A row with CR LF behind it; NULL is nothing at all.
std::string CsvRow(const std::vector<TBoundValue>& cells);
/// The same for the names of the columns.
std::string CsvRow(const std::vector<std::string>& names);

} // namespace tern7
