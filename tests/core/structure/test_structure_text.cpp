#include <gmock/gmock.h>

#include <tern7/core/corekit/files.h>

#include "structure_fixture.h"

namespace tern7::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::string SalesText() {
    TKCustomDBStructure structure;
    MakeSales(structure);
    TDSField* list = structure.GetField(0);
    list->SetEditType(TDSEditType::etList);
    list->ValueEditorAs<TDSListEditor>()->Items = {"one, two", "three"};
    TDSField* sql = structure.GetField(1);
    sql->SetEditType(TDSEditType::etSQL);
    sql->ValueEditorAs<TDSSQLEditor>()->SQL = {"select id, name", " [from] x"};
    structure.FieldGroups().AddGroup("People", sql);
    return structure.GetStructString();
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    const size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return text.replace(at, from.size(), to);
}

} // namespace

TEST(StructureText, EmptyStructure) {
    TKCustomDBStructure structure;
    structure.ClearOperators();
    EXPECT_EQ(structure.GetStructString(),
              "[Main]\nVersion=3.3\nOperatCount=0\nTableCount=0\nFieldCount=0\nFieldGroups=0\n"
              "DefaultMainTable=\nRootFieldsFirst=0\n[RootGroup]\nFields=\n");
}

TEST(StructureText, StoredFileIsWrittenAsItStands) {
    const std::string file = std::string(TERN7_TESTS_DIR) + "/../examples/sample/sample.str";
    TKCustomDBStructure structure;
    structure.LoadFromFile(file);
    EXPECT_EQ(structure.GetStructString(), ReadWholeFile(file));
    EXPECT_THROW(structure.LoadFromFile(file + ".none"), EKTernError);
    EXPECT_EQ(structure.GetStructString(), ReadWholeFile(file));
}

TEST(StructureText, SavedAndLoadedGivesTheSameText) {
    for (unsigned seed = 1; seed <= 300; ++seed) {
        TKCustomDBStructure source, target;
        TRandomStructure(seed).Fill(source);
        const std::string text = source.GetStructString();
        target.SetStructString(text);
        ASSERT_EQ(target.GetStructString(), text) << "seed " << seed;
        EXPECT_TRUE(target.LoadWarnings().empty());
        // the model says the same too, not only its text
        for (int i = 0; i < source.GetFieldCount(); ++i) {
            ASSERT_EQ(target.GetField(i)->GetSQLExpr(), source.GetField(i)->GetSQLExpr());
            ASSERT_EQ(target.GetField(i)->GetGroupName(), source.GetField(i)->GetGroupName());
        }
    }
}

TEST(StructureText, LinesThatLookLikeHeadersComeBack) {
    TKCustomDBStructure structure;
    structure.SetStructString(SalesText());
    EXPECT_THAT(structure.GetField(1)->ValueEditorAs<TDSSQLEditor>()->SQL,
                ElementsAre("select id, name", " [from] x"));
}

