#pragma once

#include <string_view>

#include <tern7/core/query/query.h>

namespace tern7 {

/// A small shop: customers have orders, orders may have an employee; one virtual field.
class TShop : public ::testing::Test {
protected:
    TShop() {
        customer = structure.AddTable("Customer", "C");
        order = structure.AddTable("Orders", "O");
        employee = structure.AddTable("Employee", "E");
        Data(customer, "id", "Customer number", TFieldType::ftInteger);
        Data(customer, "city", "City", TFieldType::ftString);
        Data(customer, "name", "Name", TFieldType::ftString);
        Data(order, "id", "Order number", TFieldType::ftInteger);
        Data(order, "amount", "Amount", TFieldType::ftBCD);
        Data(order, "placed", "Placed on", TFieldType::ftDate);
        Data(order, "sent", "Sent at", TFieldType::ftDateTime);
        Data(order, "paid", "Paid", TFieldType::ftBoolean);
        Data(employee, "id", "Employee number", TFieldType::ftInteger);
        Data(employee, "name", "Name", TFieldType::ftString);
        TDSField* price =
            structure.AddField(TKFieldKind::kfkVirtual, "O.amount * 1.19", "Gross amount", nullptr);
        price->SetFieldType(TFieldType::ftBCD);
        price->AddAppliedOperators();
        structure.AddLink("C", "O")->AddPair("id", "customer_id");
        structure.AddLink("O", "E", TDSLinkType::ltOuterLeft)->AddPair("employee_id", "id");
        query.SetSQLOptions({});
    }

    void Data(TDSTable* table, const char* column, const char* display, TFieldType type) {
        TDSField* field = structure.AddField(TKFieldKind::kfkData, column, display, table);
        field->SetFieldType(type);
        field->AddAppliedOperators();
    }

    TDSOperator* AddSubQueryOperator(const char* name = "InQuery",
                                     const char* text = "@f in (@1)") {
        TDSOperator* op = structure.AddOperator(name);
        op->SetSQLName(text);
        op->SetValueType(TOpValueType::vtSubQuery);
        return op;
    }

    TDSField* Field(std::string_view compound) {
        if (TDSField* field = structure.FieldByName(false, compound)) return field;
        return structure.FieldByName(true, compound);
    }

    TFilterCond* Add(TFilterBracket& bracket, std::string_view field, std::string_view op,
                     std::string value1 = {}, std::string value2 = {}) {
        TFilterCond* condition = bracket.AddCond();
        condition->SetField(Field(field));
        condition->SetOperator(structure.OperatorByName(op));
        condition->SetValue(1, std::move(value1));
        condition->SetValue(2, std::move(value2));
        return condition;
    }
    TFilterCond* Add(std::string_view field, std::string_view op, std::string value1 = {},
                     std::string value2 = {}) {
        return Add(query.Root(), field, op, std::move(value1), std::move(value2));
    }

    std::string SQL() {
        query.BuildQuery();
        return query.QResult().GetSQL().Text();
    }

    TKCustomDBStructure structure;
    TKQuery query{&structure};
    TDSTable* customer;
    TDSTable* order;
    TDSTable* employee;
};

} // namespace tern7
