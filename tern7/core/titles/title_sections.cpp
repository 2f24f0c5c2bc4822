#include <tern7/core/titles/title_sections.h>

#include <tern7/core/titles/default_titles.h>

namespace tern7 {

bool IsTitleSection(std::string_view line, std::string_view& name) {
    line = TrimRight(line);
    if (line.size() < 2 || line.front() != '[' || line.back() != ']') return false;
    name = line.substr(1, line.size() - 2);
    if (SameText(name, "PanelTitles")) name = QueryPanelTitles;
    if (SameText(name, "RFETitles")) name = ResultFieldsEditorTitles;
    return true;
}

TKTitleSections::TKTitleSections(const TStrings& titles) {
    TTexts* current = nullptr;
    std::string_view name;
    for (const std::string& line : titles) {
        if (IsTitleSection(line, name)) {
            const bool isNew = byName.emplace(name, sections.size()).second;
            current = isNew ? &sections.emplace_back() : nullptr;
        } else if (const std::string_view key = LineName(line); !key.empty()) {
            all.emplace(key, LineValue(line));
            if (current) current->emplace(key, LineValue(line));
        }
    }
}

std::string_view TKTitleSections::Text(std::string_view section, std::string_view key) const {
    const auto found = byName.find(section);
    return found == byName.end() ? std::string_view() : Find(sections[found->second], key);
}

std::string_view TKTitleSections::Find(const TTexts& texts, std::string_view key) {
    const auto found = texts.find(key);
    return found == texts.end() ? std::string_view() : found->second;
}

} // namespace tern7
