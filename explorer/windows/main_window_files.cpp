#include "main_window.h"

#include <QAction>
#include <QApplication>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QProgressDialog>

#include <tern7/core/global/errors.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/panels/result_fields_panel.h>
#include <tern7/ui/support/bidi_text.h>
#include <tern7/ui/support/text.h>

#include "../data/error_text.h"
#include "../data/sample_database.h"
#include "connection_dialog.h"
#include "message_bar.h"
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

QString QueryFilter() {
    return TMainWindow::tr("Queries (*.qry);;All files (*)");
}

} // namespace

// --- databases

bool TMainWindow::OpenDatabase(const TKDatabaseURL& address, const QString& structureFile) {
    if (opener) return false; // one at a time
    TKDatabaseURL url = address;
    // to be found again from any folder
    if (const QFileInfo file(ToQt(url.database));
        url.driver == TKDatabaseURL::TDriver::SQLite && file.exists())
        url.database = FromQt(file.absoluteFilePath());
    std::unique_ptr<TDatabaseSession> opened;
    try {
        TDatabaseOpener running(url, FromQt(structureFile));
        if (!WaitForDatabase(running)) return false;
        opened = std::make_unique<TDatabaseSession>(url, running.Take());
    } catch (const std::exception& error) {
        AskForDatabase(&url, ErrorText(error));
        return false;
    }
    results->Clear();
    conditions->SetDbStruct(&opened->Structure());
    session = std::move(opened); // the old structure goes when nobody looks at it any more
    runner.SetDatabase(url);
    if (const std::string address = url.Address(); !address.empty())
        recentDatabases.Add(ToQt(address));
    NewQuery();
    return true;
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
        QMessageBox::warning(this, tr("Sample database"), ErrorText(error));
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
    if (!MayDiscard()) return;
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
        QMessageBox::warning(this, tr("Open database"), ErrorText(error));
    }
}

void TMainWindow::FillRecentMenus() {
    const auto fill = [this](QMenu& menu, const QStringList& entries,
                             const std::function<void(const QString&)>& open) {
        menu.clear();
        for (const QString& entry : entries) {
            QString shown = entry;
            QAction* action = menu.addAction(shown.replace(u'&', QStringLiteral("&&")));
            connect(action, &QAction::triggered, this, [open, entry] { open(entry); });
        }
        menu.menuAction()->setEnabled(!entries.isEmpty());
    };
    fill(*recentDatabaseMenu, recentDatabases.Entries(),
         [this](const QString& address) { OpenRecentDatabase(address); });
    fill(*recentQueryMenu, recentQueries.Entries(), [this](const QString& file) {
        if (MayDiscard()) LoadQuery(file);
    });
}

// --- queries

std::string TMainWindow::QueryText() const {
    return session ? conditions->Query().GetQueryString() : std::string();
}

bool TMainWindow::IsModified() const {
    return QueryText() != savedText;
}

void TMainWindow::QueryLoaded(const QString& file) {
    queryFile = file;
    savedText = QueryText();
    conditions->Editor().Stack().clear();
    results->Clear();
    queryMessages->Clear();
    FillRecentMenus();
    UpdateActions();
    UpdateTitle();
    ShowSQL();
}

void TMainWindow::NewQuery() {
    const TStrings titles = conditions->Titles();
    conditions->ClearAll();
    conditions->Description().clear();
    conditions->UserData().clear();
    conditions->SetQueryName({});
    conditions->SetMainTableName({});
    conditions->Query().SetAvoidedJoins({});
    conditions->SetTitles(titles);
    conditions->SetSQLOptions(DefaultSQLOptions);
    conditions->Query().SaveTitles = false;
    conditions->Query().SaveSQLOptions = true;
    conditions->Query().SaveMainTable = true;
    QueryLoaded({});
}

bool TMainWindow::LoadQuery(const QString& file) {
    const TStrings titles = conditions->Titles();
    try {
        conditions->LoadFromFile(file);
    } catch (const std::exception& error) {
        conditions->SetActive(true);
        recentQueries.Remove(file);
        QMessageBox::warning(
            this, tr("Open query"),
            tr("The query %1 could not be opened: %2").arg(Isolated(file), FileReason(error)));
        return false;
    }
    conditions->SetTitles(titles); // the window's language, not that of the file
    conditions->Query().SaveTitles = false;
    conditions->Query().SaveSQLOptions = true;
    conditions->Query().SaveMainTable = true;
    recentQueries.Add(QFileInfo(file).absoluteFilePath());
    QueryLoaded(file);
    TellWarnings();
    TellLostFields();
    if (liveAction->isChecked()) RunWith(false);
    return true;
}

