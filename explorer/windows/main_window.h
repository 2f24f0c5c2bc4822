#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QMainWindow>
#include <QTimer>

#include "../data/database_session.h"
#include "../data/recent_list.h"
#include "../run/database_opener.h"
#include "../run/query_runner.h"

class QAction;
class QActionGroup;
class QLabel;
class QPlainTextEdit;
class QSpinBox;
class QSplitter;

namespace tern7 {

class TKPopupMenu;
class TKQueryPanel;
class TKResultFieldsPanel;
class TMessageBar;
struct TReadProblem;
class TResultField;
class TResultView;

/// The window of the program: columns, conditions, SQL and rows of one query over one database.
class TMainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit TMainWindow(QWidget* parent = nullptr);
    ~TMainWindow() override;

    // --- database
    /// Opens a database and begins a new query; shows why when it can not be opened. The structure
    /// is imported, or loaded from the file when one is given. False when nothing changed.
    bool OpenDatabase(const TKDatabaseURL& address, const QString& structureFile = {});
    bool OpenSample();
    /// The database that was open last; a server's password is asked for. At first the sample.
    bool OpenLast();
    bool HasDatabase() const { return session != nullptr; }

    /// Called instead of all message boxes and questions, where nobody is there to answer them.
    std::function<void(const QString& message)> OnTrouble;

    // --- query files
    bool LoadQuery(const QString& file);
    /// As soon as a database is open.
    void OpenQuery(const QString& file);
    bool SaveQuery(const QString& file);
    /// Whether there are changes that no file has.
    bool IsModified() const;

    // --- running
    /// Asks for parameters, builds the statement and runs it.
    void RunQuery();
    bool IsRunning() const { return runner.IsRunning(); }
    void CancelRun() { runner.Cancel(); }

    /// Reads an SQL statement in place of the query and shows what was kept and what was not.
    /// False when it can not be read; the query is as it was then.
    bool ReadSQL(const QString& sql);

    // --- looks
    /// The whole program in a language of TitleLanguages by its code ("de"); the system's when it
    /// is empty.
    void SetLanguage(const QString& code);
    enum class TLook { System, Light, Dark };
    void SetLook(TLook look);
    void SetZoom(int percent);

    TKQueryPanel& Conditions() { return *conditions; }
    TKResultFieldsPanel& Columns() { return *columns; }
    TResultView& Results() { return *results; }
    QString ShownSQL() const;

signals:
    void runEnded();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    // main_window.cpp
    void BuildWindow();
    QWidget* Part(const char* heading, QWidget* content);
    QWidget* MakeColumnsPart();
    QWidget* MakeConditionsPart();
    QWidget* MakeSQLPart();
    void RestoreState();
    void StoreState() const;
    void UpdateTitle();
    void Warn(const QString& title, const QString& text);

    // main_window_actions.cpp
    void MakeActions();
    void MakeFileMenu();
    void MakeEditMenu();
    void MakeQueryMenu();
    void MakeViewMenu();
    void MakeHelpMenu();
    void MakeToolBar();
    void UpdateActions();
    void DrawIcons();
    /// Says something in the program's language: now and after every change of the language.
    void Worded(const std::function<void()>& say);
    // their texts are marked with QT_TR_NOOP
    QAction* Action(const char* text, const QKeySequence& keys,
                    const std::function<void()>& whenTriggered);
    QAction* Switch(const char* text, const std::function<void()>& whenTriggered);
    QMenu* Menu(const char* title, QMenu* into = nullptr);

    // main_window_edit.cpp
    /// A change of the query that can be undone under a name.
    void Step(const char* name, const std::function<void()>& change);
    void ShowSteps();

    // main_window_databases.cpp
    bool WaitForDatabase(TDatabaseOpener& running);
    void AskForDatabase(const TKDatabaseURL* preset = nullptr, const QString& error = {});
    void UseStructure(const QString& file);
    QString KnownStructure(const TKDatabaseURL& url);
    bool CanReadStructure(const QString& file);
    void AskForStructure();
    void SaveStructure();
    void OpenRecentDatabase(const QString& address);
    void FillRecentMenus();
    void NewQuery();
    void AskForQuery();
    bool SaveNow();
    bool SaveAs();
    bool MayDiscard();
    void OpenFile(const QString& file);
    void SaveRows();
    void TellWarnings();
    void TellLostFields();
    std::vector<int> LostColumns() const;
    void RemoveLostColumns();
    void ReadSQLFile(const QString& file);
    std::string QueryText() const;
    void QueryLoaded(const QString& file);

