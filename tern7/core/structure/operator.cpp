#include <tern7/core/structure/operator.h>

#include <array>

#include <tern7/core/global/messages.h>
#include <tern7/core/structure/structure_indexes.h>

namespace tern7 {

namespace {

constexpr std::array<std::string_view, 3> valueTypeNames = {"vtScalar", "vtList", "vtSubQuery"};

} // namespace

std::string_view OpValueTypeToStr(TOpValueType type) {
    return valueTypeNames[static_cast<size_t>(type)];
}

std::optional<TOpValueType> StrToOpValueType(std::string_view name) {
    for (size_t i = 0; i < valueTypeNames.size(); ++i)
        if (SameText(valueTypeNames[i], name)) return static_cast<TOpValueType>(i);
    return std::nullopt;
}

TAppliedTypes TDSOperator::DefaultAppliedTypes() {
    using enum TFieldType;
    return {ftString,   ftSmallint, ftInteger,   ftWord,       ftBoolean,  ftFloat,
            ftCurrency, ftBCD,      ftDate,      ftTime,       ftDateTime, ftAutoInc,
            ftMemo,     ftFmtMemo,  ftFixedChar, ftWideString, ftLargeint, ftTimeStamp};
}

bool TDSOperator::IsPlaceholder() const {
    return structure.PlaceholderOperator() == this;
}

void TDSOperator::SetName(std::string value) {
    if (value == name) return;
    const TDSOperator* holder = order && !value.empty() ? structure.OperatorByName(value) : nullptr;
    if (holder && holder != this)
        throw EKDBStructError(FormatMessage(messages::OperatorNameInUse, {value}));
    {
        TKeyChange change(*this);
        name = std::move(value);
    }
    structure.Changed();
}

void TDSOperator::SetDisplayName(std::string value) {
    if (value == displayName) return;
    displayName = std::move(value);
    structure.Changed();
}

void TDSOperator::SetSQLName(std::string value) {
    if (value == sqlTemplate.Text()) return;
    {
        TKeyChange change(*this);
        sqlTemplate.SetText(std::move(value));
    }
    structure.Changed();
}

void TDSOperator::SetValFormat(std::string value) {
    if (value == valFormat) return;
    valFormat = std::move(value);
    structure.Changed();
}

void TDSOperator::SetExprType(std::optional<TFieldType> value) {
    if (value == exprType) return;
    exprType = value;
    structure.Changed();
}

void TDSOperator::SetValueType(TOpValueType value) {
    if (value == valueType) return;
    valueType = value;
    structure.Changed();
}

void TDSOperator::SetAppliedTypes(TAppliedTypes value) {
    if (value == appliedTypes) return;
    appliedTypes = value;
    structure.Indexes().DropApplied();
    structure.Changed();
}

} // namespace tern7
