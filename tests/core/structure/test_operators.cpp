#include <gmock/gmock.h>

#include "structure_fixture.h"

namespace tern7::test {

namespace {

using testing::ElementsAre;
using enum TExOperator;

std::vector<std::string> OperatorNames(const TKCustomDBStructure& structure) {
    TStrings names;
    structure.GetOperatorNames(names);
    return names;
}

} // namespace

TEST(Operators, OptionalGroupsComeAndGo) {
    TKCustomDBStructure structure;
    TDSField* text = structure.AddField(TKFieldKind::kfkVirtual, "'x'", "Text", nullptr);
    TDSField* other = structure.AddField(TKFieldKind::kfkVirtual, "'y'", "Other", nullptr);
    for (TDSField* field : {text, other}) {
        field->SetFieldType(TFieldType::ftString);
        field->AddAppliedOperators();
    }
    other->MoveOperat(0, 12); // a list of its own
    EXPECT_EQ(text->Operators()[0]->Name(), "Equal");
    EXPECT_EQ(other->Operators()[12]->Name(), "Equal");

    structure.SetExOperators({xoInList, xoBetween, xoStartsWith});
    EXPECT_THAT(Names(text->Operators()),
                ElementsAre("Equal", "NotEqual", "LessThan", "LessOrEqual", "GreaterThan",
                            "GreaterOrEqual", "IsNull", "InList", "StartsWith", "NotStartsWith",
                            "Between"));
    EXPECT_EQ(other->GetOperatCount(), 11);
    structure.SetExOperators(TExOperators::All());
    EXPECT_EQ(OperatorNames(structure)[11], "Contains");
    EXPECT_EQ(text->GetOperatCount(), 11) << "fields do not get them back by themselves";
    structure.SetExOperators({});
    EXPECT_THAT(OperatorNames(structure),
                ElementsAre("Equal", "NotEqual", "LessThan", "LessOrEqual", "GreaterThan",
                            "GreaterOrEqual", "IsNull"));
}

TEST(Operators, CaptionsComeFromTheLines) {
    TKCustomDBStructure structure;
    TStrings lines = structure.DefOperators();
    lines[0] = "Equal=equals";
    structure.DelOperator(structure.OperatorIndexByName("LessThan"));
    structure.SetDefOperators(lines);
    EXPECT_EQ(structure.GetOperator(0)->DisplayName(), "equals");
    EXPECT_EQ(OperatorNames(structure).back(), "LessThan") << "defaults that lack come back";
    structure.UpdateOperatorCaption("EQUAL", "is");
    EXPECT_EQ(structure.GetOperator(0)->DisplayName(), "is");
    structure.GetOperator(0)->SetName("EQUAL");
    structure.GetOperator(0)->SetSQLName("x");
    structure.SetDefOperators(lines);
    EXPECT_EQ(structure.GetOperator(0)->SQLName(), "@f = '@1'") << "the same lines restore too";
    EXPECT_EQ(structure.GetOperator(0)->Name(), "EQUAL");
    structure.ClearStructure();
    EXPECT_EQ(structure.GetOperator(0)->DisplayName(), "equals");
    EXPECT_EQ(structure.GetOperatCount(), 13);
}

TEST(Operators, NamesAreUnique) {
    TKCustomDBStructure structure;
    EXPECT_EQ(ErrorOf([&] { structure.AddOperator("EQUAL"); }),
              "Operator name \"EQUAL\" is in use");
    TDSOperator* op = structure.AddOperator();
    EXPECT_EQ(ErrorOf([&] { op->SetName("IsNull"); }), "Operator name \"IsNull\" is in use");
    op->SetName("Own");
    EXPECT_EQ(structure.OperatorByName("own"), op);
    structure.DeleteOperatorByName("Nothing");
    structure.DeleteOperatorByName("OWN");
    EXPECT_EQ(structure.OperatorByName("own"), nullptr);
    EXPECT_EQ(structure.GetOperatCount(), 13);
}

TEST(Operators, OfFields) {
    TKCustomDBStructure structure;
    TDSField* field = structure.AddField(TKFieldKind::kfkVirtual, "1", "One", nullptr);
    EXPECT_EQ(ErrorOf([&] { field->AddOperatorByName("Odd"); }), "Operator not found: Odd");
    field->AddOperatorByName("isnull");
    field->SetFieldType(TFieldType::ftMemo);
    field->AddAppliedOperators();
    EXPECT_THAT(Names(field->Operators()),
                ElementsAre("IsNull", "StartsWith", "NotStartsWith", "Contains", "NotContains"));
    field->MoveOperat(4, 0);
    field->DelOperator(1);
    EXPECT_THAT(Names(field->Operators()),
                ElementsAre("NotContains", "StartsWith", "NotStartsWith", "Contains"));
    EXPECT_EQ(ErrorOf([&] { field->GetOperator(4); }), "Invalid operator index 4");
    structure.ClearOperators();
    EXPECT_EQ(field->GetOperatCount(), 0);
}

} // namespace tern7::test
