#pragma once

#include <stdexcept>

#include "cells.h"
#include "sample.h"

#include <tern7/core/query/query.h>

namespace tern7::proof {

class TTooManyRows : public std::runtime_error {
public:
    TTooManyRows() : std::runtime_error("the join has too many rows") {}
};

/// Answers a query from the rows of the tables, without a look at SQL text: joins the result tables
/// along their links, keeps what the condition tree holds to be true (of true, false and unknown),
/// groups and computes the columns.
class TEvaluator {
public:
    explicit TEvaluator(const TSample& data, size_t mostRows = SIZE_MAX)
        : sample(data), limit(mostRows) {}

    /// The rows in no particular order. The query must have been built. TTooManyRows when a join,
    /// here or in a nested query, has more rows than the limit.
    TRows Rows(const TKQuery& query) const;

private:
    const TSample& sample;
    size_t limit;
};

} // namespace tern7::proof
