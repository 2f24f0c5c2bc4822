#include <functional>

#include <gmock/gmock.h>

#include "structure_fixture.h"

namespace tern7::test {

namespace {

using testing::ElementsAre;

/// And in lower case, but for what stands in literals.
std::string WithoutBlanks(const std::string& text) {
    std::string result;
    bool inLiteral = false;
    for (const char c : text) {
        if (c == '\'') inLiteral = !inLiteral;
        if (inLiteral || !IsSpace(c)) result += inLiteral ? c : LowerChar(c);
    }
    return result;
}

/// The first field in list order for which the test is true, found without any index.
template <class Test>
const TDSField* Scan(const TKCustomDBStructure& structure, Test test) {
    for (const auto& field : structure.Fields())
        if (test(*field)) return field.get();
    return nullptr;
}

} // namespace

TEST(Model, IndexesOutOfRange) {
    TKCustomDBStructure structure;
    MakeSales(structure);
    EXPECT_EQ(ErrorOf([&] { structure.GetTable(-1); }), "Invalid table index -1");
    EXPECT_EQ(ErrorOf([&] { structure.GetTable(3); }), "Invalid table index 3");
    EXPECT_EQ(ErrorOf([&] { structure.DelTable(3); }), "Invalid table index 3");
    EXPECT_EQ(ErrorOf([&] { structure.GetLink(3); }), "Invalid link index 3");
    EXPECT_EQ(ErrorOf([&] { structure.GetOperator(13); }), "Invalid operator index 13");
    EXPECT_EQ(ErrorOf([&] { structure.GetField(6); }), "Invalid field index 6");
}

TEST(Model, TablesAndTheirTexts) {
    TKCustomDBStructure structure;
    MakeSales(structure);
    EXPECT_EQ(ErrorOf([&] { structure.AddTable("x", "o"); }), "Table alias \"o\" is in use");
    EXPECT_EQ(ErrorOf([&] { structure.GetTable(0)->SetTableAlias("O"); }),
              "Table alias \"O\" is in use");
    EXPECT_EQ(structure.AddTable("orders", "")->TableAlias(), "orders");
    EXPECT_EQ(structure.AddTable("orders", "")->TableAlias(), "orders_2");
    EXPECT_EQ(structure.TableByName(false, "ORDERS"), structure.GetTable(1));
    EXPECT_EQ(structure.TableByName(true, "Orders"), structure.GetTable(3));
    structure.GetTable(1)->SetTableAlias("Ord");
    EXPECT_EQ(structure.DefaultMainTable(), "Ord");
    EXPECT_EQ(structure.TableByName(true, "O"), nullptr);

    const struct {
        const char *name, *alias;
        bool quoted;
        const char *hints, *expression, *compound;
    } cases[] = {
        {"T1", "T1", false, "", "T1", "T1"},
        {"T2", "X", false, "", "T2 X", "T2 (X)"},
        {"T3", "T3", true, "", "\"T3\" T3", "T3"},
        {"a\"b", "Q", true, "/*+ full */", "\"a\"\"b\" Q /*+ full */", "a\"b (Q)"},
    };
    for (const auto& each : cases) {
        TDSTable* table = structure.AddTable(each.name, each.alias);
        table->SetQuoted(each.quoted);
        table->SetHints(each.hints);
        EXPECT_EQ(table->GetSQLExpr(), each.expression);
        EXPECT_EQ(table->GetCompoundName(), each.compound);
    }
}

TEST(Model, DeletingATable) {
    TKCustomDBStructure structure;
    MakeSales(structure);
    structure.FieldGroups().AddGroup("G", structure.GetField(2));
    structure.DelTable(1);
    EXPECT_EQ(structure.GetTableCount(), 2);
    EXPECT_EQ(structure.GetTable(1)->TableAlias(), "E");
    EXPECT_EQ(structure.GetTable(1)->Index(), 1);
    EXPECT_EQ(structure.GetLinkCount(), 1) << "only the link of E to itself is left";
    EXPECT_EQ(structure.GetTable(0)->GetLinkCount(), 0);
    EXPECT_EQ(structure.GetTable(1)->GetLinkCount(), 1);
    EXPECT_THAT(Names(structure.RootGroup()), ElementsAre("Number", "Name", "Name", "Label"));
    EXPECT_EQ(structure.FieldGroups()[0]->GetCount(), 0);
    EXPECT_EQ(structure.DefaultMainTable(), "");
    EXPECT_EQ(structure.FieldByID(3), nullptr);
    EXPECT_EQ(structure.FieldByName(true, "Date"), nullptr);
    structure.SetDefaultMainTable("E");
    structure.ClearTables();
    EXPECT_EQ(structure.DefaultMainTable(), "");
    EXPECT_THAT(Names(structure.RootGroup()), ElementsAre("Label"));
    EXPECT_TRUE(structure.GetEmpty()) << "one field counts as empty";
    EXPECT_EQ(structure.AddField(TKFieldKind::kfkVirtual, "1", "", nullptr)->ID(), 7)
        << "the ID of a deleted field never comes back";
    EXPECT_FALSE(structure.GetEmpty());
}

TEST(Model, LinksFollowTheirTables) {
    TKCustomDBStructure structure;
    MakeSales(structure);
    TDSTable *customer = structure.GetTable(0), *order = structure.GetTable(1);
    EXPECT_EQ(structure.FindLink("C", "O"), structure.GetLink(0));
    EXPECT_EQ(structure.FindLink("E", "e"), structure.GetLink(2));
    EXPECT_EQ(structure.FindLink("C", "E"), nullptr);
    EXPECT_EQ(structure.GetLink(0)->GetDisplayName(), "Order - Customer");
    structure.GetLink(1)->SetTable2(customer);
    EXPECT_EQ(customer->LinkByTable(order), structure.GetLink(0)) << "the first of two";
    EXPECT_EQ(structure.GetTable(2)->GetLinkCount(), 1);
    structure.DelLink(0);
    EXPECT_EQ(customer->LinkByTable(order), structure.GetLink(0));
    structure.GetLink(0)->SetTable2(order);
    EXPECT_EQ(order->GetLinkCount(), 1);
    EXPECT_EQ(customer->GetLinkCount(), 0);
    EXPECT_EQ(ErrorOf([&] { structure.AddLink("O", "Q"); }), "No such table Q");
}

TEST(Model, FieldTexts) {
    TKCustomDBStructure structure;
    MakeSales(structure);
    TDSField *name = structure.GetField(1), *last = structure.GetField(4),
             *label = structure.GetField(5);
    EXPECT_EQ(name->GetCompoundName(), "C.name");
    EXPECT_EQ(name->GetFullName(), "Customer Name");
    EXPECT_EQ(name->GetSQLExpr(), "C.name");
    EXPECT_EQ(last->GetSQLExpr(), "E.\"Last Name\"");
    structure.SQLFormats().SetQuoteSymbol1('[');
    structure.SQLFormats().SetQuoteSymbol2(']');
    EXPECT_EQ(last->GetSQLExpr(), "E.[Last Name]");
    EXPECT_EQ(structure.FieldBySQLExpr("e.[lastNAME] "), last);
    EXPECT_EQ(ErrorOf([&] { label->SetFieldName("x"); }),
              "Can not assign field name to virtual field");
    EXPECT_EQ(ErrorOf([&] { name->SetSQLExpr("x"); }), "Can not assign expression to data field");
    EXPECT_EQ(name->ValueAsString("O'Hara"), "'O''Hara'");
    EXPECT_EQ(structure.GetField(0)->ValueAsString("O'Hara"), "O'Hara");
    EXPECT_TRUE(structure.PlaceholderField()->IsPlaceholder());
    EXPECT_EQ(structure.PlaceholderField()->DisplayName(), "Unrecognized field");
}

TEST(Model, TablesOfVirtualFields) {
    TKCustomDBStructure structure;
    MakeSales(structure);
    TDSField* field = structure.GetField(5);
    const struct {
        const char *expression, *tables, *excluded;
    } cases[] = {
        {"C.name || ' of E.x ' || O.id", "CO", "name || ' of E.x ' || id"},
        {"O.a+c.b*O.c", "OC", "a+b*c"},
        {"\"E\".x || 'it''s E.y", "E", "x || 'it''s E.y"},
        {"AC.x + C .y + X.C.z", "C", "AC.x + C .y + X.z"},
        {"count(*)", "", "count(*)"},
        {"'C.", "", "'C."},
        {"\"C", "", "\"C"},
        {"C.", "C", ""},
        {"", "", ""},
    };
    for (const auto& each : cases) {
        field->SetSQLExpr(each.expression);
        std::string tables;
        for (const TDSTable* table : field->GetTables())
            tables += table->TableAlias();
        EXPECT_EQ(tables, each.tables) << each.expression;
        EXPECT_EQ(field->ExcludeTables(), each.excluded);
    }
    field->SetSQLExpr("C.x");
    structure.DelTable(0);
    EXPECT_TRUE(field->GetTables().empty());
}

TEST(Model, GroupsHoldEveryFieldOnce) {
    TKCustomDBStructure structure;
    for (const char* name : {"a", "b", "c", "d", "e"})
        structure.AddField(TKFieldKind::kfkVirtual, name, name, nullptr);
    auto field = [&](int i) { return structure.GetField(i); };
    TDSFieldGroup* one = structure.FieldGroups().AddGroup("One", field(1));
    EXPECT_EQ(structure.FieldGroups().AddGroup("one", field(3)), one);
    TDSFieldGroup* two = structure.FieldGroups().AddGroup("Two", field(3));
    EXPECT_THAT(Names(*one), ElementsAre("b"));
    EXPECT_THAT(Names(*two), ElementsAre("d"));
    EXPECT_THAT(Names(structure.RootGroup()), ElementsAre("a", "c", "e"));
    two->Insert(0, field(4));
    two->Insert(1, field(4)); // the same field further down
    EXPECT_THAT(Names(*two), ElementsAre("d", "e"));
    two->SetItem(0, field(0));
    EXPECT_THAT(Names(*two), ElementsAre("a", "e"));
    EXPECT_THAT(Names(structure.RootGroup()), ElementsAre("c", "d"));
    structure.RootGroup().Add(field(1));
    structure.RootGroup().Delete(0); // stays in the root group, at its end
    EXPECT_THAT(Names(structure.RootGroup()), ElementsAre("d", "b", "c"));
    int index = -1;
    EXPECT_EQ(structure.FieldGroups().FindByField(field(4), index), two);
    EXPECT_EQ(index, 1);
    structure.DelField(0);
    EXPECT_THAT(Names(*two), ElementsAre("e"));
    structure.FieldGroups().Delete(1);
    EXPECT_THAT(Names(structure.RootGroup()), ElementsAre("d", "b", "c", "e"));
    EXPECT_EQ(structure.GetField(3)->Group(), nullptr);
    EXPECT_EQ(structure.FieldGroups().FindByName("two"), nullptr);
    structure.GetField(0)->SetGroup(one);
    structure.FieldGroups().Clear();
    EXPECT_THAT(Names(structure.RootGroup()), ElementsAre("d", "c", "e", "b"));
}

// Lookups are kept up to date object by object: after every kind of change they must say what a
// scan of the list says.
TEST(Model, LookupsAgreeWithAScan) {
    std::mt19937 random(11);
    auto below = [&](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    const std::string texts[] = {"a", "B", "b", "a b", "Name", "name", "C.x"};
    auto text = [&] { return texts[below(7)]; };
    TKCustomDBStructure structure;
    MakeSales(structure);
    for (int step = 0; step < 3000; ++step) {
        const int fields = structure.GetFieldCount(), tables = structure.GetTableCount();
        TDSField* field = fields ? structure.GetField(below(fields)) : nullptr;
        TDSTable* table = tables ? structure.GetTable(below(tables)) : nullptr;
        const std::function<void()> changes[] = {
            [&] { structure.AddField(TKFieldKind::kfkVirtual, text(), text(), nullptr); },
            [&] {
                table = structure.AddTable(text(), "");
                structure.AddField(TKFieldKind::kfkData, text(), text(), table);
            },
            [&] { structure.DelField(below(fields)); },
            [&] {
                if (below(4) == 0) structure.DelTable(below(tables));
            },
            [&] { field->SetDisplayName(text()); },
            [&] {
                if (field->Kind() == TKFieldKind::kfkData)
                    field->SetFieldName(text());
                else
                    field->SetSQLExpr(text());
            },
            [&] { field->SetTable(table); },
            [&] { field->SetQuoted(below(2) == 0); },
            [&] { table->SetDisplayName(text()); },
            [&] { table->SetTableAlias(text() + std::to_string(step)); },
            [&] {
                if (below(20) == 0) structure.SetStructString(structure.GetStructString());
            },
            [&] { structure.SQLFormats().SetQuoteSymbol1(below(2) ? '"' : '['); },
        };
        changes[below(field && table ? 12 : 2)]();
        if (structure.GetFieldCount() == 0) continue;
        const TDSField& wanted = *structure.GetField(below(structure.GetFieldCount()));
        ASSERT_EQ(structure.FieldByID(wanted.ID()), &wanted);
        std::string key = UpperCase(wanted.DisplayName());
        auto display = [&](const TDSField& f) { return SameText(f.DisplayName(), key); };
        ASSERT_EQ(structure.FieldByName(true, key), Scan(structure, display));
        ASSERT_EQ(structure.FieldsByDisplayName(key).front(), Scan(structure, display));
        key = UpperCase(wanted.GetCompoundName());
        auto compound = [&](const TDSField& f) { return SameText(f.GetCompoundName(), key); };
        ASSERT_EQ(structure.FieldByName(false, key), Scan(structure, compound));
        key = UpperCase(wanted.GetFullName());
        auto full = [&](const TDSField& f) { return SameText(f.GetFullName(), key); };
        ASSERT_EQ(structure.FieldByFullName(key), Scan(structure, full));
        key = " " + UpperCase(wanted.GetSQLExpr());
        auto expression = [&](const TDSField& f) {
            return WithoutBlanks(f.GetSQLExpr()) == WithoutBlanks(key);
        };
        ASSERT_EQ(structure.FieldBySQLExpr(key), Scan(structure, expression));
    }
}

TEST(Model, ValueEditors) {
    TKCustomDBStructure structure;
    TDSField* field = structure.AddField(TKFieldKind::kfkVirtual, "1", "One", nullptr);
    field->SetEditType(TDSEditType::etList);
    field->ValueEditorAs<TDSListEditor>()->Items = {"Yes", "No"};
    field->ValueEditorAs<TDSListEditor>()->Values = {"1", "0", "2"};
    field->SetEditType(TDSEditType::etList);
    EXPECT_EQ(field->ValueEditorAs<TDSListEditor>()->CaptionOf("0"), "No");
    EXPECT_EQ(field->ValueEditorAs<TDSListEditor>()->CaptionOf("2"), "2");
    field->SetEditType(TDSEditType::etEdit);
    TDSTextEditor* text = field->ValueEditorAs<TDSTextEditor>();
    text->SetOption(TDSTextEditor::UpperCaseOption, true);
    text->SetOption(TDSTextEditor::LowerCaseOption | 8, true);
    EXPECT_EQ(text->Options, 10);
    EXPECT_FALSE(text->GetOption(10 | 1));

    field->SetEditType(TDSEditType::etSQL);
    TDSSQLEditor* sql = field->ValueEditorAs<TDSSQLEditor>();
    sql->SQL = {"select id, name from t", "where grp = :g"};
    sql->SetSQLParams({"g=5", "no name"});
    EXPECT_EQ(sql->GetSQLText(), "select id, name from t\nwhere grp = 5");
    EXPECT_TRUE(sql->HasParameter("g"));
    EXPECT_FALSE(sql->HasParameter("h"));
    EXPECT_EQ(ErrorOf([&] { sql->SetOpened(true); }), "DatabaseInfo is not specified");
    EXPECT_FALSE(sql->Opened());
}

} // namespace tern7::test
