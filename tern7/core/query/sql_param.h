#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>

#include <tern7/core/corekit/object_list.h>
#include <tern7/core/global/field_types.h>

namespace tern7 {

class TFilterCond;

/// The parameter names in use in a query and all queries nested in it, in lower case.
using TParamNames = std::unordered_multiset<std::string>;

/// A value that is asked for when the query runs. Owned by the query's parameter list (by its
/// condition while that is out of the tree).
class TSQLParam {
public:
    TSQLParam(TFilterCond& owner, int number) : condition(&owner), valueNumber(number) {}
    ~TSQLParam();
    TSQLParam(const TSQLParam&) = delete;
    TSQLParam& operator=(const TSQLParam&) = delete;

    /// Unique over a query and the queries nested in it, ignoring case.
    const std::string& Name() const { return name; }
    /// The name was given, and is kept with the query; else it is a number that may change.
    bool IsNamed() const { return named; }
    const std::string& Caption() const { return caption; }
    /// A caption of the application's own; until then it is made of the field's.
    void SetCaption(std::string value) {
        caption = std::move(value);
        generated = false;
    }
    TFieldType ExprType() const;
    TFilterCond* Condition() const { return condition; }
    /// 1 or 2: the value of the condition that it stands for.
    int ValueNumber() const { return valueNumber; }

    /// The literal that the parameter replaces, with "@v" for its value: "%@v%".
    const std::string& ValueFormat() const { return valueFormat; }
    void SetValueFormat(std::string value) { valueFormat = std::move(value); }
    /// The value that was given, else the one that the condition stores.
    std::string Value() const;
    bool HasValue() const { return given || !Value().empty(); }
    /// Gives a value for the runs to come; nothing: back to the stored one.
    void SetValue(std::optional<std::string> value) { given = std::move(value); }
    /// The value format with every "@v" replaced, in one pass, by the value; dates and times in the
    /// structure's SQL form.
    std::string GetFullValue() const;

private:
    friend class TQueryResult;
    friend class TFilterCond;
    friend class TKQuery;
    /// The name counts as taken while this lives, or until Release.
    void Reserve(std::shared_ptr<TParamNames> where);
    void Release();
    std::unique_ptr<TSQLParam> CopyFor(TFilterCond& other) const;
    TFilterCond* condition;
    int valueNumber;
    std::string name;
    std::shared_ptr<TParamNames> names; // where the name is reserved while this lives
    std::string caption;
    std::string valueFormat = "@v";
    std::optional<std::string> given;
    bool generated = true; // the caption follows the field
    bool named = false;
};

/// The parameters of one query, in the order in which they were made.
class TSQLParamList : public TKObjectList<TSQLParam> {
    friend class TQueryResult;
};

} // namespace tern7
