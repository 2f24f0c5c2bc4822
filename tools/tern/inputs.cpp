#include "inputs.h"

#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_text.h>
#include <tern7/core/titles/default_titles.h>
#include <tern7/core/titles/titles_text.h>

#include "streams.h"

namespace tern7 {

namespace {

/// What the call raises gets the name of the file in front.
template <class Call>
void NamingFile(const std::string& file, Call call) {
    try {
        call();
    } catch (const EKTernError& error) {
        throw EKTernError(FileTitle(file) + ": " + error.what());
    }
}

void PassOn(const std::string& file, const TStrings& warnings) {
    for (const std::string& warning : warnings)
        Complain(FileTitle(file) + ": " + warning);
}

} // namespace

TFormatOptions::TFormatOptions(const TCommandLine& line)
    : date(line.Value("--date")), time(line.Value("--time")), dateTime(line.Value("--datetime")),
      quotes(line.Value("--quotes")) {
    if (quotes && quotes->size() != 2)
        throw EWrongUsage("--quotes takes the opening and the closing sign, such as []");
}

void TFormatOptions::Apply(TSQLFormats& formats) const {
    if (date) formats.SetDate(*date);
    if (time) formats.SetTime(*time);
    if (dateTime) formats.SetDateTime(*dateTime);
    if (!quotes) return;
    formats.SetQuoteSymbol1((*quotes)[0]);
    formats.SetQuoteSymbol2((*quotes)[1]);
}

void LoadStructure(TKCustomDBStructure& structure, const std::string& file) {
    const std::string text = ReadBytes(file);
    NamingFile(file, [&] { structure.SetStructString(text); });
    PassOn(file, structure.LoadWarnings());
}

void LoadQuery(TKQuery& query, const std::string& file) {
    const std::string text = ReadText(file);
    const TQueryTextHead head = ReadQueryTextHead(text);
    // the version that a query has tells its reader in which form captions are looked for
    if (TKIniText(text).Find("Titles")) query.SetFormatVersion(head.version);
    query.SaveTitles = head.hasTitles;
    query.SaveSQLOptions = head.hasOptions;
    query.SaveMainTable = true;
    NamingFile(file, [&] { query.SetQueryString(text); });
    PassOn(file, query.LoadWarnings());
}

TStrings LoadTitles(const std::string& file) {
    TStrings titles;
    LoadTitlesFromStrings(DefaultQueryTitles(), titles, SplitLines(ReadText(file)));
    return titles;
}

} // namespace tern7
