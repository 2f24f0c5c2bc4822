// Where things stand on a result fields panel. Positions are those on the canvas, which scrolls:
//
//     LeftMargin
//     |---|(1)|-ElemSpace-|Customer City|-ElemSpace-|Ascending|     TopMargin above
//     |---|(2)| ...                                                 H, RowSpace between
//     |---|< Click to add new field >                               RowSpace + 2 above
//
// H is the height of a text line plus one. Where text is read from the right all of it is mirrored.

#include <algorithm>

#include <tern7/ui/panels/result_fields_panel.h>
#include <tern7/ui/support/text_size.h>

namespace tern7 {

int TKResultFieldsPanel::RowHeight() const {
    return ternTextHeight(QStringLiteral("1"), font()) + 1;
}

/// The room that the rows and the add label take.
QSize TKResultFieldsPanel::Extent() const {
    int width = addLabel->sizeHint().width();
    for (const auto& row : rows)
        width = std::max(width, row->Button()->sizeHint().width() + appearance.ElemSpace() +
                                    row->FieldLabel()->sizeHint().width() + appearance.ElemSpace() +
                                    row->SortLabel()->sizeHint().width());
    const int bottom = AddRowTop() + addLabel->sizeHint().height() + appearance.TopMargin();
    return {width + 2 * appearance.LeftMargin(), bottom};
}

int TKResultFieldsPanel::RowTop(int index) const {
    return index * (appearance.RowSpace() + RowHeight()) + appearance.TopMargin();
}

int TKResultFieldsPanel::AddRowTop() const {
    if (rows.IsEmpty()) return appearance.TopMargin();
    return RowTop(rows.GetCount() - 1) + RowHeight() + appearance.RowSpace() + 2;
}

/// Places a control by its distance from the side where reading starts.
void TKResultFieldsPanel::PlaceControl(QWidget& control, int start, int top, QSize size) {
    const bool fromRight = layoutDirection() == Qt::RightToLeft;
    const int left = fromRight ? canvas->width() - start - size.width() : start;
    control.setGeometry(QRect(QPoint(left, top), size));
    if (control.isHidden() && !IsCovered(control)) control.show();
}

/// A label whose editor is open is hidden behind it.
bool TKResultFieldsPanel::IsCovered(const QWidget& control) {
    const auto* label = qobject_cast<const TDropDownLabel*>(&control);
    return label && label->EditMode();
}

void TKResultFieldsPanel::PlaceRow(int index) {
    const TResultFieldRow& row = *rows[index];
    const int top = RowTop(index);
    int start = appearance.LeftMargin();
    const auto place = [&](QWidget& control, QSize size) {
        PlaceControl(control, start, top, size);
        start += size.width() + appearance.ElemSpace();
    };
    place(*row.Button(), {row.Button()->sizeHint().width(), RowHeight()});
    place(*row.FieldLabel(), row.FieldLabel()->sizeHint());
    place(*row.SortLabel(), row.SortLabel()->sizeHint());
}

void TKResultFieldsPanel::PlaceRows(int from) {
    for (int i = from; i < rows.GetCount(); ++i)
        PlaceRow(i);
    ShowAddRow();
}

void TKResultFieldsPanel::ShowAddRow() {
    PlaceControl(*addLabel, appearance.LeftMargin(), AddRowTop(), addLabel->sizeHint());
}

/// The canvas fills the panel, or more where the rows need it.
void TKResultFieldsPanel::FitCanvas() {
    const QSize size = extent.expandedTo(viewport()->size());
    if (size == canvas->size()) return;
    canvas->resize(size);
    if (layoutDirection() == Qt::RightToLeft) PlaceRows(0);
}

void TKResultFieldsPanel::PlaceAll() {
    extent = Extent();
    FitCanvas();
    PlaceRows(0);
}

} // namespace tern7
