#include <tern7/core/query/query_titles.h>

#include <algorithm>

#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/titles/default_titles.h>
#include <tern7/core/titles/titles_text.h>

namespace tern7 {

namespace {

constexpr double firstVersionWithSections = 2.2;

bool HoldsTitles(const TKIniSection& section) {
    for (std::string_view name : {QueryPanelTitles, ResultFieldsEditorTitles,
                                  std::string_view("PanelTitles"), std::string_view("RFETitles")})
        if (SameText(section.Name(), name)) return true;
    return false;
}

std::optional<TStrings> ParseOldTitles(const TKIniText& text, const TStrings& present) {
    const TKIniSection* section = text.Find("Titles");
    const TStrings values = section ? section->Lines() : TStrings();
    if (values.empty()) return std::nullopt;
    TStrings titles = present.empty() ? DefaultQueryTitles() : present;
    LoadOldTitlesFromStrings(titles, values);
    return titles;
}

} // namespace

bool HasQueryTitles(const TKIniText& text) {
    return text.Find("Titles") ||
           std::any_of(text.Sections().begin(), text.Sections().end(), HoldsTitles);
}

std::optional<TStrings> ParseQueryTitles(const TKIniText& text, double stored,
                                         const TStrings& present) {
    if (stored < firstVersionWithSections) return ParseOldTitles(text, present);
    TStrings source;
    for (const TKIniSection& section : text.Sections()) {
        if (!HoldsTitles(section)) continue;
        source.push_back("[" + std::string(section.Name()) + "]");
        for (std::string& line : section.Lines())
            source.push_back(std::move(line));
    }
    if (source.empty()) return std::nullopt;
    TStrings titles;
    LoadTitlesFromStrings(DefaultQueryTitles(), titles, source);
    return titles;
}

} // namespace tern7
