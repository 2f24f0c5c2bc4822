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
    if (index < -1 || index > values.size()) throw EDDLabelError(EDDLabelError::indexOutOfBounds);
    // The value just behind the last passes the test above and is missed here. That is meant:
    // callers tell the two messages apart.
    if (index == values.size() || index >= items.size())
        throw EDDLabelError("List index out of bounds (" + std::to_string(index) + ")");
    const QPointer<TDropDownList> alive(this);
    itemIndex = index;
    SetValue(index < 0 ? QString() : values[index]);
    // The value was the same, if its items are two; and a handler may have set another index.
    if (alive && itemIndex == index) SetCaption(ItemText(index));
}

/// An index that stands for the value already is kept: several items may have one value.
void TDropDownList::ValueChanged() {
    if (values.value(itemIndex) != Value() || itemIndex >= values.size())
        itemIndex = Value().isEmpty() ? -1 : static_cast<int>(values.indexOf(Value()));
    SetCaption(ValueCaption());
}

QString TDropDownList::ValueCaption() const {
    return itemIndex >= 0 && itemIndex < items.size() ? items[itemIndex] : Value();
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
    if (itemList.size() < valueList.size()) throw EDDLabelError(EDDLabelError::indexOutOfBounds);
    for (qsizetype i = 0; i < valueList.size(); ++i)
        AddItem(groupName, itemList[i], valueList[i]);
}

void TDropDownList::ClearAll() {
    const QPointer<TDropDownList> alive(this);
    SetItemIndex(-1);
    if (!alive) return;
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
