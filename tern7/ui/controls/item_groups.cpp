#include <tern7/ui/controls/item_groups.h>

#include <tern7/ui/controls/control_events.h>

namespace tern7 {

namespace {

size_t Checked(int i, size_t count) {
    if (i < 0 || static_cast<size_t>(i) >= count)
        throw EDDLabelError(EDDLabelError::indexOutOfBounds);
    return static_cast<size_t>(i);
}

} // namespace

int TItemGroup::Items(int i) const {
    return indices[Checked(i, indices.size())];
}

int TItemGroupList::AddGroup(const QString& name, int index) {
    groups.push_back(std::make_unique<TItemGroup>(name));
    groups.back()->Add(index);
    TItemGroup*& first = byName[name.toCaseFolded()];
    if (!first) first = groups.back().get();
    return Count() - 1;
}

TItemGroup* TItemGroupList::FindByName(const QString& name) const {
    return byName.value(name.toCaseFolded(), nullptr);
}

void TItemGroupList::Clear() {
    byName.clear();
    groups.clear();
}

TItemGroup& TItemGroupList::Items(int i) const {
    return *groups[Checked(i, groups.size())];
}

} // namespace tern7
