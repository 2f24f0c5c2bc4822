#include "error_text.h"

#include <optional>
#include <string_view>
#include <vector>

#include <QCoreApplication>
#include <QStringList>

#include <tern7/core/corekit/files.h>
#include <tern7/core/global/messages.h>
#include <tern7/ui/support/bidi_text.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

struct TWords {
    std::string_view message; // of the library
    const char* text;         // for users; %1, %2 ... stand for its %s and %d
};

constexpr TWords words[] = {
    {messages::CanNotOpenFile, QT_TRANSLATE_NOOP("messages", "The file %1 can not be opened.")},
    {messages::CanNotWriteFile, QT_TRANSLATE_NOOP("messages", "The file %1 can not be written.")},
    {messages::WrongValueOfKey,
     QT_TRANSLATE_NOOP("messages", "The text is damaged: section %2 has a wrong value of %1: %3")},
    {messages::SectionNotFound,
     QT_TRANSLATE_NOOP("messages", "The text is damaged: section %1 is missing.")},
    {messages::TextTooLong, QT_TRANSLATE_NOOP("messages", "The text is too long.")},
    {messages::NestedTooDeep, QT_TRANSLATE_NOOP("messages", "Rows are nested too deep.")},
    {messages::NewerVersion,
     QT_TRANSLATE_NOOP("messages", "The text has the version %1; what is newer than %2 was not "
                                   "read.")},
    {messages::NoUTF8,
     QT_TRANSLATE_NOOP("messages", "The text is not UTF-8; it was read as Windows-1252.")},
    // building
    {messages::NoSuchTable, QT_TRANSLATE_NOOP("messages", "The database has no table %1.")},
    {messages::NoPath,
     QT_TRANSLATE_NOOP("messages", "No links of the database lead from one of the tables to the "
                                   "others.")},
    {messages::NotEnoughInformation,
     QT_TRANSLATE_NOOP("messages", "The query has no column and no condition yet.")},
    {messages::NoStructure, QT_TRANSLATE_NOOP("messages", "No database is open.")},
    {messages::WrongValue, QT_TRANSLATE_NOOP("messages", "This can not be a value of “%1”: %2")},
    {messages::CanNotExecuteCondition,
     QT_TRANSLATE_NOOP("messages", "This condition is text that can not be executed safely: %1")},
    {messages::NulInValue, QT_TRANSLATE_NOOP("messages", "A value holds a NUL character.")},
    {messages::FieldNotFound, QT_TRANSLATE_NOOP("messages", "There is no field %1.")},
    {messages::PlaceholderInLiteral,
     QT_TRANSLATE_NOOP("messages",
                       "A text in an expression with fields can not hold “@” and a digit: %1")},
    {messages::FieldCountTooSmall,
     QT_TRANSLATE_NOOP("messages", "The statement for a list of values must give two columns.")},
    // connecting and running
    {messages::WrongDatabaseAddress,
     QT_TRANSLATE_NOOP("messages", "The database must be given as sqlite:PATH, "
                                   "postgresql://user@host:port/name, "
                                   "mysql://user@host:port/name or odbc:DSN.")},
    {messages::WrongDatabasePort,
     QT_TRANSLATE_NOOP("messages", "The port must be a number from 1 to 65535.")},
    {messages::WrongDatabaseOption,
     QT_TRANSLATE_NOOP("messages", "The address of the database has an unknown or wrong option "
                                   "“%1”.")},
    {messages::NoDatabaseName, QT_TRANSLATE_NOOP("messages", "The address names no database.")},
    {messages::NoSuchDatabaseFile, QT_TRANSLATE_NOOP("messages", "There is no database file %1.")},
    {messages::NoDatabaseDriver,
     QT_TRANSLATE_NOOP("messages", "The driver %1 of Qt SQL is not installed.")},
    {messages::CanNotOpenDatabase,
     QT_TRANSLATE_NOOP("messages", "The database %1 can not be opened: %2")},
    {messages::OnlySelect, QT_TRANSLATE_NOOP("messages", "Only SELECT statements are executed.")},
    {messages::OnlyOneStatement,
     QT_TRANSLATE_NOOP("messages", "Only one statement is executed at a time.")},
    {messages::StatementNotClosed,
     QT_TRANSLATE_NOOP("messages", "A quote, comment or bracket of the statement is not closed.")},
    {messages::NulInStatement,
     QT_TRANSLATE_NOOP("messages", "The statement holds a NUL character.")},
    {messages::ParameterWithoutValue,
     QT_TRANSLATE_NOOP("messages", "The parameter %1 has no value.")},
};

/// The text between the places that are filled in.
QStringList Pieces(std::string_view message) {
    return ToQt(std::string(message))
        .replace(QLatin1String("%d"), QLatin1String("%s"))
        .split(QStringLiteral("%s"));
}

/// What was filled in; nothing for another message.
std::optional<QStringList> FilledIn(const QStringList& pieces, const QString& message) {
    if (!message.startsWith(pieces.front())) return {};
    QStringList values;
    qsizetype at = pieces.front().size();
    for (qsizetype i = 1; i < pieces.size(); ++i) {
        const bool last = i + 1 == pieces.size();
        const qsizetype next =
            last ? message.size() - pieces[i].size() : message.indexOf(pieces[i], at);
        if (next < at || (last && !message.endsWith(pieces[i]))) return {};
        values << message.mid(at, next - at);
        at = next + pieces[i].size();
    }
    return at == message.size() ? std::optional(values) : std::nullopt;
}

/// In one pass: values may hold a "%1".
QString FillIn(const QString& text, const QStringList& values) {
    const auto value = [&](qsizetype i) { return Isolated(values.value(i)); };
    switch (values.size()) {
    case 0:
        return text;
    case 1:
        return text.arg(value(0));
    case 2:
        return text.arg(value(0), value(1));
    default:
        return text.arg(value(0), value(1), value(2));
    }
}

const EKFileError* FileErrorIn(const std::exception& error, EKFileError& found) {
    if (const auto* file = dynamic_cast<const EKFileError*>(&error)) return &(found = *file);
    try {
        std::rethrow_if_nested(error);
    } catch (const std::exception& inner) {
        return FileErrorIn(inner, found);
    }
    return nullptr;
}

} // namespace

QString MessageText(const QString& message) {
    for (const TWords& each : words) {
        const auto values = FilledIn(Pieces(each.message), message);
        if (!values) continue;
        return FillIn(QCoreApplication::translate("messages", each.text), *values);
    }
    return message;
}

QString ErrorText(const std::exception& error) {
    return MessageText(ToQt(error.what()));
}

QString FileReason(const std::exception& error) {
    EKFileError found({}, 0);
    const EKFileError* file = FileErrorIn(error, found);
    return file && file->Reason() != 0 ? qt_error_string(file->Reason()) : ErrorText(error);
}

} // namespace tern7
