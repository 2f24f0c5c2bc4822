#pragma once

#include <memory>
#include <vector>

#include <QAbstractTableModel>

#include "query_runner.h"

namespace tern7 {

/// The rows of a result as they come in.
class TResultModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void Clear();
    void SetColumns(const std::vector<TKResultColumn>& list);
    void Append(TResultRows&& newRows);
    /// Draws the rows paler, as those of a query that is another by now.
    void SetPale(bool value);

    const TResultRow& Row(int i) const { return rows[static_cast<size_t>(i)]; }
    const std::vector<TKResultColumn>& Columns() const { return columns; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<TKResultColumn> columns;
    TResultRows rows;
    bool pale = false;
};

} // namespace tern7
