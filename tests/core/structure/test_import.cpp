#include <gmock/gmock.h>

#include "structure_fixture.h"

namespace tern7::test {

namespace {

using testing::ElementsAre;
using enum TFieldType;

/// A database made of a few lines. Names with upper case letters or blanks need quotes, "order" is
/// reserved.
class TFakeInfo : public TKDBInfo {
public:
    void GetDatabaseNames(TStrings&) override {}
    void TablesByDatabase(TStrings& list) override {
        for (const auto& [name, columns] : tables)
            list.push_back(name);
    }
    void FieldsByTable(const std::string& table, TDBFieldList& list) override {
        for (const auto& [name, columns] : tables)
            if (name == table)
                for (const TDBFieldInfo& column : columns)
                    list.Add(column);
        if (table == failing) throw EKDBInfoError("connection lost");
    }
    void GetSQLValues(const std::string&, TStrings&, TStrings&) override {}
    void LoadInfo(const TStrings&) override {}
    void SaveInfo(TStrings&) override {}
    void GetForeignKeys(std::vector<TDBForeignKey>& list) override { list = keys; }
    bool NeedsQuotes(const std::string& name) override {
        return TKDBInfo::NeedsQuotes(name) || LowerCase(name) != name || name == "order";
    }

    std::vector<std::pair<std::string, std::vector<TDBFieldInfo>>> tables;
    std::vector<TDBForeignKey> keys;
    std::string failing;
};

TFakeInfo Shop() {
    TFakeInfo info;
    info.tables = {
        {"employee", {{"id", 0, ftInteger}, {"boss_id", 0, ftInteger}, {"name", 40, ftString}}},
        {"order",
         {{"id", 0, ftAutoInc},
          {"taken_by", 0, ftInteger},
          {"ship_by_id", 0, ftInteger},
          {"placedOn", 0, ftDate},
          {"placed_on", 0, ftDate}}},
        {"sales.Order Lines", {{"order_id", 0, ftInteger}, {"line no", 0, ftSmallint}}},
        {"parts", {{"line_order", 0, ftInteger}, {"line_no", 0, ftSmallint}}},
    };
    info.keys = {
        {"k1", "employee", {"boss_id"}, "employee", {"id"}, true},
        {"k2", "order", {"taken_by"}, "employee", {"id"}, false},
        {"k3", "order", {"ship_by_id"}, "employee", {"id"}, true},
        {"k4", "sales.Order Lines", {"order_id"}, "order", {"id"}, false},
        {"k5", "parts", {"line_order", "line_no"}, "sales.Order Lines", {"order_id", "line no"}},
        {"k6", "parts", {"line_no"}, "elsewhere", {"id"}},
        {"k7", "order", {"taken_by"}, "employee", {"id"}, false}, // k2 again
        {"k8", "parts", {"line_no"}, "employee", {}},
    };
    return info;
}

std::string Describe(const TDSLink& link) {
    static const char* const types[] = {" inner ", " left ", " right ", " full "};
    return link.Table1()->TableAlias() + types[static_cast<int>(link.LinkType())] +
           link.Table2()->TableAlias() + " " + link.GetSQLExpr(TSQLSyntax::ssSQL2);
}

} // namespace

TEST(Import, ReadableNames) {
    const struct {
        const char *name, *readable;
    } cases[] = {
        {"order_id", "Order id"},
        {"OrderID", "Order ID"},
        {"customerName", "Customer name"},
        {"LAST_NAME", "Last name"},
        {"ID", "Id"},
        {"HTTPServer2Name", "HTTP server2 name"},
        {"__x__y_", "X y"},
        {"Ship By", "Ship By"},
        {"größe", "Größe"},
        {"_", "_"},
        {"", ""},
    };
    for (const auto& each : cases)
        EXPECT_EQ(ReadableName(each.name), each.readable);
}

TEST(Import, WholeDatabase) {
    TFakeInfo info = Shop();
    TKCustomDBStructure structure;
    EXPECT_EQ(ErrorOf([&] { ImportDatabase(structure); }), "DatabaseInfo is not specified");
    structure.SetDatabaseInfo(&info);
    MakeSales(structure);
    const int lastID = structure.GetField(5)->ID();
    ImportDatabase(structure);

    TStrings tables, groups, links;
    for (int i = 0; i < structure.GetTableCount(); ++i) {
        const TDSTable* table = structure.GetTable(i);
        tables.push_back(table->GetSQLExpr() + "|" + table->DisplayName());
        EXPECT_EQ(structure.FieldGroups()[i]->GroupName(), table->DisplayName());
    }
    EXPECT_THAT(tables, ElementsAre("employee|Employee", "\"order\" order_|Order",
                                    "\"sales.Order Lines\" Order_Lines|Order Lines", "parts|Parts",
                                    "employee employee_boss|Employee (Boss)",
                                    "employee employee_ship_by|Employee (Ship by)"));
    for (int i = 0; i < structure.GetLinkCount(); ++i)
        links.push_back(Describe(*structure.GetLink(i)));
    EXPECT_THAT(links,
                ElementsAre("employee left employee_boss (employee.boss_id=employee_boss.id)",
                            "order_ inner employee (order_.taken_by=employee.id)",
                            "order_ left employee_ship_by (order_.ship_by_id=employee_ship_by.id)",
                            "Order_Lines inner order_ (Order_Lines.order_id=order_.id)",
                            "parts inner Order_Lines "
                            "(parts.\"line_order\"=Order_Lines.\"order_id\") and "
                            "(parts.\"line_no\"=Order_Lines.\"line no\")"));
    EXPECT_THAT(Names(*structure.FieldGroups()[1]),
                ElementsAre("Id", "Taken by", "Ship by id", "Placed on", "Placed on (placed_on)"));
    EXPECT_EQ(structure.RootGroup().GetCount(), 0);
    EXPECT_EQ(structure.FieldByName(true, "Line no")->GetSQLExpr(), "Order_Lines.\"line no\"");
    EXPECT_EQ(structure.FieldByName(false, "employee.name")->FieldSize(), 40);
    EXPECT_EQ(structure.FieldByName(false, "employee.name")->GetOperatCount(), 13);
    EXPECT_GT(structure.GetField(0)->ID(), lastID) << "IDs of deleted fields are not given again";
    EXPECT_EQ(structure.SQLFormats().DateTime(), "yyyy-mm-dd hh:nn:ss");
    EXPECT_EQ(structure.DefaultMainTable(), "");

    TKCustomDBStructure copy;
    copy.Assign(structure);
    EXPECT_EQ(copy.GetStructString(), structure.GetStructString());
}

TEST(Import, CopiesForEqualRolesAreToldApart) {
    TFakeInfo info;
    info.tables = {{"users", {{"id", 0, ftInteger}}}};
    for (const char* name : {"a", "b"}) {
        info.tables.push_back({name, {{"users_id", 0, ftInteger}, {"created_by", 0, ftInteger}}});
        info.keys.push_back({"", name, {"users_id"}, "users", {"id"}, false});
        info.keys.push_back({"", name, {"created_by"}, "users", {"id"}, false});
    }
    TKCustomDBStructure structure;
    structure.SetDatabaseInfo(&info);
    ImportDatabase(structure);
    TStrings names;
    structure.GetTableNames(false, names);
    EXPECT_THAT(names,
                ElementsAre("Users", "A", "B", "Users (Created by)", "Users (B: Created by)"));
}

TEST(Import, FailureLeavesTheStructureAlone) {
    TFakeInfo info = Shop();
    info.failing = "parts";
    TKCustomDBStructure structure;
    structure.SetDatabaseInfo(&info);
    MakeSales(structure);
    const std::string before = structure.GetStructString();
    EXPECT_THROW(ImportDatabase(structure), EKDBInfoError);
    EXPECT_THROW(structure.AddTableFromDatabase("parts"), EKDBInfoError);
    EXPECT_EQ(structure.GetStructString(), before);
}

TEST(Import, OneTable) {
    TFakeInfo info = Shop();
    TKCustomDBStructure structure;
    EXPECT_EQ(ErrorOf([&] { structure.AddTableFromDatabase("order"); }),
              "DatabaseInfo is not specified");
    structure.SetDatabaseInfo(&info);
    EXPECT_EQ(structure.AddTableFromDatabase("order")->TableAlias(), "order_");
    EXPECT_EQ(structure.AddTableFromDatabase("order", "o2")->DisplayName(), "Order (order)");
    EXPECT_EQ(structure.GetFieldCount(), 10);
    structure.AutoAddFields = false;
    structure.AddTableFromDatabase("employee");
    EXPECT_EQ(structure.GetFieldCount(), 10);
}

} // namespace tern7::test
