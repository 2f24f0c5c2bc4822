#include <tern7/core/query/filter_row.h>

#include <tern7/core/query/query.h>

namespace tern7 {

TFilterRow::TFilterRow(TKQuery& owner, TFilterRowType type) : query(&owner), rowType(type) {}

TFilterRow::~TFilterRow() {
    if (!detached || !query) return;
    query->detachedRows.erase(this);
    query->Freed(this);
}

int TFilterRow::Level() const {
    int level = 0;
    for (const TFilterRow* row = parent; row; row = row->parent)
        ++level;
    return level;
}

int TFilterRow::RowNum() const {
    if (query && !detached) query->EnsureNumbered();
    return rowNum;
}

void TFilterRow::SetEnabled(bool value) {
    const bool isRoot = query && query->root.get() == this;
    if (value == enabled || isRoot) return;
    WillChange();
    enabled = value;
    EnabledChanged();
    if (TFilterCond* condition = AsCond())
        condition->DoConditionChange(wcEnabled);
    else if (query)
        query->RowChanged(*this);
}

void TFilterRow::SwitchEnabled(bool value) {
    if (!query) return;
    TKQueryUpdate update(*query);
    SetEnabled(value);
    for (TFilterBracket* bracket = parent; bracket; bracket = bracket->Parent()) {
        if (value)
            bracket->SetEnabled(true);
        else
            bracket->CheckIfAllDisabled();
    }
}

bool TFilterRow::EffectivelyEnabled() const {
    for (const TFilterRow* row = this; row->parent; row = row->parent)
        if (!row->enabled) return false;
    return true;
}

void TFilterRow::SetHidden(bool value) {
    if (value == hidden) return;
    hidden = value;
    if (query) query->RowChanged(*this);
}

void TFilterRow::SetVisible(bool value) {
    if (value == visible) return;
    visible = value;
    if (query) query->RowChanged(*this);
}

void TFilterRow::RefreshValueEditors() {
    if (query) query->ValueEditorsChanged(*this);
}

void TFilterRow::RefreshParamValueEditors() {
    if (query) query->ValueEditorsChanged(*this);
}

void TFilterRow::UpdateBoolLabel() {
    if (query) query->RowChanged(*this);
}

void TFilterRow::CloseEdit() {
    if (query) query->CloseEditors();
}

} // namespace tern7
