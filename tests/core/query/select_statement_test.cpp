#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shop.h"

namespace tern7 {
namespace {

class TSelectStatement : public TShop {};

TEST_F(TSelectStatement, AliasesAndCaptions) {
    TRFieldList& fields = query.QResult().ResultFields();
    for (int i = 0; i < 3; ++i)
        fields.Add()->SetCaption("A");
    EXPECT_EQ(fields[2]->Alias(), "A2");
    EXPECT_EQ(fields.GetUniqAlias("a"), "a3");
    fields.Delete(1);
    EXPECT_EQ(fields.GetUniqAlias("A"), "A1") << "a freed alias can be had again";
    fields[0]->SetSorting(TSortingType::stAscending);
    fields[1]->SetSorting(TSortingType::stDescending);
    fields[0]->SetSorting(TSortingType::stNoSort);
    fields[0]->SetSorting(TSortingType::stDescending);
    EXPECT_EQ(fields[0]->SortOrder(), 1) << "the first rank is kept";
    EXPECT_EQ(fields.GetCaption(), "A, A");
    query.SetSQLOptions({TSQLOption::soASCIIRFields});
    TResultField* ascii = fields.Add();
    ascii->SetCaption("1 a1_Ä2");
    EXPECT_EQ(ascii->Alias(), "a1_2");
    query.SetSQLOptions({TSQLOption::soQuoteAliases});
    fields.RegenerateAliases();
    EXPECT_EQ(ascii->Alias(), "1 a1_Ä2");
}

TEST_F(TSelectStatement, ColumnsOfAnotherQuery) {
    TKQuery quoting(&structure);
    quoting.SetSQLOptions({TSQLOption::soQuoteAliases});
    quoting.QResult().ResultFields().AddByExpression("a b", TSortingType::stNoSort, "{City}");
    query.QResult().SetResultFields(quoting.QResult().ResultFields());
    EXPECT_FALSE(query.QResult().ResultFields().QuoteAliases()) << "that is the option of each";
    EXPECT_EQ(query.QResult().ResultFields()[0]->Alias(), "a b");

    // over another structure: by ID, else by name, else unknown
    TKCustomDBStructure foreign;
    TDSTable* table = foreign.AddTable("Customer", "C");
    for (int i = 0; i < 20; ++i) // IDs 1 to 20, "city" has the last
        foreign.AddField(TKFieldKind::kfkData, i < 19 ? "c" + std::to_string(i) : "city", "x",
                         table);
    TKQuery other(&foreign);
    TResultField* column = other.QResult().ResultFields().Add();
    column->SetFields({foreign.FieldByID(2), foreign.FieldByID(20), foreign.FieldByID(19)},
                      "@1, @2, @3");
    query.QResult().SetResultFields(other.QResult().ResultFields());
    column = query.QResult().ResultFields()[0];
    EXPECT_EQ(column->GetDSField(0), structure.FieldByID(2));
    EXPECT_EQ(column->GetDSField(1), Field("C.city"));
    EXPECT_EQ(column->GetDSFieldID(1), Field("C.city")->ID());
    EXPECT_EQ(column->GetDSField(2), structure.PlaceholderField());
    EXPECT_EQ(column->GetDSFieldID(2), 19);
}

TEST_F(TSelectStatement, ColumnsThatExecuteHoldNoComment) {
    Data(order, "no#", "Number", TFieldType::ftInteger);
    query.QResult().ResultFields().AddByExpression("n", TSortingType::stNoSort, "{Number}");
    query.BuildQuery();
    EXPECT_THAT(query.QResult().GetBoundSQL().text, testing::HasSubstr("O.no# as n"));
    query.QResult().ResultFields()[0]->SetFormula("@1 # 2");
    query.BuildQuery();
    EXPECT_THROW(query.QResult().GetBoundSQL(), EKQueryPanelError);
}

TEST_F(TSelectStatement, FormulasFromNamesAndFromSQL) {
    TRFieldList& fields = query.QResult().ResultFields();
    struct {
        const char* expression;
        const char* formula;
        const char* back;
    } const cases[] = {
        {"{amount} / {Gross Amount} * {AMOUNT}", "@1 / @2 * @1",
         "{Amount} / {Gross amount} * {Amount}"},
        {"{Customer.Name} || '{x}'", "@1 || '{x}'", "{Customer.Name} || '{x}'"},
        {"{E.name}", "@1", "{Employee.Name}"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.expression);
        TResultField* field = fields.AddByExpression("x", TSortingType::stNoSort, c.expression);
        EXPECT_EQ(field->Formula(), c.formula);
        if (std::string(c.formula).find("'{") == std::string::npos) {
            EXPECT_EQ(field->GetExpression(), c.back);
        }
    }
    for (const char* wrong : {"{Name}", "{nothing}", "1 + {Amount", "{}", "{Amount} || '@1'"}) {
        SCOPED_TRACE(wrong);
        const int count = fields.GetCount();
        EXPECT_THROW(fields.AddByExpression("x", TSortingType::stNoSort, wrong), EKExpressionError);
        EXPECT_EQ(fields.GetCount(), count);
    }
    TResultField* field = fields.AddBySQLExpr("", TSortingType::stNoSort,
                                              "sum( o.AMOUNT*1.19 )+O.amount||'O.amount'");
    EXPECT_EQ(field->Formula(), "sum( @1 )+@2||'O.amount'");
    EXPECT_EQ(field->Caption(), "Gross amountAmount");
    field->SetFormula("@2 + 1");
    EXPECT_EQ(field->Formula(), "@1 + 1");
    EXPECT_EQ(field->GetSQLExpr(), "O.amount + 1");
    // nothing of the first is a field; in the others "@1" would become one
    for (const char* kept : {"x.O.id + O.idx", "O.amount || '@1'", "'a@1'"})
        EXPECT_EQ(fields.AddBySQLExpr("", TSortingType::stNoSort, kept)->GetSQLExpr(), kept);
    EXPECT_EQ(fields.AddByExpression("", TSortingType::stNoSort, "'a@1'")->GetSQLExpr(), "'a@1'");
    TResultField* many = fields.Add();
    std::vector<TDSField*> ten(10, Field("C.id"));
    many->SetFields(ten, "@1+@10");
    EXPECT_EQ(many->GetSQLExpr(), "C.id+C.id0") << "placeholders are replaced in ascending order";
}

TEST_F(TSelectStatement, ResultTablesStandBehindTheirLink) {
    TRTableList tables;
    TDSLink* link = structure.FindLink("C", "O");
    EXPECT_THROW(tables.Add(order, link), EKQueryPanelError);
    EXPECT_TRUE(tables.IsEmpty());
    tables.Add(customer, nullptr);
    tables.Add(employee, nullptr);
    EXPECT_EQ(tables.Add(order, link), 1);
    EXPECT_EQ(tables.IndexOf(employee), 2);
    EXPECT_EQ(tables.Find("ORDERS")->Link, link);
    tables.Delete(0);
    EXPECT_EQ(tables[0].Table, order);
    EXPECT_EQ(tables.IndexOf(customer), -1);
    // more than are looked through one by one
    std::vector<TDSTable*> many;
    for (int i = 0; i < 40; ++i) {
        TDSTable* const table = structure.AddTable("many", "M" + std::to_string(i));
        many.push_back(table);
        tables.Join(table, i == 0 ? nullptr : structure.AddLink("M0", table->TableAlias()));
    }
    EXPECT_EQ(tables.IndexOf(many[39]), tables.IndexOf(many[0]) + 1);
    EXPECT_EQ(tables.IndexOf(many[1]), tables.GetCount() - 1);
    EXPECT_FALSE(tables.Contains(customer));
}

} // namespace
} // namespace tern7
