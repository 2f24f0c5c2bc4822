#include <tern7/core/titles/titles.h>

#include <tern7/core/titles/title_sections.h>

namespace tern7 {

TKTitles::TKTitles(const TStrings& defaults, TStrings titles)
    : own(std::make_unique<const TStrings>(std::move(titles))),
      texts(std::make_unique<const TKTitleSections>(*own)),
      defaultTexts(std::make_unique<const TKTitleSections>(defaults)) {}

TKTitles::TKTitles(TKTitles&&) noexcept = default;
TKTitles& TKTitles::operator=(TKTitles&&) noexcept = default;
TKTitles::~TKTitles() = default;

std::string_view TKTitles::Text(std::string_view section, std::string_view key) const {
    const std::string_view text = texts->Text(section, key);
    return text.empty() ? defaultTexts->Text(section, key) : text;
}

std::string_view TKTitles::Text(std::string_view key) const {
    const std::string_view text = texts->Text(key);
    return text.empty() ? defaultTexts->Text(key) : text;
}

std::string PlainTitle(std::string_view title) {
    std::string result;
    for (size_t i = 0; i < title.size(); ++i) {
        if (title[i] == '&' && ++i == title.size()) break;
        result += title[i];
    }
    return result;
}

} // namespace tern7
