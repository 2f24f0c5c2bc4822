// tern describe, tern check: what a query says, and whether its structure still knows it all.

#include <tern7/core/query/query.h>
#include <tern7/core/query/row_text.h>

#include "inputs.h"
#include "row_report.h"
#include "streams.h"
#include "verbs.h"

namespace tern7 {

int RunDescribe(const TCommandLine& line) {
    TKCustomDBStructure structure;
    LoadStructure(structure, line.Argument(0));
    TKQuery query(&structure);
    LoadQuery(query, line.Argument(1));
    if (const auto titles = line.Value("--titles")) query.Titles = LoadTitles(*titles);
    TellLeftOutRows(query);
    for (const std::string& sentence : DescribeQuery(query, query.Titles))
        PrintLine(sentence);
    return esDone;
}

int RunCheck(const TCommandLine& line) {
    TKCustomDBStructure structure;
    LoadStructure(structure, line.Argument(0));
    bool allKnown = true;
    for (size_t i = 1; i < line.Arguments().size(); ++i) {
        const std::string& file = line.Argument(i);
        try {
            TKQuery query(&structure);
            LoadQuery(query, file);
            for (const std::string& part : UnknownParts(query)) {
                PrintLine(FileTitle(file) + ": " + part);
                allKnown = false;
            }
        } catch (const EKTernError& error) {
            Complain(error.what()); // the other files can still be checked
            allKnown = false;
        }
    }
    return allKnown ? esDone : esRefused;
}

} // namespace tern7
