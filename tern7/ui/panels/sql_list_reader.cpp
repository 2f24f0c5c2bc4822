#include <tern7/ui/panels/sql_list_reader.h>

#include <memory>

#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QPointer>
#include <QThreadPool>

#include <tern7/core/global/messages.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

const TDSSQLEditor* EditorOf(const TDSField& field) {
    return field.ValueEditorAs<TDSSQLEditor>();
}

} // namespace

TSQLListReader::TSQLListReader(std::function<TKCustomDBStructure*()> presentStructure,
                               QObject* parent)
    : QObject(parent), structure(std::move(presentStructure)) {}

TSQLListReader::~TSQLListReader() = default;

/// What is known of the field's list by its present statement.
const TSQLListReader::TReading* TSQLListReader::ReadingOf(const TDSField& field) const {
    const auto found = readings.find(field.ID());
    const TDSSQLEditor* editor = EditorOf(field);
    if (found == readings.end() || !editor) return nullptr;
    const TReading& reading = found->second;
    const TKCustomDBStructure& present = field.Structure();
    // an error counts until something changes: then it is worth another try
    const bool same = reading.structure == &present && reading.sql == editor->GetSQLText() &&
                      (reading.loading || reading.revision == present.Revision());
    return same ? &reading : nullptr;
}

TSQLListReader::TState TSQLListReader::StateOf(const TDSField& field) const {
    const TReading* reading = ReadingOf(field);
    if (reading && reading->loading) return TState::Loading;
    if (reading && !reading->error.isEmpty()) return TState::Failed;
    const TDSSQLEditor* editor = EditorOf(field);
    return editor && editor->Opened() ? TState::Ready : TState::Closed;
}

QString TSQLListReader::ErrorOf(const TDSField& field) const {
    const TReading* reading = ReadingOf(field);
    return reading ? reading->error : QString();
}

void TSQLListReader::Read(const TDSField& field, bool demanded) {
    const TState state = StateOf(field);
    const TDSSQLEditor* editor = EditorOf(field);
    if (!editor || state == TState::Loading) return;
    if (!demanded && state != TState::Closed) return;
    TReading& reading = readings[field.ID()];
    const TKCustomDBStructure& present = field.Structure();
    reading = {editor->GetSQLText(), &present, present.Revision(), false, {}};
    try {
        Start(reading, field, demanded);
    } catch (const EKTernError& error) {
        reading.error = ToQt(error.what());
    }
}

void TSQLListReader::Start(TReading& reading, const TDSField& field, bool demanded) {
    TKDBInfo* info = field.Structure().DatabaseInfo();
    if (!info) throw EKDBStructError(std::string(messages::NoDatabaseInfo));
    auto job = info->SQLValuesJob(reading.sql);
    // the database can be asked here only: not without need
    if (!job && !demanded) return;
    reading.loading = true;
    const auto result =
        std::make_shared<TResult>(TResult{field.ID(), reading.sql, reading.structure, {}, {}, {}});
    const QPointer<TSQLListReader> reader(this);
    auto finish = [reader, result] {
        if (reader) reader->Finish(std::move(*result));
    };
    auto run = [result](const auto& read) {
        try {
            read(result->values, result->captions);
        } catch (const std::exception& error) {
            result->error = ToQt(error.what());
        }
    };
    QCoreApplication* application = QCoreApplication::instance();
    if (job) {
        QThreadPool::globalInstance()->start([job, run, finish, application] {
            run(job);
            QMetaObject::invokeMethod(application, finish, Qt::QueuedConnection);
        });
        return;
    }
    QMetaObject::invokeMethod(
        application,
        [this, reader, run, finish, result] {
            TKCustomDBStructure* present = reader ? structure() : nullptr;
            TKDBInfo* here = present ? present->DatabaseInfo() : nullptr;
            if (!here) return finish();
            QGuiApplication::setOverrideCursor(Qt::BusyCursor);
            run([&](TStrings& values, TStrings& captions) {
                here->GetSQLValues(result->sql, values, captions);
            });
            QGuiApplication::restoreOverrideCursor();
            finish();
        },
        Qt::QueuedConnection);
}

/// Field and statement may have become others meanwhile: then nobody waits for the list any more.
void TSQLListReader::Finish(TResult result) {
    const auto known = readings.find(result.fieldID);
    const TKCustomDBStructure* present = structure();
    if (known == readings.end() || known->second.sql != result.sql ||
        known->second.structure != result.structure || present != result.structure)
        return;
    known->second.loading = false;
    known->second.error = result.error;
    const TDSField* field = present ? present->FieldByID(result.fieldID) : nullptr;
    auto* editor = field ? field->ValueEditorAs<TDSSQLEditor>() : nullptr;
    const bool wanted = editor && editor->GetSQLText() == result.sql;
    if (wanted && result.error.isEmpty())
        editor->Adopt(std::move(result.values), std::move(result.captions));
    emit finished(result.fieldID);
}

} // namespace tern7
