#include <tern7/core/parser/condition_tree.h>

#include <algorithm>
#include <stdexcept>

namespace tern7 {

size_t TSQLConditionNodeList::Checked(int index) const {
    if (index < 0 || index >= GetCount()) throw std::out_of_range("list index out of range");
    return static_cast<size_t>(index);
}

void TSQLConditionNodeList::Grow() {
    const uint32_t room = std::max(capacity * 2, 2u);
    TSQLConditionNode** const moved =
        std::pmr::polymorphic_allocator<TSQLConditionNode*>(memory).allocate(room);
    std::copy(begin(), end(), moved);
    items = moved;
    capacity = room;
}

TSQLBracket::TSQLBracket(std::pmr::memory_resource& memory, TSQLBracket* newParent)
    : TSQLConditionNode(TKind::Bracket, newParent), nodes(memory) {
    if (newParent) newParent->Nodes().Add(this);
}

TSQLCondition::TSQLCondition(TSQLBracket* newParent)
    : TSQLConditionNode(TKind::Condition, newParent) {
    if (newParent) newParent->Nodes().Add(this);
}

std::string TSQLCondition::GetSQLExpr() const {
    std::string text;
    text.reserve(field.size() + operatorWord.size() + value.size() + 8);
    if (Not()) text += "not(";
    text.append(field).append(" ").append(operatorWord).append(" ").append(value);
    if (Not()) text += ')';
    return text;
}

} // namespace tern7
