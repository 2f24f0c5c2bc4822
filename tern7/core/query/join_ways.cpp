#include <tern7/core/query/join_ways.h>

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include <tern7/core/query/query.h>
#include <tern7/core/structure/link.h>
#include <tern7/core/structure/structure.h>
#include <tern7/core/structure/table.h>

namespace tern7 {

namespace {

/// Beyond this many joins only the first ones are offered a way around.
constexpr size_t mostTried = 64;

/// Empty when there is no way.
std::vector<TDSTable*> WayBetween(TKCustomDBStructure& structure, const TDSTable& base,
                                  const TDSTable& end, const TAvoidedJoins& avoided) {
    try {
        return structure.GetPath(base, end, avoided).Tables();
    } catch (const EKDBStructError&) {
        return {};
    }
}

} // namespace

std::vector<TDSTable*> JoinEnds(const TKQuery& query) {
    const TRTableList& list = query.QResult().ResultTables();
    std::unordered_set<const TDSTable*> inner;
    for (int i = 1; i < list.GetCount(); ++i)
        inner.insert(list[i].Link->OtherTable(list[i].Table));
    std::vector<TDSTable*> ends;
    for (int i = 1; i < list.GetCount(); ++i)
        if (!inner.contains(list[i].Table)) ends.push_back(list[i].Table);
    return ends;
}

std::vector<TJoinWay> JoinWays(const TKQuery& query, const TDSTable& end) {
    std::vector<TJoinWay> ways;
    const TRTableList& list = query.QResult().ResultTables();
    if (list.IsEmpty() || list[0].Table == &end) return ways;
    TKCustomDBStructure& structure = query.RequireStruct();
    const TDSTable& base = *list[0].Table;
    const auto add = [&](TAvoidedJoins avoided) {
        std::vector<TDSTable*> tables = WayBetween(structure, base, end, avoided);
        const auto isSame = [&](const TJoinWay& way) { return way.tables == tables; };
        if (!tables.empty() && std::none_of(ways.begin(), ways.end(), isSame))
            ways.push_back({std::move(tables), std::move(avoided)});
    };

    const auto addAround = [&](const TAvoidedJoins& avoided, std::vector<TDSTable*> way) {
        for (size_t i = 1; i < std::min(way.size(), mostTried); ++i) {
            TAvoidedJoins more = avoided;
            more.push_back({way[i - 1]->TableAlias(), way[i]->TableAlias()});
            add(std::move(more));
        }
    };

    const TAvoidedJoins& present = query.AvoidedJoins();
    add(present);
    if (ways.empty()) return ways;
    const std::vector<TDSTable*> presentWay = ways.front().tables;
    for (size_t i = 0; i < std::min(present.size(), mostTried); ++i) {
        TAvoidedJoins fewer = present;
        fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(i));
        add(std::move(fewer));
    }
    // what is offered where nothing is avoided is offered always: nobody has to find the way back
    if (!present.empty()) {
        add({});
        addAround({}, WayBetween(structure, base, end, {}));
    }
    addAround(present, presentWay);
    return ways;
}

std::vector<TSharedTable> SharedTables(const TKQuery& query) {
    const TRTableList& list = query.QResult().ResultTables();
    std::unordered_map<const TDSTable*, const TDSTable*>
        referring; // the first one, by what it refers to
    std::vector<TSharedTable> shared;
    for (int i = 1; i < list.GetCount(); ++i) {
        const TDSLink& link = *list[i].Link;
        const auto [first, isNew] = referring.try_emplace(link.Table2(), link.Table1());
        if (!isNew) shared.push_back({first->second, link.Table2(), link.Table1()});
    }
    return shared;
}

} // namespace tern7
