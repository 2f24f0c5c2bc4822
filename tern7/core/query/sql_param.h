#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <tern7/core/corekit/object_list.h>
#include <tern7/core/global/field_types.h>

namespace tern7 {

class TFilterCond;

/// A value that is asked for when the query runs. Owned by the query's parameter list (by its
/// condition while that is out of the tree).
class TSQLParam {
public:
    TSQLParam(TFilterCond& owner, int number) : condition(&owner), valueNumber(number) {}

    /// Unique over a query and the queries nested in it, ignoring case.
    const std::string& Name() const { return name; }
    const std::string& Caption() const { return caption; }
    void SetCaption(std::string value) { caption = std::move(value); }
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
    TFilterCond* condition;
    int valueNumber;
    std::string name;
    std::string caption;
    std::string valueFormat = "@v";
    std::optional<std::string> given;
};

using TSQLParamList = TKObjectList<TSQLParam>;

} // namespace tern7
