#pragma once

#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tern7/core/structure/structure.h>

namespace tern7::test {

/// The message of the EKDBStructError that the call raises; "no error" when it raises none.
template <class Call>
std::string ErrorOf(Call call) {
    try {
        call();
    } catch (const EKDBStructError& error) {
        return error.what();
    }
    return "no error";
}

inline std::vector<std::string> Aliases(const TDSPath& path) {
    std::vector<std::string> aliases;
    for (const TDSTable* table : path.Tables())
        aliases.push_back(table->TableAlias());
    return aliases;
}

inline std::vector<std::string> Names(const std::vector<TDSOperator*>& operators) {
    std::vector<std::string> names;
    for (const TDSOperator* op : operators)
        names.push_back(op->Name());
    return names;
}

inline std::vector<std::string> Names(const TDSFieldList& fields) {
    std::vector<std::string> names;
    for (const TDSField* field : fields.Items())
        names.push_back(field->DisplayName());
    return names;
}

/// Customers, their orders, and employees that orders and employees refer to.
inline void MakeSales(TKCustomDBStructure& structure) {
    TDSTable* customer = structure.AddTable("customers", "C");
    TDSTable* order = structure.AddTable("orders", "O");
    TDSTable* employee = structure.AddTable("Employees", "E");
    customer->SetDisplayName("Customer");
    order->SetDisplayName("Order");
    employee->SetDisplayName("Employee");
    employee->SetQuoted(true);
    auto add = [&](TDSTable* table, const char* name, const char* display, TFieldType type) {
        TDSField* field = structure.AddField(TKFieldKind::kfkData, name, display, table);
        field->SetFieldType(type);
        field->AddAppliedOperators();
        return field;
    };
    add(customer, "id", "Number", TFieldType::ftInteger);
    add(customer, "name", "Name", TFieldType::ftString)->SetFieldSize(40);
    add(order, "id", "Number", TFieldType::ftInteger);
    add(order, "placed", "Date", TFieldType::ftDate);
    add(employee, "Last Name", "Name", TFieldType::ftString)->SetQuoted(true);
    structure.AddField(TKFieldKind::kfkVirtual, "C.name || ' of E.x ' || O.id", "Label", nullptr);
    structure.AddLink("O", "C")->AddPair("customer_id", "id");
    structure.AddLink("O", "E", TDSLinkType::ltOuterLeft)->AddPair("employee_id", "id");
    structure.AddLink("E", "E")->AddPair("boss_id", "id");
    structure.SetDefaultMainTable("O");
}

/// A structure that is different for every seed: awkward texts, several links between the same two
/// tables, groups, every kind of value editor.
class TRandomStructure {
public:
    explicit TRandomStructure(unsigned seed) : random(seed) {}

    void Fill(TKCustomDBStructure& structure) {
        const int tableCount = 1 + Below(5);
        for (int i = 0; i < tableCount; ++i) {
            TDSTable* table = structure.AddTable(Text(), "T" + std::to_string(i) + Text());
            table->SetDisplayName(Text());
            table->SetHints(Text());
            table->SetQuoted(Below(2) == 0);
        }
        auto anyTable = [&] { return structure.GetTable(Below(tableCount)); };
        for (int i = Below(8); i > 0; --i) {
            TDSLink* link = structure.AddLink(anyTable()->TableAlias(), anyTable()->TableAlias(),
                                              static_cast<TDSLinkType>(Below(4)));
            for (int k = Below(3); k > 0; --k)
                link->AddPair(Text(), Text(), Below(2) ? "=" : Text());
        }
        TDSOperator* op = structure.AddOperator("Own" + Text());
        op->SetSQLName(Text() + "@f");
        op->SetExprType(TFieldType::ftInteger);
        op->SetValueType(TOpValueType::vtSubQuery);
        op->SetAppliedTypes({TFieldType::ftString, TFieldType::ftInteger});
        for (int i = 3 + Below(12); i > 0; --i)
            AddField(structure, anyTable());
        if (Below(2)) structure.SQLFormats().SetDate("yyyy-mm-dd" + Text());
        if (Below(2)) structure.SQLFormats().SetQuoteSymbol2(']');
        structure.SetRootFieldsFirst(Below(2) == 0);
    }

private:
    int Below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
    std::string Text() {
        static const std::string texts[] = {"",     "a",      " a ",   "a,b",    "\"q\"",    "x=y",
                                            "[s]",  "a\nb",   "%0A",   "Link:",  "ü\r\n[x]", "a-b",
                                            "'it'", " [in]x", "\ttab", "Caf\xE9"};
        return texts[static_cast<size_t>(Below(16))];
    }
    TStrings Lines() {
        TStrings lines;
        for (int i = Below(4); i > 0; --i)
            lines.push_back(Text());
        return lines;
    }
    void AddField(TKCustomDBStructure& structure, TDSTable* table) {
        const bool isVirtual = Below(3) == 0;
        TDSField* field =
            structure.AddField(isVirtual ? TKFieldKind::kfkVirtual : TKFieldKind::kfkData,
                               isVirtual ? Text() : "c" + Text(), Text(), table);
        field->SetFieldType(static_cast<TFieldType>(Below(FieldTypeCount)));
        field->SetFieldSize(Below(100));
        field->AddAppliedOperators();
        if (field->GetOperatCount() > 1 && Below(2)) field->MoveOperat(0, 1);
        if (Below(3) == 0) structure.FieldGroups().AddGroup("G" + Text(), field);
        field->SetUseInResult(Below(2) == 0);
        field->SetEditType(static_cast<TDSEditType>(Below(5)));
        if (auto* text = field->ValueEditorAs<TDSTextEditor>()) {
            text->DefValue = Text();
            text->EditMask = Text();
            text->EditKind = static_cast<TTextEditorKind>(Below(4));
            text->FmtVal = static_cast<uint8_t>(Below(256));
            text->Options = Below(4);
        } else if (auto* list = field->ValueEditorAs<TDSListEditor>()) {
            list->Items = Lines();
            list->Values = Lines();
        }
        if (auto* sql = field->ValueEditorAs<TDSSQLEditor>()) {
            sql->SQL = Lines();
            sql->SetSQLParams(Lines());
        } else if (auto* custom = field->ValueEditorAs<TDSCustomEditor>()) {
            custom->CustomData = Lines();
        }
    }

    std::mt19937 random;
};

} // namespace tern7::test
