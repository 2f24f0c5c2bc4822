#pragma once

#include <array>
#include <cstdint>
#include <list>
#include <vector>

#include <tern7/core/structure/structure.h>

namespace tern7 {

/// The links of a structure as one array of table indexes: those of table i are
/// targets[offsets[i]] .. targets[offsets[i + 1]], in the order of its links.
class TDSLinkGraph {
public:
    TDSLinkGraph(const TKObjectList<TDSTable>& tables, int linkCount);

    uint32_t Count() const { return static_cast<uint32_t>(tableOf.size()); }
    TDSTable* Table(uint32_t index) const { return tableOf[index]; }
    const uint32_t* Begin(uint32_t table) const { return targets.data() + offsets[table]; }
    const uint32_t* End(uint32_t table) const { return targets.data() + offsets[table + 1]; }
    bool HasLoop(uint32_t table) const;

private:
    std::vector<uint32_t> offsets, targets;
    std::vector<TDSTable*> tableOf;
};

/// Sets of tables of which no chain of links leads from one to another. They follow tables and
/// links that are added. Links that go are not noticed: the tables that they joined stay in one set
/// until a search has no result, which makes the sets anew.
class TKCustomDBStructure::TLinkedSets {
public:
    TLinkedSets() = default;
    TLinkedSets(const TKObjectList<TDSTable>& tables, const TKObjectList<TDSLink>& links);

    /// False only when no chain of links leads from one table to the other.
    bool MayBeLinked(const TDSTable& a, const TDSTable& b) { return SetOf(a) == SetOf(b); }
    /// A new table, a set of its own.
    void Add(TDSTable& table);
    void Join(const TDSTable& a, const TDSTable& b) { parents[SetOf(a)] = SetOf(b); }
    /// How many tables were added, also those that have gone since.
    size_t Count() const { return parents.size(); }

private:
    std::vector<uint32_t> parents; // a forest: a set goes by the number of its root
    uint32_t SetOf(const TDSTable& table);
};

/// The breadth-first tree of a start table, grown only as far as it was asked for.
class TDSPathTree {
public:
    static constexpr uint32_t Unseen = 0xFFFFFFFF;

    TDSPathTree(const TDSLinkGraph& graph, uint32_t startTable);

    uint32_t Start() const { return start; }
    /// The first table behind the start on the way to a table that the tree holds.
    uint32_t BranchOf(uint32_t table) const { return reached[table].branch; }
    /// Grows the tree until it holds the table; false when it can not be reached.
    bool GrowTo(uint32_t table);
    /// Writes the way from the start to a table that the tree holds. The first `valid` tables of
    /// the path are those of another way from the start: only what differs is written.
    void WritePath(uint32_t table, size_t valid, std::vector<TDSTable*>& path) const;

private:
    // Steps of three let the walk back over long paths go on before the last load is there.
    struct TNode {
        uint32_t parent; // on the way from the start; Unseen: not reached yet
        uint32_t third;  // three tables before
    };
    const TDSLinkGraph& graph;
    uint32_t start;
    std::vector<TNode> nodes;
    struct TReached {
        uint32_t depth, branch;
    };
    std::vector<TReached> reached; // valid for what was reached
    std::vector<uint32_t> queue;   // in the order of reaching; room for all tables and one more
    uint32_t head = 0, tail = 0;
};

/// What path searches found, kept until tables or links change.
struct TKCustomDBStructure::TPathTrees {
    static constexpr size_t KeptTrees = 8;

    TPathTrees(const TKObjectList<TDSTable>& tables, int linkCount) : graph(tables, linkCount) {}
    TDSPathTree& TreeOf(uint32_t start);
    /// Gives the path object tables that begin as the way to a table of the tree does, when some
    /// are there, and returns how many of them are those of a way from the tree's start.
    size_t Prepare(const TDSPathTree& tree, uint32_t table, std::vector<TDSTable*>& path);
    /// The path object holds something else now.
    void ForgetWritten() { written.tree = nullptr; }

    TDSLinkGraph graph;

private:
    // A way that was written, and the branch of the tree that it lies in: the next way in it mostly
    // has a long beginning in common with it.
    struct TWritten {
        const TDSPathTree* tree = nullptr;
        uint32_t branch = 0;
    };
    struct TAside {
        TWritten written;
        std::vector<TDSTable*> tables;
    };
    bool Lies(const TWritten& way, const TDSPathTree& tree, uint32_t branch) const {
        return way.tree == &tree && way.branch == branch;
    }
    std::list<TDSPathTree> trees; // the last used first
    TWritten written;             // what the structure's path object holds
    std::array<TAside, 3> aside;  // what it held before
    size_t oldest = 0;            // among them
};

} // namespace tern7
