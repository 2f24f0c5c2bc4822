#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tern7 {

class TDSTable;
class TKCustomDBStructure;

/// Two tables, by alias, that a path does not join directly: it leads around over others.
struct TAvoidedJoin {
    std::string alias1, alias2;

    friend bool operator==(const TAvoidedJoin&, const TAvoidedJoin&) = default;
};
using TAvoidedJoins = std::vector<TAvoidedJoin>;

/// A chain of tables in which each is linked to the next.
class TDSPath {
public:
    explicit TDSPath(const TKCustomDBStructure& owner) : structure(&owner) {}

    /// Appends the structure's table of that index.
    void AddTable(int index);
    void DelTable(int i);
    TDSTable* GetTable(int i) const { return tables.at(static_cast<size_t>(i)); }
    int GetTableCount() const { return static_cast<int>(tables.size()); }
    /// First and last table; none when the path is empty.
    TDSTable* GetStartPoint() const { return tables.empty() ? nullptr : tables.front(); }
    TDSTable* GetEndPoint() const { return tables.empty() ? nullptr : tables.back(); }
    /// The table of the path whose index in the structure is `index`; none when the path doesn't
    /// pass it.
    TDSTable* TableByIndex(int index) const;
    void Assign(const TDSPath& other) { tables = other.tables; }
    const std::vector<TDSTable*>& Tables() const { return tables; }

private:
    friend class TKCustomDBStructure;
    const TKCustomDBStructure* structure;
    std::vector<TDSTable*> tables;
};

} // namespace tern7
