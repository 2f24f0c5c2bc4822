// The one place that hears of changes: it looks at Active, nesting and state before it tells views
// and application.

#include <algorithm>
#include <utility>

#include <tern7/core/query/query.h>
#include <tern7/core/query/query_record.h>

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
    pendingConditions.clear();
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
    SendPendingEvents();
}

TKQueryUpdate::~TKQueryUpdate() noexcept(false) {
    if (!query || life.expired()) return;
    if (std::uncaught_exceptions() == exceptions) {
        query->EndUpdate();
        return;
    }
    try {
        query->EndUpdate();
    } catch (...) { // the exception under way counts
    }
}

/// A text was read: active as before, and the parameters may be others. A handler may end it all.
void TKQuery::ReadingDone(bool wasActive) {
    const std::weak_ptr<const char> alive = life;
    SetActive(wasActive);
    if (!alive.expired()) ParametersListChanged();
}

void TKQuery::SendPendingEvents() {
    if (!SendsEvents()) return;
    const std::weak_ptr<const char> alive = life;
    {
        const THeldEvents together(*this); // with what their handlers change
        SendConditionEvents();
    }
    if (alive.expired() || !active) return;
    if (std::exchange(paramsPending, false)) OnParamListChange(*this);
    if (alive.expired() || !active) return;
    if (std::exchange(changePending, false)) OnChange(*this);
}

void TKQuery::SendConditionEvents() {
    const std::weak_ptr<const char> alive = life;
    // handlers may delete conditions, and make further steps
    while (!alive.expired() && active && !pendingConditions.empty()) {
        const TPendingCondition pending = pendingConditions.front();
        pendingConditions.pop_front();
        if (!pending.condition->detached)
            OnConditionChange(*pending.condition, pending.whatChanged);
    }
}

void TKQuery::ForgetEvents(const TFilterCond& condition) {
    std::erase_if(pendingConditions, [&](const TPendingCondition& pending) {
        return pending.condition == &condition;
    });
}

TKQueryRecord* TKQuery::RecordOfChange() {
    if (replaying) return nullptr;
    if (!record && steps) steps->ForgetSteps();
    return record;
}

void TKQuery::RunStep(const std::string& name, const std::function<void()>& change) {
    if (steps) return steps->RunStep(name, change);
    THeldEvents events(*this);
    change();
    events.Send();
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
    // always told: views may hold on to the rows
    TellViews([&](TKQueryView& view) { view.RowsRemoved(parent, index, count); });
    numbersKnown = false; // a view may have asked for them meanwhile
    viewsPending = viewsPending || !Listening();
}

void TKQuery::SetSQLReport(std::shared_ptr<const TSQLReport> report) {
    if (report == sqlReport) return;
    if (TKQueryRecord* recording = Record()) recording->ReportChanges(sqlReport);
    sqlReport = std::move(report);
    RefreshViews([this](TKQueryView& view) { view.RowChanged(*root); });
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
    const std::weak_ptr<const char> alive = life;
    if (active && eventsHeld > 0) {
        if (OnConditionChange) pendingConditions.push_back({&condition, whatChanged});
    } else if (active) {
        OnConditionChange(condition, whatChanged);
        if (alive.expired()) return;
    }
    if (SendsEvents() && std::exchange(paramsPending, false)) OnParamListChange(*this);
    if (!alive.expired()) Changed();
}

void TKQuery::ResultFieldsChanged() {
    RefreshViews([](TKQueryView& view) { view.ResultFieldsChanged(); });
    Changed();
}

void TKQuery::ParametersListChanged() {
    RefreshViews([](TKQueryView& view) { view.ParametersChanged(); });
    if (!active) return;
    if (SendsEvents() && paramsHeld == 0)
        OnParamListChange(*this);
    else
        paramsPending = true;
}

void TKQuery::EverythingChanged() {
    RefreshViews([](TKQueryView& view) { view.EverythingChanged(); });
}

void TKQuery::Changed() {
    if (!active) return;
    if (SendsEvents())
        OnChange(*this);
    else
        changePending = true;
}

} // namespace tern7
