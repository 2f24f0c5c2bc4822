// tern parse: what the parser reads in a SELECT statement, as JSON.

#include <cstdio>

#include <tern7/core/parser/sql_parser.h>

#include "json.h"
#include "streams.h"
#include "verbs.h"

namespace tern7 {

namespace {

void AppendNode(std::string& out, const TSQLConditionNode& node) {
    TJsonObject object(out);
    if (const TSQLCondition* condition = node.AsCondition()) {
        object.Text("node", "condition")
            .Text("field", condition->Field())
            .Text("operator", condition->Operator())
            .Text("value", condition->Value())
            .Bool("not", condition->Not())
            .Bool("isSubQuery", condition->IsSubQuery())
            .Text("sqlExpr", condition->GetSQLExpr());
    } else {
        const TSQLBracket& bracket = *node.AsBracket();
        object.Text("node", "bracket")
            .Text("linkType", bracket.LinkType())
            .Bool("not", bracket.Not());
        object.Key("nodes");
        AppendJsonArray(out, bracket.Nodes(),
                        [&](const TSQLConditionNode* inner) { AppendNode(out, *inner); });
    }
    object.End();
}

std::string ResultAsJson(const TKParserResult& result) {
    std::string out;
    TJsonObject object(out);
    object.Bool("distinct", result.Distinct).Bool("allFields", result.AllFields);
    object.Key("fields");
    AppendJsonArray(out, result.ResultFields, [&](const auto& item) {
        const TSQLResultField& field = *item;
        TJsonObject(out)
            .Text("alias", field.Alias)
            .Text("fieldName", field.FieldName())
            .Text("sqlExpr", field.SQLExpr())
            .Int("sortOrder", field.SortOrder)
            .Int("sortIndex", field.SortIndex)
            .End();
    });
    object.Key("tables");
    AppendJsonArray(out, result.Tables, [&](const auto& table) {
        TJsonObject(out).Text("name", table->TableName()).Text("alias", table->Alias).End();
    });
    object.Key("where");
    AppendNode(out, result.Where());
    object.Text("rest", result.Rest.text);
    object.End();
    return out;
}

} // namespace

int RunParse(const TCommandLine& line) {
    TKSQLParser parser;
    parser.SetText(ReadText(line.Arguments().empty() ? "-" : line.Argument(0)));
    try {
        parser.Parse();
    } catch (const ESQLParserError& error) {
        std::fprintf(stderr, "%s\n", error.what()); // as the parser words it
        return esRefused;
    }
    PrintLine(ResultAsJson(parser.Result()));
    return esDone;
}

} // namespace tern7
