#pragma once

#include <QString>
#include <QStringList>

namespace tern7 {

/// The last few of something, the latest first, kept in the settings.
class TRecentList {
public:
    explicit TRecentList(QString settingsKey) : key(std::move(settingsKey)) {}

    QStringList Entries() const;
    void Add(const QString& entry);
    void Remove(const QString& entry);

private:
    void Store(const QStringList& entries) const;

    QString key;
};

} // namespace tern7
