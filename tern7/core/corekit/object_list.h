#pragma once

#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

namespace tern7 {

/// A list that owns its items. Changed() is called after every change; a list that is itself owned
/// overrides it.
template <class T>
class TKObjectList {
public:
    TKObjectList() = default;
    TKObjectList(const TKObjectList&) = delete;
    TKObjectList& operator=(const TKObjectList&) = delete;
    virtual ~TKObjectList() = default;

    int GetCount() const { return static_cast<int>(items.size()); }
    bool IsEmpty() const { return items.empty(); }
    /// The item at a position; std::out_of_range outside 0..count-1.
    T* GetItem(int index) const { return items.at(static_cast<size_t>(index)).get(); }
    T* operator[](int index) const { return GetItem(index); }
    /// Position by identity, -1 when absent. Linear.
    int IndexOf(const T* item) const {
        for (size_t i = 0; i < items.size(); ++i)
            if (items[i].get() == item) return static_cast<int>(i);
        return -1;
    }

    T* Add(std::unique_ptr<T> item) { return Insert(GetCount(), std::move(item)); }
    /// Inserts before the position; std::out_of_range outside 0..count.
    T* Insert(int index, std::unique_ptr<T> item) {
        if (index < 0 || index > GetCount()) throw std::out_of_range("list index out of range");
        T* result = item.get();
        items.insert(items.begin() + index, std::move(item));
        Changed();
        return result;
    }
    /// Takes an item out of the list without freeing it.
    std::unique_ptr<T> Erase(int index) {
        std::unique_ptr<T> result = std::move(items.at(static_cast<size_t>(index)));
        items.erase(items.begin() + index);
        Changed();
        return result;
    }
    /// Takes an item out and frees it, after Changed().
    void Delete(int index) { Erase(index); }
    void Move(int from, int to) {
        std::unique_ptr<T> item = std::move(items.at(static_cast<size_t>(from)));
        items.erase(items.begin() + from);
        items.insert(items.begin() + to, std::move(item));
        Changed();
    }
    /// Frees the items for which `test` (given a const T&) is true, in one pass, then Changed().
    template <class Test>
    void DeleteIf(Test test) {
        const size_t before = items.size();
        std::erase_if(items, [&](const std::unique_ptr<T>& item) { return test(*item); });
        if (items.size() != before) Changed();
    }
    /// Exchanges the items of two lists, without Changed().
    void Swap(TKObjectList& other) { items.swap(other.items); }
    void Reserve(size_t count) { items.reserve(count); }
    /// Frees all items, last first, without Changed().
    void FreeAll() {
        while (!items.empty())
            items.pop_back();
    }
    void Clear() {
        if (items.empty()) return;
        FreeAll();
        Changed();
    }

    auto begin() const { return items.begin(); }
    auto end() const { return items.end(); }

protected:
    virtual void Changed() {}

    std::vector<std::unique_ptr<T>> items;
};

} // namespace tern7
