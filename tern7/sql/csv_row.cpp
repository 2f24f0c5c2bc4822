#include <tern7/sql/csv_row.h>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

void AppendCsvField(std::string& line, std::string_view text) {
    if (text.empty() || text.find_first_of(",\"\r\n") != std::string_view::npos)
        line += QuotedString(text, '"');
    else
        line += text;
}

std::string CsvRow(const std::vector<TBoundValue>& cells) {
    std::string line;
    for (const TBoundValue& cell : cells) {
        if (&cell != &cells.front()) line += ',';
        if (cell.kind != TBoundValue::TKind::Null) AppendCsvField(line, cell.text);
    }
    return line + "\r\n";
}

std::string CsvRow(const std::vector<std::string>& names) {
    std::string line;
    for (const std::string& name : names) {
        if (&name != &names.front()) line += ',';
        AppendCsvField(line, name);
    }
    return line + "\r\n";
}

} // namespace tern7
