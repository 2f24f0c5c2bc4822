#pragma once

#include <functional>
#include <vector>

#include <tern7/core/metadata/db_info.h>

namespace tern7 {

/// Turns the keys that a catalog declares into those that can be used: table and column names in
/// the spelling of the table, Optional filled in, keys that lead nowhere and repeated ones left
/// out, sorted by table and by the position of the referring columns (the same order on every
/// engine). `tables` is sorted. O(tables + keys log keys), and a look at the columns of each key.
void CompleteForeignKeys(
    std::vector<TDBForeignKey>& keys, const TStrings& tables,
    const std::function<const TDBFieldList&(const std::string& table)>& fieldsOf);

} // namespace tern7
