// A structure, a query over it, and the statement that it makes.
#include <iostream>

#include <tern7/core/query/query.h>

using namespace tern7;

int main() {
    TKCustomDBStructure structure;
    TDSTable* customers = structure.AddTable("customers", "c");
    TDSTable* orders = structure.AddTable("orders", "o");
    structure.AddLink("o", "c")->AddPair("customer_id", "id");
    TDSField* city = structure.AddField(TKFieldKind::kfkData, "city", "City", customers);
    city->SetFieldType(TFieldType::ftString);
    TDSField* amount = structure.AddField(TKFieldKind::kfkData, "amount", "Amount", orders);
    amount->SetFieldType(TFieldType::ftBCD);

    TKQuery query(&structure);
    TRFieldList& columns = query.QResult().ResultFields();
    columns.AddByExpression("City", TSortingType::stAscending, "{City}");
    columns.AddByExpression("Total", TSortingType::stNoSort, "SUM({Amount})");
    TFilterCond* row = query.Root().AddCond();
    row->SetField(amount);
    row->SetOperator(structure.OperatorByName("GreaterThan"));
    row->SetValue(1, "100");

    query.BuildQuery();
    std::cout << query.QResult().GetSQL().Text() << "\n";
}
