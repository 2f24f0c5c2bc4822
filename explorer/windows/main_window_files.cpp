#include "main_window.h"

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>

#include <tern7/core/corekit/files.h>
#include <tern7/core/corekit/ini_text.h>
#include <tern7/core/global/errors.h>
#include <tern7/core/query/query_text.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/panels/result_fields_panel.h>
#include <tern7/ui/support/bidi_text.h>
#include <tern7/ui/support/text.h>

#include "../data/error_text.h"
#include "message_bar.h"
#include "result_view.h"

namespace tern7 {

namespace {

QString QueryFilter() {
    return TMainWindow::tr("Queries (*.qry);;All files (*)");
}

/// The captions that a file came with, in the query while it is saved.
class TFileTitles {
public:
    TFileTitles(TKQuery& owner, const std::optional<TStrings>& titles)
        : query(owner), shown(owner.Titles) {
        if (!titles) return;
        query.Titles = *titles;
        query.SaveTitles = true;
    }
    ~TFileTitles() {
        query.Titles.swap(shown);
        query.SaveTitles = false;
    }
    TFileTitles(const TFileTitles&) = delete;
    TFileTitles& operator=(const TFileTitles&) = delete;

private:
    TKQuery& query;
    TStrings shown;
};

} // namespace

// --- queries

std::string TMainWindow::QueryText() const {
    return session ? conditions->Query().GetQueryString() : std::string();
}

bool TMainWindow::IsModified() const {
    return QueryText() != savedText;
}

void TMainWindow::QueryLoaded(const QString& file) {
    queryFile = file;
    fileTitles.reset();
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
    conditions->Query().SetSQLSyntax(
        TSQLSyntax::ssSQL2); // a statement that was read may have another
    conditions->Query().SaveTitles = false;
    conditions->Query().SaveSQLOptions = true;
    conditions->Query().SaveMainTable = true;
    QueryLoaded({});
}

bool TMainWindow::LoadQuery(const QString& file) {
    const TStrings titles = conditions->Titles();
    bool hasTitles = false;
    try {
        hasTitles = ReadQueryTextHead(ReadWholeFile(FromQt(file))).hasTitles;
        conditions->Query().SaveTitles = hasTitles;
        conditions->LoadFromFile(file);
    } catch (const std::exception& error) {
        conditions->Query().SaveTitles = false;
        conditions->SetActive(true);
        if (!QFileInfo::exists(file)) recentQueries.Remove(file);
        Warn(tr("Open query"),
             tr("The query %1 could not be opened: %2").arg(Isolated(file), FileReason(error)));
        return false;
    }
    const TStrings titlesOfFile = conditions->Query().Titles;
    conditions->SetTitles(titles); // the window's language, not that of the file
    conditions->Query().SaveTitles = false;
    conditions->Query().SaveSQLOptions = true;
    conditions->Query().SaveMainTable = true;
    recentQueries.Add(QFileInfo(file).absoluteFilePath());
    conditions->Query().SetSQLSyntax(TSQLSyntax::ssSQL2);
    QueryLoaded(file);
    if (hasTitles) fileTitles = titlesOfFile;
    TellWarnings();
    TellLostFields();
    if (liveAction->isChecked()) RunWith(false);
    return true;
}

bool TMainWindow::SaveQuery(const QString& file) {
    conditions->CloseEdit(); // what is being typed belongs to it
    try {
        const TFileTitles titles(conditions->Query(), fileTitles);
        conditions->SaveToFile(file);
    } catch (const std::exception& error) {
        Warn(tr("Save query"),
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
    conditions->CloseEdit();
    QFileDialog dialog(this, tr("Save query"), queryFile, QueryFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("qry"));
    return dialog.exec() == QDialog::Accepted && SaveQuery(dialog.selectedFiles().front());
}

/// Asks about changes that are not saved.
bool TMainWindow::MayDiscard() {
    conditions->CloseEdit(); // what is being typed is a change, too
    if (!session || !IsModified()) return true;
    const auto answer = QMessageBox::question(
        this, tr("Unsaved changes"), tr("The query was changed. Save the changes?"),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Save) return SaveNow();
    return answer == QMessageBox::Discard;
}

/// By its name: a query, a statement, a structure, or else a database.
void TMainWindow::OpenFile(const QString& file) {
    const QString suffix = QFileInfo(file).suffix().toLower();
    if (suffix == QLatin1String("sql")) return ReadSQLFile(file); // which can be undone
    if (suffix == QLatin1String("str")) return UseStructure(file);
    if (!MayDiscard()) return;
    if (suffix == QLatin1String("qry")) {
        LoadQuery(file);
    } else {
        TKDatabaseURL url;
        url.database = FromQt(QFileInfo(file).absoluteFilePath());
        OpenDatabase(url);
    }
}

/// What the reading met without failing.
void TMainWindow::TellWarnings() {
    TStrings warnings = session->Structure().LoadWarnings();
    const TStrings& ofQuery = conditions->Query().LoadWarnings();
    warnings.insert(warnings.begin(), ofQuery.begin(), ofQuery.end());
    if (warnings.empty()) return;
    queryMessages->Say(TMessageBar::TKind::Note,
                       [warning = ToQt(warnings.front())] { return MessageText(warning); });
}

void TMainWindow::ReadSQLFile(const QString& file) {
    try {
        ReadSQL(ToQt(DecodeTextFile(ReadWholeFile(FromQt(file))).text));
    } catch (const std::exception& error) {
        Warn(tr("Read SQL"),
             tr("The file %1 could not be read: %2").arg(Isolated(file), FileReason(error)));
    }
}

/// Rows and columns over fields that the database does not have any more. Rows take no part;
/// without a column of the query there is no statement.
void TMainWindow::TellLostFields() {
    int rows = 0;
    for (const TUnfinishedRow& row : conditions->Query().UnfinishedRows())
        rows += row.reason == TUnfinished::UnknownField;
    const int lost = static_cast<int>(LostColumns().size());
    if (lost > 0)
        queryMessages->Say(
            TMessageBar::TKind::Warning,
            [lost] {
                return tr("%n column(s) of this query refer to fields that the database does not "
                          "have. Choose others, or remove them.",
                          nullptr, lost);
            },
            [] { return tr("Remove them"); }, [this] { RemoveLostColumns(); });
    else if (rows > 0)
        queryMessages->Say(TMessageBar::TKind::Warning, [rows] {
            return tr("%n row(s) of this query refer to fields that the database does not have. "
                      "They are marked and take no part.",
                      nullptr, rows);
        });
}

/// Their places, the last one first.
std::vector<int> TMainWindow::LostColumns() const {
    std::vector<int> lost;
    const TRFieldList& list = columns->ResultFields();
    for (int i = list.GetCount(); i-- > 0;) {
        const TResultField& column = *list.GetItem(i);
        bool isLost = false;
        for (int k = 0; k < column.GetDSFieldCount(); ++k)
            isLost = isLost || !column.GetDSField(k) || column.GetDSField(k)->IsPlaceholder();
        if (isLost) lost.push_back(i);
    }
    return lost;
}

void TMainWindow::RemoveLostColumns() {
    Step(QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Delete column"), [this] {
        for (const int column : LostColumns())
            columns->ResultFields().Delete(column);
    });
    TellLostFields(); // rows may be left
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
        Warn(tr("Save rows"),
             tr("The rows could not be saved as %1: %2").arg(Isolated(file), FileReason(error)));
    }
}

} // namespace tern7
