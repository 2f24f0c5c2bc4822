#pragma once

#include <QAbstractTableModel>
#include <QStyledItemDelegate>

#include <tern7/ui/dialogs/result_fields_draft.h>

namespace tern7 {

/// A table of a draft: two columns with headings. The draft outlives it.
class TDraftModel : public QAbstractTableModel {
    Q_OBJECT

public:
    TDraftModel(TResultFieldsDraft& columns, QStringList headings, QObject* parent)
        : QAbstractTableModel(parent), draft(columns), headers(std::move(headings)) {}

    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : 2;
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// Shows the draft anew after changes of its rows.
    void Reset() {
        beginResetModel();
        endResetModel();
    }

protected:
    TResultFieldsDraft& draft;

private:
    QStringList headers;
};

/// The columns: caption and expression, both to be edited in place.
class TResultColumnsModel : public TDraftModel {
    Q_OBJECT

public:
    enum TColumn { Caption = 0, Expression = 1 };
    /// The offset of what is wrong in an expression, in characters; invalid when nothing is.
    static constexpr int problemRole = Qt::UserRole;

    using TDraftModel::TDraftModel;
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

signals:
    /// The user entered something.
    void entered(int row);

private:
    QVariant ProblemColor() const;
};

/// The sorted columns in the order of sorting: caption and direction.
class TSortedColumnsModel : public TDraftModel {
    Q_OBJECT

public:
    enum TColumn { Caption = 0, Sorting = 1 };

    TSortedColumnsModel(TResultFieldsDraft& columns, QStringList headings, QStringList sortings,
                        QObject* parent);
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// The ordinal of a TSortingType; without sorting the row goes.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Not sorted, ascending, descending.
    const QStringList& Sortings() const { return sortings; }

signals:
    void entered();

private:
    QStringList sortings;
};

/// Edits an expression, which is written from left to right everywhere.
class TExpressionDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

/// Chooses a sort direction.
class TSortingDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
};

} // namespace tern7
