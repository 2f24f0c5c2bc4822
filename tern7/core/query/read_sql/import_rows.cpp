// The conditions of an imported statement as rows.

#include <algorithm>

#include <tern7/core/global/messages.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_state.h>
#include <tern7/core/query/read_sql/import_sql.h>
#include <tern7/core/query/read_sql/report_reasons.h>
#include <tern7/core/query/read_sql/sql_pieces.h>

namespace tern7 {

namespace {

using TReport = TSQLReportKind;
using TNodeKind = TImportNode::TKind;

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

} // namespace

void TSQLImporter::FindRows() {
    rows = statement.where ? WithoutJoins(*statement.where) : nullptr;
    if (rowsOfJoins.empty()) return;
    TImportNode& all = statement.NewNode(TNodeKind::And);
    all.nodes = rowsOfJoins;
    if (rows && rows->kind == TNodeKind::And && !rows->negated)
        all.nodes.insert(all.nodes.end(), rows->nodes.begin(), rows->nodes.end());
    else if (rows)
        all.nodes.push_back(rows);
    rows = &all;
}

void TSQLImporter::AddRows() {
    for (const std::string& text : heldJoins)
        AddText(query.Root(), text);
    if (!rows) return;
    const bool isAll = rows->kind == TNodeKind::And && !rows->negated;
    if (rows->IsGroup() && (isAll || heldJoins.empty()))
        FillBracket(query.Root(), *rows);
    else
        AddNode(query.Root(), *rows);
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
    // any other "not" stands before a bracket
    if (node.notBefore && AddToNone(bracket, node, node.notInside)) return;
    if (node.notInside || node.isNot) {
        TImportNode positive = node;
        positive.notInside = positive.isNot = false;
        if (node.isNot) ++positive.right.from;
        if (node.notBefore ? AddRecognised(bracket, positive, false)
                           : AddToNone(bracket, positive, false))
            return;
    }
    AddTextOf(bracket, node);
}

/// The condition in a bracket of kind "none" of its own.
bool TSQLImporter::AddToNone(TFilterBracket& bracket, const TImportNode& node, bool negated) {
    TFilterBracket& none = *bracket.AddBracket();
    none.SetLinkType(TFilterLinkType::fltNone);
    if (AddRecognised(none, node, negated)) return true;
    bracket.DeleteRow(&none);
    return false;
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

/// date '2024-01-01' says the same as '2024-01-01' where the structure has a form for dates.
void TSQLImporter::DropTypeWords(TSQLCondition& condition) {
    const TDSField* const field = structure.FieldBySQLExpr(condition.Field());
    if (!field || !IsDateOrTime(field->FieldType())) return;
    const TSQLFormats& formats = structure.SQLFormats();
    const bool isTime = field->FieldType() == TFieldType::ftTime;
    if ((isTime ? formats.Time() : formats.Date()).empty()) return;
    const TSQLOperand cut(condition.Value());
    std::string text;
    const char* from = condition.Value().data();
    for (size_t i = 0; i + 1 < cut.Count(); ++i) {
        const std::string_view token = cut.Token(i);
        const bool isTypeWord =
            SameText(token, isTime ? "time" : "date") || (!isTime && SameText(token, "timestamp"));
        if (!isTypeWord || cut.Type(i + 1) != TKTokenType::Literal) continue;
        text.append(from, token.data());
        from = cut.Token(i + 1).data();
    }
    if (text.empty() && from == condition.Value().data()) return;
    text.append(from, condition.Value().data() + condition.Value().size());
    condition.SetValue(parser.Result().KeepText(text));
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
    const std::string_view value = condition.Value();
    const bool isMoreThanLiteral =
        node.left.to + node.right.to > node.left.from + node.right.from + 2;
    if (isMoreThanLiteral && !node.isSubQuery && value.find('\'') != std::string_view::npos)
        DropTypeWords(condition);
    return condition;
}

bool TSQLImporter::AddRecognised(TFilterBracket& bracket, const TImportNode& node, bool negated) {
    if (node.op.empty()) return false;
    const TRecognisedCondition found = recognition.Recognise(MakeCondition(node, negated));
    const bool isSaid = joins->Names().TakeObstacle().empty();
    if (!found.IsComplete() || joins->Names().TakeUnknown() || !isSaid) return false;
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
    if (paramNames.contains(LowerCase(name)) ||
        !query.QResult().RenameParameter(*row.Param(n), name))
        Report(TReport::rkDropped, "parameter", node.body, reasons::NameInUse);
    paramNames.insert(LowerCase(row.Param(n)->Name()));
}

/// The sub-select of a condition as a query text. It is read once, however often its row is made.
const TImportedSubSelect& TSQLImporter::ReadSubSelect(std::string_view sql,
                                                      const TImportNode& node) {
    const auto [place, isNew] = subSelects.try_emplace(node.right.from);
    TImportedSubSelect& read = place->second;
    if (!isNew || !budget.TakeStatement(sql.size())) return read;
    const std::unique_ptr<TKQuery> nested = query.NewNested();
    const auto importer = std::make_unique<TSQLImporter>(*nested, budget, true);
    try {
        const TBuilderStateScope loading(*nested, TKBuilderState::stLoading);
        importer->Parse(sql);
        read.report = importer->Fill();
    } catch (const ESQLParserError&) {
        return read;
    }
    // nested statements are written in the syntax of the whole
    const TSyntaxes common = syntaxes & importer->Syntaxes();
    if (importer->HasUnknownNames() || read.report.AnyDropped() || common.IsEmpty()) return read;
    syntaxes = common;
    nested->SaveMainTable = true;
    read.text = nested->GetQueryString();
    read.options = nested->SQLOptions();
    read.paramNames = importer->paramNames;
    read.isWhole = budget.TakeQueryText(read.text.size());
    return read;
}

bool TSQLImporter::ImportSubQuery(const TRecognisedCondition& found, const TImportNode& node,
                                  TFilterCond& row) {
    const TImportedSubSelect& read = ReadSubSelect(found.subSelect, node);
    const auto isTaken = [this](const std::string& name) { return paramNames.contains(name); };
    if (!read.isWhole || std::any_of(read.paramNames.begin(), read.paramNames.end(), isTaken))
        return false;
    report.Append(read.report,
                  source->OffsetOf(parser.Written({node.right.from + 1, node.right.to})));
    row.SetSubQuery(read.text, read.options);
    // names can come to be taken: a text that holds them would name others
    if (read.paramNames.empty())
        row.SetValue(1, std::string(found.subSelect));
    else if (!query.Outer())            // once for all levels
        row.NestedQuery()->AllParams(); // takes the names
    paramNames.insert(read.paramNames.begin(), read.paramNames.end());
    return true;
}

void TSQLImporter::AddText(TFilterBracket& bracket, std::string text) {
    TFilterCond& row = *bracket.AddCond();
    row.SetField(structure.PlaceholderField());
    row.SetOperator(structure.PlaceholderOperator());
    row.SetSQLText(std::move(text));
}

void TSQLImporter::AddTextOf(TFilterBracket& bracket, const TImportNode& node) {
    AddText(bracket, Rewrite(node.body));
    hasUnknownNames = joins->Names().TakeUnknown() || hasUnknownNames;
    const std::string_view obstacle = joins->Names().TakeObstacle();
    Report(obstacle.empty() ? TReport::rkKeptAsText : TReport::rkDropped, "condition", node.body,
           obstacle.empty() ? reasons::NotRecognised : obstacle);
}

} // namespace tern7
