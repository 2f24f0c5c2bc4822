#include <cmath>
#include <limits>
#include <optional>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/corekit/files.h>
#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/corekit/numbers.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_record.h>
#include <tern7/core/query/query_rows_text.h>
#include <tern7/core/query/query_state.h>
#include <tern7/core/query/query_text.h>
#include <tern7/core/query/query_text_keys.h>
#include <tern7/core/query/query_titles.h>
#include <tern7/core/query/result_field_text.h>

namespace tern7 {

namespace {

/// A query text, checked: what is left to do can not fail.
struct TQueryText {
    std::optional<TStrings> titles;
    std::string queryName;
    double version = FirstQueryTextVersion;
    std::optional<TSQLOptions> options;
    std::optional<std::string> mainTable;
    std::optional<TAvoidedJoins> avoidedJoins;
    TStrings description, userData;
    TRFieldListText resultFields;
    std::vector<TRowText> rows;
    TStrings warnings;
};

double ParseVersion(const TKIniSection& main) {
    const std::string_view text = Trim(main.Raw("Version"));
    if (text.empty()) return FirstQueryTextVersion;
    const double version = XStrToFloat(text, std::numeric_limits<double>::quiet_NaN());
    if (!std::isfinite(version) || version < 1) RaiseWrongValue(main, "Version");
    return version;
}

/// Comma text of pairs, each of which is comma text of two aliases.
TAvoidedJoins ParseAvoidedJoins(const TKIniSection& main) {
    TAvoidedJoins joins;
    for (const std::string& pair : ParseCommaText(main.Text("AvoidedJoins"))) {
        TStrings aliases = ParseCommaText(pair);
        if (aliases.size() != 2) RaiseWrongValue(main, "AvoidedJoins");
        joins.push_back({std::move(aliases[0]), std::move(aliases[1])});
    }
    return joins;
}

void ParseMain(const TKIniText& text, TQueryText& query) {
    const TKIniSection* main = text.Find("Main");
    if (!main) RaiseSectionNotFound("Main");
    query.queryName = main->Text("QueryName");
    query.version = ParseVersion(*main);
    if (!Trim(main->Raw("Options")).empty())
        query.options = IntToSQLOptions(IntInRange(*main, "Options", 0, 0, INT_MAX));
    if (main->Has("MainTable") || main->Has("MainTable.Encoded"))
        query.mainTable = main->Text("MainTable");
    if (main->Has("AvoidedJoins") || main->Has("AvoidedJoins.Encoded"))
        query.avoidedJoins = ParseAvoidedJoins(*main);
    if (query.version > QueryTextVersion)
        query.warnings.push_back(FormatMessage(
            messages::NewerVersion, {XFloatToStr(query.version), XFloatToStr(QueryTextVersion)}));
}

TStrings ParseBody(const TKIniText& text, std::string_view name) {
    TStrings lines;
    if (const TKIniSection* section = text.Find(name)) lines = section->Lines();
    for (std::string& line : lines)
        line.erase(0, line.size() - UnprotectBodyLine(line).size());
    return lines;
}

TQueryText ParseQueryText(std::string_view text, const TKQuery& query) {
    const TKIniText sections(text);
    TQueryText parsed;
    if (query.SaveTitles)
        parsed.titles = ParseQueryTitles(sections, query.FormatVersion(), query.Titles);
    ParseMain(sections, parsed);
    parsed.description = ParseBody(sections, "Description");
    parsed.userData = ParseBody(sections, "UserData");
    parsed.resultFields = ParseResultFields(sections);
    parsed.rows = ParseRows(sections, parsed.version, query);
    return parsed;
}

} // namespace

/// Reads a text into a query: checks all of it first, then replaces what the query holds.
class TKQueryTextReader {
public:
    explicit TKQueryTextReader(TKQuery& owner) : query(owner) {}
    void Read(std::string_view text, TStrings warnings = {});

private:
    void Take(TQueryText text);
    TKQuery& query;
};

void TKQueryTextReader::Read(std::string_view text, TStrings warnings) {
    query.RequireStruct();
    query.RequireChangeable();
    const bool wasActive = query.Active();
    query.SetActive(false); // and so it stays when the reading fails
    {
        const TBuilderStateScope loading(query, TKBuilderState::stLoading);
        text = WithoutByteOrderMark(text);
        if (text.empty()) {
            query.ClearAll();
            query.loadWarnings = std::move(warnings);
        } else {
            TQueryText parsed = AsQueryError([&] { return ParseQueryText(text, query); });
            parsed.warnings.insert(parsed.warnings.begin(), warnings.begin(), warnings.end());
            Take(std::move(parsed));
        }
    }
    query.ReadingDone(wasActive);
}

void TKQueryTextReader::Take(TQueryText text) {
    if (TKQueryRecord* record = query.Record()) record->TextsChange();
    query.ClearAll();
    if (text.titles) query.Titles = std::move(*text.titles);
    query.SetQueryName(std::move(text.queryName));
    query.SetFormatVersion(text.version);
    if (text.options) query.SetSQLOptions(*text.options);
    if (text.mainTable)
        query.SetMainTableName(std::move(*text.mainTable));
    else if (query.SaveMainTable)
        query.SetMainTableName({});
    if (text.avoidedJoins || query.SaveMainTable)
        query.SetAvoidedJoins(std::move(text.avoidedJoins).value_or(TAvoidedJoins()));
    query.Description = std::move(text.description);
    query.UserData = std::move(text.userData);
    query.QResult().ResultFields().Assign(text.resultFields);
    AddRows(query, std::move(text.rows));
    query.loadWarnings = std::move(text.warnings);
}

std::vector<TFilterRow*> InsertRowsFromText(TFilterBracket& parent, int index,
                                            std::string_view text) {
    TKQuery& query = *parent.Query();
    query.RequireStruct();
    query.RequireChangeable();
    if (index < 0 || index > parent.GetRowCount())
        throw std::out_of_range("row index out of range");
    const TKIniText sections(WithoutByteOrderMark(text));
    std::vector<TRowText> rows = AsQueryError([&] {
        const TKIniSection* main = sections.Find("Main");
        if (!main) RaiseSectionNotFound("Main");
        return ParseRows(sections, ParseVersion(*main), query);
    });
    TKQuery::THeldEvents events(query);
    std::vector<TFilterRow*> topmost;
    {
        const TKQueryUpdate update(query);
        const TBuilderStateScope loading(query, TKBuilderState::stLoading);
        topmost = InsertRows(parent, index, std::move(rows));
    }
    events.Send();
    return topmost;
}

void TKQuery::SetQueryString(std::string_view text) {
    TKQueryTextReader(*this).Read(text);
}

void TKQuery::LoadFromStrings(const TStrings& lines) {
    TKQueryTextReader(*this).Read(JoinStrings(lines, "\n"));
}

void TKQuery::LoadFromFile(const std::string& fileName) {
    RequireStruct();
    const TKDecodedText decoded =
        AsQueryError([&] { return DecodeTextFile(ReadWholeFile(fileName)); });
    TStrings warnings;
    if (decoded.wasWindows1252) warnings.emplace_back(messages::NoUTF8);
    TKQueryTextReader(*this).Read(decoded.text, std::move(warnings));
}

TQueryTextHead ReadQueryTextHead(std::string_view text) {
    const TKIniText sections(WithoutByteOrderMark(text));
    TQueryTextHead head;
    head.hasTitles = HasQueryTitles(sections);
    const TKIniSection* main = sections.Find("Main");
    if (!main) return head;
    head.isQuery = true;
    head.queryName = main->Text("QueryName");
    head.version = XStrToFloat(Trim(main->Raw("Version")), FirstQueryTextVersion);
    head.hasOptions = !Trim(main->Raw("Options")).empty();
    head.hasMainTable = !main->Text("MainTable").empty();
    head.hasAvoidedJoins = !main->Text("AvoidedJoins").empty();
    return head;
}

} // namespace tern7
