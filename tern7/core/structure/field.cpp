#include <tern7/core/structure/field.h>

#include <algorithm>

#include <tern7/core/global/messages.h>
#include <tern7/core/structure/structure_indexes.h>

namespace tern7 {

TDSField::TDSField(TKCustomDBStructure& owner, TKFieldKind newKind)
    : structure(owner), kind(newKind) {}

TDSField::~TDSField() = default;

// --- texts that the field is known by

void TDSField::SetExpr(std::string text) {
    if (text == fieldExpr) return;
    {
        TKeyChange change(*this);
        fieldExpr = std::move(text);
    }
    structure.Changed();
}

void TDSField::SetFieldName(std::string name) {
    if (kind == TKFieldKind::kfkVirtual)
        throw EKDBStructError(std::string(messages::AssignFieldNameToVirtual));
    SetExpr(std::move(name));
}

void TDSField::SetSQLExpr(std::string expression) {
    if (kind == TKFieldKind::kfkData)
        throw EKDBStructError(std::string(messages::AssignExpressionToData));
    SetExpr(std::move(expression));
}

void TDSField::SetDisplayName(std::string value) {
    if (value == displayName) return;
    {
        TKeyChange change(*this);
        displayName = std::move(value);
    }
    structure.Changed();
}

void TDSField::SetTable(TDSTable* value) {
    if (value == table || kind == TKFieldKind::kfkVirtual) return;
    if (!value || &value->Structure() != &structure)
        throw EKDBStructError(
            FormatMessage(messages::NoSuchTable, {value ? value->TableAlias() : ""}));
    {
        TKeyChange change(*this);
        table = value;
    }
    structure.Changed();
}

void TDSField::SetQuoted(bool value) {
    if (value == quoted) return;
    {
        TKeyChange change(*this);
        quoted = value;
    }
    structure.Changed();
}

std::string TDSField::GetCompoundName() const {
    return table ? table->TableAlias() + "." + fieldExpr : fieldExpr;
}

std::string TDSField::GetFullName() const {
    return table ? table->DisplayName() + " " + displayName : displayName;
}

std::string TDSField::GetSQLExpr() const {
    std::string text;
    AppendSQLExpr(text);
    return text;
}

void TDSField::AppendSQLExpr(std::string& out) const {
    if (table) {
        out += table->TableAlias();
        out += '.';
    }
    if (table && quoted)
        structure.SQLFormats().AppendQuoted(out, fieldExpr);
    else
        out += fieldExpr;
}

// --- settings

void TDSField::SetFieldType(TFieldType value) {
    if (value == fieldType) return;
    fieldType = value;
    structure.Changed();
}

void TDSField::SetFieldSize(int value) {
    value = std::max(value, 0);
    if (value == fieldSize) return;
    fieldSize = value;
    structure.Changed();
}

void TDSField::SetUseInConditions(bool value) {
    if (value == useInConditions) return;
    useInConditions = value;
    structure.Changed();
}

void TDSField::SetUseInResult(bool value) {
    if (value == useInResult) return;
    useInResult = value;
    structure.Changed();
}

void TDSField::SetEditType(TDSEditType value) {
    if (value == editType) return;
    editor = MakeValueEditor(value, structure);
    editType = value;
    structure.Changed();
}

void TDSField::ValueEditorChanged() {
    structure.Changed();
}

std::string TDSField::ValueAsString(std::string_view value) const {
    return structure.IsQuotedType(fieldType) ? QuotedString(value) : std::string(value);
}

// --- operators

TDSField::TOperators& TDSField::OwnOperators() {
    if (!operators)
        operators = std::make_shared<TOperators>();
    else if (operators.use_count() > 1)
        operators = std::make_shared<TOperators>(*operators);
    return *operators;
}

TDSOperator* TDSField::GetOperator(int index) const {
    if (index < 0 || index >= GetOperatCount())
        throw EKDBStructError(
            FormatMessage(messages::InvalidOperatorIndex, {std::to_string(index)}));
    return Operators()[static_cast<size_t>(index)];
}

void TDSField::AddOperator(TDSOperator* op) {
    const TOperators& present = Operators();
    if (!op || std::find(present.begin(), present.end(), op) != present.end()) return;
    OwnOperators().push_back(op);
    structure.Changed();
}

void TDSField::AddOperatorByName(std::string_view name) {
    TDSOperator* op = structure.OperatorByName(name);
    if (!op) throw EKDBStructError(FormatMessage(messages::OperatorNotFound, {name}));
    AddOperator(op);
}

void TDSField::DelOperator(int index) {
    static_cast<void>(GetOperator(index));
    TOperators& list = OwnOperators();
    list.erase(list.begin() + index);
    structure.Changed();
}

void TDSField::MoveOperat(int from, int to) {
    TDSOperator* op = GetOperator(from);
    static_cast<void>(GetOperator(to));
    if (from == to) return;
    TOperators& list = OwnOperators();
    list.erase(list.begin() + from);
    list.insert(list.begin() + to, op);
    structure.Changed();
}

void TDSField::ClearOperators() {
    if (Operators().empty()) return;
    operators.reset();
    structure.Changed();
}

void TDSField::AddAppliedOperators() {
    const auto applied = structure.AppliedOperators(fieldType);
    if (Operators().empty()) {
        if (applied->empty()) return;
        operators = applied;
        structure.Changed();
        return;
    }
    TDSUpdate update(structure);
    for (TDSOperator* op : *applied)
        AddOperator(op);
}

// --- group

void TDSField::SetGroup(TDSFieldGroup* value) {
    if (order) (value ? *value : structure.rootGroup).Add(this);
}

std::string TDSField::GetGroupName() const {
    return group ? group->GroupName() : std::string();
}

} // namespace tern7
