#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

/// Hash of a text that is put together from pieces, without regard to the case of A to Z.
class TDSTextHash {
public:
    TDSTextHash& Add(std::string_view piece) {
        for (char c : piece)
            AddChar(c);
        return *this;
    }
    TDSTextHash& AddWithoutBlanks(std::string_view piece) {
        for (char c : piece)
            if (!IsSpace(c)) AddChar(c);
        return *this;
    }
    uint32_t Value() const { return static_cast<uint32_t>((hash ^ (hash >> 29)) * Mix >> 32); }

private:
    static constexpr uint64_t Mix = 0x9E3779B97F4A7C15u;
    void AddChar(char c) {
        hash = (hash ^ static_cast<unsigned char>(LowerChar(c))) * 0x100000001B3u;
    }
    uint64_t hash = 0xCBF29CE484222325u;
};

inline uint32_t HashOfText(std::string_view text) {
    return TDSTextHash().Add(text).Value();
}
inline uint32_t HashOfNumber(int number) {
    return static_cast<uint32_t>(static_cast<uint32_t>(number) * 0x9E3779B97F4A7C15u >> 32);
}

/// A hashed index over objects of an owning list. It stores the hashes of keys, no keys: whoever
/// asks compares the candidates, which come in the order of the list. Objects enter and leave one
/// by one, so that adding and looking up in turns stays linear. Filled when it is first asked
/// (Built), empty again after Drop.
template <class T>
class TDSLookup {
public:
    bool Built() const { return built; }
    void Drop() { *this = TDSLookup(); }
    void Start(size_t expected) {
        built = true;
        nodes.reserve(expected);
        Rehash(expected);
    }

    /// `order` gives the place among objects of equal key; adding in rising order is O(1).
    void Add(T* object, uint32_t hash, uint32_t order) {
        if ((used + 1) * 3 > cells.size() * 2) Rehash(nodes.size() + 1);
        TSlot& slot = cells[SlotFor(hash)];
        if (slot.first == Unused) {
            slot = {hash, None, None};
            ++used;
        }
        LinkInto(slot, NewNode(object, order), order);
    }

    void Remove(const T* object, uint32_t hash) {
        if (cells.empty()) return;
        TSlot& slot = cells[SlotFor(hash)];
        int before = None;
        for (int i = slot.first; i >= 0; before = i, i = At(i).next)
            if (At(i).object == object) {
                (before == None ? slot.first : At(before).next) = At(i).next;
                if (slot.last == i) slot.last = before;
                At(i) = {nullptr, freeNode, 0};
                freeNode = i;
                return;
            }
    }

    /// The first object in list order among those of the hash for which `same` is true.
    template <class Same>
    T* First(uint32_t hash, Same same) const {
        if (cells.empty()) return nullptr;
        for (int i = cells[SlotFor(hash)].first; i >= 0; i = At(i).next)
            if (same(*At(i).object)) return At(i).object;
        return nullptr;
    }

    /// Calls `visit` for every object of the hash, in list order.
    template <class Visit>
    void Each(uint32_t hash, Visit visit) const {
        if (cells.empty()) return;
        for (int i = cells[SlotFor(hash)].first; i >= 0; i = At(i).next)
            visit(At(i).object);
    }

private:
    static constexpr int None = -1, Unused = -2;
    struct TSlot {
        uint32_t hash = 0;
        int first = Unused, last = Unused; // chain of nodes, None when it became empty
    };
    struct TNode {
        T* object;
        int next;
        uint32_t order;
    };

    TNode& At(int i) { return nodes[static_cast<size_t>(i)]; }
    const TNode& At(int i) const { return nodes[static_cast<size_t>(i)]; }

    size_t SlotFor(uint32_t hash) const {
        const size_t mask = cells.size() - 1;
        size_t i = hash & mask;
        while (cells[i].first != Unused && cells[i].hash != hash)
            i = (i + 1) & mask;
        return i;
    }

    int NewNode(T* object, uint32_t order) {
        if (freeNode == None) {
            nodes.push_back({object, None, order});
            return static_cast<int>(nodes.size()) - 1;
        }
        const int i = freeNode;
        freeNode = At(i).next;
        At(i) = {object, None, order};
        return i;
    }

    void LinkInto(TSlot& slot, int node, uint32_t order) {
        if (slot.first == None) {
            slot.first = slot.last = node;
        } else if (At(slot.last).order < order) {
            At(slot.last).next = node;
            slot.last = node;
        } else {
            int* place = &slot.first;
            while (At(*place).order < order)
                place = &At(*place).next;
            At(node).next = *place;
            *place = node;
        }
    }

    void Rehash(size_t expected) {
        size_t size = 16;
        while (size * 3 < expected * 5)
            size *= 2;
        std::vector<TSlot> old(size);
        old.swap(cells);
        used = 0;
        for (const TSlot& slot : old)
            if (slot.first >= 0) {
                cells[SlotFor(slot.hash)] = slot;
                ++used;
            }
    }

    bool built = false;
    std::vector<TSlot> cells; // a power of two, open addressing
    std::vector<TNode> nodes;
    size_t used = 0; // cells that are not Unused
    int freeNode = None;
};

} // namespace tern7
