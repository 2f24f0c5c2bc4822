// Structure texts: whatever is read is written, and what was written is read as the same.

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include <tern7/core/structure/structure.h>

using namespace tern7;

namespace {

void Require(bool condition) {
    if (!condition) std::abort();
}

/// Every field stands in one group or the root group, and is found by its ID.
void CheckModel(TKCustomDBStructure& structure) {
    int placed = structure.RootGroup().GetCount();
    for (const auto& group : structure.FieldGroups())
        placed += group->GetCount();
    Require(placed == structure.GetFieldCount());
    for (const auto& field : structure.Fields()) {
        Require(structure.FieldByID(field->ID()) == field.get());
        Require(structure.FieldBySQLExpr(field->GetSQLExpr()) != nullptr);
        for (const TDSTable* table : field->GetTables())
            Require(structure.GetTable(table->Index()) == table);
        field->ExcludeTables();
    }
    if (structure.GetTableCount() > 0) {
        try {
            structure.GetPath(*structure.GetTable(0),
                              *structure.GetTable(structure.GetTableCount() - 1));
        } catch (const EKDBStructError&) {
        }
        structure.DelTable(0);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    TKCustomDBStructure first, second;
    try {
        first.SetStructString(text);
    } catch (const EKDBStructError&) {
        return 0;
    }
    const std::string written = first.GetStructString();
    second.SetStructString(written);
    Require(second.GetStructString() == written);
    CheckModel(second);
    second.ClearStructure();
    return 0;
}
