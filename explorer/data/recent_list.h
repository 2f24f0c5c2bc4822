#pragma once

#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace tern7 {

/// The last few of something, the latest first, kept in the settings.
class TRecentList {
public:
    explicit TRecentList(QString settingsKey) : key(std::move(settingsKey)) {}

    QStringList Entries() const;
    /// What was noted with an entry goes with it.
    void Add(const QString& entry, const QString& note = {});
    QString NoteOf(const QString& entry) const;
    void Remove(const QString& entry);

private:
    void Store(const QStringList& entries, QVariantMap notes) const;
    QVariantMap Notes() const;

    QString key;
};

} // namespace tern7
