#pragma once

#include <array>
#include <cstdint>
#include <list>
#include <utility>
#include <vector>

#include <tern7/core/structure/structure.h>

namespace tern7 {

/// The links of a structure as one array of table indexes: those of table i are
/// targets[offsets[i]] .. targets[offsets[i + 1]], in the order of its links.
class TDSLinkGraph {
public:
    /// Pairs of table indexes, sorted, the smaller one first.
    using TPairs = std::vector<std::pair<int, int>>;

    /// Links between the tables of an avoided pair are left out.
    TDSLinkGraph(const TKObjectList<TDSTable>& tables, int linkCount, const TPairs& avoided = {});

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
    /// Grows the tree until it holds the table; false when it can not be reached.
    bool GrowTo(uint32_t table);
    /// Writes the way from the start to a table that the tree holds.
    void WritePath(uint32_t table, std::vector<TDSTable*>& path);

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
        uint32_t depth;
        uint32_t branch; // the first table behind the start
    };
    // A long way in a branch that was written. Ways in one branch mostly begin alike, and what is
    // alike is copied and not walked.
    struct TLongWay {
        uint32_t branch = Unseen;
        std::vector<TDSTable*> tables;
    };
    static constexpr uint32_t LongWay = 16;
    TLongWay& LongWayIn(uint32_t branch);

    std::vector<TReached> reached; // valid for what was reached
    std::vector<uint32_t> queue;   // in the order of reaching; room for all tables and one more
    uint32_t head = 0, tail = 0;
    std::array<TLongWay, 4> longWays;
    size_t oldestWay = 0;
};

/// What path searches found, kept until tables or links change.
struct TKCustomDBStructure::TPathTrees {
    static constexpr size_t KeptTrees = 8;

    TPathTrees(const TKObjectList<TDSTable>& tables, int linkCount,
               const TDSLinkGraph::TPairs& avoided = {})
        : graph(tables, linkCount, avoided) {}
    TDSPathTree& TreeOf(uint32_t start);

    TDSLinkGraph graph;
    std::list<TDSPathTree> trees; // the last used first
};

/// The same for paths that avoid joins.
struct TKCustomDBStructure::TDetours {
    TDetours(const TKObjectList<TDSTable>& tables, int linkCount, TDSLinkGraph::TPairs pairs)
        : avoided(std::move(pairs)), paths(tables, linkCount, avoided) {}

    TDSLinkGraph::TPairs avoided;
    TPathTrees paths;
};

} // namespace tern7