TEST(StructureText, EarlierForms) {
    TKCustomDBStructure structure;
    structure.SetStructString("[Main]\r\nVersion=1,21\r\nOperatCount=2\r\nTableCount=1\r\n"
                              "FieldCount=2\r\n"
                              "[Operation:1]\r\nName=EqualTo\r\nSQLName=@f = '@1'\r\n"
                              "AppliedTypes=ftString\r\n"
                              "[Operation:2]\r\nName=OneOf\r\nSQLName=@f in (@1)\r\n"
                              "ValueIsList=1\r\n"
                              "[Table:1]\r\nName=people\r\nAlias=P\r\n"
                              "[Field:1]\r\nID=7\r\nKind=kfkData\r\nFieldName=name\r\n"
                              "TableName=PEOPLE\r\nEditType=1\r\nDefaultValue=x\r\n"
                              "Operats=EqualTo,OneOf\r\n"
                              "[Field:2]\r\nID=9\r\nKind=kfkVirtual\r\nFieldExpr=1 + 1\r\n");
    const TDSField* field = structure.FieldByID(7);
    ASSERT_TRUE(field);
    EXPECT_EQ(field->GetSQLExpr(), "P.name");
    EXPECT_THAT(Names(field->Operators()), ElementsAre("Equal", "OneOf"));
    EXPECT_EQ(field->ValueEditorAs<TDSTextEditor>()->DefValue, "x");
    EXPECT_EQ(structure.OperatorByName("oneof")->ValueType(), TOpValueType::vtList);
    EXPECT_EQ(structure.OperatorByName("Equal")->AppliedTypes(),
              TAppliedTypes{TFieldType::ftString});
    EXPECT_EQ(structure.GetOperatCount(), 2 + 12) << "the defaults that lack come behind";
    EXPECT_DOUBLE_EQ(structure.FileVersion(), 1.21);
    EXPECT_EQ(structure.AddField(TKFieldKind::kfkVirtual, "2", "", nullptr)->ID(), 10);
}

TEST(StructureText, FaultsAreNamedAndLeaveTheModelAlone) {
    const std::string text = SalesText();
    const struct {
        const char *from, *to, *message;
    } cases[] = {
        {"[Main]", "[Mein]", "Can not find section Main"},
        {"[Table:2]", "[Table:9]", "Can not find section Table:2"},
        {"TableCount=3", "TableCount=4", "Can not find section Table:4"},
        {"FieldCount=6", "FieldCount=2000000000", "Can not find section Field:7"},
        {"FieldCount=6", "FieldCount=-1", "Wrong value of FieldCount in section Main: -1"},
        {"FieldCount=6", "FieldCount=99999999999",
         "Wrong value of FieldCount in section Main: 99999999999"},
        {"OperatCount=13", "OperatCount=x", "Wrong value of OperatCount in section Main: x"},
        {"Version=3.3", "Version=three", "Wrong value of Version in section Main: three"},
        {"[Operator:7]", "[Operator]", "Can not find section Operator:7"},
        {"[FieldGroup1]", "[FieldGroup2]", "Can not find section FieldGroup1"},
        {"[Field:2.SQL]", "[Field:2]", "Can not find section Field:2.SQL"},
        {"Links=C,E", "Links=C,X", "No such table X"},
        {"Links=C,E", "Links=C,C,E", "Can not find section Link:O-C"},
        {"[Link:O-E]", "[Link:O-X]", "Can not find section Link:O-E"},
        {"LinkType=Left", "LinkType=Up", "Wrong value of LinkType in section Link:O-E: Up"},
        {"Links=C,E", "Links=\"\",E", "Wrong value of Links in section Table:2: \"\",E"},
        {"TableAlias=C", "TableAlias=Q", "No such table Q"},
        {"TableAlias=C", "TableAlias=", "Wrong value of TableAlias in section Field:1: "},
        {"FieldExpr=id", "", "Wrong value of FieldExpr in section Field:1: "},
        {"FieldExpr=id", "FieldExpr=", "Can not find field \"\" in table \"customers\""},
        {"FieldType=3", "FieldType=38", "Wrong value of FieldType in section Field:1: 38"},
        {"EditType=2", "EditType=5", "Wrong value of EditType in section Field:1: 5"},
        {"FieldSize=0", "FieldSize=-1", "Wrong value of FieldSize in section Field:1: -1"},
        {"Kind=kfkData", "Kind=kfkOdd", "Wrong value of Kind in section Field:1: kfkOdd"},
        {"Fields=2", "Fields=2,z", "Wrong value of Fields in section FieldGroup1: z"},
    };
    for (const auto& fault : cases) {
        TKCustomDBStructure structure;
        structure.SetStructString(text);
        const TDSField* field = structure.GetField(1);
        const std::string damaged = Replaced(text, fault.from, fault.to);
        EXPECT_EQ(ErrorOf([&] { structure.SetStructString(damaged); }), fault.message);
        EXPECT_EQ(structure.GetField(1), field);
        EXPECT_TRUE(structure.GetStructString() == text) << fault.to;
    }
}

