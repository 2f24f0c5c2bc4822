#include "main_window.h"

#include <QAction>
#include <QMenuBar>
#include <QTableView>

#include <tern7/ui/panels/query_panel.h>

#include "result_view.h"

namespace tern7 {

void TMainWindow::MakeEditMenu() {
    QMenu* menu = Menu(QT_TR_NOOP("&Edit"));
    undoAction = Action(QT_TR_NOOP("&Undo"), QKeySequence::Undo, [this] { conditions->Undo(); });
    redoAction = Action(QT_TR_NOOP("&Redo"), QKeySequence(QStringLiteral("Ctrl+Shift+Z")),
                        [this] { conditions->Redo(); });
    const QUndoStack& stack = conditions->Editor().Stack();
    connect(&stack, &QUndoStack::indexChanged, this, &TMainWindow::ShowSteps);
    Worded([this] { ShowSteps(); });
    menu->addActions({undoAction, redoAction});
    menu->addSeparator();
    // A shortcut of the table alone: elsewhere Ctrl+C copies what is selected there.
    QAction* copy =
        Action(QT_TR_NOOP("&Copy rows"), QKeySequence::Copy, [this] { results->CopySelected(); });
    copy->setShortcutContext(Qt::WidgetShortcut);
    results->Table().addAction(copy);
    results->Table().setContextMenuPolicy(Qt::ActionsContextMenu);
    menu->addAction(copy);
}

void TMainWindow::Step(const char* name, const std::function<void()>& change) {
    conditions->CloseEdit();
    conditions->Editor().Run(QString::fromUtf8(name), change);
}

/// The actions name the step that they would take.
void TMainWindow::ShowSteps() {
    const QUndoStack& stack = conditions->Editor().Stack();
    undoAction->setEnabled(stack.canUndo());
    redoAction->setEnabled(stack.canRedo());
    const QString undo = stack.undoText(), redo = stack.redoText();
    undoAction->setText(undo.isEmpty() ? tr("&Undo") : tr("&Undo: %1").arg(undo));
    redoAction->setText(redo.isEmpty() ? tr("&Redo") : tr("&Redo: %1").arg(redo));
    undoAction->setIconText(tr("Undo"));
    redoAction->setIconText(tr("Redo"));
}

} // namespace tern7
