#include <tern7/ui/controls/drop_down_list.h>

namespace tern7 {

TDropDownList::TDropDownList(QWidget* parent) : TDropDownLabel(parent) {}

void TDropDownList::SetItems(const QStringList& lines) {
    items = lines;
    if (ownGroup) groups.Clear();
    ownGroup = false;
}

void TDropDownList::SetItemIndex(int index) {
    if (index == itemIndex) return;
    if (index < -1 || index > values.size()) throw EDDLabelError("Index out of bounds");
    // The value just behind the last passes the test above and is missed here. That is meant:
    // callers tell the two messages apart.
    if (index == values.size() || index >= items.size())
        throw EDDLabelError("List index out of bounds (" + std::to_string(index) + ")");
    const QPointer<TDropDownList> alive(this);
    itemIndex = index;
    settingIndex = true;
    SetValue(index < 0 ? QString() : values[index]);
    if (!alive) return;
    settingIndex = false;
    SetCaption(index < 0 ? QString() : ItemText(index));
}

void TDropDownList::ValueChanged() {
    if (settingIndex) return;
    const bool known = itemIndex >= 0 && itemIndex < values.size();
    if (!Value().isEmpty() && known && values[itemIndex] == Value()) return;
    itemIndex = Value().isEmpty() ? -1 : static_cast<int>(values.indexOf(Value()));
    SetCaption(itemIndex >= 0 && itemIndex < items.size() ? items[itemIndex] : Value());
}

void TDropDownList::AddItem(const QString& groupName, const QString& item,
                            const QString& itemValue) {
    if (groups.Count() == 0) EnsureGroups();
    ownGroup = false;
    items.append(item);
    values.append(itemValue);
    const int index = static_cast<int>(items.size()) - 1;
    if (TItemGroup* group = groups.FindByName(groupName))
        group->Add(index);
    else
        groups.AddGroup(groupName, index);
}

void TDropDownList::AddItems(const QString& groupName, const QStringList& itemList,
                             const QStringList& valueList) {
    if (itemList.size() < valueList.size()) throw EDDLabelError("Index out of bounds");
    for (qsizetype i = 0; i < valueList.size(); ++i)
        AddItem(groupName, itemList[i], valueList[i]);
}

void TDropDownList::ClearAll() {
    SetItemIndex(-1);
    groups.Clear();
    ownGroup = false;
    items.clear();
    values.clear();
}

/// Items that nobody put into a group make one group without a name.
void TDropDownList::EnsureGroups() {
    if (items.isEmpty() || groups.Count() > 0) return;
    groups.AddGroup(QString(), 0);
    TItemGroup& all = groups.Items(0);
    for (int i = 1; i < items.size(); ++i)
        all.Add(i);
    ownGroup = true;
}

void TDropDownList::ShowControl() {
    EnsureGroups();
}

} // namespace tern7
