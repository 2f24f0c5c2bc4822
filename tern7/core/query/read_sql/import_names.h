#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include <tern7/core/query/read_sql/import_parser.h>
#include <tern7/core/structure/structure.h>

namespace tern7 {

/// A column as a statement names it, alone: "t.a", with " (+)" behind it in the Oracle form.
struct TNamedColumn {
    std::string qualifier; ///< empty when there is none
    std::string name;
    bool mayMiss = false; ///< marked with (+)
};

/// A comparison of two columns.
struct TColumnPair {
    TNamedColumn left, right;
    std::string op;
    TImportNode* node = nullptr; ///< none for USING
    size_t table = 0;            ///< the table whose ON says it
    bool isOn = false;
    bool isGrouped = false; ///< stands in brackets together with others
    // what the columns belong to, once the tables are known
    const TDSTable* leftTable = nullptr;
    const TDSTable* rightTable = nullptr;
};

/// What the names of a statement mean in the structure: each table of FROM stands for one table of
/// the structure, and columns are written as the structure's fields.
class TImportNames {
public:
    TImportNames(const TKCustomDBStructure& owner, TImportParser& statementParser);

    /// Finds the structure's table for each table of the statement. The same table twice takes the
    /// structure's copies, by alias or as the comparisons join them.
    void ResolveTables(const std::vector<TColumnPair>& pairs);
    /// The structure's table that a table of the statement stands for; none when it has none.
    TDSTable* TableOf(size_t table) const { return tables[table]; }
    /// The place in FROM of a table of the structure.
    std::optional<size_t> PlaceOf(const TDSTable& table) const;
    /// The table of the statement that a column belongs to.
    std::optional<size_t> FindTable(const TNamedColumn& column);

    /// The tokens when they name one column and nothing else, brackets around it aside.
    std::optional<TNamedColumn> ColumnAt(TTokenRange range);
    /// A column that the structure may have as a field or not, as it stands in a statement.
    std::string ColumnText(const TDSTable& table, const std::string& column) const;
    /// The text with the columns as the structure writes them; without comments.
    std::string Rewrite(TTokenRange range);
    /// True when a text that was rewritten since the last call held a name that no table of the
    /// statement explains.
    bool TakeUnknown() { return std::exchange(unknown, false); }
    /// True when a text that was rewritten since the last call held a column that is no field.
    bool TakePlainColumn() { return std::exchange(plainColumn, false); }
    /// Why a text that was rewritten since the last call can not be said with the structure's
    /// names; empty when it can.
    std::string_view TakeObstacle() { return std::exchange(obstacle, {}); }

private:
    using TAliases = std::unordered_set<std::string>;
    struct TChain {
        std::vector<std::string> names;
        TTokenRange range;
    };
    struct TUnqualified {
        std::optional<size_t> table;
        bool isOfSeveral = false;
    };
    std::vector<TDSTable*> Candidates(const TImportTable& table) const;
    bool TakeFree(size_t table, TDSTable* candidate);
    TDSTable* JoinedCandidate(size_t table, const std::vector<TColumnPair>& pairs) const;
    std::optional<size_t> FindQualifier(const std::string& qualifier) const;
    const TUnqualified& FindUnqualified(const std::string& column);
    TChain ReadChain();
    std::string ChainText(const TChain& chain, const TAliases& inner, bool inSubSelect);
    std::string_view GapBefore(size_t token) const;
    bool IsOtherName(const TChain& chain) const;
    void AddAliases(size_t from, size_t to, TAliases& aliases);
    bool IsName() const;
    bool Is(std::string_view symbol) const { return tokens.GetRealStr() == symbol; }
    std::string Name() const;

    const TKCustomDBStructure& structure;
    TImportParser& parser;
    TKScanner& tokens;
    const std::vector<TImportTable>& written;
    std::vector<TDSTable*> tables; // by table of the statement
    std::vector<size_t> known;     // tables of the statement that the structure has
    std::unordered_map<const TDSTable*, size_t> taken; // places in FROM
    std::unordered_map<std::string, size_t> qualifiers;
    std::unordered_map<std::string, TUnqualified> unqualified; // those asked for
    bool unknown = false;
    bool plainColumn = false;
    std::string_view obstacle;
};

} // namespace tern7
