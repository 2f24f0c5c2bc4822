#pragma once

#include <QIcon>
#include <QList>
#include <QStringList>

#include <tern7/ui/controls/drop_down_label.h>
#include <tern7/ui/controls/item_groups.h>

namespace tern7 {

/// A label whose value is one of a list. Item i is shown, line i of `Values` is stored; items
/// belong to named groups. How the list is shown is up to the classes below.
class TDropDownList : public TDropDownLabel {
    Q_OBJECT
    Q_PROPERTY(QStringList Items READ Items WRITE SetItems)
    Q_PROPERTY(QStringList Values READ Values WRITE SetValues)
    Q_PROPERTY(bool SortList READ SortList WRITE SetSortList)
    Q_PROPERTY(int ItemIndex READ ItemIndex WRITE SetItemIndex STORED false DESIGNABLE false)

public:
    explicit TDropDownList(QWidget* parent = nullptr);

    const QStringList& Items() const { return items; }
    void SetItems(const QStringList& lines);
    const QStringList& Values() const { return values; }
    void SetValues(const QStringList& lines) { values = lines; }
    /// List boxes show the items in alphabetical order.
    bool SortList() const { return sortList; }
    void SetSortList(bool on) { sortList = on; }
    /// The images that the indices of the image events mean.
    const QList<QIcon>& Images() const { return images; }
    void SetImages(const QList<QIcon>& icons) { images = icons; }

    /// -1 when the value is none of the list. Setting it sets the value and shows the item; -1
    /// empties the value. Raises EDDLabelError, and changes nothing, when there is no such value or
    /// item.
    int ItemIndex() const { return itemIndex; }
    void SetItemIndex(int index);

    const TItemGroupList& Groups() const { return groups; }
    void AddItem(const QString& groupName, const QString& item, const QString& itemValue);
    /// Pairs the lines of both lists; raises EDDLabelError when there are fewer items than values.
    void AddItems(const QString& groupName, const QStringList& itemList,
                  const QStringList& valueList);
    void ClearAll();

protected:
    void ShowControl() override;
    void ValueChanged() override;
    /// What is shown for the value: its item's text, else the value itself.
    virtual QString ValueCaption() const;

    /// Empty for an index without an item.
    QString ItemText(int index) const { return items.value(index); }

private:
    void EnsureGroups();

    QStringList items;
    QStringList values;
    QList<QIcon> images;
    TItemGroupList groups;
    int itemIndex = -1;
    bool sortList = false;
    bool ownGroup = false; // the only group was made here, because nobody made one
};

} // namespace tern7
