// tern load: a SELECT statement read back as a query, with a report of what became of it.

#include <cstdio>

#include <tern7/core/query/query.h>
#include <tern7/core/query/read_sql/sql_report.h>

#include "inputs.h"
#include "json.h"
#include "streams.h"
#include "verbs.h"

namespace tern7 {

namespace {

enum class TReportForm { Losses, Text, Json };

TReportForm ReportForm(const TCommandLine& line) {
    const std::optional<size_t> choice = line.Choice("--report", {"text", "json"});
    if (!choice) return TReportForm::Losses;
    return *choice == 0 ? TReportForm::Text : TReportForm::Json;
}

std::string ReportAsJson(const TSQLReport& report) {
    std::string out;
    AppendJsonArray(out, report.Entries(), [&](const TSQLReportEntry& entry) {
        TJsonObject(out)
            .Text("kind", SQLReportKindToStr(entry.kind))
            .Text("what", entry.what)
            .Text("text", entry.text)
            .Text("reason", entry.reason)
            .Int("line", entry.position.line)
            .Int("column", entry.position.column)
            .End();
    });
    return out;
}

void TellReport(const TSQLReport& report, TReportForm form) {
    if (form == TReportForm::Json) {
        std::fprintf(stderr, "%s\n", ReportAsJson(report).c_str());
        return;
    }
    for (const TSQLReportEntry& entry : report.Entries())
        if (form == TReportForm::Text || entry.kind != TSQLReportKind::rkRecognised)
            std::fprintf(stderr, "%s\n", SQLReportLine(entry).c_str());
}

} // namespace

int RunLoad(const TCommandLine& line) {
    const TFormatOptions formats(line);
    const TReportForm form = ReportForm(line);
    TKCustomDBStructure structure;
    LoadStructure(structure, line.Argument(0));
    formats.Apply(structure.SQLFormats());
    const std::string sql = ReadText(line.Arguments().size() > 1 ? line.Argument(1) : "-");

    TKQuery query(&structure);
    query.SaveTitles = false;
    query.SaveMainTable = true;
    query.SaveSQLOptions = line.Has("--complete");
    try {
        if (line.Has("--complete"))
            query.ImportSQL(sql);
        else
            query.ParseSQL(sql);
    } catch (const ESQLParserError& error) {
        std::fprintf(stderr, "%s\n", error.what()); // as the parser words it
        return esRefused;
    }
    Print(query.GetQueryString());
    TellReport(query.SQLReport(), form);
    return query.SQLReport().AnyDropped() ? esRefused : esDone;
}

} // namespace tern7
