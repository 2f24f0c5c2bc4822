// The conditions of an imported statement as rows.

#include <algorithm>

#include <tern7/core/global/messages.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_state.h>
#include <tern7/core/query/read_sql/import_sql.h>

namespace tern7 {

namespace {

using TReport = TSQLReportKind;
using TNodeKind = TImportNode::TKind;

constexpr std::string_view notRecognised = "no field or operator of the structure says it";
constexpr std::string_view nameInUse = "another parameter has this name";

TFilterLinkType LinkTypeOfGroup(const TImportNode& group) {
    if (group.kind == TNodeKind::Or)
        return group.negated ? TFilterLinkType::fltNone : TFilterLinkType::fltAny;
    if (!group.negated) return TFilterLinkType::fltAll;
    return group.nodes.size() > 1 ? TFilterLinkType::fltNotAll : TFilterLinkType::fltNone;
}

/// What is left when the joins are taken out; none when nothing is.
TImportNode* WithoutJoins(TImportNode& node) {
    if (node.isJoin) return nullptr;
    if (node.kind != TNodeKind::And || node.negated) return &node;
    std::vector<TImportNode*> left;
    for (TImportNode* each : node.nodes)
        if (TImportNode* const rest = WithoutJoins(*each)) left.push_back(rest);
    const bool isLess = left.size() < node.nodes.size();
    node.nodes = std::move(left);
    if (node.nodes.empty()) return nullptr;
    const bool stands =
        !isLess || node.nodes.size() > 1 || (node.inBrackets && !node.nodes.front()->IsGroup());
    return stands ? &node : node.nodes.front();
}

std::string_view MirroredOperator(std::string_view op) {
    if (op == "<") return ">";
    if (op == ">") return "<";
    if (op == "<=") return ">=";
    if (op == ">=") return "<=";
    return op == "=" || op == "<>" || op == "!=" ? op : std::string_view();
}

} // namespace

void TSQLImporter::AddRows() {
    TImportNode* where = statement.where ? WithoutJoins(*statement.where) : nullptr;
    if (!rowsOfJoins.empty()) {
        TImportNode& all = statement.NewNode(TNodeKind::And);
        all.nodes = rowsOfJoins;
        if (where && where->kind == TNodeKind::And && !where->negated)
            all.nodes.insert(all.nodes.end(), where->nodes.begin(), where->nodes.end());
        else if (where)
            all.nodes.push_back(where);
        where = &all;
    }
    if (!where) return;
    if (where->IsGroup())
        FillBracket(query.Root(), *where);
    else
        AddCondition(query.Root(), *where);
}

void TSQLImporter::FillBracket(TFilterBracket& bracket, const TImportNode& group) {
    bracket.SetLinkType(LinkTypeOfGroup(group));
    for (const TImportNode* node : group.nodes)
        AddNode(bracket, *node);
}

void TSQLImporter::AddNode(TFilterBracket& bracket, const TImportNode& node) {
    if (node.IsGroup())
        FillBracket(*bracket.AddBracket(), node);
    else
        AddCondition(bracket, node);
}

void TSQLImporter::AddCondition(TFilterBracket& bracket, const TImportNode& node) {
    const bool asTemplate = node.notBefore && node.notBrackets > 0 && !node.notInside;
    if (!node.notBefore || asTemplate)
        if (AddRecognised(bracket, node, node.notInside || asTemplate)) return;
    if (node.notBefore) {
        // any other "not" stands before a bracket
        TFilterBracket& none = *bracket.AddBracket();
        none.SetLinkType(TFilterLinkType::fltNone);
        if (AddRecognised(none, node, node.notInside)) return;
        bracket.DeleteRow(&none);
    }
    AddText(bracket, node);
}

/// The operand of a comparison; a name in double quotes that no column has is a text.
std::string TSQLImporter::ValueText(const TImportNode& node) {
    const std::string_view written = parser.Written(node.right);
    const bool isOneToken = node.right.to == node.right.from + 1;
    if (isOneToken && written.front() == '"') {
        const auto column = joins->Names().ColumnAt(node.right);
        if (column && !joins->Names().FindTable(*column)) return QuotedString(column->name);
    }
    return Rewrite(node.right);
}

TSQLCondition& TSQLImporter::MakeCondition(const TImportNode& node, bool negated) {
    TKParserResult& texts = parser.Result();
    TSQLCondition& condition = *texts.NewCondition(nullptr);
    condition.SetField(texts.KeepText(Rewrite(node.left)));
    condition.SetOperator(texts.KeepText(node.op));
    condition.SetValue(texts.KeepText(ValueText(node)));
    condition.SetNot(negated);
    condition.SetIsSubQuery(node.isSubQuery);
    // 5 < t.a says t.a > 5
    const std::string_view mirrored = MirroredOperator(node.op);
    if (!mirrored.empty() && !structure.FieldBySQLExpr(condition.Field()) &&
        structure.FieldBySQLExpr(condition.Value())) {
        const std::string_view value = condition.Field();
        condition.SetField(condition.Value());
        condition.SetValue(value);
        condition.SetOperator(mirrored);
    }
    return condition;
}

bool TSQLImporter::AddRecognised(TFilterBracket& bracket, const TImportNode& node, bool negated) {
    if (node.op.empty()) return false;
    const TRecognisedCondition found = recognition.Recognise(MakeCondition(node, negated));
    if (!found.IsComplete() || joins->Names().TakeUnknown()) return false;
    TFilterCond& row = *bracket.AddCond();
    const bool isRead =
        (found.subSelect.empty() || ImportSubQuery(found, node, row)) && FillCondition(row, found);
    if (!isRead) {
        bracket.DeleteRow(&row);
        return false;
    }
    for (int n = 1; n <= 2; ++n)
        if (!found.params[n - 1].empty()) NameParam(row, n, found.params[n - 1], node);
    Report(TReport::rkRecognised, "condition", node.body);
    return true;
}

void TSQLImporter::NameParam(const TFilterCond& row, int n, const std::string& name,
                             const TImportNode& node) {
    if (!row.Param(n)) return;
    if (!query.QResult().RenameParameter(*row.Param(n), name))
        Report(TReport::rkDropped, "parameter", node.body, nameInUse);
    paramNames.push_back(row.Param(n)->Name());
}

bool TSQLImporter::ImportSubQuery(const TRecognisedCondition& found, const TImportNode& node,
                                  TFilterCond& row) {
    if (!budget.TakeStatement(found.subSelect.size())) return false;
    std::unique_ptr<TKQuery> nested = query.NewNested();
    const auto importer = std::make_unique<TSQLImporter>(*nested, budget, true);
    TSQLReport part;
    try {
        const TBuilderStateScope loading(*nested, TKBuilderState::stLoading);
        importer->Parse(found.subSelect);
        part = importer->Fill();
    } catch (const ESQLParserError&) {
        return false;
    }
    // nested statements are written in the syntax of the whole
    const TSyntaxes common = syntaxes & importer->Syntaxes();
    if (importer->HasUnknownNames() || part.AnyDropped() || common.IsEmpty()) return false;
    syntaxes = common;
    nested->SaveMainTable = true;
    std::string text = nested->GetQueryString();
    if (!budget.TakeQueryText(text.size())) return false;
    report.Append(std::move(part),
                  source->OffsetOf(parser.Written({node.right.from + 1, node.right.to})));
    row.SetSubQuery(std::move(text), nested->SQLOptions());
    const TStrings names = importer->ParamNames();
    nested.reset(); // its names are free again
    // a query that is read again names its parameters itself: the text would name others
    if (names.empty())
        row.SetValue(1, std::string(found.subSelect));
    else if (!query.Outer()) // once for all levels
        NameNestedParams(row, names);
    paramNames.insert(paramNames.end(), names.begin(), names.end());
    return true;
}

/// The row's own nested query takes the names that the statement gives.
void TSQLImporter::NameNestedParams(const TFilterCond& row, const TStrings& names) {
    TKQuery& nested = *row.NestedQuery();
    const std::vector<TSQLParam*> params = nested.AllParams();
    const size_t count = std::min(params.size(), names.size());
    // by way of names that nobody has, since the new ones may be those of others
    for (size_t i = 0; i < count; ++i)
        params[i]->Condition()->Query()->QResult().RenameParameter(*params[i],
                                                                   "\x01" + std::to_string(i));
    for (size_t i = 0; i < count; ++i)
        params[i]->Condition()->Query()->QResult().RenameParameter(*params[i], names[i]);
}

void TSQLImporter::AddText(TFilterBracket& bracket, const TImportNode& node) {
    TFilterCond& row = *bracket.AddCond();
    row.SetField(structure.PlaceholderField());
    row.SetOperator(structure.PlaceholderOperator());
    row.SetSQLText(Rewrite(node.body));
    hasUnknownNames = joins->Names().TakeUnknown() || hasUnknownNames;
    Report(TReport::rkKeptAsText, "condition", node.body, notRecognised);
}

} // namespace tern7
