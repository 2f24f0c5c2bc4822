// tern structure, tern query, tern titles: texts read and written again.

#include <tern7/core/query/query.h>
#include <tern7/core/titles/default_titles.h>
#include <tern7/core/titles/titles_text.h>

#include "inputs.h"
#include "streams.h"
#include "verbs.h"

namespace tern7 {

namespace {

TStrings DefaultTitles(const std::string& name) {
    if (name == "panel") return DefaultQueryTitles();
    if (name == "fields") return DefaultResultFieldsPanelTitles();
    return SplitLines(ReadText(name));
}

} // namespace

int RunStructure(const TCommandLine& line) {
    TKCustomDBStructure structure;
    LoadStructure(structure, line.Argument(0));
    Print(structure.GetStructString());
    return esDone;
}

int RunQuery(const TCommandLine& line) {
    const TFormatOptions formats(line);
    TKCustomDBStructure structure;
    LoadStructure(structure, line.Argument(0));
    formats.Apply(structure.SQLFormats());
    TKQuery query(&structure);
    LoadQuery(query, line.Argument(1));
    Print(query.GetQueryString());
    return esDone;
}

int RunTitles(const TCommandLine& line) {
    TStrings titles;
    const TStrings defaults = DefaultTitles(line.Argument(0));
    LoadTitlesFromStrings(defaults, titles, SplitLines(ReadText(line.Argument(1))));
    for (const std::string& title : titles)
        PrintLine(title);
    return esDone;
}

} // namespace tern7
