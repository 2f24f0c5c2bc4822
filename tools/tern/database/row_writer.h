#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <tern7/core/query/bound_value.h>

namespace tern7 {

/// Prints the rows of a result.
class TRowWriter {
public:
    virtual ~TRowWriter() = default;
    virtual void Begin(const std::vector<std::string>& columns) = 0;
    virtual void Row(const std::vector<TBoundValue>& cells) = 0;
    virtual void End() = 0;
};

enum class TRowFormat : uint8_t { Table, Csv, Json };

/// Table: columns aligned by what they take on a terminal, NULL as `<null>`; kept until the end,
/// because the widths have to be known. Csv: RFC 4180, NULL as nothing, an empty text as `""`.
/// Json: an array of objects; a column whose name was there before gets a number behind it.
std::unique_ptr<TRowWriter> MakeRowWriter(TRowFormat format);

} // namespace tern7
