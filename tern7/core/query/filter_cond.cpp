#include <algorithm>
#include <stdexcept>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/query/filter_row.h>
#include <tern7/core/query/query.h>
#include <tern7/core/structure/structure.h>

namespace tern7 {

namespace {

constexpr int maxNesting = 200;

} // namespace

TFilterCond::TFilterCond(TKQuery& owner) : TFilterRow(owner, TFilterRowType::frtCriteria) {}

TFilterCond::~TFilterCond() {
    rowState = TRowState::rsDestroying;
}

size_t TFilterCond::Slot(int n) {
    if (n != 1 && n != 2) throw std::out_of_range("a condition has the values 1 and 2");
    return static_cast<size_t>(n - 1);
}

void TFilterCond::SetField(TDSField* value) {
    if (value == field && !(value && value->IsPlaceholder())) return;
    field = value;
    if (!value || !value->IsPlaceholder()) {
        unknownFieldID = -1;
        unknownFieldName.clear();
        sqlText.clear();
    }
    UpdateSQLParams();
    DoConditionChange(wcField);
}

void TFilterCond::SetOperator(TDSOperator* value) {
    if (value == op && !(value && value->IsPlaceholder())) return;
    op = value;
    if (!value || !value->IsPlaceholder()) {
        unknownOperator.clear();
        sqlText.clear();
    }
    UpdateSQLParams();
    DoConditionChange(wcOperator);
}

void TFilterCond::SetUnknownField(int id, std::string name) {
    field = query && query->DbStruct() ? query->DbStruct()->PlaceholderField() : nullptr;
    unknownFieldID = id;
    unknownFieldName = std::move(name);
    UpdateSQLParams();
    DoConditionChange(wcField);
}

void TFilterCond::SetUnknownOperator(std::string name) {
    op = query && query->DbStruct() ? query->DbStruct()->PlaceholderOperator() : nullptr;
    unknownOperator = std::move(name);
    UpdateSQLParams();
    DoConditionChange(wcOperator);
}

void TFilterCond::SetSQLText(std::string value) {
    if (value == sqlText) return;
    sqlText = std::move(value);
    DoConditionChange(wcField);
}

int TFilterCond::FieldID() const {
    return field && !field->IsPlaceholder() ? field->ID() : unknownFieldID;
}

std::string TFilterCond::OperatorName() const {
    return op && !op->IsPlaceholder() ? op->Name() : unknownOperator;
}

bool TFilterCond::IsRecognized() const {
    return field && !field->IsPlaceholder() && op && !op->IsPlaceholder();
}

void TFilterCond::SetValue(int n, std::string text, std::string valueCaption) {
    TValue& value = values[Slot(n)];
    if (query && query->BuilderState() != TKBuilderState::stLoading && query->OnSetValue)
        query->OnSetValue(*this, text, valueCaption);
    if (value.text == text && value.caption == valueCaption) return;
    value.text = std::move(text);
    value.caption = std::move(valueCaption);
    DoValueChange(n);
}

void TFilterCond::EnterValue(int n, std::string text, std::string valueCaption) {
    if (query && query->OnChangeValue && field) query->OnChangeValue(*field, text, valueCaption);
    SetEntered(true);
    SetValue(n, std::move(text), std::move(valueCaption));
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
    slot.isParam = value;
    UpdateSQLParams();
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
        if (!wanted && value.param) result.DeleteParameter(value.param);
    }
    result.UpdateParamCaptions(*this);
}

void TFilterCond::SetSubQuery(std::string text, TSQLOptions options) {
    if (text == subQuery && options == subQueryOptions) return;
    subQuery = std::move(text);
    subQueryOptions = options;
    nested.reset();
    if (query && !detached) query->SubQueryChanged(*this);
    DoConditionChange(wcSubQuery);
}

TKQuery* TFilterCond::NestedQuery() const {
    if (subQuery.empty() || !query) return nullptr;
    if (!nested) {
        int depth = 0;
        for (const TKQuery* q = query; q; q = q->Outer())
            ++depth;
        if (depth > maxNesting) throw EKQueryPanelError(std::string(messages::NestedTooDeep));
        auto fresh = query->NewNested();
        fresh->SetQueryString(subQuery);
        fresh->SetSQLOptions(subQueryOptions);
        nested = std::move(fresh);
    }
    nested->SetSQLSyntax(query->SQLSyntax());
    nested->CheckValues = query->CheckValues;
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
    if (value == caption) return;
    caption = std::move(value);
    DoConditionChange(wcCaption);
}

void TFilterCond::SetEntered(bool value) {
    if (value == entered) return;
    entered = value;
    if (query) query->RowChanged(*this);
}

bool TFilterCond::ValueIsBare(int n) const {
    if (!op || !field || ValueIsParam(n) || IsSubQueryOperator()) return false;
    const TKCustomDBStructure& structure = field->Structure();
    if (!structure.IsQuotedType(field->FieldType())) return true;
    return !IsListOperator() && op->Template().ValueIsBare(n);
}

TUnfinished TFilterCond::Unfinished() const {
    if (!sqlText.empty() && !IsRecognized()) return TUnfinished::No;
    if (!field) return unknownFieldID < 0 ? TUnfinished::NoField : TUnfinished::UnknownField;
    if (field->IsPlaceholder()) return TUnfinished::UnknownField;
    if (!op)
        return unknownOperator.empty() ? TUnfinished::NoOperator : TUnfinished::UnknownOperator;
    if (op->IsPlaceholder()) return TUnfinished::UnknownOperator;
    if (IsSubQueryOperator())
        return values[0].text.empty() && subQuery.empty() ? TUnfinished::NoSubQuery
                                                          : TUnfinished::No;

    const int count = ValueCount();
    if (count > 0 && !entered) return TUnfinished::NotEntered;
    if (query && !query->CheckValues) return TUnfinished::No;
    for (int n = 1; n <= count; ++n) {
        const TValue& value = values[n - 1];
        if (value.isParam) continue;
        const bool empty = Trim(value.text).empty();
        if (empty && (ValueIsBare(n) || (n == 1 && IsListOperator()))) return TUnfinished::NoValue;
    }
    return TUnfinished::No;
}

void TFilterCond::DoValueChange(int n) {
    DoConditionChange(n == 1 ? wcValue1 : wcValue2);
}

void TFilterCond::DoConditionChange(int whatChanged) {
    if (query && rowState == TRowState::rsNormal) query->ConditionChanged(*this, whatChanged);
}

void TFilterCond::ReleaseReferences() {
    if (field && !field->IsPlaceholder()) unknownFieldID = field->ID();
    if (op && !op->IsPlaceholder()) unknownOperator = op->Name();
    field = nullptr;
    op = nullptr;
    if (nested) nested.reset(); // read again from its text over the new structure
}

void TFilterCond::RestoreReferences() {
    TKCustomDBStructure* structure = query ? query->DbStruct() : nullptr;
    if (!structure) return;
    const bool hadField = unknownFieldID >= 0 || !unknownFieldName.empty() || !sqlText.empty();
    if (hadField) {
        field = unknownFieldID >= 0 ? structure->FieldByID(unknownFieldID) : nullptr;
        if (field)
            unknownFieldID = -1;
        else
            field = structure->PlaceholderField();
    }
    const bool hadOperator = !unknownOperator.empty() || !sqlText.empty();
    if (hadOperator) {
        op = unknownOperator.empty() ? nullptr : structure->OperatorByName(unknownOperator);
        if (op)
            unknownOperator.clear();
        else
            op = structure->PlaceholderOperator();
    }
    if (IsRecognized()) sqlText.clear();
}

} // namespace tern7
