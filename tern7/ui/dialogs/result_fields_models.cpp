#include <tern7/ui/dialogs/result_fields_models.h>

#include <QApplication>
#include <QComboBox>
#include <QPalette>

#include <tern7/ui/support/colors.h>
#include <tern7/ui/support/plain_line.h>
#include <tern7/ui/support/text.h>
#include <tern7/ui/support/tool_tip_text.h>

namespace tern7 {

QVariant TDraftModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole) return headers.value(section);
    return QAbstractTableModel::headerData(section, orientation, role);
}

// --- columns

int TResultColumnsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : draft.Count();
}

QVariant TResultColumnsModel::ProblemColor() const {
    return IsDark(QApplication::palette()) ? QColor(255, 130, 130) : QColor(180, 0, 0);
}

QVariant TResultColumnsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= draft.Count()) return {};
    const int row = index.row();
    const std::optional<TResultFieldsDraft::TProblem>& problem = draft.Problem(row);
    const bool expression = index.column() == Expression;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return ToQt(expression ? draft.Expression(row) : draft.Caption(row));
    case Qt::ToolTipRole:
        if (problem) return ToolTipText(problem->Text());
        return ToolTipText(ToQt(expression ? draft.Expression(row) : draft.Caption(row)));
    case Qt::AccessibleDescriptionRole:
        return problem ? problem->Text() : QString();
    case Qt::ForegroundRole:
        return problem && expression ? ProblemColor() : QVariant();
    case problemRole:
        if (!problem || !expression) return {};
        return ToQt(std::string_view(draft.Expression(row)).substr(0, problem->position)).size();
    default:
        return {};
    }
}

bool TResultColumnsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || role != Qt::EditRole) return false;
    if (index.column() == Expression) {
        draft.SetExpression(index.row(), FromQt(value.toString()));
    } else {
        const std::string caption = FromQt(PlainLine(value.toString()));
        if (!Trim(caption).empty()) draft.SetCaption(index.row(), caption);
    }
    emit dataChanged(index.siblingAtColumn(0), index.siblingAtColumn(1));
    emit entered(index.row());
    return true;
}

Qt::ItemFlags TResultColumnsModel::flags(const QModelIndex& index) const {
    return TDraftModel::flags(index) | Qt::ItemIsEditable;
}

// --- sorting

TSortedColumnsModel::TSortedColumnsModel(TResultFieldsDraft& columns, QStringList headings,
                                         QStringList names, QObject* parent)
    : TDraftModel(columns, std::move(headings), parent), sortings(std::move(names)) {}

int TSortedColumnsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(draft.Sorted().size());
}

QVariant TSortedColumnsModel::data(const QModelIndex& index, int role) const {
    const std::vector<int> sorted = draft.Sorted();
    if (!index.isValid() || index.row() >= static_cast<int>(sorted.size())) return {};
    const int column = sorted[static_cast<size_t>(index.row())];
    const int sorting = static_cast<int>(draft.Sorting(column));
    if (role == Qt::EditRole && index.column() == Sorting) return sorting;
    if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
    return index.column() == Sorting ? sortings.value(sorting) : ToQt(draft.Caption(column));
}

bool TSortedColumnsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const std::vector<int> sorted = draft.Sorted();
    if (!index.isValid() || role != Qt::EditRole || index.column() != Sorting) return false;
    draft.SetSorting(sorted.at(static_cast<size_t>(index.row())),
                     static_cast<TSortingType>(value.toInt()));
    emit dataChanged(index, index);
    emit entered();
    return true;
}

Qt::ItemFlags TSortedColumnsModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = TDraftModel::flags(index);
    return index.column() == Sorting ? flags | Qt::ItemIsEditable : flags;
}

// --- editors

void TExpressionDelegate::initStyleOption(QStyleOptionViewItem* option,
                                          const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const bool fromRight = option->direction == Qt::RightToLeft;
    option->direction = Qt::LeftToRight;
    option->displayAlignment = (fromRight ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

QWidget* TExpressionDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                           const QModelIndex& index) const {
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    editor->setLayoutDirection(Qt::LeftToRight);
    editor->setAccessibleName(index.siblingAtColumn(0).data().toString());
    return editor;
}

QWidget* TSortingDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                        const QModelIndex& index) const {
    auto* box = new QComboBox(parent);
    box->addItems(static_cast<const TSortedColumnsModel*>(index.model())->Sortings());
    box->setAccessibleName(index.siblingAtColumn(0).data().toString());
    auto* self = const_cast<TSortingDelegate*>(this);
    connect(box, &QComboBox::activated, self, [self, box] {
        emit self->commitData(box);
        emit self->closeEditor(box);
    });
    QMetaObject::invokeMethod(box, &QComboBox::showPopup, Qt::QueuedConnection);
    return box;
}

void TSortingDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    static_cast<QComboBox*>(editor)->setCurrentIndex(index.data(Qt::EditRole).toInt());
}

void TSortingDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const {
    model->setData(index, static_cast<QComboBox*>(editor)->currentIndex(), Qt::EditRole);
}

} // namespace tern7
