#pragma once

#include <cstdint>
#include <string>

#include <tern7/core/corekit/strings.h>
#include <tern7/core/global/sql_options.h>

namespace tern7 {

class TDSTable;
class TKCustomDBStructure;

enum class TDSLinkType : uint8_t {
    ltInner = 0,
    ltOuterLeft = 1,
    ltOuterRight = 2,
    ltOuterFull = 3
};

/// A join between two tables on one or more pairs of columns. Owned by the structure's link list,
/// referred to by both tables.
class TDSLink {
public:
    explicit TDSLink(TKCustomDBStructure& owner) : structure(owner) {}

    TKCustomDBStructure& Structure() const { return structure; }
    TDSTable* Table1() const { return table1; }
    TDSTable* Table2() const { return table2; }
    /// The columns on each side, paired by position.
    const TStrings& Fields1() const { return fields1; }
    const TStrings& Fields2() const { return fields2; }
    /// The comparison of each pair; "=" where absent.
    const TStrings& Operators() const { return operators; }
    TDSLinkType LinkType() const { return linkType; }
    bool QuoteFields() const { return quoteFields; }

    /// Tables of a link that is already in the structure's list keep their link references right.
    void SetTable1(TDSTable* table);
    void SetTable2(TDSTable* table);
    void SetFields1(TStrings names);
    void SetFields2(TStrings names);
    void SetOperators(TStrings names);
    void SetLinkType(TDSLinkType type);
    void SetQuoteFields(bool value);
    /// Adds a pair of columns.
    void AddPair(std::string field1, std::string field2, std::string op = "=");
    /// Fills missing operators with "=".
    void ApplyDefOperator();

    /// The table at the other end; the table itself for a link to itself.
    TDSTable* OtherTable(const TDSTable* table) const { return table1 != table ? table1 : table2; }

    /// The display names of both tables joined by a dash.
    std::string GetDisplayName() const;
    /// The join condition: "(A.id=B.a_id)", pairs joined by " and "; empty without pairs. With
    /// ssOracle outer links carry " (+) " on the side that may be missing.
    std::string GetSQLExpr(TSQLSyntax syntax) const;

private:
    friend class TKCustomDBStructure;
    friend class TKStructureReader;
    void SetTable(TDSTable*& end, TDSTable* table);
    TKCustomDBStructure& structure;
    TDSTable* table1 = nullptr;
    TDSTable* table2 = nullptr;
    TStrings fields1, fields2, operators;
    TDSLinkType linkType = TDSLinkType::ltInner;
    bool quoteFields = false;
    bool listed = false; // the structure's list has it
};

} // namespace tern7
