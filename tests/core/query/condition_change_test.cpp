#include <gtest/gtest.h>

#include <core/query/shop.h>

#include <tern7/core/query/condition_change.h>
#include <tern7/core/query/value_editor_choice.h>

namespace tern7 {

class TConditionChangeTest : public TShop {
protected:
    /// "operator value1 value2" after another field or operator was chosen; "?" when values are
    /// missing.
    static std::string Text(const TConditionChange& change) {
        std::string text = change.op ? change.op->Name() : "-";
        for (const std::string& value : change.values)
            if (!value.empty()) text += " [" + value + "]";
        return text + (change.entered ? "" : " ?");
    }
    std::string Field(TFilterCond* condition, std::string_view field) {
        return Text(WithField(*condition, *TShop::Field(field)));
    }
    std::string Op(TFilterCond* condition, std::string_view op) {
        return Text(WithOperator(*condition, *structure.OperatorByName(op)));
    }
    TDSListEditor& List(std::string_view field, TStrings values) {
        TShop::Field(field)->SetEditType(TDSEditType::etList);
        auto* editor = TShop::Field(field)->ValueEditorAs<TDSListEditor>();
        editor->Values = editor->Items = std::move(values);
        return *editor;
    }
};

TEST_F(TConditionChangeTest, AnotherFieldKeepsWhatItCanTake) {
    List("C.name", {"Ann", "7"});
    struct {
        const char *from, *op, *value1, *value2, *to, *expected;
    } cases[] = {
        {"C.city", "Equal", "Berlin", "", "E.name", "Equal [Berlin]"},
        {"C.city", "Contains", "7", "", "O.amount", "Equal [7]"},
        {"C.city", "Equal", "Berlin", "", "O.amount", "Equal ?"},
        {"O.amount", "Equal", "7", "", "C.city", "Equal [7]"},
        {"O.amount", "Between", "7", "9", "O.id", "Between [7] [9]"},
        {"C.city", "Between", "A", "9", "O.id", "Between [9] ?"},
        {"C.city", "Equal", "2024-05-06", "", "O.placed", "Equal [2024-05-06]"},
        {"C.city", "Equal", "tomorrow", "", "O.placed", "Equal ?"},
        {"C.city", "InList", "7,x,8", "", "O.id", "InList [7,8]"},
        {"C.city", "Equal", "1", "", "O.paid", "Equal [1]"},
        {"C.city", "Equal", "yes", "", "O.paid", "Equal ?"},
        {"C.city", "Equal", "Ann", "", "C.name", "Equal [Ann]"},
        {"C.city", "Equal", "Bob", "", "C.name", "Equal ?"},
        {"C.city", "Equal", "", "", "E.name", "Equal"},
        {"C.city", "IsNull", "", "", "O.id", "IsNull"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Field(Add(c.from, c.op, c.value1, c.value2), c.to), c.expected)
            << c.from << " " << c.op << " " << c.value1 << " -> " << c.to;
}

TEST_F(TConditionChangeTest, AnotherOperatorKeepsValuesInItsOwnForm) {
    AddSubQueryOperator("Among");
    struct {
        const char *from, *value1, *value2, *to, *expected;
    } cases[] = {
        {"Equal", "Berlin", "", "NotEqual", "NotEqual [Berlin]"},
        {"Equal", "a, b", "", "InList", "InList [\"a, b\"]"},
        {"InList", "\"a, b\",c", "", "Equal", "Equal [a, b]"},
        {"Equal", "A", "", "Between", "Between [A] ?"},
        {"Between", "A", "F", "Equal", "Equal [A] [F]"},
        {"IsNull", "", "", "Equal", "Equal ?"},
        {"Equal", "", "", "NotEqual", "NotEqual"},
        {"Equal", "Berlin", "", "Among", "Among"},
        {"Among", "select 1", "", "Equal", "Equal ?"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Op(Add("C.city", c.from, c.value1, c.value2), c.to), c.expected)
            << c.from << " " << c.value1 << " -> " << c.to;
}

TEST_F(TConditionChangeTest, NewConditionTakesTheProposedValue) {
    TFilterCond* fresh = query.Root().AddCond();
    EXPECT_EQ(Field(fresh, "C.city"), "Equal ?");
    TShop::Field("C.city")->SetEditType(TDSEditType::etEdit);
    TShop::Field("C.city")->ValueEditorAs<TDSTextEditor>()->DefValue = "Rome";
    EXPECT_EQ(Field(fresh, "C.city"), "Equal [Rome]");
    EXPECT_EQ(Field(Add("C.name", "Equal", ""), "C.city"), "Equal") << "only for a new condition";
    ApplyChange(*fresh, WithField(*fresh, *TShop::Field("C.city")));
    EXPECT_EQ(query.ConditionText(*fresh), "C.city = 'Rome'");
}

TEST_F(TConditionChangeTest, EditorOfAFieldAndOperator) {
    List("C.name", {"Ann"});
    TShop::Field("E.name")->SetEditType(TDSEditType::etEdit);
    TShop::Field("E.name")->ValueEditorAs<TDSTextEditor>()->EditKind = TTextEditorKind::tekMask;
    TDSOperator* days = structure.AddOperator("LastDays");
    days->SetSQLName("@f > now() - @1");
    days->SetExprType(TFieldType::ftInteger);
    AddSubQueryOperator("Among");
    struct {
        const char *field, *op;
        TValueEditKind kind;
    } cases[] = {
        {"C.city", "Equal", TValueEditKind::vkText},
        {"C.name", "Equal", TValueEditKind::vkList},
        {"C.name", "InList", TValueEditKind::vkCheckList},
        {"C.city", "InList", TValueEditKind::vkText},
        {"E.name", "Equal", TValueEditKind::vkMask},
        {"E.name", "InList", TValueEditKind::vkText},
        {"O.placed", "Equal", TValueEditKind::vkDate},
        {"O.placed", "LastDays", TValueEditKind::vkText},
        {"O.sent", "Equal", TValueEditKind::vkDateTime},
        {"O.paid", "Equal", TValueEditKind::vkBoolean},
        {"C.name", "Among", TValueEditKind::vkSubQuery},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ChooseValueEditor(*Add(c.field, c.op)), c.kind) << c.field << " " << c.op;
    TShop::Field("C.city")->SetEditType(TDSEditType::etCustom);
    EXPECT_EQ(ChooseValueEditor(*Add("C.city", "InList")), TValueEditKind::vkCustom);
}

} // namespace tern7
