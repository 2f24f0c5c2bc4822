// The statement: SELECT, FROM, WHERE, GROUP BY, ORDER BY, a line each. Other programs read this
// text, and it is read back: every blank and bracket is meant.

#include <algorithm>

#include <tern7/core/global/errors.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_result.h>
#include <tern7/core/structure/structure.h>

namespace tern7 {

namespace {

bool HasNonAscii(std::string_view text) {
    return std::any_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) > 127; });
}

std::string_view JoinWord(const TResultTable& entry) {
    const bool isSecond = entry.Table == entry.Link->Table2();
    switch (entry.Link->LinkType()) {
    case TDSLinkType::ltInner:
        return "INNER";
    case TDSLinkType::ltOuterLeft:
        return isSecond ? "LEFT OUTER" : "RIGHT OUTER";
    case TDSLinkType::ltOuterRight:
        return isSecond ? "RIGHT OUTER" : "LEFT OUTER";
    case TDSLinkType::ltOuterFull:
        return "FULL";
    }
    return "INNER";
}

} // namespace

std::string TQueryResult::GetSelectClause() {
    if (options.Contains(TSQLOption::soASCIIRFields)) {
        for (int i = 0; i < resultFields.GetCount(); ++i)
            if (HasNonAscii(resultFields[i]->Alias()))
                resultFields[i]->SetAlias("C" + std::to_string(i + 1));
    }
    std::string line =
        options.Contains(TSQLOption::soSelectDistinct) ? "SELECT DISTINCT " : "SELECT ";
    if (resultFields.JustSorting() || resultFields.IsEmpty()) return line + "*";
    for (int i = 0; i < resultFields.GetCount(); ++i) {
        if (i > 0) line += ", ";
        line += resultFields[i]->GetSelectExpr();
    }
    return line;
}

const TKLineBuffer& TQueryResult::GetFromClause() {
    if (resultTables.IsEmpty()) throw EKQueryPanelError(std::string(messages::NotBuiltProperly));
    oldStyleJoins = false;
    fromLines.Clear();
    const int count = resultTables.GetCount();
    const bool standardJoins = syntax == TSQLSyntax::ssSQL2;
    const bool bracketJoins = standardJoins && options.Contains(TSQLOption::soBracketJoins);

    // every join but the last is closed by a bracket; their openings stand in the first line
    const size_t brackets = bracketJoins && count > 2 ? static_cast<size_t>(count - 2) : 0;
    fromLines.AddLine("FROM ");
    fromLines.Last().append(brackets, '(');
    fromLines.Last() += resultTables[0].Table->GetSQLExpr();
    for (int i = 1; i < count; ++i) {
        const TResultTable& entry = resultTables[i];
        if (!standardJoins) {
            fromLines.Last() += ", ";
            fromLines.AddLine("     ");
            fromLines.Last() += entry.Table->GetSQLExpr();
            oldStyleJoins = true;
            continue;
        }
        fromLines.AddLine("     ");
        std::string& line = fromLines.Last();
        line += JoinWord(entry);
        line += " JOIN ";
        line += entry.Table->GetSQLExpr();
        line += " ON ";
        line += entry.Link->GetSQLExpr(TSQLSyntax::ssSQL2);
        if (bracketJoins && i < count - 1) line += ')';
    }
    return fromLines;
}

bool TQueryResult::AddOldStyleInnerJoins(TKLineBuffer& target) const {
    bool appended = false;
    for (int i = 1; i < resultTables.GetCount(); ++i) {
        const TDSLink& link = *resultTables[i].Link;
        // outer joins can not be said in this form: they are dropped on purpose
        if (syntax != TSQLSyntax::ssOracle && link.LinkType() != TDSLinkType::ltInner) continue;
        if (appended) target.Last() += " AND";
        target.AddLine("   ");
        target.Last() += AdjustCondition(link.GetSQLExpr(
            syntax == TSQLSyntax::ssOracle ? TSQLSyntax::ssOracle : TSQLSyntax::ssSQL2));
        appended = true;
    }
    return appended;
}

std::string TQueryResult::GetJoinConditions() const {
    TKLineBuffer lines;
    AddOldStyleInnerJoins(lines);
    return JoinStrings(lines.Lines(), "\r\n");
}

std::string TQueryResult::AdjustCondition(std::string_view text) const {
    if (!options.Contains(TSQLOption::soBracketConditions)) return std::string(text);
    std::string bracketed = "(";
    bracketed += text;
    return bracketed += ')';
}

void TQueryResult::AddCondition(std::string_view text) {
    conditions.AddLine(AdjustCondition(text));
}

const TKLineBuffer& TQueryResult::GetSQL() {
    sql.Clear();
    AppendStatement(sql, conditions);
    return sql;
}

void TQueryResult::AppendStatement(TKLineBuffer& out, const TKLineBuffer& conditionLines) {
    out.AddLine(GetSelectClause());
    out.AddLines(GetFromClause());
    if (oldStyleJoins || !conditionLines.IsEmpty()) {
        // with old-style joins the keyword stands even when nothing follows; kept as readers know
        // it
        out.AddLine("WHERE");
        if (oldStyleJoins && AddOldStyleInnerJoins(out) && !conditionLines.IsEmpty())
            out.Last() += " AND";
        out.AddLines(conditionLines);
    }
    if (!groupByText.empty()) {
        out.AddLine("GROUP BY ");
        out.Last() += groupByText;
    }
    if (!orderByText.empty()) {
        out.AddLine("ORDER BY ");
        out.Last() += orderByText;
    }
}

} // namespace tern7
