// The desktop program: asks any database.

#include <cstdlib>

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QTextStream>
#include <QThreadPool>
#include <QTimer>

#include <tern7/core/global/errors.h>
#include <tern7/ui/support/text.h>

#include "data/language.h"
#include "run/background.h"
#include "windows/main_window.h"

namespace {

using namespace tern7;

constexpr int paintTime = 300; // milliseconds until a window stands still
constexpr int shortWait = 300; // for connections to close
constexpr int longestRun = 60'000;

/// An address, or the path of a SQLite file.
TKDatabaseURL DatabaseOf(const QString& text) {
    // what looks like no address is a file, be it that there is none
    const bool isAddress = text.contains(u':') && !QFileInfo::exists(text);
    if (isAddress) return ParseDatabaseURL(FromQt(text));
    TKDatabaseURL url;
    url.database = FromQt(text);
    return url;
}

/// Says what goes wrong, and ends the program.
void FailOn(TMainWindow& window) {
    window.OnTrouble = [](const QString& message) {
        QTextStream(stderr) << message << "\n";
        std::_Exit(1);
    };
}

int Screenshot(TMainWindow& window, const QString& file) {
    const auto grab = [&window, file] {
        const bool saved = window.grab().save(file);
        if (!saved) QTextStream(stderr) << "The picture can not be written: " << file << "\n";
        QCoreApplication::exit(saved ? 0 : 1);
    };
    const auto later = [&window, grab] { QTimer::singleShot(paintTime, &window, grab); };
    QObject::connect(&window, &TMainWindow::runEnded, &window, later);
    QTimer::singleShot(longestRun, &window,
                       [&window] { window.OnTrouble(QStringLiteral("The query takes too long")); });
    window.RunQuery();
    if (!window.IsRunning()) later();
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("tern7"));
    QCoreApplication::setApplicationName(QStringLiteral("tern7"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TERN7_VERSION));

    InstallLanguage(SystemLanguage()); // for the help

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QApplication::translate("main", "Questions to a database without SQL."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption database(
        QStringLiteral("database"),
        QApplication::translate("main", "Opens a database: a SQLite file, or an address such as "
                                        "postgresql://user@host/name."),
        QStringLiteral("URL"));
    const QCommandLineOption structure(
        QStringLiteral("structure"),
        QApplication::translate("main", "Loads the structure instead of importing it."),
        QStringLiteral("FILE"));
    const QCommandLineOption query(QStringLiteral("query"),
                                   QApplication::translate("main", "Opens a saved query."),
                                   QStringLiteral("FILE"));
    const QCommandLineOption screenshot(
        QStringLiteral("screenshot"),
        QApplication::translate("main", "Runs the query, saves a picture of the window and ends."),
        QStringLiteral("FILE"));
    const QCommandLineOption language(QStringLiteral("language"),
                                      QApplication::translate("main", "Language of the program."),
                                      QStringLiteral("CODE"));
    const QCommandLineOption look(QStringLiteral("look"),
                                  QApplication::translate("main", "\"light\" or \"dark\"."),
                                  QStringLiteral("LOOK"));
    const QCommandLineOption size(QStringLiteral("size"),
                                  QApplication::translate("main", "Size of the window."),
                                  QStringLiteral("WIDTHxHEIGHT"));
    parser.addOptions({database, structure, query, screenshot, language, look, size});
    parser.process(application);

    // A picture shows the program as it is at first, whatever somebody has set.
    if (parser.isSet(screenshot)) QStandardPaths::setTestModeEnabled(true);
    if (parser.isSet(screenshot)) QSettings().clear();

    int result = 1;
    {
        TMainWindow window;
        if (parser.isSet(language)) window.SetLanguage(parser.value(language));
        if (parser.isSet(look))
            window.SetLook(parser.value(look) == QLatin1String("dark") ? TMainWindow::TLook::Dark
                                                                       : TMainWindow::TLook::Light);
        const QStringList sides = parser.value(size).split(u'x');
        if (sides.size() == 2) window.resize(sides[0].toInt(), sides[1].toInt());
        window.show();
        if (parser.isSet(screenshot)) FailOn(window);
        try {
            if (parser.isSet(database))
                window.OpenDatabase(DatabaseOf(parser.value(database)), parser.value(structure));
            else
                parser.isSet(screenshot) ? window.OpenSample() : window.OpenLast();
        } catch (const std::exception& error) {
            QTextStream(stderr) << ToQt(error.what()) << "\n";
            return 2;
        }
        if (parser.isSet(query)) window.OpenQuery(parser.value(query));
        result = parser.isSet(screenshot) ? Screenshot(window, parser.value(screenshot))
                                          : QApplication::exec();
    }
    // Statements that were given up, and lists, still wait for their servers; nobody waits for
    // them.
    if (!WaitForBackground(shortWait) || QThreadPool::globalInstance()->activeThreadCount() > 0)
        std::_Exit(result);
    return result;
}
