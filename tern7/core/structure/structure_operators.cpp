#include <algorithm>
#include <unordered_map>

#include <tern7/core/global/messages.h>
#include <tern7/core/structure/default_operators.h>
#include <tern7/core/structure/structure_indexes.h>

namespace tern7 {

namespace {

using TOperatorRefs = std::vector<TDSOperator*>;

/// Takes operators out of lists that fields share: each list is copied once, and its copy shared.
template <class Goes>
class TOperatorRemover {
public:
    explicit TOperatorRemover(Goes test) : goes(test) {}

    void From(std::shared_ptr<TOperatorRefs>& list) {
        if (!list) return;
        auto [known, isNew] = copies.try_emplace(list, nullptr);
        if (isNew) {
            if (std::none_of(list->begin(), list->end(), goes)) {
                known->second = list;
            } else {
                known->second = std::make_shared<TOperatorRefs>(*list);
                std::erase_if(*known->second, goes);
            }
        }
        list = known->second;
    }

private:
    Goes goes;
    std::unordered_map<std::shared_ptr<TOperatorRefs>, std::shared_ptr<TOperatorRefs>> copies;
};

} // namespace

void TKCustomDBStructure::List(TDSOperator* op) {
    op->order = ++lastOperatorOrder;
    indexes->Add(op);
    indexes->DropApplied();
}

TDSOperator* TKCustomDBStructure::AddOperator(std::string name) {
    if (!name.empty() && OperatorByName(name))
        throw EKDBStructError(FormatMessage(messages::OperatorNameInUse, {name}));
    auto made = std::make_unique<TDSOperator>(*this);
    made->name = std::move(name);
    TDSOperator* op = operators.Add(std::move(made));
    List(op);
    Changed();
    return op;
}

void TKCustomDBStructure::DelOperator(int index) {
    TDSOperator* op = GetOperator(index);
    TDSUpdate update(*this);
    TReferencesReleased references(*this);
    TOperatorRemover remover([op](const TDSOperator* other) { return other == op; });
    for (const auto& field : fields)
        remover.From(field->operators);
    indexes->Remove(op);
    indexes->DropApplied();
    operators.Delete(index);
    Changed();
}

void TKCustomDBStructure::ClearOperators() {
    TDSUpdate update(*this);
    TReferencesReleased references(*this);
    for (const auto& field : fields)
        field->operators.reset();
    indexes->DropOperators();
    operators.Clear();
    Changed();
}

TDSOperator* TKCustomDBStructure::GetOperator(int index) const {
    if (index < 0 || index >= operators.GetCount())
        throw EKDBStructError(
            FormatMessage(messages::InvalidOperatorIndex, {std::to_string(index)}));
    return operators[index];
}

int TKCustomDBStructure::OperatorIndexByName(std::string_view name) const {
    const TDSOperator* op = OperatorByName(name);
    return op ? IndexOfOperator(op) : -1;
}

void TKCustomDBStructure::GetOperatorNames(TStrings& names,
                                           std::vector<TDSOperator*>* objects) const {
    names.clear();
    if (objects) objects->clear();
    for (const auto& op : operators) {
        names.push_back(op->Name());
        if (objects) objects->push_back(op.get());
    }
}

std::shared_ptr<TOperatorRefs> TKCustomDBStructure::AppliedOperators(TFieldType type) {
    std::shared_ptr<TOperatorRefs>& list = indexes->applied[static_cast<size_t>(type)];
    if (!list) {
        list = std::make_shared<TOperatorRefs>();
        for (const auto& op : operators)
            if (op->AppliedTypes().Contains(type)) list->push_back(op.get());
    }
    return list;
}

// --- default operators

std::string TKCustomDBStructure::DefaultCaption(std::string_view name,
                                                std::string_view otherwise) const {
    const int line = IndexOfName(defOperators, name);
    return std::string(line < 0 ? otherwise : LineValue(defOperators[static_cast<size_t>(line)]));
}

void TKCustomDBStructure::FillDefOperator(TDSOperator& op, size_t row) const {
    const TDefaultOperator& wanted = DefaultOperators[row];
    if (op.name.empty()) op.name = wanted.name;
    op.displayName = DefaultCaption(wanted.name, wanted.caption);
    op.sqlTemplate.SetText(std::string(wanted.sqlTemplate));
    op.valFormat = wanted.valFormat;
    op.appliedTypes = wanted.appliedTypes;
    if (wanted.valueType != TOpValueType::vtScalar) op.valueType = wanted.valueType;
}

// The operator of one row of the table of defaults; one that exists is overwritten in place, or
// with `update` false left alone.
void TKCustomDBStructure::AddDefOperator(size_t row, bool update) {
    TDSOperator* op = OperatorByName(DefaultOperators[row].name);
    if (op && !update) return;
    if (!op) op = AddOperator(std::string(DefaultOperators[row].name));
    {
        TDSOperator::TKeyChange change(*op);
        FillDefOperator(*op, row);
    }
    indexes->DropApplied();
    Changed();
}

void TKCustomDBStructure::AddDefOperators(bool update) {
    TDSUpdate nested(*this);
    for (size_t row = 0; row < DefaultOperators.size(); ++row) {
        const auto optional = DefaultOperators[row].optional;
        if (!optional || exOperators.Contains(*optional)) AddDefOperator(row, update);
    }
}

void TKCustomDBStructure::MergeDefOperators() {
    AddDefOperators(false);
}

void TKCustomDBStructure::UpdateDefOperators() {
    TDSUpdate nested(*this);
    for (const std::string& line : defOperators)
        if (const std::string_view name = LineName(line); !name.empty())
            UpdateOperatorCaption(name, std::string(LineValue(line)));
}

void TKCustomDBStructure::UpdateOperatorCaption(std::string_view name, std::string caption) {
    if (TDSOperator* op = OperatorByName(name)) op->SetDisplayName(std::move(caption));
}

void TKCustomDBStructure::DeleteOperatorByName(std::string_view name) {
    if (const int index = OperatorIndexByName(name); index >= 0) DelOperator(index);
}

// The same lines too bring back what was changed or deleted.
void TKCustomDBStructure::SetDefOperators(TStrings lines) {
    TDSUpdate nested(*this);
    defOperators = std::move(lines);
    AddDefOperators(true);
    Changed();
}

void TKCustomDBStructure::SetExOperators(TExOperators value) {
    if (value == exOperators) return;
    TDSUpdate nested(*this);
    exOperators = value;
    for (size_t row = 0; row < DefaultOperators.size(); ++row) {
        const TDefaultOperator& wanted = DefaultOperators[row];
        if (!wanted.optional) continue;
        if (value.Contains(*wanted.optional))
            AddDefOperator(row, true);
        else
            DeleteOperatorByName(wanted.name);
    }
    UpdateDefOperators();
    Changed();
}

} // namespace tern7
