#include "main_window.h"

#include <algorithm>
#include <set>

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPainterPath>
#include <QSpinBox>
#include <QStyleOptionMenuItem>
#include <QToolBar>
#include <QToolButton>
#include <QTransform>

#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/support/bidi_text.h>

#include "../data/language.h"
#include "result_view.h"

namespace tern7 {

namespace {

/// A shape inside of 16 x 16 in a colour, grey when it can not be used.
QIcon ShapeIcon(const QPainterPath& shape, const QColor& colour, const QColor& disabled) {
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
            painter.drawPath(shape);
            painter.end();
            icon.addPixmap(picture, mode);
        }
    return icon;
}

/// An arrow that goes back, to the left or mirrored.
QPainterPath BackArrow(bool mirrored) {
    QPainterPath tail;
    tail.moveTo(5, 6);
    tail.lineTo(9.5, 6);
    tail.cubicTo(15, 6, 15, 13, 9.5, 13);
    tail.lineTo(5, 13);
    QPainterPathStroker pen;
    pen.setWidth(2);
    QPainterPath arrow = pen.createStroke(tail);
    arrow.setFillRule(Qt::WindingFill);
    arrow.addPolygon(QPolygonF({{0.5, 6}, {6, 1.5}, {6, 10.5}}));
    arrow.closeSubpath();
    return mirrored ? QTransform(-1, 0, 0, 1, 16, 0).map(arrow) : arrow;
}

/// Moves the marks of keys that stand for an earlier text, too, to letters that are free: no
/// translator sees all texts of a menu together.
void SpreadKeys(const QMenu& menu) {
    std::set<QChar> taken;
    for (QAction* action : menu.actions()) {
        QString text = action->text();
        const qsizetype mark = text.indexOf(u'&');
        if (mark < 0 || mark + 1 >= text.size() || text[mark + 1] == u'&') continue;
        if (taken.insert(text[mark + 1].toLower()).second) continue;
        text.remove(mark, 1);
        const auto free = std::find_if(text.begin(), text.end(), [&taken](QChar c) {
            return c.isLetter() && !taken.contains(c.toLower());
        });
        if (free != text.end()) {
            taken.insert(free->toLower());
            text.insert(free - text.begin(), u'&');
        }
        action->setText(text);
    }
}

/// Keys keep their order beside texts that are read from the right.
class TMenu : public QMenu {
public:
    explicit TMenu(QWidget* parent) : QMenu(parent) {
        connect(this, &QMenu::aboutToShow, this, [this] { SpreadKeys(*this); });
    }

protected:
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override {
        QMenu::initStyleOption(option, action);
        const qsizetype keys = option->text.indexOf(u'\t') + 1;
        if (keys > 0) option->text = option->text.left(keys) + Isolated(option->text.mid(keys));
    }
};

} // namespace

/// In the colours of the palette, which the style's own icons are not. Undo and redo point to where
/// one has come from and goes in the direction of reading; running is a sign, not a direction.
void TMainWindow::DrawIcons() {
    const QPalette colours = QApplication::palette();
    const QColor text = colours.color(QPalette::ButtonText);
    const QColor disabled = colours.color(QPalette::Disabled, QPalette::ButtonText);
    QPainterPath run, stop;
    run.addPolygon(QPolygonF({{3, 1}, {15, 8}, {3, 15}}));
    stop.addRect(3, 3, 10, 10);
    runAction->setIcon(ShapeIcon(run, text, disabled));
    cancelAction->setIcon(ShapeIcon(stop, text, disabled));
    const bool fromRight = QApplication::isRightToLeft();
    undoAction->setIcon(ShapeIcon(BackArrow(fromRight), text, disabled));
    redoAction->setIcon(ShapeIcon(BackArrow(!fromRight), text, disabled));
}

void TMainWindow::Worded(const std::function<void()>& say) {
    say();
    wordings.push_back(say);
}

QAction* TMainWindow::Action(const char* text, const QKeySequence& keys,
                             const std::function<void()>& whenTriggered) {
    auto* action = new QAction(this);
    Worded([action, text] {
        action->setText(tr(text));
        action->setIconText(PlainText(tr(text)));
    });
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
    QMenu* menu = new TMenu(this);
    if (into)
        into->addMenu(menu);
    else
        menuBar()->addMenu(menu);
    Worded([menu, title] { menu->setTitle(tr(title)); });
    return menu;
}

void TMainWindow::MakeActions() {
    MakeFileMenu();
    MakeEditMenu();
    MakeQueryMenu();
    MakeViewMenu();
    MakeHelpMenu();
    MakeToolBar();
}

void TMainWindow::MakeFileMenu() {
    QMenu* menu = Menu(QT_TR_NOOP("&File"));
    openDatabaseAction =
        Action(QT_TR_NOOP("Open &database..."), QKeySequence("Ctrl+Shift+O"), [this] {
            if (MayDiscard()) AskForDatabase();
        });
    menu->addAction(openDatabaseAction);
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
    addConditionAction =
        Action(QT_TR_NOOP("Add co&ndition..."), QKeySequence("Ctrl+I"), [this] { AddCondition(); });
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
    menu->addActions({addColumnAction, addConditionAction, editColumnsAction, distinctAction,
                      startTableAction, joinWayAction});
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
    Worded([this] {
        rowLimit->setLocale(QLocale());
        rowLimit->setGroupSeparatorShown(true); // writes the number anew
    });
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
    addConditionAction->setEnabled(HasDatabase());
    editColumnsAction->setEnabled(HasDatabase());
    startTableAction->setEnabled(HasDatabase());
    structureMenu->setEnabled(HasDatabase());
    saveRowsAction->setEnabled(results->Model().rowCount() > 0 && !running);
    distinctAction->setChecked(conditions->SQLOptions().Contains(TSQLOption::soSelectDistinct));
}

} // namespace tern7
