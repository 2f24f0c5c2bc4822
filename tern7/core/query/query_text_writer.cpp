#include <algorithm>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/corekit/files.h>
#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/corekit/numbers.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_rows_text.h>
#include <tern7/core/query/query_state.h>
#include <tern7/core/query/query_text.h>
#include <tern7/core/query/query_text_keys.h>
#include <tern7/core/query/result_field_text.h>

namespace tern7 {

namespace {

void WriteTitles(TKIniWriter& out, const TKQuery& query) {
    if (!query.SaveTitles) return;
    for (std::string line : query.Titles) {
        std::replace(line.begin(), line.end(), '\n', ' ');
        out.Line(line);
    }
    out.Line({});
}

std::string AvoidedJoinsText(const TAvoidedJoins& joins) {
    TStrings pairs;
    for (const TAvoidedJoin& join : joins)
        pairs.push_back(ComposeCommaText({join.alias1, join.alias2}));
    return ComposeCommaText(pairs);
}

void WriteMain(TKIniWriter& out, const TKQuery& query) {
    out.Section("Main");
    out.Text("QueryName", query.QueryName());
    out.Key("Version", XFloatToStr(QueryTextVersion));
    if (query.SaveSQLOptions)
        out.Key("Options", SQLOptionsToInt(query.SQLOptions()));
    else
        out.Key("Options", std::string_view());
    if (query.SaveMainTable && !query.MainTableName().empty())
        out.Text("MainTable", query.MainTableName());
    if (query.SaveMainTable && !query.AvoidedJoins().empty())
        out.Text("AvoidedJoins", AvoidedJoinsText(query.AvoidedJoins()));
    out.Line({});
}

void WriteBody(TKIniWriter& out, std::string_view name, const TStrings& lines) {
    out.Section(name);
    for (const std::string& line : lines) {
        TKLineReader pieces(line); // a line break inside would make a header of what follows
        std::string_view piece;
        if (line.empty()) out.Line({});
        while (pieces.Next(piece))
            out.BodyLine(piece);
    }
    out.Line({});
}

} // namespace

std::string TKQuery::GetQueryString() {
    const TBuilderStateScope saving(*this, TKBuilderState::stSaving);
    TKIniWriter out;
    WriteTitles(out, *this);
    WriteMain(out, *this);
    WriteBody(out, "Description", Description);
    WriteBody(out, "UserData", UserData);
    WriteResultFields(out, result->ResultFields());
    WriteRows(out, *this);
    return out.Take();
}

std::string RowsToText(const std::vector<TFilterRow*>& rows, bool unfinishedToo) {
    if (rows.empty()) return {};
    const TKQuery& query = *rows.front()->Query();
    TKIniWriter out;
    out.Section("Main");
    out.Text("QueryName", {});
    out.Key("Version", XFloatToStr(QueryTextVersion));
    out.Line({});
    WriteRows(out, query, rows, unfinishedToo);
    return out.Take();
}

void TKQuery::SaveToStrings(TStrings& lines) {
    lines = SplitLines(GetQueryString());
}

void TKQuery::SaveToFile(const std::string& fileName) {
    AsQueryError([&] { WriteWholeFile(fileName, GetQueryString()); });
}

} // namespace tern7
