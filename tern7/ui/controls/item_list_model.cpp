#include <tern7/ui/controls/item_list_model.h>

#include <algorithm>
#include <numeric>

#include <QCollator>

#include <tern7/ui/controls/control_events.h>
#include <tern7/ui/controls/text_search.h>

namespace tern7 {

void TItemListModel::SetItems(const QStringList& lines, bool sorted) {
    beginResetModel();
    items = lines;
    checks.assign(static_cast<size_t>(items.size()), false);
    order.resize(checks.size());
    std::iota(order.begin(), order.end(), 0);
    if (sorted) {
        QCollator collator;
        collator.setNumericMode(true);
        std::vector<QCollatorSortKey> keys;
        keys.reserve(order.size());
        for (const QString& item : items)
            keys.push_back(collator.sortKey(item.toCaseFolded()));
        std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
            return keys[static_cast<size_t>(a)] < keys[static_cast<size_t>(b)];
        });
    }
    Show(order);
    endResetModel();
}

void TItemListModel::Show(std::vector<int> wanted) {
    shown = std::move(wanted);
    rows.assign(checks.size(), -1);
    for (size_t row = 0; row < shown.size(); ++row)
        rows[static_cast<size_t>(shown[row])] = static_cast<int>(row);
}

bool TItemListModel::Checked(int item) const {
    if (item < 0 || item >= items.size()) throw EDDLabelError(EDDLabelError::indexOutOfBounds);
    return checks[static_cast<size_t>(item)];
}

void TItemListModel::SetChecked(int item, bool on) {
    if (Checked(item) == on) return;
    checks[static_cast<size_t>(item)] = on;
    const QModelIndex changed = index(RowOf(item));
    if (changed.isValid()) emit dataChanged(changed, changed, {Qt::CheckStateRole});
    emit checkChanged(item);
}

void TItemListModel::Search(const QString& typed) {
    const TTextSearch wanted(typed);
    std::vector<int> hits;
    for (const int item : order)
        if (wanted.Finds(items[item])) hits.push_back(item);
    beginResetModel();
    Show(std::move(hits));
    endResetModel();
}

int TItemListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown.size());
}

QVariant TItemListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const int item = ItemOf(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return items[item];
    case Qt::CheckStateRole:
        return checkable ? QVariant(Checked(item) ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::DecorationRole:
        return Image ? QVariant(std::function(Image)(item)) : QVariant(); // it may be taken away
    case itemIndexRole:
        return item;
    default:
        return {};
    }
}

bool TItemListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || role != Qt::CheckStateRole) return false;
    SetChecked(ItemOf(index.row()), value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags TItemListModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags plain = QAbstractListModel::flags(index);
    return checkable ? plain | Qt::ItemIsUserCheckable : plain;
}

} // namespace tern7
