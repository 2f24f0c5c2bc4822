#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

class TKTitleSections;

/// The captions of a component by key: the texts of its title list, else the default ones. Keys and
/// section names ignore case; a lookup takes constant time.
class TKTitles {
public:
    /// Copies the titles; the defaults must outlive it.
    TKTitles(const TStrings& defaults, TStrings titles);
    TKTitles(TKTitles&&) noexcept;
    TKTitles& operator=(TKTitles&&) noexcept;
    ~TKTitles();

    /// The caption of a key in a section; where the titles have none there, the default one. Empty
    /// when both are missing.
    std::string_view Text(std::string_view section, std::string_view key) const;
    /// The same, in whatever section the key stands first.
    std::string_view Text(std::string_view key) const;

private:
    std::unique_ptr<const TStrings> own; // the lookup holds views of it
    std::unique_ptr<const TKTitleSections> texts;
    std::unique_ptr<const TKTitleSections> defaultTexts;
};

/// A caption without the "&" that mark letters: "Add &Bracket" is "Add Bracket", "&&" is "&".
std::string PlainTitle(std::string_view title);

} // namespace tern7
