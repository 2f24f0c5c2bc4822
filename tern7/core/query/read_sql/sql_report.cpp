#include <tern7/core/query/read_sql/sql_report.h>

#include <algorithm>

#include <tern7/core/query/row_text.h>

namespace tern7 {

std::string_view SQLReportKindToStr(TSQLReportKind kind) {
    switch (kind) {
    case TSQLReportKind::rkRecognised:
        return "recognised";
    case TSQLReportKind::rkKeptAsText:
        return "kept as text";
    case TSQLReportKind::rkDropped:
        return "dropped";
    }
    return {};
}

bool TSQLReport::Has(TSQLReportKind kind) const {
    return std::any_of(entries.begin(), entries.end(),
                       [kind](const TSQLReportEntry& entry) { return entry.kind == kind; });
}

void TSQLReport::Add(TSQLReportKind kind, std::string_view what, std::string_view text,
                     size_t offset, std::string_view reason) {
    entries.push_back(
        {kind, std::string(what), std::string(text), std::string(reason), offset, {}});
}

void TSQLReport::Append(TSQLReport part, size_t offset) {
    for (TSQLReportEntry& entry : part.entries) {
        entry.offset += offset;
        entries.push_back(std::move(entry));
    }
}

void TSQLReport::Place(const TKSourceText& source) {
    std::stable_sort(
        entries.begin(), entries.end(),
        [](const TSQLReportEntry& a, const TSQLReportEntry& b) { return a.offset < b.offset; });
    TKPositionWalk walk(source);
    for (TSQLReportEntry& entry : entries)
        entry.position = walk.At(entry.offset);
}

std::string SQLReportLine(const TSQLReportEntry& entry) {
    std::string line = std::to_string(entry.position.line) + ":" +
                       std::to_string(entry.position.column) + ": " +
                       std::string(SQLReportKindToStr(entry.kind)) + ": " + entry.what + ": " +
                       OneLine(entry.text);
    if (!entry.reason.empty()) line += " (" + entry.reason + ")";
    return line;
}

} // namespace tern7
