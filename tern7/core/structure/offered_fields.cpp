#include <tern7/core/structure/offered_fields.h>

#include <tern7/core/structure/structure.h>

namespace tern7 {

namespace {

void AddFields(std::vector<TOfferedField>& offered, const TDSFieldList& fields,
               std::string_view group, TFieldUse use) {
    for (TDSField* field : fields.Items())
        if (use == TFieldUse::Result ? field->UseInResult() : field->UseInConditions())
            offered.push_back({field, group});
}

} // namespace

std::vector<TOfferedField> OfferedFields(const TKCustomDBStructure& structure, TFieldUse use) {
    std::vector<TOfferedField> offered;
    if (structure.RootFieldsFirst()) AddFields(offered, structure.RootGroup(), {}, use);
    for (const auto& group : structure.FieldGroups())
        AddFields(offered, *group, group->GroupName(), use);
    if (!structure.RootFieldsFirst()) AddFields(offered, structure.RootGroup(), {}, use);
    return offered;
}

} // namespace tern7
