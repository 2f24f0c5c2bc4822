#include <tern7/core/query/query.h>

#include <algorithm>

#include <tern7/core/global/messages.h>
#include <tern7/core/query/query_record.h>
#include <tern7/core/query/read_sql/sql_report.h>

namespace tern7 {

TKQuery::TKQuery(TKCustomDBStructure* dbStruct)
    : result(std::make_unique<TQueryResult>(*this)), root(new TFilterBracket(*this)) {
    SetDbStruct(dbStruct);
}

TKQuery::~TKQuery() {
    active = false;
    life.reset();
    const std::vector<TKQueryView*> all = std::move(views);
    views.clear();
    for (TKQueryView* view : all)
        view->QueryDestroyed();
    if (steps) steps->QueryDestroyed();
    steps = nullptr;
    if (structure) structure->RemoveObserver(this);
    for (TResultField* field : detachedFields)
        field->owner = nullptr;
    detachedFields.clear();
    for (TFilterRow* row : detachedRows)
        ForEachRow(*row, [](TFilterRow& r) { r.query = nullptr; });
    detachedRows.clear();
    ForEachRow(*root, [](TFilterRow& row) { row.rowState = TRowState::rsDestroying; });
    pendingConditions.clear();
    root.reset(); // while all that rows refer to is there
}

void TKQuery::SetDbStruct(TKCustomDBStructure* value) {
    if (value == structure) return;
    ReleaseReferences();
    if (structure) structure->RemoveObserver(this);
    structure = value;
    if (structure) {
        structure->AddObserver(this);
        if (!outer) Services = structure->Services;
    }
    RestoreReferences();
}

TKCustomDBStructure& TKQuery::RequireStruct() const {
    if (!structure) throw EKQueryPanelError(std::string(messages::NoStructure));
    return *structure;
}

void TKQuery::SetQueryName(std::string value) {
    if (value == queryName) return;
    queryName = std::move(value);
    Changed();
}

void TKQuery::SetMainTableName(std::string value) {
    if (value == mainTableName) return;
    if (TKQueryRecord* recording = Record()) recording->JoiningChanges();
    mainTableName = std::move(value);
    Changed();
}

void TKQuery::SetAvoidedJoins(TAvoidedJoins value) {
    if (value == avoidedJoins) return;
    if (TKQueryRecord* recording = Record()) recording->JoiningChanges();
    avoidedJoins = std::move(value);
    Changed();
}

// --- references into the structure

void TKQuery::ReleaseReferences() {
    CloseEditors();
    auto release = [](TFilterRow& row) {
        if (TFilterCond* condition = row.AsCond()) condition->ReleaseReferences();
    };
    ForEachRow(*root, release);
    for (TFilterRow* row : detachedRows)
        ForEachRow(*row, release);
    for (const auto& field : result->ResultFields())
        field->ReleaseReferences();
    for (TResultField* field : detachedFields)
        field->ReleaseReferences();
    result->DbStructChanged();
}

void TKQuery::RestoreReferences() {
    auto restore = [](TFilterRow& row) {
        if (TFilterCond* condition = row.AsCond()) condition->RestoreReferences();
    };
    ForEachRow(*root, restore);
    for (TFilterRow* row : detachedRows)
        ForEachRow(*row, restore);
    for (const auto& field : result->ResultFields())
        field->RestoreReferences();
    for (TResultField* field : detachedFields)
        field->RestoreReferences();
    EverythingChanged();
}

void TKQuery::StructureChanged() {
    result->DbStructChanged();
    EverythingChanged();
}

void TKQuery::StructureDestroyed() {
    structure = nullptr;
    EverythingChanged();
}

// --- rows

void TKQuery::RequireChangeable() const {
    if (state == TKBuilderState::stBuilding)
        throw EKQueryPanelError(std::string(messages::ChangeWhileBuilding));
}

void TKQuery::AttachRow(TFilterRow& row) {
    if (!row.detached) {
        if (TFilterCond* condition = row.AsCond()) condition->UpdateSQLParams();
        return;
    }
    detachedRows.erase(&row);
    bool params = false;
    ForEachRow(row, [&](TFilterRow& below) {
        below.detached = false;
        TFilterCond* condition = below.AsCond();
        if (!condition) return;
        for (int n = 1; n <= 2 && condition->extras; ++n) {
            std::unique_ptr<TSQLParam>& parked = condition->extras->parked[n - 1];
            if (!parked) continue;
            result->PutParam(std::move(parked));
            params = true;
        }
        condition->UpdateSQLParams(); // flags may have been changed meanwhile
        nestedPending = nestedPending || !condition->SubQuery().empty();
    });
    if (params) ParametersListChanged();
}

void TKQuery::Drop(std::unique_ptr<TFilterRow> row) {
    if (!row) return;
    if (TKQueryRecord* recording = Record())
        recording->Keep(std::move(row));
    else
        row->rowState = TRowState::rsDestroying;
}

void TKQuery::Drop(std::unique_ptr<TResultField> column) {
    if (TKQueryRecord* recording = Record()) recording->Keep(std::move(column));
}

void TKQuery::Freed(const void* rowOrColumn) {
    if (record) record->Freed(rowOrColumn);
}

/// A row with all below it that was made outside of the tree.
void TKQuery::AddDetached(TFilterRow& row) {
    ForEachRow(row, [](TFilterRow& below) { below.detached = true; });
    detachedRows.insert(&row);
}

void TKQuery::DetachRow(TFilterRow& row) {
    std::vector<TSQLParam*> gone;
    ForEachRow(row, [&](TFilterRow& below) {
        below.detached = true;
        if (const TFilterCond* condition = below.AsCond())
            for (const TFilterCond::TValue& value : condition->values)
                if (value.param) gone.push_back(value.param);
    });
    detachedRows.insert(&row);
    if (gone.empty()) return;
    for (auto& param : result->TakeParams(gone)) {
        TFilterCond& condition = *param->Condition();
        param->Release(); // and gets its name back when that is free then
        condition.MakeExtras().parked[param->ValueNumber() - 1] = std::move(param);
    }
    ParametersListChanged();
}

void TKQuery::DropParams(const std::vector<std::unique_ptr<TFilterRow>>& rows) {
    std::vector<TSQLParam*> gone;
    for (const auto& row : rows)
        ForEachRow(*row, [&](TFilterRow& below) {
            if (const TFilterCond* condition = below.AsCond())
                for (const TFilterCond::TValue& value : condition->values)
                    if (value.param) gone.push_back(value.param);
        });
    if (gone.empty()) return;
    result->TakeParams(gone);
    ParametersListChanged();
}

void TKQuery::ClearAll() {
    TKQueryUpdate update(*this);
    SetSQLReport(nullptr);
    root->ClearRows();
    result->ResultFields().Clear();
    result->ResultFields().SetJustSorting(false);
    result->ClearParams();
    result->SetParamNumberBase(outer ? outer->QResult().GetParamCount() : 0);
    result->DbStructChanged();
}

void TKQuery::EnsureNumbered() const {
    if (!numbersKnown) const_cast<TKQuery*>(this)->EnumerateRows();
}

void TKQuery::SetStyle(TQPStyle value) {
    if (value == style) return;
    style = value;
    numbersKnown = false;
    EverythingChanged();
}

std::vector<TUnfinishedRow> TKQuery::UnfinishedRows() const {
    std::vector<TUnfinishedRow> unfinished;
    ForEachEnabledCondition([&](const TFilterCond& condition) {
        const TUnfinished reason = condition.Unfinished();
        if (reason != TUnfinished::No) unfinished.push_back({&condition, reason});
    });
    return unfinished;
}

// --- parameters and nested queries

std::unique_ptr<TKQuery> TKQuery::NewNested() const {
    auto nested = std::make_unique<TKQuery>();
    nested->outer = const_cast<TKQuery*>(this);
    nested->paramNames = paramNames;
    nested->Services = Services;
    nested->SaveTitles = false; // captions are the outer query's
    nested->CheckValues = CheckValues;
    nested->OnBuildSQL = OnBuildSQL;
    nested->OnSetValue = OnSetValue;
    nested->OnChangeValue = OnChangeValue;
    nested->OnCustomEdit = OnCustomEdit;
    nested->OnCustomValue = OnCustomValue;
    nested->OnValueDblClick = OnValueDblClick;
    nested->SetDbStruct(structure);
    nested->SetSQLSyntax(SQLSyntax());
    nested->SetSQLOptions(SQLOptions());
    nested->result->SetParamNumberBase(result->GetParamCount());
    return nested;
}

void TKQuery::SubQueryChanged(TFilterCond& condition) {
    nestedPending = nestedPending || !condition.SubQuery().empty();
}

void TKQuery::InstantiateNested() {
    if (!nestedPending || state == TKBuilderState::stLoading || !structure) return;
    nestedPending = false;
    ForEachRow(*root, [](TFilterRow& row) {
        const TFilterCond* condition = row.AsCond();
        if (!condition || !condition->IsSubQueryOperator()) return;
        try {
            if (TKQuery* nested = condition->NestedQuery()) nested->InstantiateNested();
        } catch (const EKTernError&) {
            // a damaged text matters where its row takes part: building it says so
        }
    });
}

std::vector<TSQLParam*> TKQuery::AllParams() const {
    const_cast<TKQuery*>(this)->InstantiateNested();
    std::vector<TSQLParam*> all;
    ForEachEnabledCondition([&](const TFilterCond& condition) {
        if (condition.Unfinished() != TUnfinished::No) return;
        for (int n = 1; n <= 2; ++n)
            if (TSQLParam* param = condition.Param(n)) all.push_back(param);
        const TKQuery* nested = condition.IsSubQueryOperator() ? condition.NestedQuery() : nullptr;
        if (!nested) return;
        const std::vector<TSQLParam*> inner = nested->AllParams();
        all.insert(all.end(), inner.begin(), inner.end());
    });
    return all;
}

TSQLParam* TKQuery::FindParam(std::string_view nameOrCaption) const {
    const std::vector<TSQLParam*> all = AllParams();
    for (TSQLParam* param : all)
        if (SameText(param->Name(), nameOrCaption)) return param;
    for (TSQLParam* param : all)
        if (SameText(param->Caption(), nameOrCaption)) return param;
    return nullptr;
}

} // namespace tern7
