#include <tern7/ui/controls/item_list_model.h>

#include <algorithm>
#include <numeric>

#include <QCollator>

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
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        collator.setNumericMode(true);
        std::vector<QCollatorSortKey> keys;
        keys.reserve(order.size());
        for (const QString& item : items)
            keys.push_back(collator.sortKey(item));
        std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
            return keys[static_cast<size_t>(a)] < keys[static_cast<size_t>(b)];
        });
    }
    shown = order;
    endResetModel();
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
    beginResetModel();
    shown.clear();
    for (const int item : order)
        if (wanted.Finds(items[item])) shown.push_back(item);
    endResetModel();
}

int TItemListModel::RowOf(int item) const {
    const auto found = std::find(shown.begin(), shown.end(), item);
    return found == shown.end() ? -1 : static_cast<int>(found - shown.begin());
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
        return Image ? QVariant(Image(item)) : QVariant();
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
