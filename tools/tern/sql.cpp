// tern sql: the statement of a query, as text or with bound values.

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/query/query.h>

#include "inputs.h"
#include "json.h"
#include "row_report.h"
#include "streams.h"
#include "verbs.h"

namespace tern7 {

namespace {

TSQLOptions ParseOptions(const std::string& list) {
    TSQLOptions options;
    if (SameText(list, "none")) return options;
    for (const std::string& name : ParseCommaText(list)) {
        const std::optional<TSQLOption> option = StrToSQLOption(name);
        if (option) {
            options.Include(*option);
            continue;
        }
        std::string known;
        for (int i = 0; i < SQLOptionCount; ++i) {
            if (i > 0) known += ", ";
            known += SQLOptionToStr(static_cast<TSQLOption>(i));
        }
        throw EWrongUsage(std::string("--options is none or a list of ")
                              .append(known)
                              .append(", not \"")
                              .append(name)
                              .append("\""));
    }
    return options;
}

/// {"type":"integer","value":12}: integers and floats are numbers, booleans true or false, all else
/// is a string, so that no digit of a decimal is lost.
std::string BoundValueAsJson(const TBoundValue& value) {
    using TKind = TBoundValue::TKind;
    std::string json = "{\"type\":\"" + std::string(BoundKindToStr(value.kind)) + "\",\"value\":";
    if (value.kind == TKind::Null)
        json += "null";
    else if (value.kind == TKind::Boolean)
        json += value.text == "1" ? "true" : "false";
    else if (value.kind == TKind::Integer || value.kind == TKind::Float)
        AppendJsonNumber(json, value.text);
    else
        AppendJsonString(json, value.text);
    return json + "}";
}

void PrintBound(TKQuery& query) {
    const TBoundSQL bound = query.QResult().GetBoundSQL();
    for (const TSQLParam* param : query.AllParams())
        if (!param->HasValue())
            Complain("parameter " + param->Name() + " (" + param->Caption() + ") has no value");
    PrintLine(bound.text);
    PrintLine("");
    for (const TBoundValue& value : bound.values)
        PrintLine(BoundValueAsJson(value));
}

} // namespace

int RunSql(const TCommandLine& line) {
    const TFormatOptions formats(line);
    const auto syntax = line.Choice("--syntax", {"sql1", "sql2", "oracle"});
    const auto optionList = line.Value("--options");
    const TSQLOptions options = optionList ? ParseOptions(*optionList) : TSQLOptions();

    TKCustomDBStructure structure;
    LoadStructure(structure, line.Argument(0));
    formats.Apply(structure.SQLFormats());
    TKQuery query(&structure);
    LoadQuery(query, line.Argument(1));
    if (syntax) query.SetSQLSyntax(static_cast<TSQLSyntax>(*syntax));
    if (optionList) query.SetSQLOptions(options);
    if (const auto table = line.Value("--main")) query.SetMainTableName(*table);

    TellLeftOutRows(query);
    query.BuildQuery();
    if (line.Has("--bound"))
        PrintBound(query);
    else
        PrintLine(query.QResult().GetSQL().Text());
    return esDone;
}

} // namespace tern7
