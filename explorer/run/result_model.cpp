#include "result_model.h"

#include <charconv>
#include <iterator>

#include <QGuiApplication>
#include <QPalette>

#include <tern7/ui/support/text.h>
#include <tern7/ui/support/tool_tip_text.h>

namespace tern7 {

namespace {

using TKind = TBoundValue::TKind;

constexpr qsizetype mostShown = 300; // characters of a cell; the tool tip has more
constexpr qsizetype mostHint = 3000;

bool IsNumber(TKind kind) {
    return kind == TKind::Integer || kind == TKind::Float || kind == TKind::Decimal;
}

/// As people read it: the last two of the digits that a floating point number may have say nothing.
QString CellText(const TBoundValue& cell) {
    if (cell.kind == TKind::Null) return {};
    double number = 0;
    const char* const end = cell.text.data() + cell.text.size();
    if (cell.kind != TKind::Float || std::from_chars(cell.text.data(), end, number).ptr != end)
        return ToQt(cell.text);
    char digits[32];
    const auto written =
        std::to_chars(digits, std::end(digits), number, std::chars_format::general, 15);
    return QString::fromLatin1(digits, written.ptr - digits);
}

/// Can still be read well.
QColor PaleText() {
    const QPalette colours = QGuiApplication::palette();
    const QColor ink = colours.color(QPalette::Text), ground = colours.color(QPalette::Base);
    const auto mix = [](int a, int b) { return (11 * a + 9 * b) / 20; };
    return {mix(ink.red(), ground.red()), mix(ink.green(), ground.green()),
            mix(ink.blue(), ground.blue())};
}

QString OneLine(QString text) {
    if (text.size() > mostShown) text = text.left(mostShown) + QChar(0x2026);
    return text.replace(u'\n', u' ').replace(u'\r', u' ');
}

} // namespace

void TResultModel::Clear() {
    beginResetModel();
    columns.clear();
    rows.clear();
    endResetModel();
}

void TResultModel::SetColumns(const std::vector<TKResultColumn>& list) {
    beginResetModel();
    columns = list;
    rows.clear();
    endResetModel();
}

void TResultModel::Append(TResultRows&& newRows) {
    if (newRows.empty()) return;
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(newRows.size()) - 1);
    rows.insert(rows.end(), std::make_move_iterator(newRows.begin()),
                std::make_move_iterator(newRows.end()));
    endInsertRows();
}

void TResultModel::SetPale(bool value) {
    if (value == pale) return;
    pale = value;
    if (rows.empty() || columns.empty()) return;
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1), {Qt::ForegroundRole});
}

int TResultModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

int TResultModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns.size());
}

QVariant TResultModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const TBoundValue& cell = Row(index.row())[static_cast<size_t>(index.column())];
    switch (role) {
    case Qt::DisplayRole:
        return OneLine(CellText(cell));
    case Qt::ToolTipRole: {
        if (cell.kind == TKind::Null) return tr("No value");
        const QString text = CellText(cell);
        const bool whole = text.size() < 40 && !text.contains(u'\n');
        return whole ? QVariant() : QVariant(ToolTipText(text.left(mostHint)));
    }
    case Qt::TextAlignmentRole:
        return static_cast<int>(
            (IsNumber(cell.kind) ? Qt::AlignRight | Qt::AlignAbsolute : Qt::AlignLeading) |
            Qt::AlignVCenter);
    case Qt::ForegroundRole:
        return pale ? QVariant(PaleText()) : QVariant();
    default:
        return {};
    }
}

QVariant TResultModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical)
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    if (role != Qt::DisplayRole || section >= columnCount()) return {};
    return ToQt(columns[static_cast<size_t>(section)].name);
}

} // namespace tern7
