#include "main_window.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QSpinBox>
#include <QStyle>
#include <QToolBar>

#include <tern7/ui/panels/query_panel.h>

#include "result_view.h"

namespace tern7 {

QAction* TMainWindow::Action(const QString& text, const QKeySequence& keys,
                             const std::function<void()>& whenTriggered) {
    auto* action = new QAction(text, this);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, whenTriggered);
    return action;
}

void TMainWindow::MakeActions() {
    MakeFileMenu();
    MakeEditMenu();
    MakeQueryMenu();
    MakeViewMenu();
    MakeToolBar();
}

void TMainWindow::MakeFileMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    menu->addAction(Action(tr("Open &database..."), QKeySequence(Qt::CTRL | Qt::Key_D, Qt::Key_O),
                           [this] { AskForDatabase(); }));
    recentDatabaseMenu = menu->addMenu(tr("Recent d&atabases"));
    menu->addAction(Action(tr("Sa&mple database"), {}, [this] { OpenSample(); }));
    menu->addSeparator();
    menu->addAction(Action(tr("&New query"), QKeySequence::New, [this] {
        if (MayDiscard()) NewQuery();
    }));
    menu->addAction(Action(tr("&Open query..."), QKeySequence::Open, [this] { AskForQuery(); }));
    recentQueryMenu = menu->addMenu(tr("&Recent queries"));
    saveAction = Action(tr("&Save query"), QKeySequence::Save, [this] { SaveNow(); });
    menu->addAction(saveAction);
    menu->addAction(Action(tr("Save query &as..."), QKeySequence::SaveAs, [this] { SaveAs(); }));
    menu->addSeparator();
    menu->addAction(
        Action(tr("Read S&QL..."), QKeySequence(Qt::CTRL | Qt::Key_L), [this] { AskForSQL(); }));
    saveRowsAction = Action(tr("Save &rows as CSV..."), QKeySequence(Qt::CTRL | Qt::Key_E),
                            [this] { SaveRows(); });
    menu->addAction(saveRowsAction);
    menu->addSeparator();
    QAction* quit = Action(tr("&Quit"), QKeySequence::Quit, [this] { close(); });
    quit->setMenuRole(QAction::QuitRole);
    menu->addAction(quit);
    connect(recentDatabaseMenu, &QMenu::aboutToShow, this, &TMainWindow::FillRecentMenus);
    connect(recentQueryMenu, &QMenu::aboutToShow, this, &TMainWindow::FillRecentMenus);
    FillRecentMenus();
}

void TMainWindow::MakeQueryMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Query"));
    runAction = Action(tr("&Run"), QKeySequence(Qt::Key_F5), [this] { RunQuery(); });
    runAction->setIcon(style()->standardIcon(QStyle::SP_MediaPlay));
    runAction->setToolTip(tr("Run the query (F5)"));
    cancelAction =
        Action(tr("&Cancel"), QKeySequence(Qt::SHIFT | Qt::Key_F5), [this] { CancelRun(); });
    cancelAction->setIcon(style()->standardIcon(QStyle::SP_MediaStop));
    liveAction = Action(tr("Run after every c&hange"), {}, [this] { QueryChanged(); });
    liveAction->setCheckable(true);
    addColumnAction =
        Action(tr("Add c&olumn..."), QKeySequence(Qt::CTRL | Qt::Key_K), [this] { AddColumn(); });
    distinctAction = Action(tr("&Equal rows only once"), {}, [this] {
        TSQLOptions options = conditions->SQLOptions();
        if (distinctAction->isChecked())
            options.Include(TSQLOption::soSelectDistinct);
        else
            options.Exclude(TSQLOption::soSelectDistinct);
        Step(tr("Equal rows"), [&] { conditions->SetSQLOptions(options); });
    });
    distinctAction->setCheckable(true);
    menu->addActions({runAction, cancelAction, liveAction});
    menu->addSeparator();
    menu->addActions({addColumnAction, distinctAction});
}

void TMainWindow::MakeToolBar() {
    QToolBar* bar = addToolBar(tr("Tools"));
    bar->setObjectName(QStringLiteral("tools"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addActions({runAction, cancelAction});
    bar->addSeparator();
    bar->addAction(addColumnAction);
    bar->addSeparator();
    bar->addActions({undoAction, redoAction});
    bar->addSeparator();
    bar->addAction(liveAction);
    rowLimit = new QSpinBox;
    rowLimit->setRange(1, 1'000'000);
    rowLimit->setSingleStep(100);
    rowLimit->setGroupSeparatorShown(true);
    rowLimit->setValue(1000);
    auto* label = new QLabel(tr("  Rows at &most: "));
    label->setBuddy(rowLimit);
    bar->addWidget(label);
    bar->addWidget(rowLimit);
}

void TMainWindow::UpdateActions() {
    const bool running = runner.IsRunning();
    runAction->setEnabled(HasDatabase());
    cancelAction->setEnabled(running);
    saveAction->setEnabled(HasDatabase());
    addColumnAction->setEnabled(HasDatabase());
    saveRowsAction->setEnabled(results->Model().rowCount() > 0 && !running);
    distinctAction->setChecked(conditions->SQLOptions().Contains(TSQLOption::soSelectDistinct));
}

} // namespace tern7
