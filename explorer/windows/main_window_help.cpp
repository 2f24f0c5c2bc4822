#include "main_window.h"

#include <QAction>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/support/bidi_text.h>

#include "../data/language.h"
#include "text_window.h"

namespace tern7 {

namespace {

QString KeyText(const QKeySequence& keys) {
    return Isolated(keys.toString(QKeySequence::NativeText)).toHtmlEscaped();
}

/// Tables of rich text are laid out from the left always.
QString KeyRow(const QString& keys, const QString& text) {
    const QString row =
        QGuiApplication::isRightToLeft()
            ? QStringLiteral(
                  "<tr><td align=\"right\">%2</td>"
                  "<td align=\"right\" style=\"padding: 1px 0 1px 20px\"><b>%1</b></td></tr>")
            : QStringLiteral("<tr><td style=\"padding: 1px 20px 1px 0\"><b>%1</b></td>"
                             "<td>%2</td></tr>");
    return row.arg(keys, text);
}

QString KeyTable(const QString& title, const QString& rows) {
    if (rows.isEmpty()) return {};
    const QString side =
        QGuiApplication::isRightToLeft() ? QStringLiteral(" align=\"right\"") : QString();
    return QStringLiteral("<h3>%1</h3><table%3>%2</table>").arg(title.toHtmlEscaped(), rows, side);
}

/// The keys of a menu's actions; those of a sub menu's are named behind its title.
QString MenuKeys(const QMenu& menu, const QString& title = {}) {
    QString rows;
    for (const QAction* action : menu.actions()) {
        if (action->menu())
            rows += MenuKeys(*action->menu(),
                             PlainText(action->menu()->title()) + QStringLiteral(" – "));
        else if (!action->shortcut().isEmpty())
            rows +=
                KeyRow(KeyText(action->shortcut()), (title + action->iconText()).toHtmlEscaped());
    }
    return rows;
}

/// The labels of both panels are one kind of control.
QString LabelKeys() {
    const struct {
        std::vector<QKeySequence> keys;
        QString text;
    } list[] = {
        {{Qt::Key_Tab, Qt::Key_Right}, TMainWindow::tr("To the next label")},
        {{Qt::Key_Up, Qt::Key_Down}, TMainWindow::tr("To the row above or below")},
        {{Qt::Key_Space, Qt::Key_F4, QKeySequence("Alt+Down")},
         TMainWindow::tr("Open the label: its menu, list or editor")},
        {{Qt::Key_Escape}, TMainWindow::tr("Close it, and leave all as it was")},
    };
    QString rows;
    for (const auto& each : list) {
        QStringList keys;
        for (const QKeySequence& key : each.keys)
            keys << KeyText(key);
        rows += KeyRow(keys.join(QStringLiteral(", ")), each.text.toHtmlEscaped());
    }
    return rows;
}

/// An action as it is named in running text, with its key.
QString Named(const QAction& action) {
    QString name = QStringLiteral("<b>%1</b>").arg(Isolated(action.iconText()).toHtmlEscaped());
    if (action.shortcut().isEmpty()) return name;
    return QStringLiteral("%1 (%2)").arg(name, KeyText(action.shortcut()));
}

} // namespace

void TMainWindow::MakeHelpMenu() {
    QMenu* menu = Menu(QT_TR_NOOP("&Help"));
    const auto show = [this](TWording title, TWording text) {
        auto* window = new TTextWindow(std::move(title), std::move(text), this);
        window->show();
    };
    menu->addAction(Action(QT_TR_NOOP("&Guide"), QKeySequence(Qt::Key_F1), [this, show] {
        show([] { return tr("Guide"); }, [this] { return Guide(); });
    }));
    menu->addAction(Action(QT_TR_NOOP("&Keys"), QKeySequence("Ctrl+F1"), [this, show] {
        show([] { return tr("Keys"); }, [this] { return KeyTables(); });
    }));
    menu->addSeparator();
    QAction* about = Action(QT_TR_NOOP("&About tern7-explorer"), {}, [this] { ShowAbout(); });
    about->setMenuRole(QAction::AboutRole);
    menu->addAction(about);
}

/// From an empty query to its rows.
QString TMainWindow::Guide() const {
    const QStringList steps{
        tr("%1: choose what the result shows; type to search the menu. A click on the blue words "
           "of "
           "a column chooses another field, or sorts.")
            .arg(Named(*addColumnAction)),
        tr("%1: choose a field, then click on the blue words to change what is compared. Brackets "
           "say whether all, any or none of their conditions apply.")
            .arg(Named(*addConditionAction)),
        tr("%1: captions, formulas, sums and counts. With a sum there is one row for each "
           "combination of the other columns.")
            .arg(Named(*editColumnsAction)),
        tr("%1: the tables that the query joins stand below the columns; where several ways lead "
           "from one to the other, choose the one that is meant.")
            .arg(Named(*joinWayAction)),
        tr("%1: the rows appear below. A click on a header sorts by that column.")
            .arg(Named(*runAction)),
        tr("%1 keeps the query, %2 its rows for other programs.")
            .arg(Named(*saveAction), Named(*saveRowsAction)),
        tr("%1: every step can be taken back.").arg(Named(*undoAction)),
    };
    QString list;
    for (const QString& step : steps)
        list += QStringLiteral("<li style=\"margin-bottom: 6px\">%1</li>").arg(step);
    return QStringLiteral("<p>%1</p><ol>%2</ol><p>%3</p>")
        .arg(tr("A query shows columns of a database, for the records that its conditions let "
                "through."),
             list,
             tr("%1 leads to other databases; a file of SQLite can be dropped on the window. "
                "Databases are only read, never changed.")
                 .arg(Named(*openDatabaseAction)));
}

QString TMainWindow::KeyTables() const {
    QString text;
    for (const QAction* each : menuBar()->actions())
        if (each->menu())
            text += KeyTable(PlainText(each->menu()->title()), MenuKeys(*each->menu()));
    QString rows;
    for (const auto& [keys, name] : TKQueryPanel::Keys())
        rows += KeyRow(KeyText(keys), name.toHtmlEscaped());
    text += KeyTable(tr("On a condition or column"), rows);
    text += KeyTable(tr("Between the blue words"), LabelKeys());
    return text;
}

void TMainWindow::ShowAbout() {
    const QString purpose =
        QCoreApplication::translate("main", "Questions to a database without SQL.");
    const QString qt = tr("With Qt %1.").arg(QLatin1String(qVersion()));
    const QString licence = tr("Licence: MIT. Copyright 2026 the tern7 authors.");
    QMessageBox::about(
        this, tr("About tern7-explorer"),
        QStringLiteral("<h3>tern7-explorer %1</h3><p>%2</p><p>%3<br>%4</p>")
            .arg(QCoreApplication::applicationVersion().toHtmlEscaped(), purpose, qt, licence));
}

} // namespace tern7
