#include <tern7/core/query/result_table.h>

#include <utility>

#include <tern7/core/corekit/strings.h>
#include <tern7/core/global/errors.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/structure/link.h>
#include <tern7/core/structure/table.h>

namespace tern7 {

const std::vector<int>& TRTableList::Order() const {
    if (!orderKnown) {
        order.clear();
        for (int node = first; node >= 0; node = nodes[static_cast<size_t>(node)].next)
            order.push_back(node);
        orderKnown = true;
    }
    return order;
}

const TResultTable& TRTableList::GetItem(int index) const {
    if (index == 0 && first >= 0) return nodes[static_cast<size_t>(first)].entry;
    return nodes[static_cast<size_t>(Order().at(static_cast<size_t>(index)))].entry;
}

// A look at each of a few entries costs less than the index that most queries do without.
int TRTableList::NodeOf(const TDSTable* table) const {
    if (nodes.size() > FewTables) {
        const auto found = nodeOf.find(table);
        return found == nodeOf.end() ? -1 : found->second;
    }
    for (size_t node = 0; node < nodes.size(); ++node)
        if (nodes[node].entry.Table == table) return static_cast<int>(node);
    return -1;
}

void TRTableList::Join(TDSTable* table, TDSLink* link) {
    int behind = last;
    if (link) {
        behind = NodeOf(link->OtherTable(table));
        if (behind < 0) throw EKQueryPanelError(std::string(messages::WrongResultTableLink));
    }
    const int node = static_cast<int>(nodes.size());
    int& next = behind < 0 ? first : nodes[static_cast<size_t>(behind)].next;
    const int rest = next;
    next = node;
    nodes.push_back({{table, link}, rest});
    if (rest < 0) last = node;
    if (nodes.size() > FewTables) IndexFrom(nodes.size() == FewTables + 1 ? 0 : node);
    orderKnown = false;
}

void TRTableList::IndexFrom(int node) {
    for (; node < GetCount(); ++node)
        nodeOf.try_emplace(nodes[static_cast<size_t>(node)].entry.Table, node);
}

int TRTableList::Add(TDSTable* table, TDSLink* link) {
    Join(table, link);
    const int node = static_cast<int>(nodes.size()) - 1;
    const std::vector<int>& all = Order();
    int index = 0;
    while (all[static_cast<size_t>(index)] != node)
        ++index;
    return index;
}

int TRTableList::IndexOf(const TDSTable* table) const {
    if (!Contains(table)) return -1;
    int index = 0;
    for (int node : Order()) {
        if (nodes[static_cast<size_t>(node)].entry.Table == table) return index;
        ++index;
    }
    return -1;
}

const TResultTable* TRTableList::Find(std::string_view name) const {
    for (int node : Order()) {
        const TResultTable& entry = nodes[static_cast<size_t>(node)].entry;
        if (SameText(entry.Table->TableName(), name)) return &entry;
    }
    return nullptr;
}

void TRTableList::Delete(int index) {
    const std::vector<int> all = Order();
    const int gone = all.at(static_cast<size_t>(index));
    const std::vector<TNode> old = std::move(nodes);
    Clear();
    for (int node : all) {
        if (node == gone) continue;
        const TResultTable& entry = old[static_cast<size_t>(node)].entry;
        Join(entry.Table, nullptr);
        nodes.back().entry.Link = entry.Link;
    }
}

void TRTableList::Clear() {
    nodes.clear();
    if (!nodeOf.empty()) nodeOf.clear();
    order.clear();
    first = last = -1;
    orderKnown = true;
}

void TRTableList::Swap(TRTableList& other) {
    nodes.swap(other.nodes);
    if (!nodeOf.empty() || !other.nodeOf.empty()) nodeOf.swap(other.nodeOf);
    order.swap(other.order);
    std::swap(first, other.first);
    std::swap(last, other.last);
    std::swap(orderKnown, other.orderKnown);
}

} // namespace tern7
