#include <tern7/core/query/value_editor_choice.h>

#include <tern7/core/structure/operator.h>

namespace tern7 {

namespace {

TValueEditKind TextEditorKind(const TDSTextEditor& editor) {
    switch (editor.EditKind) {
    case TTextEditorKind::tekSimple:
        return TValueEditKind::vkText;
    case TTextEditorKind::tekMask:
        return TValueEditKind::vkMask;
    case TTextEditorKind::tekDate:
        return TValueEditKind::vkDate;
    case TTextEditorKind::tekTime:
        return TValueEditKind::vkTime;
    }
    return TValueEditKind::vkText;
}

} // namespace

TValueEditKind ValueEditorOf(TFieldType type) {
    switch (type) {
    case TFieldType::ftBoolean:
        return TValueEditKind::vkBoolean;
    case TFieldType::ftDate:
        return TValueEditKind::vkDate;
    case TFieldType::ftTime:
        return TValueEditKind::vkTime;
    case TFieldType::ftDateTime:
    case TFieldType::ftTimeStamp:
        return TValueEditKind::vkDateTime;
    default:
        return TValueEditKind::vkText;
    }
}

TValueEditKind ChooseValueEditor(const TFilterCond& condition) {
    const TDSField* field = condition.Field();
    const TDSOperator* op = condition.Operator();
    if (!field || !op) return TValueEditKind::vkText;
    if (condition.IsSubQueryOperator()) return TValueEditKind::vkSubQuery;
    if (field->EditType() == TDSEditType::etCustom) return TValueEditKind::vkCustom;
    const TFieldType type = condition.GetExprType();
    const bool ownOperand = type != field->FieldType();
    const bool hasList = field->ValueEditorAs<TDSListEditor>() && !ownOperand;
    if (condition.IsListOperator())
        return hasList ? TValueEditKind::vkCheckList : TValueEditKind::vkText;
    if (hasList) return TValueEditKind::vkList;
    const auto* text = field->ValueEditorAs<TDSTextEditor>();
    return text && !ownOperand ? TextEditorKind(*text) : ValueEditorOf(type);
}

} // namespace tern7
