#include <tern7/core/query/condition_change.h>

#include <algorithm>
#include <cctype>

#include <tern7/core/corekit/comma_text.h>
#include <tern7/core/query/condition_text.h>
#include <tern7/core/query/query.h>

namespace tern7 {

namespace {

enum class TShape { One, List, SubQuery };

TShape ShapeOf(const TDSOperator* op) {
    if (!op) return TShape::One;
    switch (op->ValueType()) {
    case TOpValueType::vtScalar:
        return TShape::One;
    case TOpValueType::vtList:
        return TShape::List;
    case TOpValueType::vtSubQuery:
        return TShape::SubQuery;
    }
    return TShape::One;
}

TFieldType OperandType(const TDSField* field, const TDSOperator* op) {
    if (op && op->ExprType()) return *op->ExprType();
    return field ? field->FieldType() : TFieldType::ftUnknown;
}

bool IsDate(const TKQuery& query, TFieldType type, const std::string& value) {
    TKDateTime read;
    if (query.Services.readLocalDate && query.Services.readLocalDate(type, value, read))
        return true;
    const auto iso = ParseIsoDateTime(value);
    return iso && (type == TFieldType::ftTime ? iso->hasTime : iso->hasDate);
}

bool IsNumberToken(const std::string& value) {
    const std::string_view text = Trim(value);
    const bool word = !text.empty() && (IsLetter(text[0]) || text[0] == '_' ||
                                        static_cast<unsigned char>(text[0]) > 127);
    return !word && IsBareToken(text);
}

/// The list that a value must be of; none when there is none, or it is not known yet.
const TDSListEditor* KnownList(const TDSField& field, TFieldType type) {
    if (type != field.FieldType()) return nullptr;
    const auto* sql = field.ValueEditorAs<TDSSQLEditor>();
    return sql && !sql->Opened() ? nullptr : field.ValueEditorAs<TDSListEditor>();
}

bool Suits(const TKQuery& query, const TDSField& field, TFieldType type, const std::string& value) {
    if (const TDSListEditor* list = KnownList(field, type))
        return std::find(list->Values.begin(), list->Values.end(), value) != list->Values.end();
    if (type == TFieldType::ftBoolean) return value == "0" || value == "1";
    if (IsDateOrTime(type)) return IsDate(query, type, value);
    return field.Structure().IsQuotedType(field.FieldType()) || IsNumberToken(value);
}

/// The items of a value in the shape of an operator.
TStrings ItemsOf(const std::string& value, TShape shape) {
    if (shape == TShape::SubQuery || value.empty()) return {};
    return shape == TShape::List ? ParseCommaText(value) : TStrings{value};
}

std::string Shaped(TStrings items, TShape shape) {
    if (items.empty() || shape == TShape::SubQuery) return {};
    return shape == TShape::List ? ComposeCommaText(items) : items.front();
}

class TTransition {
public:
    TTransition(const TFilterCond& from, TDSField* toField, TDSOperator* toOperator)
        : condition(from), query(*from.Query()) {
        change.field = toField;
        change.op = toOperator;
    }

    TConditionChange Result() {
        const int count = change.op ? std::min(change.op->GetParamCount(), 2) : 0;
        for (int n = 1; n <= 2; ++n)
            change.values[n - 1] = ValueAfter(n);
        const bool propose = !condition.Field() && change.field;
        if (propose && count > 0 && ShapeOf(change.op) != TShape::SubQuery) Propose(count);
        if (!propose) change.entered = condition.Entered() && !Lacks(count);
        change.keepsCaptions = change.field == condition.Field();
        return std::move(change);
    }

private:
    /// Values behind those that the operator takes are kept as they are: they are not seen.
    std::string ValueAfter(int n) const {
        const std::string& value = condition.Value(n);
        if (!change.field || !change.op || value.empty()) return value;
        const TShape before = ShapeOf(condition.Operator()), after = ShapeOf(change.op);
        if (before == TShape::SubQuery || after == TShape::SubQuery)
            return before == after ? value : std::string();
        const TFieldType type = OperandType(change.field, change.op);
        const bool sameOperand = change.field == condition.Field() &&
                                 type == OperandType(condition.Field(), condition.Operator());
        if (sameOperand && before == after) return value;
        TStrings items = ItemsOf(value, before);
        if (!sameOperand)
            std::erase_if(items, [&](const std::string& item) {
                return !Suits(query, *change.field, type, item);
            });
        return Shaped(std::move(items), after);
    }

    void Propose(int count) {
        change.entered = false;
        const auto* editor = change.field->ValueEditorAs<TDSTextEditor>();
        if (!editor || editor->DefValue.empty() || !change.values[0].empty()) return;
        change.values[0] = Shaped({editor->DefValue}, ShapeOf(change.op));
        change.entered = count == 1; // a proposal that can be read is an answer
    }

    /// True when a value that nobody entered would be compared with.
    bool Lacks(int count) const {
        if (ShapeOf(change.op) == TShape::SubQuery) return false;
        for (int n = 1; n <= count; ++n) {
            const bool wasEmpty = n <= condition.ValueCount() && condition.Value(n).empty();
            if (change.values[n - 1].empty() && !condition.ValueIsParam(n) && !wasEmpty)
                return true;
        }
        return false;
    }

    const TFilterCond& condition;
    const TKQuery& query;
    TConditionChange change;
};

} // namespace

TConditionChange WithField(const TFilterCond& condition, TDSField& field) {
    const std::vector<TDSOperator*>& offered = field.Operators();
    TDSOperator* op = condition.Operator();
    if (std::find(offered.begin(), offered.end(), op) == offered.end())
        op = offered.empty() ? nullptr : offered.front();
    return TTransition(condition, &field, op).Result();
}

TConditionChange WithOperator(const TFilterCond& condition, TDSOperator& op) {
    return TTransition(condition, condition.Field(), &op).Result();
}

void ApplyChange(TFilterCond& condition, const TConditionChange& change) {
    if (!condition.Query()) return;
    TKQuery::THeldEvents events(*condition.Query());
    condition.SetField(change.field);
    condition.SetOperator(change.op);
    for (int n = 1; n <= 2; ++n) {
        const std::string& value = change.values[n - 1];
        const bool same = value == condition.Value(n) &&
                          (change.keepsCaptions || condition.ValueCaption(n).empty());
        if (!same) condition.SetValue(n, value);
    }
    condition.SetEntered(change.entered);
    events.Send();
}

} // namespace tern7
