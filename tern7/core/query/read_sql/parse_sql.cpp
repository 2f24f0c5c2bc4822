#include <tern7/core/query/read_sql/parse_sql.h>

#include <tern7/core/global/limits.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_state.h>
#include <tern7/core/query/read_sql/report_reasons.h>
#include <tern7/core/query/read_sql/sql_pieces.h>

namespace tern7 {

namespace {

/// Values are put in one after the other: a later one is looked for in those before it, and
/// parameters are looked for in all.
bool ValuesHoldPlaceholder(const TRecognisedCondition& found) {
    const auto holds = [&found](int n, std::string_view placeholder) {
        return found.values[n - 1].find(placeholder) != std::string::npos;
    };
    if (found.op->GetParamCount() > 1 && holds(1, "@2")) return true;
    return (!found.params[0].empty() && holds(2, "@p1")) ||
           (!found.params[1].empty() && holds(1, "@p2"));
}

/// The first condition that more brackets enclose than rows can stand in; none mostly.
const TSQLCondition* FirstTooDeep(const TSQLBracket& bracket, int level = 0) {
    for (const TSQLConditionNode* node : bracket.Nodes()) {
        if (const TSQLCondition* condition = node->AsCondition()) {
            if (level > MaxBracketLevel) return condition;
        } else if (const TSQLCondition* deep = FirstTooDeep(*node->AsBracket(), level + 1)) {
            return deep;
        }
    }
    return nullptr;
}

TFilterLinkType LinkTypeOf(const TSQLBracket& bracket) {
    if (bracket.LinkType() == "or")
        return bracket.Not() ? TFilterLinkType::fltNone : TFilterLinkType::fltAny;
    return bracket.Not() ? TFilterLinkType::fltNotAll : TFilterLinkType::fltAll;
}

} // namespace

void TKQuery::ParseSQL(const TStrings& lines) {
    ParseSQL(JoinStrings(lines, "\n"));
}

void TKQuery::ParseSQL(std::string_view sql) {
    RequireStruct();
    RequireChangeable();
    const bool wasActive = active;
    SetActive(false); // and so it stays when the reading fails
    {
        const TBuilderStateScope loading(*this, TKBuilderState::stLoading);
        ClearAll();
        StoreSQLReport({});
        TSubSelectBudget budget(sql.size());
        StoreSQLReport(TSQLReader(*this, budget).Read(sql));
    }
    ReadingDone(wasActive);
}

void TKQuery::StoreSQLReport(TSQLReport report) {
    loadWarnings.clear();
    for (const TSQLReportEntry& entry : report.Entries())
        if (entry.kind == TSQLReportKind::rkDropped) loadWarnings.push_back(SQLReportLine(entry));
    SetSQLReport(std::make_shared<const TSQLReport>(std::move(report)));
}

const TSQLReport& TKQuery::SQLReport() const {
    static const TSQLReport nothing;
    return sqlReport ? *sqlReport : nothing;
}

TSQLReport TSQLReader::Read(std::string_view sql) {
    parser.SetText(std::string(sql));
    parser.Parse();
    source = parser.Result().Source();
    if (const TSQLCondition* deep = FirstTooDeep(parser.Result().Where()))
        RaiseSQLError(messages::WrongSQL, parser.Result().PositionOf(deep->Source()));
    AddResultFields();
    ProcessSQLBracket(query.Root(), parser.Result().Where());
    const TSQLRest& rest = parser.Result().Rest;
    if (!rest.text.empty())
        report.Add(TSQLReportKind::rkDropped, "rest", rest.text, source->OffsetOf(rest.text),
                   reasons::RestIgnored);
    report.Place(*source);
    return std::move(report);
}

void TSQLReader::AddResultFields() {
    TRFieldList& fields = query.QResult().ResultFields();
    fields.SetJustSorting(parser.Result().AllFields);
    for (const auto& parsed : parser.Result().ResultFields) {
        TResultField* const field =
            fields.AddBySQLExpr({}, TSortingType::stNoSort, JoinedTokens(parsed->Source));
        // the rank first, so that no other one is looked for
        field->SetSortOrder(parsed->SortIndex);
        field->SetSorting(static_cast<TSortingType>(parsed->SortOrder));
    }
}

void TSQLReader::ProcessSQLBracket(TFilterBracket& bracket, const TSQLBracket& sqlBracket) {
    bracket.SetLinkType(LinkTypeOf(sqlBracket));
    for (const TSQLConditionNode* node : sqlBracket.Nodes()) {
        if (const TSQLCondition* condition = node->AsCondition())
            AddCondition(bracket, *condition);
        else
            ProcessSQLBracket(*bracket.AddBracket(), *node->AsBracket());
    }
}

void TSQLReader::AddCondition(TFilterBracket& bracket, const TSQLCondition& sqlCondition) {
    const TRecognisedCondition found = recognition.Recognise(sqlCondition);
    TFilterCond& row = *bracket.AddCond();
    const bool isSubQuery = !found.subSelect.empty() && found.IsComplete();
    const bool isRead = found.IsComplete() &&
                        (!isSubQuery || ProcessSubQuery(found.subSelect, row)) &&
                        FillCondition(row, found);
    if (!isRead) return KeepText(row, found, sqlCondition);
    hasParams = hasParams || row.Param(1) || row.Param(2);
}

/// The sub-select as a query text; false when it can not be read whole.
bool TSQLReader::ProcessSubQuery(std::string_view sql, TFilterCond& row) {
    if (!budget.TakeStatement(sql.size())) return false;
    const std::unique_ptr<TKQuery> nested = query.NewNested();
    const auto reader = std::make_unique<TSQLReader>(*nested, budget);
    TSQLReport part;
    try {
        const TBuilderStateScope loading(*nested, TKBuilderState::stLoading);
        part = reader->Read(sql);
    } catch (const ESQLParserError&) {
        return false;
    }
    if (part.AnyDropped()) return false;
    std::string text = nested->GetQueryString();
    if (!budget.TakeQueryText(text.size())) return false;
    report.Append(std::move(part), source->OffsetOf(sql));
    row.SetSubQuery(std::move(text), nested->SQLOptions());
    // parameters got names of this query's own: the text would name others
    if (!reader->HasParams()) row.SetValue(1, std::string(sql));
    hasParams = hasParams || reader->HasParams();
    return true;
}

void TSQLReader::KeepText(TFilterCond& row, const TRecognisedCondition& found,
                          const TSQLCondition& sqlCondition) {
    const TKCustomDBStructure& structure = query.RequireStruct();
    row.SetField(found.field ? found.field : structure.PlaceholderField());
    row.SetOperator(found.op && !found.field ? found.op : structure.PlaceholderOperator());
    row.SetSubQuery({});
    for (int n = 1; n <= 2; ++n) {
        row.SetValueIsParam(n, false); // the text names the parameter
        row.SetValue(n, found.field ? std::string() : found.values[n - 1]);
    }
    const std::string_view text = WithoutOuterBrackets(sqlCondition.Source());
    row.SetSQLText(std::string(text));
    report.Add(TSQLReportKind::rkKeptAsText, "condition", text, source->OffsetOf(text),
               found.field ? reasons::NoSuchOperator : reasons::NoSuchField);
}

bool FillCondition(TFilterCond& row, const TRecognisedCondition& found) {
    if (ValuesHoldPlaceholder(found)) return false;
    row.SetField(found.field);
    row.SetOperator(found.op);
    if (!found.subSelect.empty()) return true;
    for (int n = 1; n <= 2; ++n) {
        row.SetValue(n, found.values[n - 1]);
        row.SetValueIsParam(n, !found.params[n - 1].empty());
    }
    return true;
}

} // namespace tern7
