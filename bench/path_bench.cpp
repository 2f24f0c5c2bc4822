// Join paths, beside a breadth-first search of Boost.Graph on a compressed graph that notes the
// predecessors. Both graphs stand ready; AfterAChange builds ours anew.

#include <random>
#include <string>
#include <vector>

#include <boost/graph/breadth_first_search.hpp>
#include <boost/graph/compressed_sparse_row_graph.hpp>

#include <tern7/core/structure/structure.h>

#include "side_by_side.h"

namespace {

using namespace tern7;

using TGraph = boost::compressed_sparse_row_graph<boost::directedS>;
using TLinks = std::vector<std::pair<int, int>>;

TLinks Chain(int count) {
    TLinks links;
    for (int i = 0; i + 1 < count; ++i)
        links.emplace_back(i, i + 1);
    return links;
}

TLinks Grid(int side) {
    TLinks links;
    for (int row = 0; row < side; ++row)
        for (int column = 0; column < side; ++column) {
            const int table = row * side + column;
            if (column + 1 < side) links.emplace_back(table, table + 1);
            if (row + 1 < side) links.emplace_back(table, table + side);
        }
    return links;
}

TLinks Dense(int count, int each) {
    std::mt19937 random(5);
    TLinks links;
    for (int i = 0; i < count; ++i)
        for (int k = 0; k < each; ++k)
            links.emplace_back(i, static_cast<int>(random() % static_cast<unsigned>(count)));
    return links;
}

// New tables link to two that were drawn by the number of their links.
TLinks ScaleFree(int count) {
    std::mt19937 random(5);
    TLinks links;
    std::vector<int> drawn = {0};
    for (int i = 1; i < count; ++i)
        for (int k = 0; k < 2; ++k) {
            const int other = drawn[random() % drawn.size()];
            links.emplace_back(i, other);
            drawn.push_back(i);
            drawn.push_back(other);
        }
    return links;
}

struct TNetwork {
    TNetwork(int tables, const TLinks& links) : count(tables) {
        TDSUpdate update(structure);
        for (int i = 0; i < tables; ++i)
            structure.AddTable("t", "T" + std::to_string(i));
        TLinks both;
        for (auto [from, to] : links) {
            auto link = std::make_unique<TDSLink>(structure);
            link->SetTable1(structure.GetTable(from));
            link->SetTable2(structure.GetTable(to));
            structure.AddLinkByRef(std::move(link));
            both.emplace_back(from, to);
            both.emplace_back(to, from);
        }
        graph = TGraph(boost::edges_are_unsorted_multi_pass, both.begin(), both.end(),
                       static_cast<size_t>(tables));
    }
    int Any() { return static_cast<int>(random() % static_cast<unsigned>(count)); }
    int AnyBut(int other) {
        const int table = Any();
        return table == other ? (table + 1) % count : table;
    }
    size_t Ours(int from, int to) {
        return structure.GetPath(*structure.GetTable(from), *structure.GetTable(to))
            .Tables()
            .size();
    }
    size_t Boost(int from, int to) {
        std::vector<TGraph::vertex_descriptor> before(static_cast<size_t>(count));
        boost::breadth_first_search(
            graph, static_cast<size_t>(from),
            boost::visitor(boost::make_bfs_visitor(
                boost::record_predecessors(before.data(), boost::on_tree_edge()))));
        size_t length = 1;
        for (size_t table = static_cast<size_t>(to); table != static_cast<size_t>(from);
             table = before[table])
            ++length;
        return length;
    }

    TKCustomDBStructure structure;
    TGraph graph;
    int count;
    std::mt19937 random{1};
};

TNetwork Network(int64_t kind) {
    switch (kind) {
    case 0:
        return {10000, Chain(10000)};
    case 1:
        return {10000, Grid(100)};
    case 2:
        return {300, Dense(300, 20)};
    default:
        return {10000, ScaleFree(10000)};
    }
}

void FirstPath(benchmark::State& state) {
    TNetwork network = Network(state.range(0));
    network.Ours(0, 1);
    int from = 0, to = 0;
    auto prepare = [&] {
        from = (from + 17) % network.count; // no tree is kept so long
        to = network.AnyBut(from);
    };
    bench::SideBySide(
        state, 1, [&] { benchmark::DoNotOptimize(network.Ours(from, to)); },
        [&] { benchmark::DoNotOptimize(network.Boost(from, to)); }, prepare);
}

// The ends come in random order: the first ones grow the tree, all others only read it.
void FurtherPath(benchmark::State& state) {
    TNetwork network = Network(state.range(0));
    const int from = network.count / 2;
    network.Ours(from, 0);
    std::vector<int> ends(64);
    bench::SideBySide(
        state, 1,
        [&] {
            for (int to : ends)
                benchmark::DoNotOptimize(network.Ours(from, to));
        },
        [&] {
            for (int to : ends)
                benchmark::DoNotOptimize(network.Boost(from, to));
        },
        [&] {
            for (int& to : ends)
                to = network.AnyBut(from);
        });
}

void AfterAChange(benchmark::State& state) {
    TNetwork network = Network(state.range(0));
    int from = 0, to = 0;
    auto prepare = [&] {
        network.structure.AddTable("new", "");
        network.structure.DelTable(network.count);
        from = network.Any();
        to = network.AnyBut(from);
    };
    bench::SideBySide(
        state, 1, [&] { benchmark::DoNotOptimize(network.Ours(from, to)); },
        [&] { benchmark::DoNotOptimize(network.Boost(from, to)); }, prepare);
}

// The line's time is that of the search; `after_a_change_ns` that of the first one after a table
// went and another came, `very_first_ns` that of the first of all, which lays out the links.
void NoPath(benchmark::State& state) {
    TNetwork network = Network(state.range(0));
    TDSTable* alone = network.structure.AddTable("alone", "");
    auto search = [&] {
        try {
            network.structure.GetPath(*network.structure.GetTable(network.Any()), *alone);
        } catch (const EKDBStructError&) {
        }
    };
    const double begin = bench::ThreadTime();
    search();
    state.counters["very_first_ns"] = (bench::ThreadTime() - begin) * 1e9;
    std::vector<double> first;
    for (int i = 0; i < 9; ++i) {
        alone->Structure().DelTable(network.count);
        alone = network.structure.AddTable("alone", "");
        const double start = bench::ThreadTime();
        search();
        first.push_back(bench::ThreadTime() - start);
    }
    for (auto _ : state)
        search();
    state.counters["after_a_change_ns"] = bench::Median(first) * 1e9;
}

void Networks(benchmark::internal::Benchmark* line) {
    line->ArgName("chain0_grid1_dense2_scalefree3")->DenseRange(0, 3);
    line->Unit(benchmark::kMicrosecond);
}

BENCHMARK(FirstPath)->Apply(Networks)->UseManualTime();
BENCHMARK(FurtherPath)->Apply(Networks)->UseManualTime();
BENCHMARK(AfterAChange)->Apply(Networks)->UseManualTime();
BENCHMARK(NoPath)->Apply(Networks);

} // namespace