    // main_window_sql.cpp
    std::optional<TReadProblem> TryReadSQL(const QString& sql);
    void ShowReport();
    void AskForSQL();

    // main_window_run.cpp
    void QueryChanged();
    void ShowSQL();
    void ShowGrouping();
    void RunWith(bool asking);
    bool RefuseWrongDates(bool asking);
    TRunRequest MakeRequest();
    std::optional<TBoundSQL> PresentStatement() const;
    std::vector<std::string> Captions() const;
    std::vector<TRunRequest::TTrial> MakeTrials() const;
    void RunFailed(const QString& message, int row);
    void ShowUnfinished();
    TFilterCond* RowOf(int number) const;
    QString Sentence(int number) const;
    void FocusRow(int number);
    void SortBy(int column);
    int PresentPlace(int shownColumn) const;
    void ShowSorting();
    void AddColumn();
    void AddCondition();
    void EditColumns();

    // main_window_tables.cpp
    void ShowTables();
    void TellOtherStart();
    void ChooseStartTable();
    void ChooseJoinWay();
    void PopUpAtColumns(TKPopupMenu* menu);

    // main_window_help.cpp
    QString Guide() const;
    QString KeyTables() const;
    void ShowAbout();

    // main_window_view.cpp
    void ApplyZoom();
    void ShowTitles();
    template <class Panel>
    void EditTitles(Panel& panel);
    void ForgetTitles();
    QString TitlesKey(const char* part) const;

    std::unique_ptr<TDatabaseSession> session;
    TKQueryPanel* conditions;
    TKResultFieldsPanel* columns;
    TResultView* results;
    TQueryRunner runner;
    TDatabaseOpener* opener = nullptr; // that is waited for
    QWidget* sqlPart = nullptr;
    QPlainTextEdit* sqlText = nullptr;
    QLabel* grouping = nullptr;
    QLabel* tables = nullptr;
    TMessageBar* queryMessages = nullptr;
    int unfinishedMessage = -1; // that of queryMessages which tells of unfinished conditions
    QSplitter* queryParts = nullptr;
    QSplitter* parts = nullptr;
    QSpinBox* rowLimit = nullptr;
    QTimer sqlTimer;             // the statement is shown when the changes of one event are over
    QTimer liveTimer;            // and run when nothing was typed for a while
    bool readSQLChanged = false; // the last reading of SQL is a step
    QString queryToOpen;         // when there is a database
    QString queryFile;
    std::optional<TStrings> fileTitles; // the captions that it has
    // of the rows that are asked for and shown; only compared, for they may have gone since
    std::vector<const TResultField*> askedColumns, shownColumns;
    struct TStart {
        QString alias, name;
    };
    TStart start; // of the joins, over these columns, which are only compared
    std::vector<const TResultField*> startColumns;
    int startMessage = -1; // that of queryMessages which tells of another one
    std::string savedText; // of the query as it was loaded or saved
    QString language;
    TLook look = TLook::System;
    int zoom = 100;
    double plainPointSize = 0;
    TRecentList recentDatabases{QStringLiteral("recent/databases")};
    TRecentList recentQueries{QStringLiteral("recent/queries")};

    std::vector<std::function<void()>> wordings;
    QMenu* recentDatabaseMenu = nullptr;
    QMenu* recentQueryMenu = nullptr;
    QMenu* structureMenu = nullptr;
    QAction* openDatabaseAction = nullptr;
    QAction* saveAction = nullptr;
    QAction* undoAction = nullptr;
    QAction* redoAction = nullptr;
    QAction* runAction = nullptr;
    QAction* cancelAction = nullptr;
    QAction* liveAction = nullptr;
    QAction* distinctAction = nullptr;
    QAction* sqlAction = nullptr;
    QAction* andOrAction = nullptr;
    QAction* addColumnAction = nullptr;
    QAction* addConditionAction = nullptr;
    QAction* editColumnsAction = nullptr;
    QAction* startTableAction = nullptr;
    QAction* joinWayAction = nullptr;
    QAction* saveRowsAction = nullptr;
    QActionGroup* languageActions = nullptr;
    QActionGroup* lookActions = nullptr;
};

} // namespace tern7
