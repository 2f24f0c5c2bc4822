// What the panel does when the query tells that something happened.

#include <tern7/ui/controls/drop_down_label.h>
#include <tern7/ui/panels/accessible_panel.h>
#include <tern7/ui/panels/filter_row_view.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/panels/row_drag.h>

namespace tern7 {

namespace {

bool IsWithin(const TFilterRow& row, const TFilterRow& around) {
    for (const TFilterRow* r = &row; r; r = r->Parent())
        if (r == &around) return true;
    return false;
}

} // namespace

void TKQueryPanel::RowsAdded(TFilterBracket& parent, int index, int count) {
    linesKnown = false;
    if (accessibleRows) accessibleRows->RowsCome(parent, index, count);
    // in the and/or style the marks of the rows beside move
    if (query->Style() == TQPStyle::psAndOr) viewsFresh = false;
    Invalidate();
}

/// Nothing may refer to the rows when this returns.
void TKQueryPanel::RowsRemoved(TFilterBracket& parent, int index, int count) {
    if (accessibleRows) accessibleRows->RowsGo(parent, index, count);
    for (int i = index; i < index + count; ++i) {
        if (rowDrag->Row() && IsWithin(*rowDrag->Row(), *parent.GetRow(i))) rowDrag->Cancel();
        DropViewsBelow(*parent.GetRow(i));
    }
    // behind that: who heard of the focus that moved may have asked for the lines
    linesKnown = false;
    lines.Clear();
    if (query->Style() == TQPStyle::psAndOr) viewsFresh = false;
    Invalidate();
}

void TKQueryPanel::DropViewsBelow(const TFilterRow& row) {
    for (auto view = views.begin(); view != views.end();)
        view = IsWithin(view->second->Row(), row) ? DropView(view) : std::next(view);
    if (!current || !IsWithin(*current, row)) return;
    current = nullptr;
    TellCurrentRow();
}

/// The focus leaves the controls on the way; where it goes is no choice of the user.
TKQueryPanel::TViews::iterator TKQueryPanel::DropView(TViews::iterator view) {
    const bool before = std::exchange(dropping, true);
    std::unique_ptr<TFilterRowView> gone = std::move(view->second);
    const auto next = views.erase(view);
    gone.reset();
    dropping = before;
    return next;
}

/// A layout that runs has asked for the numbers itself.
void TKQueryPanel::RowsRenumbered() {
    if (!laying) Invalidate();
}

void TKQueryPanel::RowChanged(TFilterRow& row) {
    // a bracket's state and word show in the rows below
    if (row.IsBracket())
        viewsFresh = false;
    else if (TFilterRowView* view = ExistingView(row))
        view->Refresh();
    if (accessibleRows) accessibleRows->RowChanged(row);
    Invalidate(row.IsBracket());
}

void TKQueryPanel::ValueEditorsChanged(TFilterRow& row) {
    for (const auto& [shown, view] : views)
        if (IsWithin(*shown, row)) view->RecreateValueEditor();
    Invalidate();
}

void TKQueryPanel::ParametersChanged() {
    viewsFresh = false;
    Invalidate();
}

void TKQueryPanel::EverythingChanged() {
    linesKnown = false;
    if (accessibleRows) accessibleRows->AllRowsCome();
    lines.Clear();
    viewsFresh = false;
    widest = 0;
    FillServices(); // those of another structure
    ReadTitles();
    Invalidate();
}

void TKQueryPanel::CloseEditors() {
    CloseEdit(false);
}

bool TKQueryPanel::CloseEdit(bool accept) {
    for (const auto& [row, view] : views) {
        if (!view->HasEditor()) continue;
        view->CloseEdit(accept); // may change the views, so no further
        return true;
    }
    return false;
}

} // namespace tern7
