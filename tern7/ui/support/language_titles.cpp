#include <tern7/ui/support/language_titles.h>

#include <algorithm>

#include <QFile>

#include <tern7/core/titles/title_sections.h>

// Resources of a static library must be asked for, outside of any namespace.
static void InitTitleResources() {
    Q_INIT_RESOURCE(tern7_titles);
}

namespace tern7 {

namespace {

/// A titles file in two: the lines before its first section and those from there on.
struct TTitlesInTwo {
    TStrings flat, sections;
};

TTitlesInTwo ReadLanguage(const QString& code) {
    const auto& known = TitleLanguages();
    if (std::none_of(known.begin(), known.end(), [&](auto& each) { return each.code == code; }))
        return {};
    InitTitleResources();
    QFile file(QStringLiteral(":/tern7/titles/%1.ttl").arg(code));
    if (!file.open(QIODevice::ReadOnly)) return {};
    TTitlesInTwo titles;
    titles.flat = SplitLines(file.readAll().toStdString());
    std::string_view name;
    const auto section =
        std::find_if(titles.flat.begin(), titles.flat.end(),
                     [&name](const std::string& line) { return IsTitleSection(line, name); });
    titles.sections.assign(section, titles.flat.end());
    titles.flat.erase(section, titles.flat.end());
    while (!titles.flat.empty() && titles.flat.back().empty())
        titles.flat.pop_back();
    return titles;
}

} // namespace

const std::vector<TTitleLanguage>& TitleLanguages() {
    static const std::vector<TTitleLanguage> languages = {
        {QStringLiteral("en"), QStringLiteral("English")},
        {QStringLiteral("de"), QStringLiteral("Deutsch")},
        {QStringLiteral("es"), QStringLiteral("Español")},
        {QStringLiteral("fr"), QStringLiteral("Français")},
        {QStringLiteral("ru"), QStringLiteral("Русский")},
        {QStringLiteral("ar"), QStringLiteral("العربية")},
        {QStringLiteral("ja"), QStringLiteral("日本語")},
    };
    return languages;
}

TStrings LanguageTitles(const QString& code) {
    return ReadLanguage(code).sections;
}

TStrings LanguageResultFieldsPanelTitles(const QString& code) {
    return ReadLanguage(code).flat;
}

} // namespace tern7
