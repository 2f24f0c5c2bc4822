#pragma once

#include <string_view>
#include <vector>

namespace tern7 {

class TDSField;
class TKCustomDBStructure;

/// The fields that a readable name ("Name" or "Table.Name") can mean, more than one where it is not
/// unique.
std::vector<TDSField*> FieldsOfName(const TKCustomDBStructure& structure, std::string_view name);

/// The fields for columns whose names are most like one that there is not, the best first; none
/// when there is nothing like it. Linear in the number of fields.
std::vector<TDSField*> FieldsLikeName(const TKCustomDBStructure& structure, std::string_view name,
                                      size_t most);

} // namespace tern7
