// Titles: whatever text is merged over the default captions, or over a list made of the first half
// of the text, keys and sections are those of the defaults, and a second merge changes nothing.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/titles/default_titles.h>
#include <tern7/core/titles/titles.h>
#include <tern7/core/titles/titles_text.h>

using namespace tern7;

namespace {

void Require(bool condition) {
    if (!condition) std::abort();
}

void CheckMerge(const TStrings& defaults, const TStrings& source) {
    TStrings merged;
    LoadTitlesFromStrings(defaults, merged, source);
    TStrings again;
    LoadTitlesFromStrings(merged, again, source);
    Require(again == merged);
    TStrings old = merged;
    LoadOldTitlesFromStrings(old, source);
    Require(old.size() == merged.size());
    for (size_t i = 0; i < old.size(); ++i)
        Require(LineName(old[i]) == LineName(merged[i]));
    const TKTitles titles(defaults, merged);
    for (const std::string& line : merged)
        PlainTitle(titles.Text(LineName(line)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const TStrings source = SplitLines(DecodeTextFile(std::string(text)).text);
    for (const TStrings* defaults : {&DefaultQueryTitles(), &DefaultResultFieldsPanelTitles()}) {
        CheckMerge(*defaults, source);
        TStrings merged;
        LoadTitlesFromStrings(*defaults, merged, source);
        Require(merged.size() == defaults->size());
        TStrings again;
        LoadTitlesFromStrings(*defaults, again, merged);
        Require(again == merged);
    }
    const auto half = static_cast<std::ptrdiff_t>(source.size() / 2);
    CheckMerge(TStrings(source.begin(), source.begin() + half),
               TStrings(source.begin() + half, source.end()));
    return 0;
}
