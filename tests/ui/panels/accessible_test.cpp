// What a screen reader hears of the panel.
#include <ui/panels/panel_form.h>

#include <QAccessible>

namespace tern7 {

class TPanelAccessibleTest : public TPanelTest {
protected:
    QAccessibleInterface* Panel() { return QAccessible::queryAccessibleInterface(panel); }
    std::string Name(int line) {
        return Panel()->child(line)->text(QAccessible::Name).toStdString();
    }
    std::string Place(int line) {
        return Panel()->child(line)->text(QAccessible::Description).toStdString();
    }
};

TEST_F(TPanelAccessibleTest, RowsAreSentencesWithLevelPositionAndState) {
    TShop::Add(panel->Root(), "C.city", "Equal", "Berlin");
    TFilterBracket* bracket = panel->Root().AddBracket();
    bracket->SetLinkType(TFilterLinkType::fltNone);
    TShop::Add(*bracket, "O.amount", "Equal", "");
    TShop::Add(*bracket, "O.paid", "Equal", "1");
    bracket->GetRow(1)->SetEnabled(false);
    Settle();
    ASSERT_EQ(Panel()->childCount(), 6) << "five lines and the label that adds one";
    EXPECT_EQ(Panel()->role(), QAccessible::Tree);
    EXPECT_EQ(Name(0), "Choose records where all of the following apply");
    EXPECT_EQ(Name(1), "City is equal to Berlin");
    EXPECT_EQ(Place(1), "level 1, 1 of 2");
    EXPECT_EQ(Name(2), "none of the following apply");
    EXPECT_EQ(Name(3), "Amount is equal to _____");
    EXPECT_EQ(Place(3), "level 2, 1 of 2, left out: enter a value");
    EXPECT_EQ(Name(4), "Paid is equal to yes");
    EXPECT_EQ(Place(4), "level 2, 2 of 2, switched off");
    EXPECT_TRUE(Panel()->child(1)->state().checked);
    EXPECT_FALSE(Panel()->child(4)->state().checked);
    EXPECT_FALSE(Panel()->child(0)->state().checkable);
    Panel()->child(4)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(bracket->GetRow(1)->GetEnabled());

    panel->setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(Name(1), "\u2068City\u2069 is equal to \u2068Berlin\u2069");
    panel->setLayoutDirection(Qt::LeftToRight);
    QAccessibleInterface* value =
        QAccessible::queryAccessibleInterface(View(1).Label(TRowLabelKind::rlValue, 1));
    EXPECT_EQ(value->text(QAccessible::Name), "City is equal to");
    EXPECT_EQ(value->text(QAccessible::Value), "Berlin");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(View(3).Label(TRowLabelKind::rlOperator))
                  ->text(QAccessible::Name),
              "Amount, operator");
}

TEST_F(TPanelAccessibleTest, RowsOutOfSight) {
    {
        TKQueryUpdate update(panel->Query());
        for (int i = 0; i < 5000; ++i)
            TShop::Add(panel->Root(), "C.city", "Equal", "v" + std::to_string(i));
    }
    Settle();
    EXPECT_EQ(Panel()->childCount(), 5002);
    EXPECT_EQ(Name(4321), "City is equal to v4320");
    EXPECT_EQ(Place(4321), "level 1, 4321 of 5000");
    EXPECT_TRUE(Panel()->child(4321)->state().offscreen);
    EXPECT_EQ(Panel()->indexOfChild(Panel()->child(4321)), 4321);
    EXPECT_EQ(panel->ExistingView(Row(4321)), nullptr) << "reading makes no controls";
    Panel()->child(4321)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(&panel->CurrentRow(), &Row(4321));
    EXPECT_FALSE(Panel()->child(4321)->state().offscreen);
    panel->ClearAll();
    EXPECT_EQ(Panel()->childCount(), 2);
}

TEST_F(TPanelAccessibleTest, ARowStaysTheSameObjectAndGoesWithItsRow) {
    const auto add = [this](TFilterBracket& to, const std::string& city) {
        return TShop::Add(to, "C.city", "Equal", city);
    };
    add(panel->Root(), "Rome");
    QAccessibleInterface* rome = Panel()->child(1);
    TFilterBracket* bracket = panel->Root().InsertBracket(0);
    add(*bracket, "Oslo");
    const QAccessible::Id oslo = QAccessible::uniqueId(Panel()->child(2));
    EXPECT_EQ(Name(2), "City is equal to Oslo") << "also before the panel was laid out";
    EXPECT_EQ(Panel()->indexOfChild(rome), 3);
    EXPECT_EQ(Panel()->child(3), rome);
    Settle();
    panel->Appearance().SetStyle(TQPStyle::psAndOr);
    QAccessibleInterface* all = Panel()->child(0);
    EXPECT_EQ(Name(0), "(City is equal to Oslo)");
    panel->Appearance().SetStyle(TQPStyle::psGroups);
    EXPECT_EQ(Panel()->indexOfChild(all), 2);
    panel->DeleteRow(*bracket);
    EXPECT_EQ(QAccessible::accessibleInterface(oslo), nullptr);
    EXPECT_EQ(Panel()->indexOfChild(rome), 1);
    EXPECT_EQ(Panel()->childCount(), 3);
    const QAccessible::Id last = QAccessible::uniqueId(rome);
    panel->ClearAll();
    EXPECT_EQ(QAccessible::accessibleInterface(last), nullptr);
}

} // namespace tern7
