#pragma once

#include <cstdint>
#include <memory_resource>
#include <string>
#include <string_view>

namespace tern7 {

class TSQLBracket;
class TSQLCondition;

/// A node of a parsed WHERE clause. Nodes and their texts live in the memory of the TKParserResult
/// that made them, and go with it.
class TSQLConditionNode {
public:
    TSQLConditionNode(const TSQLConditionNode&) = delete;
    TSQLConditionNode& operator=(const TSQLConditionNode&) = delete;

    /// The bracket around it; null at the root.
    TSQLBracket* Parent() const { return parent; }
    void SetParent(TSQLBracket* value) { parent = value; }
    bool Not() const { return negated; }
    void SetNot(bool value) { negated = value; }

    /// Itself as what it is, else null.
    TSQLBracket* AsBracket();
    const TSQLBracket* AsBracket() const;
    TSQLCondition* AsCondition();
    const TSQLCondition* AsCondition() const;

protected:
    enum class TKind : uint8_t { Bracket, Condition };
    TSQLConditionNode(TKind newKind, TSQLBracket* newParent) : parent(newParent), kind(newKind) {}
    ~TSQLConditionNode() = default;

private:
    TSQLBracket* parent;
    TKind kind;
    bool negated = false;
};

/// The nodes of a bracket, in order.
class TSQLConditionNodeList {
public:
    explicit TSQLConditionNodeList(std::pmr::memory_resource& ownerMemory) : memory(&ownerMemory) {}

    int GetCount() const { return static_cast<int>(count); }
    /// std::out_of_range outside 0..count-1, as SetItem.
    TSQLConditionNode* GetItem(int index) const { return items[Checked(index)]; }
    TSQLConditionNode* operator[](int index) const { return GetItem(index); }
    void SetItem(int index, TSQLConditionNode* node) { items[Checked(index)] = node; }
    void Add(TSQLConditionNode* node) {
        if (count == capacity) Grow();
        items[count++] = node;
    }
    TSQLConditionNode* Last() const { return GetItem(GetCount() - 1); }

    TSQLConditionNode** begin() const { return items; }
    TSQLConditionNode** end() const { return items + count; }

private:
    std::pmr::memory_resource* memory;
    TSQLConditionNode** items = nullptr;
    uint32_t count = 0, capacity = 0;

    size_t Checked(int index) const;
    void Grow();
};

/// Nodes joined by one word.
class TSQLBracket : public TSQLConditionNode {
public:
    TSQLBracket(std::pmr::memory_resource& memory, TSQLBracket* newParent);

    /// "and", "or", or empty for a root that holds at most one node.
    std::string_view LinkType() const { return linkType; }
    /// The text must live as long as the bracket.
    void SetLinkType(std::string_view word) { linkType = word; }
    TSQLConditionNodeList& Nodes() { return nodes; }
    const TSQLConditionNodeList& Nodes() const { return nodes; }

private:
    std::string_view linkType;
    TSQLConditionNodeList nodes;
};

/// A comparison: `Field Operator Value`. The texts are views that live as long as the result; so
/// must those that are set.
class TSQLCondition : public TSQLConditionNode {
public:
    explicit TSQLCondition(TSQLBracket* newParent);

    /// The left-hand text.
    std::string_view Field() const { return field; }
    void SetField(std::string_view text) { field = text; }
    /// The right-hand text; two values and "and" between them for "between".
    std::string_view Value() const { return value; }
    void SetValue(std::string_view text) { value = text; }
    /// In lower case.
    std::string_view Operator() const { return operatorWord; }
    void SetOperator(std::string_view text) { operatorWord = text; }
    /// The value is a sub-select.
    bool IsSubQuery() const { return isSubQuery; }
    void SetIsSubQuery(bool is) { isSubQuery = is; }
    /// The text that the condition was read from, with "not" and brackets before it.
    std::string_view Source() const { return source; }
    void SetSource(std::string_view text) { source = text; }

    /// `Field Operator Value`, in `not(...)` when Not is set.
    std::string GetSQLExpr() const;

private:
    bool isSubQuery = false; // first, where the base class leaves room
    std::string_view field, value, operatorWord, source;
};

inline TSQLBracket* TSQLConditionNode::AsBracket() {
    return kind == TKind::Bracket ? static_cast<TSQLBracket*>(this) : nullptr;
}
inline const TSQLBracket* TSQLConditionNode::AsBracket() const {
    return kind == TKind::Bracket ? static_cast<const TSQLBracket*>(this) : nullptr;
}
inline TSQLCondition* TSQLConditionNode::AsCondition() {
    return kind == TKind::Condition ? static_cast<TSQLCondition*>(this) : nullptr;
}
inline const TSQLCondition* TSQLConditionNode::AsCondition() const {
    return kind == TKind::Condition ? static_cast<const TSQLCondition*>(this) : nullptr;
}

} // namespace tern7
