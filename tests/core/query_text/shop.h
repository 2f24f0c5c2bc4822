#pragma once

#include <string>

#include <tern7/kdbstruc.h>
#include <tern7/kquerpnl.h>

namespace tern7::test {

/// A small structure: customers and their orders, every kind of value.
class TShop {
public:
    TShop() {
        structure.AddDefOperators(true);
        TDSTable* customer = structure.AddTable("customers", "C");
        TDSTable* order = structure.AddTable("orders", "O");
        customer->SetDisplayName("Customer");
        order->SetDisplayName("Order");
        structure.AddLink("C", "O")->AddPair("id", "customer_id");
        city = Add(customer, "city", "City", TFieldType::ftString);
        name = Add(customer, "name", "Name", TFieldType::ftString);
        amount = Add(order, "amount", "Amount", TFieldType::ftFloat);
        day = Add(order, "ordered", "Ordered", TFieldType::ftDate);
        orderName = Add(order, "name", "Name", TFieldType::ftString);
        inQuery = structure.AddOperator("InQuery");
        inQuery->SetSQLName("@f in (@1)");
        inQuery->SetDisplayName("is found by");
        inQuery->SetValueType(TOpValueType::vtSubQuery);
    }

    TDSOperator* Op(std::string_view opName) { return structure.OperatorByName(opName); }

    static TFilterCond* AddCond(TFilterBracket& parent, TDSField* field, TDSOperator* op,
                                std::string value1 = {}, std::string value2 = {}) {
        TFilterCond* condition = parent.AddCond();
        condition->SetField(field);
        condition->SetOperator(op);
        condition->SetValue(1, std::move(value1));
        condition->SetValue(2, std::move(value2));
        return condition;
    }

    TKCustomDBStructure structure;
    TDSField *city, *name, *amount, *day, *orderName;
    TDSOperator* inQuery;

private:
    TDSField* Add(TDSTable* table, std::string column, std::string title, TFieldType type) {
        TDSField* field =
            structure.AddField(TKFieldKind::kfkData, std::move(column), std::move(title), table);
        field->SetFieldType(type);
        field->AddAppliedOperators();
        return field;
    }
};

/// The section of that name with its header, for comparing parts of a text.
inline std::string SectionOf(const std::string& text, const std::string& name) {
    const size_t start = text.find("[" + name + "]\n");
    if (start == std::string::npos) return {};
    const size_t end = text.find("\n[", start);
    return text.substr(start, end == std::string::npos ? end : end + 1 - start);
}

} // namespace tern7::test
