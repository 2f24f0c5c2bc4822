// Databases and their structures: opening, the recent ones, structure files.

#include "main_window.h"

#include <utility>

#include <QApplication>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QProgressDialog>

#include <tern7/core/global/errors.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/support/bidi_text.h>
#include <tern7/ui/support/text.h>

#include "../data/error_text.h"
#include "../data/sample_database.h"
#include "connection_dialog.h"
#include "menu_text.h"
#include "result_view.h"

namespace tern7 {

namespace {

/// The busy cursor while it lives.
class TBusy {
public:
    TBusy() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~TBusy() { QApplication::restoreOverrideCursor(); }
    TBusy(const TBusy&) = delete;
    TBusy& operator=(const TBusy&) = delete;
};

constexpr int shortWait = 150; // milliseconds that nobody takes for a standstill

QString StructureFilter() {
    return TMainWindow::tr("Structures (*.str);;All files (*)");
}

} // namespace

bool TMainWindow::OpenDatabase(const TKDatabaseURL& address, const QString& structureFile) {
    if (opener) return false; // one at a time
    TKDatabaseURL url = address;
    // to be found again from any folder
    if (const QFileInfo file(ToQt(url.database));
        url.driver == TKDatabaseURL::TDriver::SQLite && file.exists())
        url.database = FromQt(file.absoluteFilePath());
    const QString structure =
        structureFile.isEmpty() ? KnownStructure(url) : QFileInfo(structureFile).absoluteFilePath();
    std::unique_ptr<TDatabaseSession> opened;
    try {
        TDatabaseOpener running(url, FromQt(structure));
        if (!WaitForDatabase(running)) return false;
        opened = std::make_unique<TDatabaseSession>(url, running.Take(), FromQt(structure));
    } catch (const std::exception& error) {
        if (OnTrouble)
            OnTrouble(ErrorText(error));
        else
            AskForDatabase(&url, ErrorText(error));
        return false;
    }
    results->Clear();
    conditions->SetDbStruct(&opened->Structure());
    session = std::move(opened); // the old structure goes when nobody looks at it any more
    runner.SetDatabase(url);
    if (const std::string known = url.Address(); !known.empty())
        recentDatabases.Add(ToQt(known),
                            structure.isEmpty() ? recentDatabases.NoteOf(ToQt(known)) : structure);
    NewQuery();
    if (!queryToOpen.isEmpty()) LoadQuery(std::exchange(queryToOpen, {}));
    return true;
}

void TMainWindow::OpenQuery(const QString& file) {
    if (session)
        LoadQuery(file);
    else
        queryToOpen = file;
}

bool TMainWindow::OpenLast() {
    const QStringList known = recentDatabases.Entries();
    if (known.isEmpty()) return OpenSample();
    OpenRecentDatabase(known.front());
    return HasDatabase();
}

/// The file of the structure that a database was used with last; none when it was imported.
QString TMainWindow::KnownStructure(const TKDatabaseURL& url) {
    const QString file = recentDatabases.NoteOf(ToQt(url.Address()));
    return !file.isEmpty() && CanReadStructure(file) ? file : QString();
}

/// Loads the structure of the present database from a file; imports it anew without one.
void TMainWindow::UseStructure(const QString& file) {
    if (!session || !MayDiscard()) return;
    if (!file.isEmpty() && !CanReadStructure(file)) return;
    if (file.isEmpty()) recentDatabases.Add(ToQt(session->Url().Address())); // without a structure
    OpenDatabase(session->Url(), file);
}

/// What is wrong with the file is said here: it has nothing to do with the database.
bool TMainWindow::CanReadStructure(const QString& file) {
    try {
        TKCustomDBStructure().LoadFromFile(FromQt(file));
        return true;
    } catch (const std::exception& error) {
        Warn(tr("Open structure"),
             tr("The structure %1 could not be opened: %2").arg(Isolated(file), FileReason(error)));
        return false;
    }
}

void TMainWindow::AskForStructure() {
    if (!session) return;
    const QString file = QFileDialog::getOpenFileName(
        this, tr("Open structure"), ToQt(session->StructureFile()), StructureFilter());
    if (!file.isEmpty()) UseStructure(file);
}

void TMainWindow::SaveStructure() {
    if (!session) return;
    QFileDialog dialog(this, tr("Save structure"), ToQt(session->StructureFile()),
                       StructureFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("str"));
    if (dialog.exec() != QDialog::Accepted) return;
    const QString file = dialog.selectedFiles().front();
    try {
        session->SaveStructure(FromQt(file));
    } catch (const std::exception& error) {
        Warn(tr("Save structure"), tr("The structure could not be saved as %1: %2")
                                       .arg(Isolated(file), FileReason(error)));
        return;
    }
    if (const std::string known = session->Url().Address(); !known.empty())
        recentDatabases.Add(ToQt(known), file);
}

/// Waits with a dialog that can be cancelled. False when it was.
bool TMainWindow::WaitForDatabase(TDatabaseOpener& running) {
    {
        const TBusy busy;
        if (running.WaitFor(shortWait)) return true;
    }
    opener = &running;
    QProgressDialog progress(this);
    progress.setWindowTitle(tr("Open database"));
    progress.setWindowModality(Qt::ApplicationModal);
    progress.setMinimumDuration(0);
    progress.setAutoReset(false);
    progress.setRange(0, 0);
    progress.setLabelText(tr("Waiting for the database..."));
    connect(&running, &TDatabaseOpener::tablesRead, &progress, [&progress](int count, int all) {
        progress.setRange(0, all);
        progress.setValue(count);
        progress.setLabelText(tr("Reading table %1 of %2...").arg(count).arg(all));
    });
    QEventLoop loop;
    connect(&running, &TDatabaseOpener::finished, &loop, &QEventLoop::quit);
    connect(&progress, &QProgressDialog::canceled, &loop, &QEventLoop::quit);
    progress.show();
    if (!running.IsFinished()) loop.exec();
    opener = nullptr;
    return running.IsFinished() && !progress.wasCanceled();
}

bool TMainWindow::OpenSample() {
    try {
        TKDatabaseURL url;
        {
            const TBusy busy;
            url.database = FromQt(SampleDatabase());
        }
        return OpenDatabase(url);
    } catch (const std::exception& error) {
        Warn(tr("Sample database"), ErrorText(error));
        return false;
    }
}

void TMainWindow::AskForDatabase(const TKDatabaseURL* preset, const QString& error) {
    auto* dialog = new TConnectionDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    if (preset) dialog->SetUrl(*preset);
    if (!error.isEmpty()) dialog->ShowError(error);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { OpenDatabase(dialog->Url()); });
    dialog->QDialog::open();
}

