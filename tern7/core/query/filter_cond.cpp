#include <algorithm>
#include <stdexcept>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/query/filter_row.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/row_guard.h>
#include <tern7/core/structure/structure.h>

namespace tern7 {

namespace {

constexpr int maxNesting = 200;

} // namespace

TFilterCond::TFilterCond(TKQuery& owner) : TFilterRow(owner, TFilterRowType::frtCriteria) {}

TFilterCond::~TFilterCond() {
    rowState = TRowState::rsDestroying;
    if (query) query->ForgetEvents(*this);
}

void TFilterCond::SetField(TDSField* value) {
    if (value == field && !(value && value->IsPlaceholder())) return;
    WillChange();
    field = value;
    if (!value || !value->IsPlaceholder()) {
        unknownFieldID = -1;
        if (extras) {
            extras->unknownFieldName.clear();
            extras->sqlText.clear();
        }
    }
    ReferencesChanged();
    DoConditionChange(wcField);
}

void TFilterCond::SetOperator(TDSOperator* value) {
    if (value == op && !(value && value->IsPlaceholder())) return;
    WillChange();
    op = value;
    if (extras && (!value || !value->IsPlaceholder())) {
        extras->unknownOperator.clear();
        extras->sqlText.clear();
    }
    ReferencesChanged();
    DoConditionChange(wcOperator);
}

void TFilterCond::SetUnknownField(int id, std::string name) {
    WillChange();
    field = query && query->DbStruct() ? query->DbStruct()->PlaceholderField() : nullptr;
    unknownFieldID = id;
    if (!name.empty() || extras) MakeExtras().unknownFieldName = std::move(name);
    ReferencesChanged();
    DoConditionChange(wcField);
}

void TFilterCond::SetUnknownOperator(std::string name) {
    WillChange();
    op = query && query->DbStruct() ? query->DbStruct()->PlaceholderOperator() : nullptr;
    MakeExtras().unknownOperator = std::move(name);
    ReferencesChanged();
    DoConditionChange(wcOperator);
}

void TFilterCond::SetSQLText(std::string value) {
    if (value == SQLText()) return;
    WillChange();
    MakeExtras().sqlText = std::move(value);
    DoConditionChange(wcField);
}

int TFilterCond::FieldID() const {
    return field && !field->IsPlaceholder() ? field->ID() : unknownFieldID;
}

std::string TFilterCond::OperatorName() const {
    return op && !op->IsPlaceholder() ? op->Name() : Extras().unknownOperator;
}

void TFilterCond::SetValue(int n, std::string text, std::string valueCaption) {
    TValue& value = values[Slot(n)];
    const bool tell = query && !detached && query->BuilderState() != TKBuilderState::stLoading;
    if (tell && query->OnSetValue) {
        const TRowGuard guard(*this);
        query->OnSetValue(*this, text, valueCaption);
        if (!guard.Row()) return;
    }
    if (value.text.Get() == text && value.caption == valueCaption) return;
    WillChange();
    value.text.Set(std::move(text));
    value.caption = std::move(valueCaption);
    DoValueChange(n);
}

void TFilterCond::EnterValue(int n, std::string text, std::string valueCaption) {
    const TRowGuard guard(*this);
    if (query && query->OnChangeValue && field) query->OnChangeValue(*field, text, valueCaption);
    if (guard.Row()) SetEntered(true);
    if (guard.Row()) SetValue(n, std::move(text), std::move(valueCaption));
}

std::string TFilterCond::ValueFormat() const {
    return op ? op->ValFormat() : std::string();
}

int TFilterCond::ValueCount() const {
    return op ? std::min(op->GetParamCount(), 2) : 0;
}

void TFilterCond::SetValueIsParam(int n, bool value) {
    TValue& slot = values[Slot(n)];
    if (slot.isParam == value) return;
    WillChange();
    slot.isParam = value;
    HoldParams();
    DoConditionChange(n == 1 ? wcParam1 : wcParam2);
}

void TFilterCond::SetParamTexts(int n, std::string newCaption, std::string format) {
    TSQLParam* param = Param(n);
    if (!param || (param->Caption() == newCaption && param->ValueFormat() == format)) return;
    WillChange();
    if (param->Caption() != newCaption) param->SetCaption(std::move(newCaption));
    param->SetValueFormat(std::move(format));
    DoConditionChange(n == 1 ? wcParam1 : wcParam2);
}

void TFilterCond::UpdateSQLParams() {
    if (!query || detached) return;
    TQueryResult& result = query->QResult();
    const int count = IsSubQueryOperator() ? 0 : ValueCount();
    for (int n = 1; n <= 2; ++n) {
        const TValue& value = values[n - 1];
        // values of an operator that is not known are kept as they were read, parameters too
        const bool wanted = value.isParam && (n <= count || !op || op->IsPlaceholder());
        if (wanted && !value.param) result.AddParameter(*this, n);
        if (!wanted && value.param) result.RemoveParameter(value.param);
    }
    result.UpdateParamCaptions(*this);
}

void TFilterCond::SetSubQuery(std::string text, TSQLOptions options) {
    if (text == SubQuery() && options == SubQueryOptions()) return;
    WillChange();
    TExtras& own = MakeExtras();
    own.subQuery = std::move(text);
    own.subQueryOptions = options;
    own.nested.reset();
    if (query && !detached) query->SubQueryChanged(*this);
    DoConditionChange(wcSubQuery);
}

TKQuery* TFilterCond::NestedQuery() const {
    if (SubQuery().empty() || !query) return nullptr;
    query->InstantiateNested(); // parameters are named in reading order, whoever asks first
    std::unique_ptr<TKQuery>& nested = extras->nested;
    if (!nested) {
        int depth = 0;
        for (const TKQuery* q = query; q; q = q->Outer())
            ++depth;
        if (depth > maxNesting) throw EKQueryPanelError(std::string(messages::NestedTooDeep));
        auto fresh = query->NewNested();
        fresh->SetQueryString(extras->subQuery);
        fresh->SetSQLOptions(extras->subQueryOptions);
        nested = std::move(fresh);
    }
    nested->SetSQLSyntax(query->SQLSyntax());
    nested->CheckValues = query->CheckValues;
    nested->OnBuildSQL = query->OnBuildSQL;
    nested->Services = query->Services;
    return nested.get();
}

bool TFilterCond::RunSubQueryEditor() {
    return query && query->Services.editSubQuery && query->Services.editSubQuery(*this);
}

TFieldType TFilterCond::GetExprType() const {
    if (op && op->ExprType()) return *op->ExprType();
    return field ? field->FieldType() : TFieldType::ftUnknown;
}

bool TFilterCond::IsSubQueryOperator() const {
    return op && op->ValueType() == TOpValueType::vtSubQuery;
}

bool TFilterCond::IsListOperator() const {
    return op && op->ValueType() == TOpValueType::vtList;
}

void TFilterCond::SetCaption(std::string value) {
    if (value == GetCaption()) return;
    WillChange();
    MakeExtras().caption = std::move(value);
    DoConditionChange(wcCaption);
}

void TFilterCond::SetEntered(bool value) {
    if (value == entered) return;
    WillChange();
    entered = value;
    if (query) query->RowChanged(*this);
}

bool TFilterCond::ValueIsBare(int n) const {
    if (!op || !field || Param(n) || IsSubQueryOperator()) return false;
    const TKCustomDBStructure& structure = field->Structure();
    if (!structure.IsQuotedType(field->FieldType())) return true;
    return !IsListOperator() && op->Template().ValueIsBare(n);
}

TUnfinished TFilterCond::Unfinished() const {
    if (!IsRecognized()) {
        if (!SQLText().empty()) return TUnfinished::No;
        if (!field && unknownFieldID < 0) return TUnfinished::NoField;
        if (!field || field->IsPlaceholder()) return TUnfinished::UnknownField;
        return op || !OperatorName().empty() ? TUnfinished::UnknownOperator
                                             : TUnfinished::NoOperator;
    }
    if (IsSubQueryOperator())
        return values[0].text.Get().empty() && SubQuery().empty() ? TUnfinished::NoSubQuery
                                                                  : TUnfinished::No;
    const int count = ValueCount();
    if (count > 0 && !entered) return TUnfinished::NotEntered;
    if (query && !query->CheckValues) return TUnfinished::No;
    for (int n = 1; n <= count; ++n)
        if (WouldBeEmpty(n)) return TUnfinished::NoValue;
    return TUnfinished::No;
}

/// True when nothing at all would stand in value n's place.
bool TFilterCond::WouldBeEmpty(int n) const {
    const TValue& value = values[n - 1];
    return !value.param && Trim(value.text.Get()).empty() &&
           (ValueIsBare(n) || (n == 1 && IsListOperator()));
}

void TFilterCond::DoValueChange(int n) {
    DoConditionChange(n == 1 ? wcValue1 : wcValue2);
}

void TFilterCond::DoConditionChange(int whatChanged) {
    if (query && rowState == TRowState::rsNormal) query->ConditionChanged(*this, whatChanged);
}

void TFilterCond::ReleaseReferences() {
    if (field && !field->IsPlaceholder()) unknownFieldID = field->ID();
    if (op && !op->IsPlaceholder()) MakeExtras().unknownOperator = op->Name();
    unknownField = unknownField || (field && field->IsPlaceholder());
    unknownOp = unknownOp || (op && op->IsPlaceholder());
    field = nullptr;
    op = nullptr;
    recognized = false;
    if (extras) extras->nested.reset(); // read again from its text over the new structure
}

void TFilterCond::RestoreReferences() {
    TKCustomDBStructure* structure = query ? query->DbStruct() : nullptr;
    if (!structure) return;
    const TExtras& known = Extras();
    if (unknownField || unknownFieldID >= 0 || !known.unknownFieldName.empty() ||
        !known.sqlText.empty()) {
        field = unknownFieldID >= 0 ? structure->FieldByID(unknownFieldID) : nullptr;
        if (field)
            unknownFieldID = -1;
        else
            field = structure->PlaceholderField();
    }
    if (unknownOp || !known.unknownOperator.empty() || !known.sqlText.empty()) {
        op = known.unknownOperator.empty() ? nullptr
                                           : structure->OperatorByName(known.unknownOperator);
        if (op)
            extras->unknownOperator.clear();
        else
            op = structure->PlaceholderOperator();
    }
    unknownField = unknownOp = false;
    recognized = field && !field->IsPlaceholder() && op && !op->IsPlaceholder();
    if (extras && recognized) extras->sqlText.clear();
}

void TFilterCond::ReferencesChanged() {
    recognized = field && !field->IsPlaceholder() && op && !op->IsPlaceholder();
    HoldParams();
}

/// Brings the parameters up to date; that their list changed is told behind the condition's change.
void TFilterCond::HoldParams() {
    if (!query) return;
    ++query->paramsHeld;
    UpdateSQLParams();
    --query->paramsHeld;
}

TFilterCond::TExtras::TExtras() = default;
TFilterCond::TExtras::~TExtras() = default;

TFilterCond::TExtras& TFilterCond::MakeExtras() const {
    if (!extras) extras = std::make_unique<TExtras>();
    return *extras;
}

const TFilterCond::TExtras& TFilterCond::NoExtras() {
    static const TExtras none;
    return none;
}

} // namespace tern7
