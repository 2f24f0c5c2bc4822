// tern run: the rows of a query.

#include <charconv>

#include <tern7/core/query/query.h>
#include <tern7/sql/executor.h>

#include "../inputs.h"
#include "../row_report.h"
#include "../streams.h"
#include "../verbs.h"
#include "open_database.h"
#include "row_writer.h"

namespace tern7 {

namespace {

struct TGivenValue {
    std::string param, value;
};

std::vector<TGivenValue> GivenValues(const TCommandLine& line) {
    std::vector<TGivenValue> values;
    for (const std::string& text : line.Values("--param")) {
        const size_t equals = text.find('=');
        if (equals == std::string::npos || equals == 0)
            throw EWrongUsage("--param takes NAME=VALUE, not \"" + text + "\"");
        values.push_back({text.substr(0, equals), text.substr(equals + 1)});
    }
    return values;
}

std::optional<long long> RowLimit(const TCommandLine& line) {
    const std::optional<std::string> text = line.Value("--limit");
    if (!text) return std::nullopt;
    long long limit = -1;
    const char* const end = text->data() + text->size();
    const auto [stop, error] = std::from_chars(text->data(), end, limit);
    if (error != std::errc() || stop != end || limit < 0)
        throw EWrongUsage("--limit takes a number of rows, not \"" + *text + "\"");
    return limit;
}

/// By name, else by caption.
TSQLParam& ParamOf(const TKQuery& query, const std::string& name) {
    TSQLParam* param = query.FindParam(name);
    if (!param) throw EKQueryPanelError("No such parameter " + name);
    if (SameText(param->Name(), name)) return *param;
    for (const TSQLParam* other : query.AllParams())
        if (other != param && SameText(other->Caption(), name))
            throw EKQueryPanelError("Several parameters are called " + name + ": " + param->Name() +
                                    ", " + other->Name());
    return *param;
}

void GiveValues(const TKQuery& query, const std::vector<TGivenValue>& values) {
    for (const TGivenValue& given : values)
        ParamOf(query, given.param).SetValue(given.value);
    std::string lacking;
    for (const TSQLParam* param : query.AllParams())
        if (!param->HasValue())
            lacking +=
                (lacking.empty() ? "" : ", ") + param->Name() + " (" + param->Caption() + ")";
    if (!lacking.empty())
        throw EKQueryPanelError("Parameters without a value: " + lacking + "; --param gives one");
}

void PrintRows(TKExecutor& executor, TRowWriter& writer, std::optional<long long> limit) {
    std::vector<std::string> names;
    for (const TKResultColumn& column : executor.Columns())
        names.push_back(column.name);
    writer.Begin(names);
    while (limit != 0 && executor.Next())
        writer.Row(executor.Row());
    writer.End();
}

} // namespace

int RunRun(const TCommandLine& line) {
    const TFormatOptions formats(line);
    const auto format = line.Choice("--format", {"table", "csv", "json"});
    const std::unique_ptr<TRowWriter> writer =
        MakeRowWriter(static_cast<TRowFormat>(format.value_or(0)));
    const std::optional<long long> limit = RowLimit(line);
    const std::vector<TGivenValue> values = GivenValues(line);

    TKCustomDBStructure structure;
    LoadStructure(structure, line.Argument(1));
    formats.Apply(structure.SQLFormats());
    TKQuery query(&structure);
    LoadQuery(query, line.Argument(2));
    if (TellLeftOutRows(query) && !line.Has("--partial"))
        throw EKQueryPanelError("The query has unfinished conditions; --partial leaves them out");
    GiveValues(query, values);
    query.BuildQuery();

    const TKConnection connection = OpenDatabase(line.Argument(0));
    TKExecutor executor(connection);
    // no rows at all still have columns
    executor.Open(query.QResult().GetBoundSQL(), limit == 0 ? 1 : limit.value_or(0));
    PrintRows(executor, *writer, limit);
    if (executor.IsTruncated() && limit != 0) Complain("there are more rows than the limit");
    return esDone;
}

} // namespace tern7
