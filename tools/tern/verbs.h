#pragma once

#include <span>
#include <string_view>

#include "command_line.h"

namespace tern7 {

/// Exit statuses of the tool.
enum TExitStatus : int { esDone = 0, esRefused = 1, esWrongUsage = 2 };

/// What the tool can do. A verb's call prints its result and returns the exit status; what it
/// raises is told and means refused, or wrong usage.
struct TVerb {
    std::string_view name;
    std::string_view usage; ///< what stands behind the name
    std::string_view help;
    int (*run)(const TCommandLine& line);
    int leastArguments = 1;
    int mostArguments = 1; ///< below 0: any number
    std::span<const TOption> options = {};
    bool takesFormats = false; ///< --date, --time, --datetime and --quotes
};

std::span<const TVerb> Verbs();

int RunImport(const TCommandLine& line);
int RunSql(const TCommandLine& line);
int RunRun(const TCommandLine& line);
int RunParse(const TCommandLine& line);
int RunLoad(const TCommandLine& line);
int RunPath(const TCommandLine& line);
int RunStructure(const TCommandLine& line);
int RunQuery(const TCommandLine& line);
int RunDescribe(const TCommandLine& line);
int RunCheck(const TCommandLine& line);
int RunTitles(const TCommandLine& line);

} // namespace tern7