TEST(StructureText, OddButReadable) {
    const std::string text = SalesText();
    const struct {
        const char *from, *to, *warning;
    } cases[] = {
        {"ID=2", "ID=1", "The ID 1 of field \"Name\" can not be used; the field got the ID 7"},
        {"ID=6", "ID=-5", "The ID -5 of field \"Label\" can not be used; the field got the ID 6"},
        {"ID=6", "ID=2147483647", ""},
        {"Fields=2", "Fields=2,99",
         "The group \"People\" names a field with the ID 99 that does not exist"},
        {"[RootGroup]", "[Root]", "Can not find section RootGroup"},
        {"OperatCount=13", "", "Wrong value of OperatCount in section Main: 0"},
        {"FieldGroups=1", "FieldGroups=0", "Wrong value of FieldGroups in section Main: 0"},
        {"Version=3.3", "Version=9.1",
         "The text has the version 9.1; what is newer than 3.3 was not read"},
        {"Operators=Equal,NotEqual", "Operators=Equal,Unknown", "Operator not found: Unknown"},
        {"Types=ftString", "Types=ftText",
         "Wrong value of AppliedTypes in section Operator:1: ftText"},
        {"Alias=E", "Alias=C",
         "The alias \"C\" is used more than once; the later table got the alias \"C_2\""},
        {"DisplayName=Customer", "DisplayName=Caf\xE9",
         "The text is not UTF-8; it was read as Windows-1252"},
    };
    for (const auto& odd : cases) {
        TKCustomDBStructure structure;
        std::string changed = Replaced(text, odd.from, odd.to);
        if (std::string(odd.from) == "Alias=E") { // and what refers to it
            changed = Replaced(changed, "Links=C,E", "Links=C");
            changed = Replaced(changed, "Links=E", "Links=");
            changed = Replaced(changed, "TableAlias=E", "TableAlias=C");
        }
        structure.SetStructString(changed);
        if (*odd.warning)
            EXPECT_THAT(structure.LoadWarnings(), testing::Contains(odd.warning));
        else
            EXPECT_THAT(structure.LoadWarnings(), testing::Each(HasSubstr("ID 6")));
        EXPECT_EQ(structure.GetFieldCount(), 6);
        // no two fields share an ID, however high the file drove them
        structure.AddField(TKFieldKind::kfkVirtual, "1", "", nullptr);
        for (const auto& field : structure.Fields())
            EXPECT_EQ(structure.FieldByID(field->ID()), field.get());
        const std::string saved = structure.GetStructString();
        TKCustomDBStructure again;
        again.SetStructString(saved);
        EXPECT_EQ(again.GetStructString(), saved);
    }
}

TEST(StructureText, EveryCutLoadsOrRaises) {
    TKCustomDBStructure structure;
    structure.SetStructString(SalesText());
    while (structure.GetOperatCount() > 1)
        structure.DelOperator(1); // a shorter text
    const std::string text = structure.GetStructString();
    const size_t countsEnd = text.find("FieldCount=") + std::string("FieldCount=").size();
    int loaded = 0;
    for (size_t length = 0; length < text.size(); ++length) {
        const std::string before = structure.GetStructString();
        const std::string error =
            ErrorOf([&] { structure.SetStructString(text.substr(0, length)); });
        if (error == "no error") {
            ASSERT_GT(length, countsEnd) << "without its counts a text says nothing";
            ++loaded;
        } else {
            ASSERT_THAT(error, HasSubstr("section ")) << length;
            ASSERT_EQ(structure.GetStructString(), before) << length;
        }
    }
    EXPECT_GT(loaded, 0);
    EXPECT_LT(loaded, static_cast<int>(text.size()) / 10) << "most cuts lose what was promised";
}

