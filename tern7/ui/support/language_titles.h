#pragma once

#include <vector>

#include <QString>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

/// A language that the titles are there in.
struct TTitleLanguage {
    QString code; ///< ISO 639-1, as QLocale::languageToCode gives it
    QString name; ///< in the language itself
};
/// English, the language of the defaults, is the first.
const std::vector<TTitleLanguage>& TitleLanguages();

/// The titles of the query panel and of the result fields editor in a language, with sections.
/// Empty, which means the defaults, for English and for a language that is not there.
TStrings LanguageTitles(const QString& code);
/// The same of the result fields panel, without sections.
TStrings LanguageResultFieldsPanelTitles(const QString& code);

} // namespace tern7
