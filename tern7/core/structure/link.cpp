#include <tern7/core/structure/link.h>

#include <tern7/core/global/messages.h>
#include <tern7/core/structure/structure.h>

namespace tern7 {

void TDSLink::SetTable(TDSTable*& end, TDSTable* table) {
    if (table == end) return;
    if (listed && (!table || &table->Structure() != &structure))
        throw EKDBStructError(
            FormatMessage(messages::NoSuchTable, {table ? table->TableAlias() : ""}));
    TDSTable* former = end;
    const bool known = table == table1 || table == table2;
    end = table;
    if (listed) {
        if (former != table1 && former != table2) former->DelLink(this);
        if (!known) table->AddLinkRef(this);
        structure.TablesLinked(*table1, *table2);
        structure.Changed();
    }
}

void TDSLink::SetTable1(TDSTable* table) {
    SetTable(table1, table);
}
void TDSLink::SetTable2(TDSTable* table) {
    SetTable(table2, table);
}

void TDSLink::SetFields1(TStrings names) {
    fields1 = std::move(names);
    if (listed) structure.Changed();
}

void TDSLink::SetFields2(TStrings names) {
    fields2 = std::move(names);
    if (listed) structure.Changed();
}

void TDSLink::SetOperators(TStrings names) {
    operators = std::move(names);
    if (listed) structure.Changed();
}

void TDSLink::SetLinkType(TDSLinkType type) {
    if (type == linkType) return;
    linkType = type;
    if (listed) structure.Changed();
}

void TDSLink::SetQuoteFields(bool value) {
    if (value == quoteFields) return;
    quoteFields = value;
    if (listed) structure.Changed();
}

void TDSLink::AddPair(std::string field1, std::string field2, std::string op) {
    operators.resize(fields1.size(), "=");
    fields2.resize(fields1.size());
    fields1.push_back(std::move(field1));
    fields2.push_back(std::move(field2));
    operators.push_back(std::move(op));
    if (listed) structure.Changed();
}

void TDSLink::ApplyDefOperator() {
    TStrings full = operators;
    full.resize(fields1.size(), "=");
    for (std::string& op : full)
        if (op.empty()) op = '=';
    if (full != operators) SetOperators(std::move(full));
}

std::string TDSLink::GetDisplayName() const {
    return (table1 ? table1->DisplayName() : std::string()) + " - " +
           (table2 ? table2->DisplayName() : std::string());
}

std::string TDSLink::GetSQLExpr(TSQLSyntax syntax) const {
    const bool oracle = syntax == TSQLSyntax::ssOracle;
    const bool leftMayMiss = oracle && linkType == TDSLinkType::ltOuterRight;
    const bool rightMayMiss = oracle && linkType == TDSLinkType::ltOuterLeft;
    std::string text;
    auto addColumn = [&](const TDSTable* table, const std::string& column, bool mayMiss) {
        if (table) text += table->TableAlias();
        text += '.';
        if (quoteFields)
            structure.SQLFormats().AppendQuoted(text, column);
        else
            text += column;
        if (mayMiss) text += " (+) ";
    };
    for (size_t i = 0; i < fields1.size(); ++i) {
        text += i == 0 ? "(" : " and (";
        addColumn(table1, fields1[i], leftMayMiss);
        text += i < operators.size() && !operators[i].empty() ? operators[i] : "=";
        addColumn(table2, i < fields2.size() ? fields2[i] : std::string(), rightMayMiss);
        text += ')';
    }
    return text;
}

} // namespace tern7
