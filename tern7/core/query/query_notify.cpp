// The one place that hears of changes: it looks at Active, nesting and state before it tells views
// and application.

#include <algorithm>

#include <tern7/core/query/query.h>

namespace tern7 {

template <class Call>
void TKQuery::TellViews(Call call) {
    // a view may add or remove views while it is told
    const std::vector<TKQueryView*> all = views;
    for (TKQueryView* view : all)
        if (std::find(views.begin(), views.end(), view) != views.end()) call(*view);
}

template <class Call>
void TKQuery::RefreshViews(Call call) {
    if (Listening())
        TellViews(call);
    else
        viewsPending = true;
}

void TKQuery::EnumerateRows() {
    int next = 0;
    const bool brackets = style == TQPStyle::psGroups;
    // with brackets as lines the header line of the root is line 0
    ForEachRow(*root, [&](TFilterRow& row) {
        if (&row == root.get()) {
            row.rowNum = -1;
            if (brackets) ++next;
        } else {
            row.rowNum = brackets || !row.IsBracket() ? next++ : -1;
        }
    });
    numbersKnown = true;
    TellViews([](TKQueryView& view) { view.RowsRenumbered(); });
}

void TKQuery::AddView(TKQueryView* view) {
    if (std::find(views.begin(), views.end(), view) == views.end()) views.push_back(view);
}

void TKQuery::RemoveView(TKQueryView* view) {
    std::erase(views, view);
}

void TKQuery::SetActive(bool value) {
    if (value == active) return;
    active = value;
    if (!active) return;
    // what happened meanwhile is told as one refresh, without the events that were missed
    changePending = false;
    paramsPending = false;
    viewsPending = false;
    if (updateNesting > 0)
        viewsPending = true;
    else
        TellViews([](TKQueryView& view) { view.EverythingChanged(); });
    OnActive(*this);
}

void TKQuery::EndUpdate() {
    if (--updateNesting > 0 || !active) return;
    if (viewsPending) {
        viewsPending = false;
        TellViews([](TKQueryView& view) { view.EverythingChanged(); });
    }
    if (paramsPending) {
        paramsPending = false;
        OnParamListChange(*this);
    }
    if (changePending) {
        changePending = false;
        OnChange(*this);
    }
}

void TKQuery::CloseEditors() {
    TellViews([](TKQueryView& view) { view.CloseEditors(); });
}

void TKQuery::RowsAdded(TFilterBracket& parent, int index, int count) {
    numbersKnown = false;
    RefreshViews([&](TKQueryView& view) { view.RowsAdded(parent, index, count); });
    Changed();
}

void TKQuery::RowsRemoved(TFilterBracket& parent, int index, int count) {
    numbersKnown = false;
    // always told: views may hold on to the rows
    TellViews([&](TKQueryView& view) { view.RowsRemoved(parent, index, count); });
    viewsPending = viewsPending || !Listening();
}

void TKQuery::RowChanged(TFilterRow& row) {
    if (row.detached) return;
    RefreshViews([&](TKQueryView& view) { view.RowChanged(row); });
    Changed();
}

void TKQuery::BracketChanged(TFilterBracket& bracket) {
    if (bracket.detached) return;
    // the joining words of its rows show the bracket's kind
    RefreshViews([&](TKQueryView& view) {
        view.RowChanged(bracket);
        for (const auto& row : bracket.Rows())
            view.RowChanged(*row);
    });
    Changed();
}

void TKQuery::ValueEditorsChanged(TFilterRow& row) {
    if (row.detached) return;
    RefreshViews([&](TKQueryView& view) { view.ValueEditorsChanged(row); });
}

void TKQuery::ConditionChanged(TFilterCond& condition, int whatChanged) {
    if (condition.detached) return;
    RefreshViews([&](TKQueryView& view) { view.RowChanged(condition); });
    if (active) OnConditionChange(condition, whatChanged);
    if (active && updateNesting == 0 && paramsPending) {
        paramsPending = false;
        OnParamListChange(*this);
    }
    Changed();
}

void TKQuery::ResultFieldsChanged() {
    RefreshViews([](TKQueryView& view) { view.ResultFieldsChanged(); });
    Changed();
}

void TKQuery::ParametersListChanged() {
    RefreshViews([](TKQueryView& view) { view.ParametersChanged(); });
    if (!active) return;
    if (updateNesting > 0 || paramsHeld > 0)
        paramsPending = true;
    else
        OnParamListChange(*this);
}

void TKQuery::EverythingChanged() {
    RefreshViews([](TKQueryView& view) { view.EverythingChanged(); });
}

void TKQuery::Changed() {
    if (!active) return;
    if (updateNesting > 0)
        changePending = true;
    else
        OnChange(*this);
}

} // namespace tern7
