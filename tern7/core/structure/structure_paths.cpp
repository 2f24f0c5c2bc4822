#include <tern7/core/structure/structure_paths.h>

#include <algorithm>

#include <tern7/core/global/messages.h>

namespace tern7 {

// --- graph

TDSLinkGraph::TDSLinkGraph(const TKObjectList<TDSTable>& tables, int linkCount) {
    targets.reserve(2 * static_cast<size_t>(linkCount));
    offsets.reserve(static_cast<size_t>(tables.GetCount()) + 1);
    offsets.push_back(0);
    for (const auto& table : tables) {
        for (const TDSLink* link : table->Links())
            targets.push_back(static_cast<uint32_t>(link->OtherTable(table.get())->Index()));
        offsets.push_back(static_cast<uint32_t>(targets.size()));
    }
}

void TDSLinkGraph::FindComponents() {
    constexpr uint32_t none = 0xFFFFFFFF;
    components.assign(Count(), none);
    std::vector<uint32_t> open;
    for (uint32_t first = 0; first < Count(); ++first) {
        if (components[first] != none) continue;
        components[first] = first;
        open.push_back(first);
        while (!open.empty()) {
            const uint32_t table = open.back();
            open.pop_back();
            for (const uint32_t* to = Begin(table); to != End(table); ++to)
                if (components[*to] == none) {
                    components[*to] = first;
                    open.push_back(*to);
                }
        }
    }
}

bool TDSLinkGraph::HasLoop(uint32_t table) const {
    return std::find(Begin(table), End(table), table) != End(table);
}

// --- tree

TDSPathTree::TDSPathTree(const TDSLinkGraph& ofGraph, uint32_t startTable)
    : graph(ofGraph), start(startTable), parents(ofGraph.Count(), Unseen), depths(ofGraph.Count()),
      queue(ofGraph.Count() + 1) {
    parents[start] = start;
    queue[tail++] = start;
}

// A table is finished, with all its links, before the next one: so the tree can grow further later
// and is the same as if it had been grown at once.
bool TDSPathTree::GrowTo(uint32_t table) {
    while (parents[table] == Unseen && head < tail) {
        const uint32_t from = queue[head++];
        for (const uint32_t* to = graph.Begin(from); to != graph.End(from); ++to)
            if (parents[*to] == Unseen) {
                parents[*to] = from;
                depths[*to] = depths[from] + 1;
                queue[tail++] = *to;
            }
    }
    return parents[table] != Unseen;
}

TDSPathTree& TKCustomDBStructure::TPathTrees::TreeOf(uint32_t start) {
    const auto known = std::find_if(trees.begin(), trees.end(), [start](const TDSPathTree& tree) {
        return tree.Start() == start;
    });
    if (known != trees.end()) {
        trees.splice(trees.begin(), trees, known);
    } else {
        if (trees.size() == KeptTrees) {
            if (written == &trees.back()) written = nullptr;
            trees.pop_back();
        }
        trees.emplace_front(graph, start);
    }
    return trees.front();
}

// --- paths

void TKCustomDBStructure::ForgetPaths() {
    pathTrees.reset();
    path.tables.clear();
}

const TDSPath& TKCustomDBStructure::GetPath(std::string_view startAlias,
                                            std::string_view endAlias) {
    const TDSTable* ends[2] = {};
    const std::string_view aliases[2] = {startAlias, endAlias};
    for (int i = 0; i < 2; ++i) {
        ends[i] = TableByName(true, aliases[i]);
        if (!ends[i]) throw EKDBStructError(FormatMessage(messages::NoSuchTable, {aliases[i]}));
    }
    return GetPath(*ends[0], *ends[1]);
}

// The first shortest path in the order of links: generation by generation, each table's links in
// their order. The first path that reaches a table at all is the first shortest one to it, and
// every first shortest path begins with the first shortest path to its last table but one; so one
// tree of a start table holds the paths to all others.
const TDSPath& TKCustomDBStructure::GetPath(const TDSTable& start, const TDSTable& end) {
    for (const TDSTable* table : {&start, &end})
        if (&table->Structure() != this || table->Index() < 0)
            throw EKDBStructError(FormatMessage(messages::NoSuchTable, {table->TableAlias()}));
    if (!pathTrees) pathTrees = std::make_unique<TPathTrees>(tables, links.GetCount());
    TDSLinkGraph& graph = pathTrees->graph;
    const auto from = static_cast<uint32_t>(start.Index());
    const auto to = static_cast<uint32_t>(end.Index());

    if (from == to) {
        if (start.links.empty()) throw EKDBStructError(std::string(messages::NoPath));
        pathTrees->written = nullptr;
        path.tables = {tables[start.Index()]};
        // back over a link to itself, else over the first link
        if (!graph.HasLoop(from)) path.tables.push_back(start.links.front()->OtherTable(&start));
        path.tables.push_back(tables[start.Index()]);
        return path;
    }
    if (!graph.MayBeConnected(from, to)) throw EKDBStructError(std::string(messages::NoPath));

    TDSPathTree& tree = pathTrees->TreeOf(from);
    if (!tree.GrowTo(to)) {
        graph.FindComponents();
        throw EKDBStructError(std::string(messages::NoPath));
    }
    const uint32_t depth = tree.Depth(to);
    const size_t valid = pathTrees->written == &tree ? path.tables.size() : 0;
    path.tables.resize(depth + 1);
    uint32_t table = to;
    for (uint32_t d = depth;; --d, table = tree.Parent(table)) {
        TDSTable*& place = path.tables[d];
        TDSTable* const here = tables[static_cast<int>(table)];
        // the rest is the way to this table, which the last path from this start took too
        if (d < valid && place == here) break;
        place = here;
        if (d == 0) break;
    }
    pathTrees->written = &tree;
    return path;
}

} // namespace tern7
