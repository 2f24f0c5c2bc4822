#include <tern7/core/titles/titles_text.h>

#include <tern7/core/corekit/files.h>
#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/titles/title_sections.h>

namespace tern7 {

namespace {

/// The line with another text, unless that is empty.
std::string WithText(std::string_view line, std::string_view text) {
    const std::string_view key = LineName(line);
    if (text.empty() || key.empty()) return std::string(line);
    return std::string(key).append("=").append(text);
}

TStrings MergeFlat(const TStrings& defaults, const TKTitleSections& texts) {
    TStrings result;
    for (const std::string& line : defaults)
        result.push_back(WithText(line, texts.Text(LineName(line))));
    return result;
}

/// Lines before the first section, and empty ones, are no titles.
TStrings MergeSections(const TStrings& defaults, const TKTitleSections& texts) {
    TStrings result;
    std::string_view section, name;
    bool inSection = false;
    for (const std::string& line : defaults) {
        if (IsTitleSection(line, name)) {
            if (inSection) result.emplace_back();
            inSection = true;
            section = name;
            result.push_back("[" + std::string(section) + "]");
        } else if (inSection && !line.empty()) {
            result.push_back(WithText(line, texts.Text(section, LineName(line))));
        }
    }
    result.emplace_back();
    return result;
}

/// Whether the texts have one for a key of the defaults.
bool HoldsTitles(const TStrings& defaults, const TKTitleSections& texts) {
    const bool isFlat = TKTitleSections(defaults).IsFlat();
    std::string_view section;
    for (const std::string& line : defaults) {
        if (IsTitleSection(line, section)) continue;
        const std::string_view key = LineName(line);
        if (!(isFlat ? texts.Text(key) : texts.Text(section, key)).empty()) return true;
    }
    return false;
}

} // namespace

void LoadTitlesFromStrings(const TStrings& defaults, TStrings& dest, const TStrings& source) {
    const TKTitleSections texts(source);
    const bool isFlat = TKTitleSections(defaults).IsFlat();
    dest = isFlat ? MergeFlat(defaults, texts) : MergeSections(defaults, texts);
}

void LoadOldTitlesFromStrings(TStrings& titles, const TStrings& values) {
    titles = MergeFlat(titles, TKTitleSections(values));
}

TKLoadedTitles LoadTitlesFile(const TStrings& defaults, const std::string& fileName) {
    const TKDecodedText file = DecodeTextFile(ReadWholeFile(fileName));
    TKLoadedTitles result;
    result.wasWindows1252 = file.wasWindows1252;
    const TStrings lines = SplitLines(file.text);
    result.isForeign = !Trim(file.text).empty() && !HoldsTitles(defaults, TKTitleSections(lines));
    LoadTitlesFromStrings(defaults, result.titles, lines);
    return result;
}

void SaveTitlesFile(const TStrings& titles, const std::string& fileName) {
    std::string text;
    for (const std::string& line : titles)
        text.append(line).append("\n");
    WriteWholeFile(fileName, text);
}

} // namespace tern7
