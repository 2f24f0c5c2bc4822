#pragma once

#include <string_view>
#include <vector>

namespace tern7 {

class TDSField;
class TKCustomDBStructure;

/// What a field is offered for.
enum class TFieldUse { Conditions, Result };

struct TOfferedField {
    TDSField* field;
    std::string_view group; ///< name of its group, valid until the structure changes; empty: none
};

/// The fields that end users may choose, in the order of the field menus: the groups in their
/// order, each with its fields, and the fields outside groups before or behind them
/// (RootFieldsFirst). Fields that are not meant for the use are left out. Linear.
std::vector<TOfferedField> OfferedFields(const TKCustomDBStructure& structure, TFieldUse use);

} // namespace tern7
