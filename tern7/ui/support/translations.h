#pragma once

#include <QString>

namespace tern7 {

/// Shows this library's own texts (names of steps, search fields, what a screen reader says, ...) in
/// a language of TitleLanguages, in place of the one before. Open widgets follow at once. The
/// captions of the panels are not among them: see LanguageTitles. Needs the application object.
///
/// False when there is nothing in this language, or the library was built without translations: the
/// texts are English then.
bool InstallTranslations(const QString& code);

} // namespace tern7
