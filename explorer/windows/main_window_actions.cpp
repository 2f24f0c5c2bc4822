#include "main_window.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QSpinBox>
#include <QToolBar>
#include <QToolButton>

#include <tern7/ui/panels/query_panel.h>

#include "result_view.h"

namespace tern7 {

namespace {

/// A shape inside of 16 x 16 in a colour, grey when it can not be used.
QIcon ShapeIcon(const QPolygonF& shape, const QColor& colour, const QColor& disabled) {
    QIcon icon;
    for (const auto& [mode, fill] : {std::pair(QIcon::Normal, colour), {QIcon::Disabled, disabled}})
        for (const int scale : {1, 2, 3}) {
            QPixmap picture(16 * scale, 16 * scale);
            picture.setDevicePixelRatio(scale);
            picture.fill(Qt::transparent);
            QPainter painter(&picture);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(fill);
            painter.drawPolygon(shape);
            painter.end();
            icon.addPixmap(picture, mode);
        }
    return icon;
}

} // namespace

/// In the colours of the palette, which the style's own icons are not.
void TMainWindow::DrawIcons() {
    const QPalette colours = QApplication::palette();
    const QColor text = colours.color(QPalette::ButtonText);
    const QColor disabled = colours.color(QPalette::Disabled, QPalette::ButtonText);
    runAction->setIcon(ShapeIcon(QPolygonF({{3, 1}, {15, 8}, {3, 15}}), text, disabled));
    cancelAction->setIcon(ShapeIcon(QPolygonF(QRectF(3, 3, 10, 10)), text, disabled));
}

void TMainWindow::Worded(const std::function<void()>& say) {
    say();
    wordings.push_back(say);
}

QAction* TMainWindow::Action(const char* text, const QKeySequence& keys,
                             const std::function<void()>& whenTriggered) {
    auto* action = new QAction(this);
    Worded([action, text] { action->setText(tr(text)); });
    action->setShortcut(keys);
    if (whenTriggered) connect(action, &QAction::triggered, this, whenTriggered);
    return action;
}

QAction* TMainWindow::Switch(const char* text, const std::function<void()>& whenTriggered) {
    QAction* action = Action(text, {}, whenTriggered);
    action->setCheckable(true);
    return action;
}

QMenu* TMainWindow::Menu(const char* title, QMenu* into) {
    QMenu* menu = into ? into->addMenu(QString()) : menuBar()->addMenu(QString());
    Worded([menu, title] { menu->setTitle(tr(title)); });
    return menu;
}

void TMainWindow::MakeActions() {
    MakeFileMenu();
    MakeEditMenu();
    MakeQueryMenu();
    MakeViewMenu();
    MakeToolBar();
}

void TMainWindow::MakeFileMenu() {
    QMenu* menu = Menu(QT_TR_NOOP("&File"));
    menu->addAction(Action(QT_TR_NOOP("Open &database..."), QKeySequence("Ctrl+D"), [this] {
        if (MayDiscard()) AskForDatabase();
    }));
    recentDatabaseMenu = Menu(QT_TR_NOOP("Recent d&atabases"), menu);
    menu->addAction(Action(QT_TR_NOOP("Sa&mple database"), {}, [this] {
        if (MayDiscard()) OpenSample();
    }));
    structureMenu = Menu(QT_TR_NOOP("S&tructure"), menu);
    structureMenu->addAction(
        Action(QT_TR_NOOP("&Open structure..."), {}, [this] { AskForStructure(); }));
    structureMenu->addAction(
        Action(QT_TR_NOOP("&Save structure as..."), {}, [this] { SaveStructure(); }));
    structureMenu->addAction(
        Action(QT_TR_NOOP("&Import it anew"), {}, [this] { UseStructure({}); }));
    menu->addSeparator();
    menu->addAction(Action(QT_TR_NOOP("&New query"), QKeySequence::New, [this] {
        if (MayDiscard()) NewQuery();
    }));
    menu->addAction(
        Action(QT_TR_NOOP("&Open query..."), QKeySequence::Open, [this] { AskForQuery(); }));
    recentQueryMenu = Menu(QT_TR_NOOP("&Recent queries"), menu);
    saveAction = Action(QT_TR_NOOP("&Save query"), QKeySequence::Save, [this] { SaveNow(); });
    menu->addAction(saveAction);
    menu->addAction(
        Action(QT_TR_NOOP("Save query &as..."), QKeySequence::SaveAs, [this] { SaveAs(); }));
    menu->addSeparator();
    menu->addAction(
        Action(QT_TR_NOOP("Read S&QL..."), QKeySequence("Ctrl+L"), [this] { AskForSQL(); }));
    saveRowsAction =
        Action(QT_TR_NOOP("Save &rows as CSV..."), QKeySequence("Ctrl+E"), [this] { SaveRows(); });
    menu->addAction(saveRowsAction);
    menu->addSeparator();
    QAction* quit = Action(QT_TR_NOOP("&Quit"), QKeySequence::Quit, [this] { close(); });
    quit->setMenuRole(QAction::QuitRole);
    menu->addAction(quit);
    connect(recentDatabaseMenu, &QMenu::aboutToShow, this, &TMainWindow::FillRecentMenus);
    connect(recentQueryMenu, &QMenu::aboutToShow, this, &TMainWindow::FillRecentMenus);
    FillRecentMenus();
}

void TMainWindow::MakeQueryMenu() {
    QMenu* menu = Menu(QT_TR_NOOP("&Query"));
    runAction = Action(QT_TR_NOOP("&Run"), QKeySequence("F5"), [this] { RunQuery(); });
    Worded([this] { runAction->setToolTip(tr("Run the query (F5)")); });
    cancelAction = Action(QT_TR_NOOP("&Cancel"), QKeySequence("Shift+F5"), [this] { CancelRun(); });
    liveAction = Switch(QT_TR_NOOP("Run after every c&hange"), [this] { QueryChanged(); });
    addColumnAction =
        Action(QT_TR_NOOP("Add c&olumn..."), QKeySequence("Ctrl+K"), [this] { AddColumn(); });
    distinctAction = Switch(QT_TR_NOOP("&Equal rows only once"), [this] {
        TSQLOptions options = conditions->SQLOptions();
        if (distinctAction->isChecked())
            options.Include(TSQLOption::soSelectDistinct);
        else
            options.Exclude(TSQLOption::soSelectDistinct);
        Step(QT_TRANSLATE_NOOP("tern7::TKQueryEditor", "Equal rows"),
             [&] { conditions->SetSQLOptions(options); });
    });
    editColumnsAction = Action(QT_TR_NOOP("E&dit columns..."), QKeySequence("Ctrl+Shift+K"),
                               [this] { EditColumns(); });
    Worded([this] {
        editColumnsAction->setToolTip(tr("Captions, formulas, sums and counts (Ctrl+Shift+K)"));
        addColumnAction->setToolTip(tr("Choose a field that the result shows (Ctrl+K)"));
    });
    menu->addActions({runAction, cancelAction, liveAction});
    menu->addSeparator();
    startTableAction = Action(QT_TR_NOOP("Start from &table..."), QKeySequence("Ctrl+T"),
                              [this] { ChooseStartTable(); });
    joinWayAction = Action(QT_TR_NOOP("&Join another way..."), QKeySequence("Ctrl+Shift+J"),
                           [this] { ChooseJoinWay(); });
    menu->addActions(
        {addColumnAction, editColumnsAction, distinctAction, startTableAction, joinWayAction});
}

void TMainWindow::MakeToolBar() {
    QToolBar* bar = addToolBar(QString());
    Worded([bar] { bar->setWindowTitle(tr("Tools")); });
    bar->setObjectName(QStringLiteral("tools"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addActions({runAction, cancelAction});
    bar->addSeparator();
    bar->addActions({addColumnAction, editColumnsAction});
    bar->addSeparator();
    bar->addActions({undoAction, redoAction});
    for (QAction* action : {undoAction, redoAction}) // known by their icons; words need room
        if (auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action)))
            button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    bar->addSeparator();
    bar->addAction(liveAction);
    rowLimit = new QSpinBox;
    rowLimit->setRange(1, 1'000'000);
    rowLimit->setSingleStep(100);
    rowLimit->setGroupSeparatorShown(true);
    rowLimit->setValue(1000);
    auto* label = new QLabel;
    label->setContentsMargins(8, 0, 4, 0);
    Worded([label] { label->setText(tr("Rows at &most:")); });
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
    editColumnsAction->setEnabled(HasDatabase());
    startTableAction->setEnabled(HasDatabase());
    structureMenu->setEnabled(HasDatabase());
    saveRowsAction->setEnabled(results->Model().rowCount() > 0 && !running);
    distinctAction->setChecked(conditions->SQLOptions().Contains(TSQLOption::soSelectDistinct));
}

} // namespace tern7
