#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace tern7 {

/// Tokens [from, to) of a statement, by bookmark.
struct TTokenRange {
    size_t from = 0, to = 0;
    bool IsEmpty() const { return from >= to; }
};

/// A node of a condition as it is written: a comparison, or nodes joined by one word.
struct TImportNode {
    enum class TKind : uint8_t { Condition, And, Or };
    TKind kind = TKind::Condition;
    TTokenRange all; ///< with the brackets and negations around

    // nodes joined by a word
    std::vector<TImportNode*> nodes;
    bool inBrackets = false; ///< has brackets of its own
    bool negated = false;

    // a comparison
    TTokenRange body;        ///< without the brackets around all of it
    TTokenRange left, right; ///< right is empty when there is no comparison in it
    std::string op;          ///< in lower case
    bool notInside = false;  ///< a not like b
    bool isNot = false;      ///< a is not null: the right-hand text begins with "not"
    bool notBefore = false;  ///< not a = b, not (a = b)
    int notBrackets = 0;     ///< brackets between that "not" and the comparison
    int brackets = 0;        ///< brackets on its line around all of it
    bool isSubQuery = false;
    bool isJoin = false; ///< joins tables and is no row

    bool IsGroup() const { return kind != TKind::Condition; }
    /// It can become a bracket of rows, by itself or for its negation.
    bool NeedsBracket() const { return IsGroup() || notBefore || notInside || isNot; }
};

enum class TImportJoin : uint8_t { Comma, Inner, Left, Right, Full };

struct TImportTable {
    std::vector<std::string> name; ///< schema first; empty for what is no table
    std::string alias;             ///< empty when there is none
    TTokenRange all;
    TTokenRange hints; ///< text behind it that is not understood
    TImportJoin join = TImportJoin::Comma;
    bool natural = false;             ///< joined on columns that are not named
    TImportNode* on = nullptr;        ///< none for the first table of a list
    std::vector<std::string> columns; ///< of USING
};

struct TImportColumn {
    TTokenRange expression;
    std::string alias;
    bool hasAlias = false;
    bool isAliasQuoted = false;
};

struct TImportSorting {
    TTokenRange expression;
    bool descending = false;
};

/// A part of a clause that no query can say.
struct TImportLoss {
    std::string what;
    TTokenRange all;
};

/// A statement as ImportSQL reads it.
struct TImportStatement {
    bool distinct = false;
    bool allFields = false;
    bool anyJoinWord = false;
    bool bracketJoins = false;
    bool nestedJoins = false; ///< a join stands in brackets on the right of another
    std::vector<TImportColumn> columns;
    std::vector<TImportTable> tables;
    TImportNode* where = nullptr;
    std::vector<TTokenRange> grouping;
    std::vector<TImportSorting> sorting;
    std::vector<TImportLoss> losses;
    std::deque<TImportNode> nodes; ///< owns the nodes

    TImportNode& NewNode(TImportNode::TKind kind) {
        nodes.emplace_back().kind = kind;
        return nodes.back();
    }
};

} // namespace tern7
