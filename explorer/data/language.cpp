#include "language.h"

#include <algorithm>

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QRegularExpression>
#include <QTranslator>

#include <tern7/ui/support/language_titles.h>
#include <tern7/ui/support/translations.h>

#ifdef TERN7_WITH_TRANSLATIONS
// Resources of a static library must be asked for, outside of any namespace.
static void InitProgramTranslations() {
    Q_INIT_RESOURCE(tern7_explorer_translations);
}
#else
static void InitProgramTranslations() {}
#endif

namespace tern7 {

namespace {

/// Puts a file of texts in the place of the one before.
void Replace(QPointer<QTranslator>& installed, const QString& file, const QString& folder) {
    delete installed;
    installed = new QTranslator(QCoreApplication::instance());
    if (!installed->load(file, folder) || !QCoreApplication::installTranslator(installed))
        delete installed;
}

} // namespace

QString SystemLanguage() {
    const auto& known = TitleLanguages();
    for (const QString& name : QLocale::system().uiLanguages()) {
        QString code = name.section(u'-', 0, 0);
        if (std::any_of(known.begin(), known.end(), [&](auto& each) { return each.code == code; }))
            return code;
    }
    return known.front().code;
}

namespace {

/// The forms of dates and numbers: the system's where it speaks the language.
QLocale LocaleOf(const QString& code) {
    const QLocale ofLanguage(code);
    if (code == SystemLanguage() || QLocale::system().language() == ofLanguage.language())
        return QLocale::system();
    // with the digits that databases write
    if (ofLanguage.language() == QLocale::Arabic)
        return {QLocale::Arabic, QLocale::UnitedArabEmirates};
    return ofLanguage;
}

} // namespace

void InstallLanguage(const QString& code) {
    static QPointer<QTranslator> qt, program; // go with the application object
    InitProgramTranslations();
    Replace(qt, QStringLiteral("qtbase_") + code,
            QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    InstallTranslations(code);
    Replace(program, QStringLiteral("explorer_") + code, QStringLiteral(":/tern7/translations"));
    QLocale::setDefault(LocaleOf(code));
    QApplication::setLayoutDirection(QLocale(code).textDirection());
}

QString PlainText(QString menuText) {
    static const QRegularExpression key(QStringLiteral("\\(&.\\)"));
    static const QRegularExpression points(QStringLiteral(" ?\\.\\.\\.$"));
    return menuText.remove(key).remove(u'&').remove(points);
}

} // namespace tern7
