#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <tern7/core/global/field_types.h>
#include <tern7/core/structure/value_editors.h>

namespace tern7 {

class TDSFieldGroup;
class TDSOperator;
class TDSTable;
class TKCustomDBStructure;

/// What end users query: a column of a table (data field), or an SQL expression under a name
/// (virtual field). Owned by the structure's field list.
class TDSField {
public:
    TDSField(TKCustomDBStructure& structure, TKFieldKind kind);
    ~TDSField();

    TKCustomDBStructure& Structure() const { return structure; }
    /// Unique in the structure; groups, files and queries refer to fields by it. -1 for the
    /// placeholder.
    int ID() const { return id; }
    bool IsPlaceholder() const { return id < 0; }
    TKFieldKind Kind() const { return kind; }

    /// Column name of a data field, SQL expression of a virtual one.
    const std::string& FieldExpr() const { return fieldExpr; }
    /// EKDBStructError "Can not assign field name to virtual field" for a virtual field.
    void SetFieldName(std::string name);
    /// EKDBStructError "Can not assign expression to data field" for a data field.
    void SetSQLExpr(std::string expression);

    const std::string& DisplayName() const { return displayName; }
    /// The table of a data field; none for a virtual field.
    TDSTable* Table() const { return table; }
    bool Quoted() const { return quoted; }
    TFieldType FieldType() const { return fieldType; }
    int FieldSize() const { return fieldSize; }
    bool UseInConditions() const { return useInConditions; }
    bool UseInResult() const { return useInResult; }
    TDSEditType EditType() const { return editType; }
    TDSValueEditor* ValueEditor() const { return editor.get(); } ///< none for etAuto
    template <class T>
    T* ValueEditorAs() const {
        return dynamic_cast<T*>(editor.get());
    }

    void SetDisplayName(std::string value);
    /// A data field always has a table: EKDBStructError "No such table %s" for none or one of
    /// another structure. Does nothing for a virtual field.
    void SetTable(TDSTable* value);
    void SetQuoted(bool value);
    void SetFieldType(TFieldType value);
    void SetFieldSize(int value); ///< a negative one is 0
    void SetUseInConditions(bool value);
    void SetUseInResult(bool value);
    /// A different type replaces the editor object; the same keeps it and its settings.
    void SetEditType(TDSEditType value);
    /// Tells the structure that the editor's settings were changed.
    void ValueEditorChanged();

    /// The operators that the condition builder offers, in order. The list is valid until it is
    /// changed: fields with the same operators share it.
    const std::vector<TDSOperator*>& Operators() const {
        static const std::vector<TDSOperator*> none;
        return operators ? *operators : none;
    }
    int GetOperatCount() const { return static_cast<int>(Operators().size()); }
    /// EKDBStructError "Invalid operator index %d".
    TDSOperator* GetOperator(int index) const;
    /// Appends; an operator that is there already stays where it is.
    void AddOperator(TDSOperator* op);
    /// EKDBStructError "Operator not found: %s".
    void AddOperatorByName(std::string_view name);
    void DelOperator(int index);
    void MoveOperat(int from, int to);
    void ClearOperators();
    /// Adds every operator of the structure whose applied types contain this field's type and that
    /// is not there yet.
    void AddAppliedOperators();

    /// The group that holds the field; none when it stands in the root group.
    TDSFieldGroup* Group() const { return group; }
    /// Moves the field to the end of a group; none: to the end of the root group.
    void SetGroup(TDSFieldGroup* value);
    /// Empty for the root group.
    std::string GetGroupName() const;

    /// Table alias, a point, field expression; the expression alone for a virtual field.
    std::string GetCompoundName() const;
    /// Table display name, a blank, field display name.
    std::string GetFullName() const;
    /// What stands for the field in SQL: alias and column (in quote symbols when Quoted), or the
    /// expression.
    std::string GetSQLExpr() const;
    /// Appends GetSQLExpr to a text.
    void AppendSQLExpr(std::string& out) const;
    /// The tables that a query needs for this field: that of a data field; for a virtual field
    /// those whose alias stands before a point in its expression, outside literals, in order of
    /// appearance. Kept until the structure changes.
    const std::vector<TDSTable*>& GetTables() const;
    /// The expression of a virtual field with the table prefixes taken out.
    std::string ExcludeTables() const;
    /// The value in single quotes, embedded ones doubled, for a quoted type; else unchanged.
    std::string ValueAsString(std::string_view value) const;

private:
    friend class TKCustomDBStructure;
    friend class TDSFieldGroup;
    friend class TDSFieldGroupList;
    friend class TKStructureReader;
    friend class TKStructureWriter;
    class TKeyChange;
    struct TPrefixTables {
        uint64_t revision = 0;
        std::vector<TDSTable*> tables;
    };
    using TOperators = std::vector<TDSOperator*>;
    TOperators& OwnOperators();
    void SetExpr(std::string text);

    TKCustomDBStructure& structure;
    uint32_t order = 0; // rises along the structure's field list; 0: not in the list
    int id = -1;
    int fieldSize = 0;
    std::string fieldExpr;
    std::string displayName;
    TDSTable* table = nullptr;
    TDSFieldGroup* group = nullptr;
    std::unique_ptr<TDSValueEditor> editor;
    std::shared_ptr<TOperators> operators; // shared while equal, copied before a change
    TKFieldKind kind;
    TFieldType fieldType = TFieldType::ftUnknown;
    TDSEditType editType = TDSEditType::etAuto;
    bool quoted = false;
    bool useInConditions = true;
    bool useInResult = true;
    mutable std::unique_ptr<TPrefixTables> prefixTables; // of a virtual field, see GetTables
};

} // namespace tern7
