#pragma once

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

    uint32_t Count() const { return static_cast<uint32_t>(offsets.size()) - 1; }
    const uint32_t* Begin(uint32_t table) const { return targets.data() + offsets[table]; }
    const uint32_t* End(uint32_t table) const { return targets.data() + offsets[table + 1]; }
    bool HasLoop(uint32_t table) const;
    /// False only when no chain of links leads from one table to the other; always true before
    /// FindComponents, which a search without result calls.
    bool MayBeConnected(uint32_t a, uint32_t b) const {
        return components.empty() || components[a] == components[b];
    }
    void FindComponents();

private:
    std::vector<uint32_t> offsets, targets;
    std::vector<uint32_t> components;
};

/// The breadth-first tree of a start table, grown only as far as it was asked for.
class TDSPathTree {
public:
    static constexpr uint32_t Unseen = 0xFFFFFFFF;

    TDSPathTree(const TDSLinkGraph& graph, uint32_t startTable);

    uint32_t Start() const { return start; }
    /// Grows the tree until it holds the table; false when it can not be reached.
    bool GrowTo(uint32_t table);
    /// The table before this one on the way from the start.
    uint32_t Parent(uint32_t table) const { return parents[table]; }
    uint32_t Depth(uint32_t table) const { return depths[table]; }

private:
    const TDSLinkGraph& graph;
    uint32_t start;
    std::vector<uint32_t> parents; // Unseen: not reached yet
    std::vector<uint32_t> depths;  // valid for what was reached
    std::vector<uint32_t> queue;   // in the order of reaching; room for all tables and one more
    uint32_t head = 0, tail = 0;
};

/// What path searches found, kept until tables or links change.
struct TKCustomDBStructure::TPathTrees {
    static constexpr size_t KeptTrees = 8;

    TPathTrees(const TKObjectList<TDSTable>& tables, int linkCount) : graph(tables, linkCount) {}
    TDSPathTree& TreeOf(uint32_t start);

    TDSLinkGraph graph;
    std::list<TDSPathTree> trees; // the last used first
    // the structure's path object holds the path from this tree's start, as it was written last
    const TDSPathTree* written = nullptr;
};

} // namespace tern7
