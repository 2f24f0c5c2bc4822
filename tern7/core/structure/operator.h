#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>

#include <tern7/core/global/field_types.h>
#include <tern7/core/structure/sql_template.h>

namespace tern7 {

class TKCustomDBStructure;

enum class TOpValueType : uint8_t { vtScalar = 0, vtList = 1, vtSubQuery = 2 };

/// The enumeration names, and back without regard to case.
std::string_view OpValueTypeToStr(TOpValueType type);
std::optional<TOpValueType> StrToOpValueType(std::string_view name);

/// The optional groups of default operators.
enum class TExOperator : uint8_t { xoInList = 0, xoBetween = 1, xoStartsWith = 2, xoContains = 3 };

class TExOperators {
public:
    constexpr TExOperators() = default;
    constexpr TExOperators(std::initializer_list<TExOperator> members) {
        for (TExOperator member : members)
            bits = static_cast<uint8_t>(bits | Bit(member));
    }
    constexpr bool Contains(TExOperator member) const { return (bits & Bit(member)) != 0; }
    constexpr bool operator==(const TExOperators&) const = default;
    static constexpr TExOperators All() {
        return {TExOperator::xoInList, TExOperator::xoBetween, TExOperator::xoStartsWith,
                TExOperator::xoContains};
    }

private:
    static constexpr uint8_t Bit(TExOperator m) {
        return static_cast<uint8_t>(1 << static_cast<int>(m));
    }
    uint8_t bits = 0;
};

/// A condition operator: turns a field and its values into SQL text through a template. Owned by
/// the structure's operator list; fields and conditions refer to it.
class TDSOperator {
public:
    explicit TDSOperator(TKCustomDBStructure& owner) : structure(owner) {}

    TKCustomDBStructure& Structure() const { return structure; }

    /// Unique key, compared without regard to case.
    const std::string& Name() const { return name; }
    const std::string& DisplayName() const { return displayName; }
    /// The SQL template, "@f = '@1'".
    const std::string& SQLName() const { return sqlTemplate.Text(); }
    /// Text between the two values, "and".
    const std::string& ValFormat() const { return valFormat; }
    /// Type of the operand; nothing means: that of the field.
    std::optional<TFieldType> ExprType() const { return exprType; }
    bool SameAsField() const { return !exprType; }
    TOpValueType ValueType() const { return valueType; }
    TAppliedTypes AppliedTypes() const { return appliedTypes; }

    /// EKDBStructError "Operator name "%s" is in use" when another operator has it.
    void SetName(std::string value);
    void SetDisplayName(std::string value);
    void SetSQLName(std::string value);
    void SetValFormat(std::string value);
    void SetExprType(std::optional<TFieldType> value);
    void SetValueType(TOpValueType value);
    void SetAppliedTypes(TAppliedTypes value);

    /// Number of value placeholders: "@1", "@2", ... up to the first that is missing.
    int GetParamCount() const { return sqlTemplate.ParamCount(); }
    /// SQLName cut into pieces once.
    const TKSQLTemplate& Template() const { return sqlTemplate; }

    /// True for the placeholder that stands for an operator unknown to the structure.
    bool IsPlaceholder() const;

    static TAppliedTypes DefaultAppliedTypes();

private:
    friend class TKCustomDBStructure;
    friend class TKStructureReader;
    class TKeyChange;
    TKCustomDBStructure& structure;
    uint32_t order = 0; // rises along the structure's operator list; 0: not in the list
    std::string name;
    std::string displayName;
    TKSQLTemplate sqlTemplate;
    std::string valFormat;
    std::optional<TFieldType> exprType;
    TOpValueType valueType = TOpValueType::vtScalar;
    TAppliedTypes appliedTypes = DefaultAppliedTypes();
};

} // namespace tern7
