#include <tern7/core/structure/structure_paths.h>

#include <algorithm>

#include <tern7/core/global/messages.h>

namespace tern7 {

// --- graph

TDSLinkGraph::TDSLinkGraph(const TKObjectList<TDSTable>& tables, int linkCount,
                           const TPairs& avoided) {
    const auto isAvoided = [&avoided](int a, int b) {
        return std::binary_search(avoided.begin(), avoided.end(),
                                  std::make_pair(std::min(a, b), std::max(a, b)));
    };
    targets.reserve(2 * static_cast<size_t>(linkCount));
    offsets.reserve(static_cast<size_t>(tables.GetCount()) + 1);
    tableOf.reserve(static_cast<size_t>(tables.GetCount()));
    offsets.push_back(0);
    for (const auto& table : tables) {
        tableOf.push_back(table.get());
        for (const TDSLink* link : table->Links()) {
            const int other = link->OtherTable(table.get())->Index();
            if (avoided.empty() || !isAvoided(table->Index(), other))
                targets.push_back(static_cast<uint32_t>(other));
        }
        offsets.push_back(static_cast<uint32_t>(targets.size()));
    }
}

bool TDSLinkGraph::HasLoop(uint32_t table) const {
    return std::find(Begin(table), End(table), table) != End(table);
}

// --- sets

TKCustomDBStructure::TLinkedSets::TLinkedSets(const TKObjectList<TDSTable>& tables,
                                              const TKObjectList<TDSLink>& links) {
    parents.reserve(static_cast<size_t>(tables.GetCount()));
    for (const auto& table : tables)
        Add(*table);
    for (const auto& link : links)
        Join(*link->Table1(), *link->Table2());
}

void TKCustomDBStructure::TLinkedSets::Add(TDSTable& table) {
    table.linkedSet = static_cast<uint32_t>(parents.size());
    parents.push_back(table.linkedSet);
}

// Halves the way to the root for the next time, which keeps all ways short.
uint32_t TKCustomDBStructure::TLinkedSets::SetOf(const TDSTable& table) {
    uint32_t set = table.linkedSet;
    while (parents[set] != set)
        set = parents[set] = parents[parents[set]];
    return set;
}

void TKCustomDBStructure::TableAdded(TDSTable& table) {
    ForgetPaths();
    linkedSets->Add(table);
    // the numbers of tables that have gone are not used again
    if (linkedSets->Count() > 2 * static_cast<size_t>(tables.GetCount()) + 64) MakeLinkedSets();
}

void TKCustomDBStructure::TablesLinked(const TDSTable& a, const TDSTable& b) {
    ForgetPaths();
    linkedSets->Join(a, b);
}

void TKCustomDBStructure::MakeLinkedSets() {
    *linkedSets = TLinkedSets(tables, links);
}

// --- tree

TDSPathTree::TDSPathTree(const TDSLinkGraph& ofGraph, uint32_t startTable)
    : graph(ofGraph), start(startTable), nodes(ofGraph.Count(), TNode{Unseen, Unseen}),
      reached(ofGraph.Count()), queue(ofGraph.Count() + 1) {
    nodes[start] = {start, start};
    queue[tail++] = start;
}

// A table is finished, with all its links, before the next one: so the tree can grow further later
// and is the same as if it had been grown at once.
bool TDSPathTree::GrowTo(uint32_t table) {
    while (nodes[table].parent == Unseen && head < tail) {
        const uint32_t from = queue[head++];
        const TNode node{from, nodes[nodes[from].parent].parent};
        const TReached place{reached[from].depth + 1, reached[from].branch};
        for (const uint32_t* to = graph.Begin(from); to != graph.End(from); ++to)
            if (nodes[*to].parent == Unseen) {
                nodes[*to] = node;
                reached[*to] = {place.depth, from == start ? *to : place.branch};
                queue[tail++] = *to;
            }
    }
    return nodes[table].parent != Unseen;
}

TDSPathTree::TLongWay& TDSPathTree::LongWayIn(uint32_t branch) {
    for (TLongWay& way : longWays)
        if (way.branch == branch) return way;
    TLongWay& way = longWays[oldestWay];
    oldestWay = (oldestWay + 1) % longWays.size();
    way.branch = branch;
    way.tables.clear();
    return way;
}

void TDSPathTree::WritePath(uint32_t table, std::vector<TDSTable*>& path) {
    size_t place = reached[table].depth;
    TLongWay* const way = place < LongWay ? nullptr : &LongWayIn(reached[table].branch);
    const size_t known = way ? way->tables.size() : 0;
    const auto isKnown = [&] { return place < known && way->tables[place] == graph.Table(table); };
    if (isKnown()) {
        path.assign(way->tables.begin(), way->tables.begin() + static_cast<ptrdiff_t>(place) + 1);
        return;
    }
    path.resize(place + 1);
    while (place > 2) {
        if (isKnown()) {
            std::copy_n(way->tables.begin(), place + 1, path.begin());
            break;
        }
        const TNode node = nodes[table];
        path[place] = graph.Table(table);
        path[place - 1] = graph.Table(node.parent);
        path[place - 2] = graph.Table(nodes[node.parent].parent);
        table = node.third;
        place -= 3;
    }
    for (; place <= 2; --place, table = nodes[table].parent) {
        path[place] = graph.Table(table);
        if (place == 0) break;
    }
    if (way && path.size() > known) way->tables = path;
}

TDSPathTree& TKCustomDBStructure::TPathTrees::TreeOf(uint32_t start) {
    const auto known = std::find_if(trees.begin(), trees.end(), [start](const TDSPathTree& tree) {
        return tree.Start() == start;
    });
    if (known != trees.end()) {
        trees.splice(trees.begin(), trees, known);
    } else {
        if (trees.size() == KeptTrees) trees.pop_back();
        trees.emplace_front(graph, start);
    }
    return trees.front();
}

// --- paths

void TKCustomDBStructure::ForgetPaths() {
    pathTrees.reset();
    detours.reset();
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

void TKCustomDBStructure::RequireOwn(const TDSTable& table) const {
    if (&table.Structure() != this || table.Index() < 0)
        throw EKDBStructError(FormatMessage(messages::NoSuchTable, {table.TableAlias()}));
}

// The first shortest path in the order of links: generation by generation, each table's links in
// their order. The first path that reaches a table at all is the first shortest one to it, and
// every first shortest path begins with the first shortest path to its last table but one; so one
// tree of a start table holds the paths to all others.
const TDSPath& TKCustomDBStructure::GetPath(const TDSTable& start, const TDSTable& end) {
    RequireOwn(start);
    RequireOwn(end);
    if (!linkedSets->MayBeLinked(start, end)) throw EKDBStructError(std::string(messages::NoPath));
    if (!pathTrees) pathTrees = std::make_unique<TPathTrees>(tables, links.GetCount());
    const TDSLinkGraph& graph = pathTrees->graph;
    const auto from = static_cast<uint32_t>(start.Index());
    const auto to = static_cast<uint32_t>(end.Index());

    if (from == to) {
        if (start.links.empty()) throw EKDBStructError(std::string(messages::NoPath));
        path.tables = {tables[start.Index()]};
        // back over a link to itself, else over the first link
        if (!graph.HasLoop(from)) path.tables.push_back(start.links.front()->OtherTable(&start));
        path.tables.push_back(tables[start.Index()]);
        return path;
    }

    TDSPathTree& tree = pathTrees->TreeOf(from);
    if (!tree.GrowTo(to)) {
        MakeLinkedSets();
        throw EKDBStructError(std::string(messages::NoPath));
    }
    tree.WritePath(to, path.tables);
    return path;
}

const TDSPath& TKCustomDBStructure::GetPath(const TDSTable& start, const TDSTable& end,
                                            const TAvoidedJoins& avoided) {
    TDSLinkGraph::TPairs pairs;
    for (const TAvoidedJoin& join : avoided) {
        const TDSTable* const first = TableByName(true, join.alias1);
        const TDSTable* const second = TableByName(true, join.alias2);
        if (first && second) pairs.push_back(std::minmax({first->Index(), second->Index()}));
    }
    if (pairs.empty() || &start == &end) return GetPath(start, end);
    RequireOwn(start);
    RequireOwn(end);
    std::sort(pairs.begin(), pairs.end());
    if (!detours || detours->avoided != pairs)
        detours = std::make_unique<TDetours>(tables, links.GetCount(), std::move(pairs));
    TDSPathTree& tree = detours->paths.TreeOf(static_cast<uint32_t>(start.Index()));
    if (!tree.GrowTo(static_cast<uint32_t>(end.Index())))
        throw EKDBStructError(std::string(messages::NoPath));
    tree.WritePath(static_cast<uint32_t>(end.Index()), path.tables);
    return path;
}

} // namespace tern7
