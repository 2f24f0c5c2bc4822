#pragma once

#include <QString>

namespace tern7 {

/// The language of the system where the program speaks it, else English.
QString SystemLanguage();

/// The whole program speaks a language of TitleLanguages from now on: its own texts, the library's
/// and Qt's, dates and numbers in its forms (QLocale's default). Mirrors the windows for a language that is read from the right.
void InstallLanguage(const QString& code);

/// A text of a menu as it stands elsewhere: without the mark of its key, which some languages have
/// in brackets behind it, and the points at the end.
QString PlainText(QString menuText);

} // namespace tern7
