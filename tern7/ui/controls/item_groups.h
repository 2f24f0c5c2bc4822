#pragma once

#include <memory>
#include <vector>

#include <QHash>
#include <QString>

namespace tern7 {

/// A named list of item indices.
class TItemGroup {
public:
    explicit TItemGroup(QString groupName) : name(std::move(groupName)) {}

    const QString& Name() const { return name; }
    void Add(int index) { indices.push_back(index); }
    int Count() const { return static_cast<int>(indices.size()); }
    /// Raises EDDLabelError when there is no such item.
    int Items(int i) const;
    const std::vector<int>& Indices() const { return indices; }

private:
    QString name;
    std::vector<int> indices;
};

/// Owns its groups. Looking a name up ignores case and takes constant time.
class TItemGroupList {
public:
    /// Appends a group that holds one index; returns its position.
    int AddGroup(const QString& name, int index);
    /// The first group of that name, or null.
    TItemGroup* FindByName(const QString& name) const;
    void Clear();
    int Count() const { return static_cast<int>(groups.size()); }
    /// Raises EDDLabelError when there is no such group.
    TItemGroup& Items(int i) const;

private:
    std::vector<std::unique_ptr<TItemGroup>> groups;
    QHash<QString, TItemGroup*> byName; // by folded name, the first of equal ones
};

} // namespace tern7
