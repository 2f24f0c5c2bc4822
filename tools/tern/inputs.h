#pragma once

#include <optional>
#include <string>

#include <tern7/core/corekit/strings.h>

#include "command_line.h"

namespace tern7 {

class TKCustomDBStructure;
class TKQuery;
class TSQLFormats;

/// What the options --date, --time, --datetime and --quotes say, in place of the structure file.
class TFormatOptions {
public:
    /// EWrongUsage for quotes that are not two characters.
    explicit TFormatOptions(const TCommandLine& line);
    void Apply(TSQLFormats& formats) const;

private:
    std::optional<std::string> date, time, dateTime, quotes;
};

/// Reads a structure; errors and warnings name the file.
void LoadStructure(TKCustomDBStructure& structure, const std::string& file);
/// Reads a query over the structure that it has; errors and warnings name the file. Afterwards it
/// is saved with captions and options when the text had them.
void LoadQuery(TKQuery& query, const std::string& file);
/// Default captions of panel and editor with the texts of a titles or query file.
TStrings LoadTitles(const std::string& file);

} // namespace tern7
