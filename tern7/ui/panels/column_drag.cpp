#include <tern7/ui/panels/column_drag.h>

#include <algorithm>

#include <QAbstractButton>

#include <tern7/ui/panels/result_fields_panel.h>
#include <tern7/ui/support/guarded.h>

namespace tern7 {

TColumnDrag::TColumnDrag(TKResultFieldsPanel& owner) : TButtonDrag(owner), panel(owner) {}

TResultFieldRow* TColumnDrag::Row() const {
    return row;
}

void TColumnDrag::Ended() {
    row = nullptr;
}

int TColumnDrag::LineHeight() const {
    return panel.RowHeight() + panel.Appearance().RowSpace();
}

bool TColumnDrag::Begin(QAbstractButton& button) {
    const QPointer<TColumnDrag> alive(this);
    panel.CloseEditors(); // handlers hear of it
    if (!alive) return false;
    for (const auto& each : panel.Rows())
        if (each->Button() == &button) row = each.get();
    return row;
}

void TColumnDrag::Drop(const QPoint& inViewport, bool copy) {
    const int gap = GapAt(inViewport.y());
    const int from = row ? panel.Rows().IndexOf(row.data()) : -1;
    End();
    if (from < 0) return;
    Guarded(&panel, [&] {
        if (copy)
            panel.CopyRow(from, gap);
        else
            panel.MoveRow(from, gap > from ? gap - 1 : gap);
    });
}

/// The number of rows above the place.
int TColumnDrag::GapAt(int y) const {
    const int inRows = y - panel.canvas->y() - panel.Appearance().TopMargin() + LineHeight() / 2;
    return std::clamp(inRows / std::max(LineHeight(), 1), 0, panel.rows.GetCount());
}

/// From margin to margin, in the middle of the gap.
QRect TColumnDrag::PlaceAt(const QPoint& inViewport) const {
    if (!row) return {};
    const TRFPAppearance& look = panel.Appearance();
    const int middle = panel.RowTop(GapAt(inViewport.y())) - (look.RowSpace() + 1) / 2;
    const int top = std::max(middle - thickness / 2 + panel.canvas->y(), 0);
    const int width = panel.viewport()->width() - 2 * look.LeftMargin();
    return {look.LeftMargin(), top, std::max(width, thickness), thickness};
}

} // namespace tern7
