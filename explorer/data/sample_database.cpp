#include "sample_database.h"

#include <memory>

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <sqlite3.h>

#include <tern7/core/global/errors.h>
#include <tern7/ui/support/text.h>

/// The resources of a static library are known only after this, which has to stand outside of
/// namespaces.
static void InitSampleResource() {
    Q_INIT_RESOURCE(sample);
}

namespace tern7 {

namespace {

QByteArray Resource(const char* name) {
    InitSampleResource();
    QFile file(QLatin1String(":/sample/") + QLatin1String(name));
    if (!file.open(QIODevice::ReadOnly))
        throw EKDBInfoError(std::string("The program lacks its part ") + name);
    return file.readAll();
}

struct TCloser {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
};

void Make(const QString& path) {
    sqlite3* opened = nullptr;
    const int result = sqlite3_open(path.toUtf8().constData(), &opened);
    const std::unique_ptr<sqlite3, TCloser> database(opened);
    const auto check = [&](int code) {
        if (code != SQLITE_OK)
            throw EKDBInfoError(std::string("The sample database can not be made: ") +
                                sqlite3_errmsg(opened));
    };
    check(result);
    const auto run = [&](const QByteArray& sql) {
        check(sqlite3_exec(opened, sql.constData(), nullptr, nullptr, nullptr));
    };
    run("PRAGMA journal_mode = off; BEGIN");
    run(Resource("schema.sql"));
    run(Resource("data.sql"));
    run("COMMIT");
}

} // namespace

QString SampleDatabase() {
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    QString path = folder.filePath(QStringLiteral("sample.db"));
    if (QFile::exists(path)) return path;
    if (!folder.mkpath(QStringLiteral(".")))
        throw EKDBInfoError("The folder can not be made: " + FromQt(folder.path()));
    // Made aside, so that nobody opens half of it.
    const QString partial = path + QStringLiteral(".new");
    QFile::remove(partial);
    Make(partial);
    if (!QFile::rename(partial, path))
        throw EKDBInfoError("The sample database can not be written: " + FromQt(path));
    return path;
}

} // namespace tern7
