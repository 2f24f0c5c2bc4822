#include <tern7/core/querybase/query_base.h>

#include <algorithm>
#include <stdexcept>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

TKQueryBase::~TKQueryBase() {
    for (TKQueryBaseLink* link : links)
        link->base = nullptr;
}

// --- items

int TKQueryBase::IndexOfName(std::string_view name) const {
    for (int i = 0; i < GetItemCount(); ++i)
        if (SameText(GetItem(i).Name, name)) return i;
    return -1;
}

TKQueryItem& TKQueryBase::AddItem(std::string name, std::string description, std::string text) {
    return InsertItem(GetItemCount(), {std::move(name), std::move(description), std::move(text)});
}

TKQueryItem& TKQueryBase::InsertItem(int index, TKQueryItem item) {
    TKQueryItem* added = items.Insert(index, std::make_unique<TKQueryItem>(std::move(item)));
    if (index <= itemIndex) ++itemIndex;
    OnChange(*this);
    return *added;
}

void TKQueryBase::DeleteItem(int index) {
    GetItem(index);
    if (index == itemIndex) {
        BeforeScroll(*this);
        const int follower = index + 1 < GetItemCount() ? index + 1 : index - 1;
        if (open) Show(follower < 0 ? std::string() : GetItem(follower).QueryText);
        items.Delete(index);
        itemIndex = follower > index ? index : follower;
        AfterScroll(*this);
    } else {
        items.Delete(index);
        if (index < itemIndex) --itemIndex;
    }
    OnChange(*this);
}

void TKQueryBase::MoveItem(int from, int to) {
    GetItem(to);
    TKQueryItem& moved = GetItem(from);
    const TKQueryItem* current = CurrentItem();
    items.Move(from, to);
    if (current == &moved)
        itemIndex = to;
    else if (from < itemIndex && to >= itemIndex)
        --itemIndex;
    else if (from > itemIndex && to <= itemIndex)
        ++itemIndex;
    OnChange(*this);
}

void TKQueryBase::Clear() {
    Close();
    itemIndex = -1;
    items.Clear();
    OnChange(*this);
}

// --- the current item

TKQueryItem* TKQueryBase::CurrentItem() const {
    return itemIndex < 0 ? nullptr : &GetItem(itemIndex);
}

void TKQueryBase::SetItemIndex(int index) {
    if (index == itemIndex) return;
    if (index < -1 || index >= GetItemCount()) throw std::out_of_range("item index out of range");
    BeforeScroll(*this);
    Post();
    if (index >= GetItemCount()) throw std::out_of_range("item index out of range");
    if (open) ShowItem(index);
    itemIndex = index;
    AfterScroll(*this);
}

void TKQueryBase::Post() {
    TKQueryItem* item = CurrentItem();
    if (!open || !item) return;
    bool changed = false;
    for (TKQueryBaseLink* link : links)
        changed = link->TakeText(item->QueryText) || changed;
    if (changed) OnChange(*this);
}

void TKQueryBase::Open() {
    if (open) return;
    BeforeOpen(*this);
    const int index = itemIndex < 0 && GetItemCount() > 0 ? 0 : itemIndex;
    ShowItem(index);
    itemIndex = index;
    open = true;
    AfterOpen(*this);
}

void TKQueryBase::Close() {
    if (!open) return;
    BeforeClose(*this);
    Post();
    Show({});
    open = false;
    AfterClose(*this);
}

void TKQueryBase::ShowItem(int index) {
    Show(index < 0 ? std::string() : GetItem(index).QueryText);
}

void TKQueryBase::Show(const std::string& text) {
    std::vector<std::string> before;
    try {
        for (TKQueryBaseLink* link : links) {
            before.push_back(link->Text());
            link->Show(text);
        }
    } catch (...) {
        // the one that failed kept its query; those before it get theirs back
        for (size_t i = 0; i + 1 < before.size(); ++i)
            links[i]->Show(before[i]);
        throw;
    }
}

} // namespace tern7
