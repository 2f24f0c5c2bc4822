#pragma once

#include <functional>
#include <vector>

#include <QAbstractListModel>
#include <QIcon>
#include <QStringList>

namespace tern7 {

/// Items as list boxes show them: sorted or not, searched, with check marks or without. A row
/// stands for an item and says which: nothing is made per item, so thousands open at once.
class TItemListModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// The role that gives a row's item index.
    static constexpr int itemIndexRole = Qt::UserRole;

    void SetItems(const QStringList& lines, bool sorted);
    const QStringList& Items() const { return items; }
    bool Checkable() const { return checkable; }
    void SetCheckable(bool on) { checkable = on; }
    /// Both raise EDDLabelError when there is no such item.
    bool Checked(int item) const;
    void SetChecked(int item, bool on);
    /// All items in display order, hidden by a search or not.
    const std::vector<int>& Order() const { return order; }
    void Search(const QString& typed);
    int ItemOf(int row) const { return shown[static_cast<size_t>(row)]; }
    /// The row of an item, or -1 when a search hides it.
    int RowOf(int item) const { return rows[static_cast<size_t>(item)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Gives the image of an item; asked for rows in sight only.
    std::function<QIcon(int item)> Image;

signals:
    void checkChanged(int item);

private:
    void Show(std::vector<int> wanted);

    QStringList items;
    std::vector<int> order;
    std::vector<int> shown; // the item of each row
    std::vector<int> rows;  // the row of each item, or -1
    std::vector<bool> checks;
    bool checkable = false;
};

} // namespace tern7
