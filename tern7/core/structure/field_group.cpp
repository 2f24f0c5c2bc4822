#include <tern7/core/structure/field_group.h>

#include <algorithm>
#include <stdexcept>

#include <tern7/core/structure/structure.h>

namespace tern7 {

void TDSFieldList::Insert(int index, TDSField* field) {
    if (index < 0 || index > GetCount()) throw std::out_of_range("list index out of range");
    fields.insert(fields.begin() + index, field);
}

void TDSFieldList::Delete(int index) {
    static_cast<void>(GetItem(index));
    fields.erase(fields.begin() + index);
}

int TDSFieldList::IndexOf(const TDSField* field) const {
    const auto found = std::find(fields.begin(), fields.end(), field);
    return found == fields.end() ? -1 : static_cast<int>(found - fields.begin());
}

// --- a group

TDSFieldGroup::~TDSFieldGroup() {
    if (!IsRoot()) EmptyIntoRoot();
}

bool TDSFieldGroup::IsRoot() const {
    return this == &structure.rootGroup;
}

void TDSFieldGroup::SetGroupName(std::string value) {
    if (value == groupName) return;
    groupName = std::move(value);
    structure.groups.names.Drop();
    structure.Changed();
}

// Takes a field of the structure out of where it stands and puts it here, without notification.
void TDSFieldGroup::Place(int index, TDSField* field) {
    TDSFieldGroup& home = field->group ? *field->group : structure.rootGroup;
    home.fields.erase(std::find(home.fields.begin(), home.fields.end(), field));
    fields.insert(fields.begin() + std::clamp(index, 0, GetCount()), field);
    field->group = IsRoot() ? nullptr : this;
}

void TDSFieldGroup::EmptyIntoRoot() {
    for (TDSField* field : fields)
        field->group = nullptr;
    std::vector<TDSField*>& root = structure.rootGroup.fields;
    root.insert(root.end(), fields.begin(), fields.end());
    fields.clear();
}

void TDSFieldGroup::Insert(int index, TDSField* field) {
    if (index < 0 || index > GetCount()) throw std::out_of_range("list index out of range");
    // only fields that the structure lists stand in groups
    if (!field || &field->Structure() != &structure || field->order == 0) return;
    Place(index, field);
    structure.Changed();
}

void TDSFieldGroup::Add(TDSField* field) {
    Insert(GetCount(), field);
}

void TDSFieldGroup::Delete(int index) {
    structure.rootGroup.Add(GetItem(index));
}

void TDSFieldGroup::SetItem(int index, TDSField* field) {
    TDSField* former = GetItem(index);
    if (former == field || !field) return;
    TDSUpdate update(structure);
    Insert(index, field);
    structure.rootGroup.Add(former);
}

void TDSFieldGroup::Clear() {
    if (IsRoot() || fields.empty()) return;
    EmptyIntoRoot();
    structure.Changed();
}

// --- the list of groups

void TDSFieldGroupList::Changed() {
    if (!appending) names.Drop();
    structure.Changed();
}

TDSFieldGroup* TDSFieldGroupList::FindByName(std::string_view name) const {
    if (!names.Built()) {
        names.Start(items.size());
        uint32_t order = 0;
        for (const auto& group : items)
            names.Add(group.get(), HashOfText(group->GroupName()), ++order);
    }
    return names.First(HashOfText(name), [&](const TDSFieldGroup& group) {
        return SameText(group.GroupName(), name);
    });
}

TDSFieldGroup* TDSFieldGroupList::FindByField(const TDSField* field, int& index) const {
    index = field && field->group ? field->group->IndexOf(field) : -1;
    return field ? field->group : nullptr;
}

TDSFieldGroup* TDSFieldGroupList::AddGroup(std::string_view name, TDSField* field) {
    TDSUpdate update(structure);
    TDSFieldGroup* group = FindByName(name);
    if (!group) {
        auto made = std::make_unique<TDSFieldGroup>(structure);
        made->groupName = name;
        names.Add(made.get(), HashOfText(name), static_cast<uint32_t>(items.size()) + 1);
        appending = true;
        group = Add(std::move(made));
        appending = false;
    }
    if (field) group->Add(field);
    return group;
}

void TDSFieldGroupList::GetGroupNames(TStrings& list) const {
    list.clear();
    for (const auto& group : items)
        list.push_back(group->GroupName());
}

void TDSFieldGroupList::DeleteGroup(int index) {
    TDSUpdate update(structure);
    TKObjectList::Delete(index);
}

void TDSFieldGroupList::Clear() {
    TDSUpdate update(structure);
    for (const auto& group : items)
        group->EmptyIntoRoot();
    TKObjectList::Clear();
}

} // namespace tern7
