#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

namespace tern7 {

class TDSLink;
class TDSTable;

/// A table that a query touches, and the link through which it joins a table before it.
struct TResultTable {
    TDSTable* Table = nullptr;
    TDSLink* Link = nullptr; ///< none for the base table
};

/// The tables of a query in join order: entry 0 is the base table, every later entry joins one that
/// stands before it.
class TRTableList {
public:
    int GetCount() const { return static_cast<int>(nodes.size()); }
    bool IsEmpty() const { return nodes.empty(); }
    /// std::out_of_range outside 0..count-1.
    const TResultTable& GetItem(int index) const;
    const TResultTable& operator[](int index) const { return GetItem(index); }

    /// Without a link at the end; with one directly behind the table at the link's other end.
    /// EKQueryPanelError "Can't add result table: wrong link" when that is not in the list. Returns
    /// the position.
    int Add(TDSTable* table, TDSLink* link);
    /// As Add, without counting out the position: constant time.
    void Join(TDSTable* table, TDSLink* link);
    bool Contains(const TDSTable* table) const { return NodeOf(table) >= 0; }
    int IndexOf(const TDSTable* table) const; ///< -1 when absent
    /// By table name, ignoring case; none when absent.
    const TResultTable* Find(std::string_view name) const;
    void Delete(int index);
    void Clear();
    void Swap(TRTableList& other);

private:
    struct TNode {
        TResultTable entry;
        int next;
    };
    static constexpr size_t FewTables = 16;
    const std::vector<int>& Order() const;
    int NodeOf(const TDSTable* table) const;
    void IndexFrom(int node);
    std::vector<TNode> nodes; // a linked list, so that joining does not move the others
    int first = -1, last = -1;
    std::unordered_map<const TDSTable*, int> nodeOf; // of more than a few
    mutable std::vector<int> order;                  // nodes by position, made when asked for
    mutable bool orderKnown = true;
};

} // namespace tern7
