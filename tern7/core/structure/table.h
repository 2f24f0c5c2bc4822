#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tern7 {

class TDSLink;
class TKCustomDBStructure;

/// A table that can be queried; the same database table may stand in the structure more than once
/// under different aliases. Owned by the structure's table list.
class TDSTable {
public:
    explicit TDSTable(TKCustomDBStructure& owner) : structure(owner) {}
    TDSTable(const TDSTable&) = delete;
    TDSTable& operator=(const TDSTable&) = delete;

    TKCustomDBStructure& Structure() const { return structure; }
    /// Position in the structure's table list.
    int Index() const { return index; }

    const std::string& TableName() const { return tableName; }
    const std::string& DisplayName() const { return displayName; }
    /// Unique key of the table inside the structure, compared without regard to case.
    const std::string& TableAlias() const { return tableAlias; }
    /// The table name is written in quote symbols.
    bool Quoted() const { return quoted; }
    /// Text written behind the table in SQL.
    const std::string& Hints() const { return hints; }
    void SetTableName(std::string value);
    void SetDisplayName(std::string value);
    /// EKDBStructError "Table alias "%s" is in use" when another table has it. The default main
    /// table follows; SQL expressions of virtual fields stay as they are.
    void SetTableAlias(std::string value);
    void SetQuoted(bool value);
    void SetHints(std::string value);

    /// The links that touch this table, in the order in which they were added; a link of the table
    /// to itself stands once.
    int GetLinkCount() const { return static_cast<int>(links.size()); }
    TDSLink* GetLink(int i) const { return links.at(static_cast<size_t>(i)); }
    const std::vector<TDSLink*>& Links() const { return links; }
    /// Kept by the structure: links come and go through its link list.
    void AddLinkRef(TDSLink* link);
    void DelLink(const TDSLink* link);
    /// The first link of this table that leads to the other; none when there is none.
    TDSLink* LinkByTable(const TDSTable* other) const;
    TDSLink* LinkByTableAlias(std::string_view alias) const;

    /// The table as it stands in FROM: the name (in quote symbols when Quoted), then the alias when
    /// it differs or the name is quoted, then the hints.
    std::string GetSQLExpr() const;
    /// Display name and, in brackets, the alias when it says something else.
    std::string GetCompoundName() const;

private:
    friend class TKCustomDBStructure;
    friend class TDSField;
    friend class TKStructureReader;
    class TKeyChange;
    TKCustomDBStructure& structure;
    int index = -1;
    uint32_t linkedSet = 0; // its number in the structure's linked sets
    std::string tableName;
    std::string displayName;
    std::string tableAlias;
    std::string hints;
    bool quoted = false;
    std::vector<TDSLink*> links;
    const std::vector<TDSTable*> self{this}; // what the fields of the table need
};

} // namespace tern7
