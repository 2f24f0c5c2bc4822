#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

/// The texts of a title list by section and key, ignoring case: views into the list, which must
/// outlive it. Of equal keys in a section, and of equal sections, the first counts.
class TKTitleSections {
public:
    explicit TKTitleSections(const TStrings& titles);

    bool IsFlat() const { return byName.empty(); }
    /// Empty when the key has no text in the section.
    std::string_view Text(std::string_view section, std::string_view key) const;
    /// The first text of the key, whatever its section.
    std::string_view Text(std::string_view key) const { return Find(all, key); }

private:
    using TTexts = std::unordered_map<std::string_view, std::string_view, TTextHash, TTextEqual>;

    TTexts all;
    std::vector<TTexts> sections;
    std::unordered_map<std::string_view, size_t, TTextHash, TTextEqual> byName;

    static std::string_view Find(const TTexts& texts, std::string_view key);
};

/// The name of a section line, older names as the present ones; false for every other line.
bool IsTitleSection(std::string_view line, std::string_view& name);

} // namespace tern7
