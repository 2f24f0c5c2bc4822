#include "recent_list.h"

#include <QSettings>

namespace tern7 {

namespace {

constexpr qsizetype mostEntries = 10;

} // namespace

QStringList TRecentList::Entries() const {
    return QSettings().value(key).toStringList();
}

void TRecentList::Add(const QString& entry) {
    QStringList entries = Entries();
    entries.removeAll(entry);
    entries.prepend(entry);
    Store(entries.mid(0, mostEntries));
}

void TRecentList::Remove(const QString& entry) {
    QStringList entries = Entries();
    entries.removeAll(entry);
    Store(entries);
}

void TRecentList::Store(const QStringList& entries) const {
    QSettings().setValue(key, entries);
}

} // namespace tern7