bool TMainWindow::SaveQuery(const QString& file) {
    try {
        conditions->SaveToFile(file);
    } catch (const std::exception& error) {
        QMessageBox::warning(
            this, tr("Save query"),
            tr("The query could not be saved as %1: %2").arg(Isolated(file), FileReason(error)));
        return false;
    }
    queryFile = file;
    savedText = QueryText();
    recentQueries.Add(QFileInfo(file).absoluteFilePath());
    FillRecentMenus();
    UpdateTitle();
    return true;
}

void TMainWindow::AskForQuery() {
    if (!MayDiscard()) return;
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Open query"), queryFile, QueryFilter());
    if (!file.isEmpty()) LoadQuery(file);
}

bool TMainWindow::SaveNow() {
    return queryFile.isEmpty() ? SaveAs() : SaveQuery(queryFile);
}

bool TMainWindow::SaveAs() {
    QFileDialog dialog(this, tr("Save query"), queryFile, QueryFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("qry"));
    return dialog.exec() == QDialog::Accepted && SaveQuery(dialog.selectedFiles().front());
}

/// Asks about changes that are not saved.
bool TMainWindow::MayDiscard() {
    if (!session || !IsModified()) return true;
    const auto answer = QMessageBox::question(
        this, tr("Unsaved changes"), tr("The query was changed. Save the changes?"),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Save) return SaveNow();
    return answer == QMessageBox::Discard;
}

/// By its name: a query, a statement, or else a database.
void TMainWindow::OpenFile(const QString& file) {
    const QString suffix = QFileInfo(file).suffix().toLower();
    if (suffix == QLatin1String("sql")) return ReadSQLFile(file); // which can be undone
    if (!MayDiscard()) return;
    if (suffix == QLatin1String("qry")) {
        LoadQuery(file);
    } else {
        TKDatabaseURL url;
        url.database = FromQt(file);
        OpenDatabase(url);
    }
}

/// What the reading met without failing.
void TMainWindow::TellWarnings() {
    const TStrings& warnings = conditions->Query().LoadWarnings();
    if (warnings.empty()) return;
    queryMessages->Say(TMessageBar::TKind::Note,
                       [warning = ToQt(warnings.front())] { return MessageText(warning); });
}

void TMainWindow::ReadSQLFile(const QString& file) {
    QFile opened(file);
    if (opened.open(QIODevice::ReadOnly))
        ReadSQL(QString::fromUtf8(opened.readAll()));
    else
        QMessageBox::warning(
            this, tr("Read SQL"),
            tr("The file %1 could not be read: %2").arg(Isolated(file), opened.errorString()));
}

/// Rows and columns over fields that the database does not have any more.
void TMainWindow::TellLostFields() {
    int lost = 0;
    for (const TUnfinishedRow& row : conditions->Query().UnfinishedRows())
        lost += row.reason == TUnfinished::UnknownField;
    const TRFieldList& list = columns->ResultFields();
    for (int i = 0; i < list.GetCount(); ++i)
        for (int k = 0; k < list.GetItem(i)->GetDSFieldCount(); ++k)
            lost += list.GetItem(i)->GetDSField(k) == session->Structure().PlaceholderField();
    if (lost > 0)
        queryMessages->Say(TMessageBar::TKind::Warning, [lost] {
            return tr("%n row(s) of this query refer to fields that the database does not have. "
                      "They are marked and take no part.",
                      nullptr, lost);
        });
}

void TMainWindow::SaveRows() {
    QFileDialog dialog(this, tr("Save rows"), {}, tr("Comma separated values (*.csv)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("csv"));
    if (dialog.exec() != QDialog::Accepted) return;
    const QString file = dialog.selectedFiles().front();
    try {
        results->SaveAsCsv(file);
    } catch (const std::exception& error) {
        QMessageBox::warning(
            this, tr("Save rows"),
            tr("The rows could not be saved as %1: %2").arg(Isolated(file), FileReason(error)));
    }
}

} // namespace tern7
