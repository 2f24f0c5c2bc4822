#include "recent_list.h"

#include <QSettings>

namespace tern7 {

namespace {

constexpr qsizetype mostEntries = 10;

} // namespace

QStringList TRecentList::Entries() const {
    return QSettings().value(key).toStringList();
}

QString TRecentList::NoteOf(const QString& entry) const {
    return Notes().value(entry).toString();
}

void TRecentList::Add(const QString& entry, const QString& note) {
    QStringList entries = Entries();
    entries.removeAll(entry);
    entries.prepend(entry);
    QVariantMap notes = Notes();
    notes[entry] = note;
    Store(entries.mid(0, mostEntries), notes);
}

void TRecentList::Remove(const QString& entry) {
    QStringList entries = Entries();
    entries.removeAll(entry);
    Store(entries, Notes());
}

QVariantMap TRecentList::Notes() const {
    return QSettings().value(key + QStringLiteral("-notes")).toMap();
}

void TRecentList::Store(const QStringList& entries, QVariantMap notes) const {
    for (const QString& noted : notes.keys())
        if (!entries.contains(noted) || notes.value(noted).toString().isEmpty())
            notes.remove(noted);
    QSettings settings;
    settings.setValue(key, entries);
    settings.setValue(key + QStringLiteral("-notes"), notes);
}

} // namespace tern7
