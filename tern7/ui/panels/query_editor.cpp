#include <tern7/ui/panels/query_editor.h>

#include <QAction>
#include <QApplication>
#include <QMetaObject>
#include <QPointer>
#include <QScopedValueRollback>
#include <QUndoCommand>

#include <tern7/core/query/query_record.h>
#include <tern7/ui/support/guarded.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

/// A step on the stack. It was done before it came there.
class TKQueryEditor::TCommand : public QUndoCommand {
public:
    TCommand(TKQueryEditor& owner, const QString& text, std::unique_ptr<TKQueryRecord> changes,
             const QByteArray& step)
        : editor(owner), name(text.toUtf8()), continued(step), record(std::move(changes)) {
        Translate();
    }

    void Translate() { setText(tr(name.constData())); }

    void undo() override { editor.Replay(*record, true); }
    void redo() override {
        if (done) editor.Replay(*record, false);
        done = true;
    }
    int id() const override { return 1; }
    bool mergeWith(const QUndoCommand* other) override {
        const auto* later = static_cast<const TCommand*>(other);
        if (later->continued.isEmpty() || later->continued != name) return false;
        record->Append(*later->record);
        return true;
    }

private:
    TKQueryEditor& editor;
    const QByteArray name;      // before it is translated
    const QByteArray continued; // a step of this name becomes one with it; empty: none
    std::unique_ptr<TKQueryRecord> record;
    bool done = false;
};

TKQueryEditor::TKQueryEditor(TKQuery& owner)
    : query(&owner), edits(owner), stack(std::make_unique<QUndoStack>()) {
    query->SetSteps(this);
}

TKQueryEditor::~TKQueryEditor() {
    if (query) query->SetSteps(nullptr);
}

void TKQueryEditor::QueryDestroyed() {
    query = nullptr;
    stack->clear();
}

// --- steps

bool TKQueryEditor::Run(const QString& text, const std::function<void()>& change) {
    return Run(text, change, {});
}

void TKQueryEditor::TranslateSteps() {
    for (int i = 0; i < stack->count(); ++i) // all of them are ours, and not const
        static_cast<TCommand*>(const_cast<QUndoCommand*>(stack->command(i)))->Translate();
    emit stack->undoTextChanged(stack->undoText());
    emit stack->redoTextChanged(stack->redoText());
}

void TKQueryEditor::RunStep(const std::string& name, const std::function<void()>& change) {
    Run(ToQt(name), change);
}

void TKQueryEditor::ContinueStep(const std::string& last, const std::string& name,
                                 const std::function<void()>& change) {
    Run(ToQt(name), change, QByteArray::fromStdString(last));
}

bool TKQueryEditor::Run(const QString& text, const std::function<void()>& change,
                        const QByteArray& continued) {
    if (!query) return false;
    if (recording || replaying) { // part of the step around it; a replay notices by itself
        change();
        return true;
    }
    const QPointer<QUndoStack> alive(stack.get()); // handlers may delete the editor
    auto record = std::make_unique<TKQueryRecord>(*query);
    std::exception_ptr error;
    bool failed = false;
    {
        TKQueryRecording recorder(*query, *record);
        recording = true;
        try {
            change();
        } catch (...) {
            error = std::current_exception();
            failed = true;
        }
        try {
            if (!failed) recorder.SendEvents();
        } catch (...) { // from a handler of the application: the change itself was made
            error = std::current_exception();
        }
        if (alive) recording = false;
    }
    if (alive) replayedRow = nullptr;
    const bool changed = !record->IsEmpty();
    if (alive && query && changed) {
        if (!record->IsComplete())
            Forget();
        else if (failed)
            record->Undo();
        else
            stack->push(new TCommand(*this, text, std::move(record), continued));
    }
    if (error) std::rethrow_exception(error);
    return changed;
}

/// The stack must be at rest when handlers hear of the step.
void TKQueryEditor::TakeOver(QAction& action, void (TKQueryEditor::*step)()) {
    QObject::disconnect(&action, nullptr, stack.get(), nullptr);
    QObject::connect(&action, &QAction::triggered, stack.get(), [this, step] {
        Guarded(QApplication::activeWindow(), [this, step] { (this->*step)(); });
    });
}

QAction* TKQueryEditor::MakeUndoAction(QObject* parent) {
    QAction* action = stack->createUndoAction(parent, tr("Undo"));
    action->setShortcut(QKeySequence::Undo);
    TakeOver(*action, &TKQueryEditor::Undo);
    return action;
}

QAction* TKQueryEditor::MakeRedoAction(QObject* parent) {
    QAction* action = stack->createRedoAction(parent, tr("Redo"));
    action->setShortcuts(QKeySequence::Redo);
    TakeOver(*action, &TKQueryEditor::Redo);
    return action;
}

void TKQueryEditor::Undo() {
    ReplayFromOutside(&QUndoStack::undo);
}

void TKQueryEditor::Redo() {
    ReplayFromOutside(&QUndoStack::redo);
}

void TKQueryEditor::ReplayFromOutside(void (QUndoStack::*step)()) {
    if (!query || recording || replaying) return;
    const QPointer<QUndoStack> alive(stack.get());
    replayError = nullptr;
    TKQuery::THeldEvents events(*query); // until the stack is at rest
    (stack.get()->*step)();
    const std::exception_ptr error = std::exchange(replayError, nullptr);
    ForgetIfStale();
    events.Send();
    if (alive) ForgetIfStale();
    if (error) std::rethrow_exception(error);
}

/// Called by the stack, where exceptions must not pass.
void TKQueryEditor::Replay(TKQueryRecord& record, bool undo) {
    if (!query || recording || replaying || stale) return;
    try {
        const QScopedValueRollback busy(replaying, true);
        TKQuery::THeldEvents events(*query);
        if (undo)
            record.Undo();
        else
            record.Redo();
        replayedRow = record.Row();
        events.Send();
    } catch (...) {
        replayError = std::current_exception();
    }
}

/// Other changes were made: no step can be taken back any more.
void TKQueryEditor::Forget() {
    replayedRow = nullptr;
    if (stack->count() == 0 || stale) return;
    if (!recording && !replaying) return stack->clear();
    stale = true;
    QMetaObject::invokeMethod(
        stack.get(), [this] { ForgetIfStale(); }, Qt::QueuedConnection);
}

void TKQueryEditor::ForgetIfStale() {
    if (std::exchange(stale, false)) stack->clear();
}

} // namespace tern7
