#include <tern7/core/query/query_result.h>

#include <algorithm>
#include <unordered_set>

#include <tern7/core/corekit/strings.h>
#include <tern7/core/query/condition_text.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_record.h>

namespace tern7 {

TQueryResult::TQueryResult(TKQuery& owner)
    : query(owner), writer(std::make_unique<TConditionWriter>(owner)) {}

TQueryResult::~TQueryResult() = default;

TKCustomDBStructure* TQueryResult::DbStruct() const {
    return query.DbStruct();
}

void TQueryResult::SetSQLOptions(TSQLOptions value) {
    if (value == options) return;
    if (TKQueryRecord* record = query.Record()) record->OptionsChange(value);
    options = value;
    resultFields.asciiAliases = value.Contains(TSQLOption::soASCIIRFields);
    resultFields.quoteAliases = value.Contains(TSQLOption::soQuoteAliases);
    query.Changed();
}

void TQueryResult::SetSQLSyntax(TSQLSyntax value) {
    if (value == syntax) return;
    if (TKQueryRecord* record = query.Record()) record->SyntaxChanges();
    syntax = value;
    query.Changed();
}

void TQueryResult::SetResultFields(const TRFieldList& list) {
    resultFields.Assign(list);
}

void TQueryResult::DbStructChanged() {
    resultTables.Clear();
    writer->Forget();
    longestRevision = 0;
    conditions.Clear();
    fromLines.Clear();
    sql.Clear();
    orderByText.clear();
    groupByText.clear();
}

// --- parameters

std::string TQueryResult::NewParamName() {
    query.InstantiateNested();
    const TParamNames& taken = *query.paramNames;
    for (;; ++paramNumberBase) {
        std::string name = "Param" + std::to_string(params.GetCount() + paramNumberBase + 1);
        if (!taken.contains(LowerCase(name))) return name;
    }
}

TSQLParam* TQueryResult::AddParameter(TFilterCond& condition) {
    return AddParameter(condition, condition.Param(1) ? 2 : 1);
}

TSQLParam* TQueryResult::AddParameter(TFilterCond& condition, int valueNumber) {
    if (TSQLParam* present = condition.Param(valueNumber)) return present;
    condition.WillChange();
    auto param = std::make_unique<TSQLParam>(condition, valueNumber);
    param->name = NewParamName();
    param->Reserve(query.paramNames);
    TSQLParam* added = params.Add(std::move(param));
    (valueNumber == 1 ? condition.values[0] : condition.values[1]).param = added;
    UpdateParamCaptions(condition);
    query.ParametersListChanged();
    return added;
}

bool TQueryResult::RenameParameter(TSQLParam& param, std::string name) {
    if (SameText(param.name, name)) {
        param.name = std::move(name);
        param.named = true;
        return true;
    }
    TParamNames& taken = *query.paramNames;
    if (name.empty() || taken.contains(LowerCase(name))) return false;
    if (const auto former = taken.find(LowerCase(param.name)); former != taken.end())
        taken.erase(former);
    taken.insert(LowerCase(name));
    param.name = std::move(name);
    param.named = true;
    query.ParametersListChanged();
    return true;
}

void TQueryResult::UpdateParamCaptions(TFilterCond& condition) {
    const TDSField* field = condition.Field();
    const std::string base = (field ? field->DisplayName() : std::string()) + " param";
    const bool both = condition.Param(1) && condition.Param(2);
    for (int n = 1; n <= 2; ++n) {
        TSQLParam* param = condition.Param(n);
        if (param && param->generated)
            param->caption = both ? base + " " + std::to_string(n) : base;
    }
}

TSQLParam* TQueryResult::FindParameter(std::string_view name) const {
    for (const auto& param : params)
        if (SameText(param->Name(), name)) return param.get();
    return nullptr;
}

TSQLParam* TQueryResult::FindParameterByCondition(const TFilterCond& condition) const {
    for (const auto& param : params)
        if (param->Condition() == &condition) return param.get();
    return nullptr;
}

void TQueryResult::DeleteParameters(TFilterCond& condition) {
    std::vector<TSQLParam*> gone;
    for (int n = 2; n >= 1; --n)
        if (TSQLParam* param = condition.Param(n)) gone.push_back(param);
    condition.WillChange();
    condition.values[0].isParam = condition.values[1].isParam = false;
    if (gone.empty()) return;
    TakeParams(gone);
    query.ParametersListChanged();
}

void TQueryResult::DeleteParameter(TSQLParam* param) {
    if (params.IndexOf(param) < 0) return;
    param->condition->WillChange();
    param->condition->values[param->valueNumber - 1].isParam = false;
    RemoveParameter(param);
}

/// Removes the parameter and leaves the value flagged.
void TQueryResult::RemoveParameter(TSQLParam* param) {
    TFilterCond& condition = *param->Condition();
    TakeParams({param});
    UpdateParamCaptions(condition);
    query.ParametersListChanged();
}

void TQueryResult::ClearParams() {
    if (params.IsEmpty()) return;
    std::vector<TSQLParam*> all;
    for (const auto& param : params) {
        all.push_back(param.get());
        param->condition->WillChange();
        param->condition->values[param->valueNumber - 1].isParam = false;
    }
    TakeParams(all);
    query.ParametersListChanged();
}

std::vector<std::unique_ptr<TSQLParam>>
TQueryResult::TakeParams(const std::vector<TSQLParam*>& wanted) {
    std::vector<std::unique_ptr<TSQLParam>> taken, kept;
    if (wanted.size() == 1 && !params.IsEmpty() && params.items.back().get() == wanted.front()) {
        // the last one, as when many rows are taken out one by one from the end
        TFilterCond::TValue& value =
            wanted.front()->condition->values[wanted.front()->valueNumber - 1];
        if (value.param == wanted.front()) value.param = nullptr;
        taken.push_back(std::move(params.items.back()));
        params.items.pop_back();
        return taken;
    }
    const std::unordered_set<const TSQLParam*> gone(wanted.begin(), wanted.end());
    for (auto& param : params.items) {
        if (!gone.contains(param.get())) {
            kept.push_back(std::move(param));
            continue;
        }
        TFilterCond::TValue& value = param->condition->values[param->valueNumber - 1];
        if (value.param == param.get()) value.param = nullptr;
        taken.push_back(std::move(param));
    }
    params.items = std::move(kept);
    return taken;
}

void TQueryResult::PutParam(std::unique_ptr<TSQLParam> param) {
    param->condition->values[param->valueNumber - 1].param = param.get();
    if (!param->names) {
        if (param->name.empty() || query.paramNames->contains(LowerCase(param->name)))
            param->name = NewParamName();
        param->Reserve(query.paramNames);
    }
    params.items.push_back(std::move(param));
}

} // namespace tern7
