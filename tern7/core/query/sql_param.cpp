#include <tern7/core/query/sql_param.h>

#include <tern7/core/corekit/strings.h>
#include <tern7/core/query/filter_row.h>
#include <tern7/core/query/query.h>

namespace tern7 {

TSQLParam::~TSQLParam() {
    Release();
}

void TSQLParam::Reserve(std::shared_ptr<TParamNames> where) {
    names = std::move(where);
    names->insert(LowerCase(name));
}

void TSQLParam::Release() {
    if (!names) return;
    if (auto it = names->find(LowerCase(name)); it != names->end()) names->erase(it);
    names.reset();
}

std::unique_ptr<TSQLParam> TSQLParam::CopyFor(TFilterCond& other) const {
    auto copy = std::make_unique<TSQLParam>(other, valueNumber);
    copy->name = name;
    copy->caption = caption;
    copy->valueFormat = valueFormat;
    copy->given = given;
    copy->generated = generated;
    copy->named = named;
    return copy;
}

TFieldType TSQLParam::ExprType() const {
    return condition->GetExprType();
}

std::string TSQLParam::Value() const {
    return given ? *given : condition->Value(valueNumber);
}

std::string TSQLParam::GetFullValue() const {
    const TKQuery* query = condition->Query();
    std::string value = Value();
    if (query && IsDateOrTime(ExprType())) value = query->ProcessDateValue(ExprType(), value, true);
    return ReplaceStr(valueFormat, "@v", value);
}

} // namespace tern7
