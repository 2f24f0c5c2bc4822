#include <tern7/ui/support/translations.h>

#include <QCoreApplication>
#include <QPointer>
#include <QTranslator>

#ifdef TERN7_WITH_TRANSLATIONS
// Resources of a static library must be asked for, outside of any namespace.
static void InitTranslationResources() {
    Q_INIT_RESOURCE(tern7_ui_translations);
}
#else
static void InitTranslationResources() {}
#endif

namespace tern7 {

bool InstallTranslations(const QString& code) {
    static QPointer<QTranslator> installed; // goes with the application object
    InitTranslationResources();
    delete installed;
    installed = new QTranslator(QCoreApplication::instance());
    if (installed->load(QStringLiteral(":/tern7/translations/ui_%1.qm").arg(code)) &&
        QCoreApplication::installTranslator(installed))
        return true;
    delete installed;
    return false;
}

} // namespace tern7
