#include <tern7/ui/panels/row_drag.h>

#include <algorithm>

#include <QAbstractButton>
#include <QPointer>
#include <QScrollBar>

#include <tern7/core/query/row_guard.h>
#include <tern7/ui/panels/filter_row_view.h>
#include <tern7/ui/panels/query_panel.h>

namespace tern7 {

TRowDrag::TRowDrag(TKQueryPanel& owner) : TButtonDrag(owner), panel(owner) {}

int TRowDrag::LineHeight() const {
    return panel.Geometry().LineHeight;
}

bool TRowDrag::Begin(QAbstractButton& button) {
    const TFilterRowView* view = panel.ViewOf(&button);
    if (!view || !view->Row().Parent()) return false; // the header line stays
    button.setDown(false);
    const TRowGuard guard(view->Row());
    const QPointer<TKQueryPanel> alive(&panel);
    panel.CloseEdit(true); // may change everything
    if (!alive || !guard.Row()) return false;
    row = guard.Row();
    return true;
}

void TRowDrag::Drop(const QPoint& inViewport, bool copy) {
    TFilterRow& dragged = *row;
    const TDropPlace place = DropPlaceAt(inViewport, copy);
    const bool allowed = IsAllowed(place, copy);
    End();
    if (!allowed) return;
    TFilterRow* moved = &dragged;
    const bool alive = panel.Do([&](TKQueryEditor& editor) {
        if (copy)
            moved = editor.CopyTo(dragged, *place.parent, place.index);
        else
            editor.Move(dragged, *place.parent, place.index);
    });
    if (alive && moved) panel.FocusRow(*moved, 0);
}

bool TRowDrag::IsAllowed(const TDropPlace& place, bool copy) const {
    return place.parent && (copy || place.parent->CanHold(*row));
}

int TRowDrag::GapAt(int y) const {
    const TRowGeometry& geometry = panel.Geometry();
    const int inContent = y + panel.verticalScrollBar()->value();
    const int line = geometry.LineAt(inContent);
    const bool lowerHalf = inContent - geometry.LineTop(line) > geometry.LineHeight / 2;
    // nothing goes above the header line
    const int first = panel.Query().Style() == TQPStyle::psGroups ? 1 : 0;
    return std::clamp(line + (lowerHalf ? 1 : 0), first, panel.Lines().Count());
}

TDropPlace TRowDrag::DropPlaceAt(const QPoint& inViewport, bool copy) const {
    const TRowGeometry& geometry = panel.Geometry();
    int x = inViewport.x();
    if (panel.ReadsFromRight()) x = panel.viewport()->width() - 1 - x;
    x += panel.horizontalScrollBar()->value() - geometry.HeaderLeft;
    const int level = geometry.TabSpace > 0 ? x / geometry.TabSpace : 0;
    std::vector<TDropPlace> places =
        DropPlaces(panel.Lines(), GapAt(inViewport.y()), panel.Query().Style());
    std::erase_if(places, [&](const TDropPlace& place) { return !IsAllowed(place, copy); });
    const TDropPlace* nearest = NearestPlace(places, level);
    return nearest ? *nearest : TDropPlace{nullptr, 0, 0};
}

/// From the indentation to the edge, in the middle of the gap.
QRect TRowDrag::PlaceAt(const QPoint& inViewport) const {
    const TDropPlace place = DropPlaceAt(inViewport, Copies());
    if (!place.parent) return {};
    const TRowGeometry& geometry = panel.Geometry();
    const int left = geometry.LevelLeft(place.level) - panel.horizontalScrollBar()->value();
    const int width = std::max(panel.viewport()->width() - left - geometry.HeaderLeft, thickness);
    const int middle = geometry.LineTop(GapAt(inViewport.y())) - (geometry.RowSpace + 1) / 2;
    const int top = middle - thickness / 2 - panel.verticalScrollBar()->value();
    const int x = panel.ReadsFromRight() ? Mirrored(left, width, panel.viewport()->width()) : left;
    return {x, std::max(top, 0), width, thickness};
}

} // namespace tern7
