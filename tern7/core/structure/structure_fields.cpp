#include <algorithm>
#include <limits>
#include <unordered_set>

#include <tern7/core/global/messages.h>
#include <tern7/core/structure/structure_indexes.h>

namespace tern7 {

int TKCustomDBStructure::NextID() {
    if (lastID < std::numeric_limits<int>::max()) return ++lastID;
    // a file used up the numbers: the first free one
    while (FieldByID(freeID))
        ++freeID;
    return freeID++;
}

void TKCustomDBStructure::List(TDSField* field) {
    field->order = ++lastFieldOrder;
    indexes->AddID(field);
    indexes->AddTexts(field);
}

TDSField* TKCustomDBStructure::AddField(TKFieldKind kind, std::string fieldExpr,
                                        std::string displayName, TDSTable* table) {
    if (kind == TKFieldKind::kfkVirtual)
        table = nullptr;
    else if (!table || &table->Structure() != this)
        throw EKDBStructError(
            FormatMessage(messages::NoSuchTable, {table ? table->TableAlias() : ""}));
    auto made = std::make_unique<TDSField>(*this, kind);
    made->id = NextID();
    made->fieldExpr = std::move(fieldExpr);
    made->displayName = std::move(displayName);
    made->table = table;
    TDSField* field = fields.Add(std::move(made));
    rootGroup.fields.push_back(field);
    List(field);
    Changed();
    return field;
}

void TKCustomDBStructure::DelField(int index) {
    TDSField* field = GetField(index);
    TDSUpdate update(*this);
    TReferencesReleased references(*this);
    indexes->RemoveID(field);
    indexes->RemoveTexts(field);
    std::erase((field->group ? field->group : &rootGroup)->fields, field);
    fields.Delete(index);
    Changed();
}

// The fields of a table; none: of all tables.
void TKCustomDBStructure::DeleteFieldsOf(const TDSTable* table) {
    auto goes = [table](const TDSField& field) {
        return table ? field.table == table : field.table != nullptr;
    };
    std::unordered_set<TDSFieldGroup*> homes;
    bool any = false;
    for (const auto& field : fields) {
        if (!goes(*field)) continue;
        any = true;
        indexes->RemoveID(field.get());
        indexes->RemoveTexts(field.get());
        homes.insert(field->group ? field->group : &rootGroup);
    }
    if (!any) return;
    for (TDSFieldGroup* home : homes)
        std::erase_if(home->fields, [&](const TDSField* field) { return goes(*field); });
    fields.DeleteIf(goes);
}

TDSField* TKCustomDBStructure::GetField(int index) const {
    if (index < 0 || index >= fields.GetCount())
        throw EKDBStructError(FormatMessage(messages::InvalidFieldIndex, {std::to_string(index)}));
    return fields[index];
}

void TKCustomDBStructure::GetFieldNames(bool compound, TStrings& names,
                                        std::vector<TDSField*>* objects) const {
    names.clear();
    if (objects) objects->clear();
    for (const auto& field : fields) {
        names.push_back(compound ? field->GetCompoundName() : field->DisplayName());
        if (objects) objects->push_back(field.get());
    }
}

} // namespace tern7