void TMainWindow::OpenRecentDatabase(const QString& address) {
    try {
        const TKDatabaseURL url = ParseDatabaseURL(FromQt(address));
        // A server may want a password, which is not kept.
        const bool mayAsk = url.driver == TKDatabaseURL::TDriver::PostgreSQL ||
                            url.driver == TKDatabaseURL::TDriver::MySQL;
        if (mayAsk)
            AskForDatabase(&url, {});
        else
            OpenDatabase(url);
    } catch (const std::exception& error) {
        recentDatabases.Remove(address);
        Warn(tr("Open database"), ErrorText(error));
    }
}

void TMainWindow::FillRecentMenus() {
    const auto fill = [this](QMenu& menu, const QStringList& entries,
                             const std::function<void(const QString&)>& open) {
        menu.clear();
        for (const QString& entry : entries) {
            QAction* action = menu.addAction(MenuText(entry));
            connect(action, &QAction::triggered, this, [open, entry] { open(entry); });
        }
        menu.menuAction()->setEnabled(!entries.isEmpty());
    };
    fill(*recentDatabaseMenu, recentDatabases.Entries(), [this](const QString& address) {
        if (MayDiscard()) OpenRecentDatabase(address);
    });
    fill(*recentQueryMenu, recentQueries.Entries(), [this](const QString& file) {
        if (MayDiscard()) LoadQuery(file);
    });
}

} // namespace tern7
