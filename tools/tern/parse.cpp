// tern parse: what the parser reads in a SELECT statement, as JSON.

#include <cstdio>
#include <utility>

#include <tern7/core/parser/sql_parser.h>

#include "json.h"
#include "streams.h"
#include "verbs.h"

namespace tern7 {

namespace {

/// An object of JSON, a member at a time.
class TJsonObject {
public:
    explicit TJsonObject(std::string& target) : out(target) { out += '{'; }
    TJsonObject& Text(std::string_view key, std::string_view value) {
        Key(key);
        AppendJsonString(out, value);
        return *this;
    }
    TJsonObject& Bool(std::string_view key, bool value) {
        Key(key);
        out += value ? "true" : "false";
        return *this;
    }
    TJsonObject& Int(std::string_view key, int value) {
        Key(key);
        out += std::to_string(value);
        return *this;
    }
    /// The value of the key is to be appended next.
    void Key(std::string_view key) {
        if (!first) out += ',';
        first = false;
        AppendJsonString(out, key);
        out += ':';
    }
    void End() { out += '}'; }

private:
    std::string& out;
    bool first = true;
};

template <class Items, class Append>
void AppendArray(std::string& out, const Items& items, const Append& append) {
    out += '[';
    bool first = true;
    for (const auto& item : items) {
        if (!std::exchange(first, false)) out += ',';
        append(*item);
    }
    out += ']';
}

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
        AppendArray(out, bracket.Nodes(),
                    [&](const TSQLConditionNode& inner) { AppendNode(out, inner); });
    }
    object.End();
}

std::string ResultAsJson(const TKParserResult& result) {
    std::string out;
    TJsonObject object(out);
    object.Bool("distinct", result.Distinct).Bool("allFields", result.AllFields);
    object.Key("fields");
    AppendArray(out, result.ResultFields, [&](const TSQLResultField& field) {
        TJsonObject(out)
            .Text("alias", field.Alias)
            .Text("fieldName", field.FieldName())
            .Text("sqlExpr", field.SQLExpr())
            .Int("sortOrder", field.SortOrder)
            .Int("sortIndex", field.SortIndex)
            .End();
    });
    object.Key("tables");
    AppendArray(out, result.Tables, [&](const TSQLTable& table) {
        TJsonObject(out).Text("name", table.TableName()).Text("alias", table.Alias).End();
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