TEST(StructureText, SeveralLinksBetweenTheSameTables) {
    TKCustomDBStructure source, target;
    for (const char* alias : {"A", "B", "A-B"})
        source.AddTable("t", alias);
    source.AddLink("A", "B")->AddPair("first", "x");
    source.AddLink("A-B", "A-B")->AddPair("other", "x");
    source.AddLink("A", "B")->AddPair("second", "x");
    source.AddLink("A", "A-B")->AddPair("third", "x"); // both "Link:A-A-B" and "Link:A-B-A-B"
    target.SetStructString(source.GetStructString());
    EXPECT_EQ(target.GetStructString(), source.GetStructString());
    TStrings columns;
    for (int i = 0; i < target.GetLinkCount(); ++i)
        columns.push_back(target.GetLink(i)->Fields1().front());
    EXPECT_THAT(columns, ElementsAre("first", "second", "third", "other"));
}

TEST(StructureText, FormatsAreKeptOnlyWhenTheyDiffer) {
    TKCustomDBStructure source, target;
    EXPECT_THAT(source.GetStructString(), testing::Not(HasSubstr("SQLFormats")));
    source.SQLFormats().SetDate("yyyy-mm-dd");
    source.SQLFormats().SetQuoteSymbol1('\0');
    source.SQLFormats().SetQuoteSymbol2(' ');
    target.SQLFormats().SetTime("hh:nn");
    source.AssignTo(target);
    EXPECT_EQ(target.SQLFormats(), source.SQLFormats());
    TKCustomDBStructure withoutFormats;
    target.Assign(withoutFormats);
    EXPECT_EQ(target.SQLFormats(), source.SQLFormats()) << "a text without formats says nothing";
}

namespace {

class TLineInfo : public TKDBInfo {
public:
    void GetDatabaseNames(TStrings&) override {}
    void TablesByDatabase(TStrings&) override {}
    void FieldsByTable(const std::string&, TDBFieldList&) override {}
    void GetSQLValues(const std::string&, TStrings&, TStrings&) override {}
    void LoadInfo(const TStrings& read) override {
        if (read.front() == "bad") throw EKDBInfoError("no such database");
        lines = read;
    }
    void SaveInfo(TStrings& saved) override { saved = lines; }

    TStrings lines;
};

} // namespace

TEST(StructureText, DatabaseSection) {
    const std::string text =
        TKCustomDBStructure().GetStructString() + "[DBSpecInfo]\nDatabaseName=sales\n [odd]\n";
    TKCustomDBStructure alone;
    alone.SetStructString(text);
    EXPECT_EQ(alone.GetStructString(), text) << "kept for whoever understands it";

    TKCustomDBStructure structure;
    {
        TLineInfo brief;
        structure.SetDatabaseInfo(&brief);
    }
    EXPECT_EQ(structure.DatabaseInfo(), nullptr) << "it may go first";
    TLineInfo bad, late;
    alone.SetStructString(Replaced(text, "DatabaseName=sales", "bad"));
    EXPECT_THROW(alone.SetDatabaseInfo(&bad), EKDBInfoError);
    EXPECT_EQ(alone.DatabaseInfo(), nullptr);
    alone.SetStructString(text);
    alone.SetDatabaseInfo(&late);
    EXPECT_THAT(late.lines, ElementsAre("DatabaseName=sales", "[odd]")) << "as if it was there";
    TLineInfo info;
    structure.SetDatabaseInfo(&info);
    structure.SetStructString(text);
    EXPECT_THAT(info.lines, ElementsAre("DatabaseName=sales", "[odd]"));
    EXPECT_EQ(structure.GetStructString(), text);
    EXPECT_THROW(structure.SetStructString(Replaced(text, "DatabaseName=sales", "bad")),
                 EKDBInfoError);
    EXPECT_EQ(structure.GetStructString(), text);
}

} // namespace tern7::test
