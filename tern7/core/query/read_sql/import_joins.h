#pragma once

#include <optional>
#include <string>
#include <vector>

#include <tern7/core/query/read_sql/import_names.h>
#include <tern7/core/query/read_sql/sql_report.h>
#include <tern7/core/query/read_sql/syntax_set.h>

namespace tern7 {

/// A link of the structure that a statement joins by.
struct TImportedJoin {
    const TDSLink* link;
    bool keeps1 = false; ///< rows of the link's first table stay without partner
    bool keeps2 = false;
    bool isOn = false;
    bool isTaken = false; ///< the link says it: its comparisons are no rows
    std::vector<const TColumnPair*> pairs;
};

/// The joins of a statement: comparisons of columns that are links of the structure, and what else
/// stands in the conditions of joins.
class TImportJoins {
public:
    TImportJoins(TImportParser& statementParser, const TKCustomDBStructure& owner);

    /// To be called once, before all others: tells tables apart and finds the links.
    void Find();
    TImportNames& Names() { return names; }
    const std::vector<TImportedJoin>& Joins() const { return joins; }
    /// The syntaxes that the text can be in.
    TSyntaxes Syntaxes() const;
    /// Decides which comparisons are joins, and says so in the report; the others stay conditions.
    /// Those of ON that must become rows are appended to the list.
    void Decide(TSQLSyntax syntax, std::vector<TImportNode*>& rows, TSQLReport& report);
    /// True when a join keeps no rows without partner: conditions say it as well.
    bool IsInner(const TImportedJoin& join) const {
        return !join.keeps1 && !join.keeps2 && !anyRightOrFull;
    }
    /// A comparison of a join as the structure writes its columns.
    std::string PairText(const TColumnPair& pair);
    /// True when a condition that is no join compares a column of the table with another table's.
    bool IsCompared(const TDSTable& table) const;
    /// Whether conditions stand in brackets, as far as the joins in WHERE show it.
    std::optional<bool> BracketConditions() const;

private:
    void CollectUsing(size_t table);
    void CollectAnd(TImportNode& node, size_t table, bool isOn);
    void AddPair(TImportNode& node, size_t table, bool isOn);
    void FindLink(const TDSTable& first, const TDSTable& second,
                  const std::vector<const TColumnPair*>& candidates);
    std::optional<TImportedJoin> SaidBy(const TDSLink& link,
                                        const std::vector<const TColumnPair*>& candidates) const;
    bool CanJoin(const TColumnPair& pair) const;
    bool IsInnerPair(const TColumnPair& pair) const;
    void TakeKind(TImportedJoin& join) const;
    bool SameKind(const TImportedJoin& join, TSQLSyntax syntax) const;
    bool CanBeRow(const TImportedJoin& join) const;
    void DecideJoin(TImportedJoin& join, TSQLSyntax syntax, TSQLReport& report);
    void DecideRest(size_t table, std::vector<TImportNode*>& rows, TSQLReport& report);
    size_t OffsetOf(TTokenRange range);

    TImportParser& parser;
    TImportStatement& statement;
    TImportNames names;
    std::vector<TColumnPair> pairs;
    std::vector<TImportedJoin> joins;
    std::vector<std::vector<TImportNode*>> onNodes; // what ON joins by "and", by table
    bool anyMarked = false;                         // with (+)
    bool anyRightOrFull = false;
};

} // namespace tern7
