// Colours, options, menus and properties.
#include <ui/panels/panel_form.h>

#include <tern7/core/query/panel_menus.h>
#include <tern7/ui/panels/db_structure.h>
#include <tern7/ui/panels/query_panel_link.h>

namespace tern7 {

class TPanelAppearanceTest : public TPanelTest {};

TEST_F(TPanelAppearanceTest, ColoursFollowTheKindOfLabelAndTheGround) {
    TShop::Add(panel->Root(), "C.city", "Equal", "Berlin");
    Settle();
    panel->Appearance().SetOperatorColor(QColor(200, 0, 0));
    Settle();
    const auto color = [&](TRowLabelKind kind, int n = 0) {
        return View(1).Label(kind, n)->FontColor();
    };
    EXPECT_EQ(color(TRowLabelKind::rlField), QColor(0, 0, 255));
    EXPECT_EQ(color(TRowLabelKind::rlOperator), QColor(200, 0, 0));
    QPalette dark(QColor(50, 50, 50), QColor(40, 40, 40));
    dark.setColor(QPalette::Link, QColor(120, 180, 255));
    panel->setPalette(dark);
    Settle();
    EXPECT_EQ(color(TRowLabelKind::rlField), QColor(120, 180, 255));
    EXPECT_EQ(color(TRowLabelKind::rlOperator), QColor(200, 0, 0)) << "chosen by somebody";
    panel->Root().GetRow(0)->SetEnabled(false);
    Settle();
    const QColor off = color(TRowLabelKind::rlValue, 1);
    EXPECT_EQ(off.saturation(), 0);
    EXPECT_GT(off.lightness(), dark.color(QPalette::Window).lightness() + 60) << "can be read";
    EXPECT_LT(off.lightness(), dark.color(QPalette::WindowText).lightness() - 60);
}

TEST_F(TPanelAppearanceTest, OptionsOfButtonsListsAndGroups) {
    structure.FieldGroups().AddGroup("Customer", Field("C.city"));
    TShop::Add(panel->Root(), "C.city", "Equal", "Berlin");
    Settle();
    EXPECT_TRUE(View(1).Button()->Flat());
    TQPAppearance& looks = panel->Appearance();
    looks.BeginUpdate();
    looks.SetOptions((looks.Options() | TQPAppearance::aoShowGroupName) &
                     ~TQPAppearance::aoFlatButtons & ~TQPAppearance::aoPopupField);
    EXPECT_TRUE(View(1).Button()->Flat()) << "later";
    looks.EndUpdate();
    Settle();
    EXPECT_FALSE(View(1).Button()->Flat());
    EXPECT_EQ(Shown(1), "Customer City is equal to Berlin");
    EXPECT_TRUE(View(1).Label(TRowLabelKind::rlField)->inherits("tern7::TDropDownListBox"));
    TQPAppearance copy;
    looks.AssignTo(copy);
    EXPECT_EQ(copy.Options(), looks.Options());
}

TEST_F(TPanelAppearanceTest, FieldMenuHasGroupsImagesAndLimit) {
    structure.FieldGroups().AddGroup("Customer", Field("C.city"));
    Field("O.amount")->SetUseInConditions(false);
    structure.SetRootFieldsFirst(true);
    TShop::Add(panel->Root(), "C.city", "Equal", "Berlin");
    panel->SetMaxPopupItemCount(4);
    QStringList asked;
    panel->OnGetGroupImageIndex = [&](const QString& group, int&) { asked << group; };
    panel->OnGetItemImageIndex = [&](const QString& group, const QString& item, int&) {
        if (!group.isEmpty()) asked << item;
    };
    Settle();
    ClickLabel(1, TRowLabelKind::rlField);
    auto* menu = qobject_cast<TKPopupMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    QStringList rows;
    for (int i = 0; i < menu->RowCount(); ++i)
        rows << menu->Row(i)->PlainCaption();
    EXPECT_EQ(rows.first(), "Customer number");
    EXPECT_EQ(rows.last(), "Customer") << "a group, behind the fields without one";
    EXPECT_FALSE(rows.contains("Amount"));
    EXPECT_TRUE(rows.contains("Customer Name") && rows.contains("Employee Name"));
    EXPECT_EQ(asked, (QStringList{"Customer", "City"}));
    EXPECT_EQ(menu->Row(4)->Break, TMenuBreak::mbBarBreak);
    panel->CloseEdit(false);
}

TEST_F(TPanelAppearanceTest, MenusHaveCommandNumbersAndKnowTheRoot) {
    const auto commands = [](TKPopupMenu& menu) {
        QList<int> numbers;
        for (int i = 0; i < menu.Items().Count(); ++i)
            numbers << menu.Items().Items(i).Tag;
        return numbers;
    };
    EXPECT_EQ(commands(panel->AddMenu()), (QList<int>{2, 1}));
    EXPECT_EQ(commands(panel->RowMenu()), (QList<int>{2, 1, 3, 0, 4}));
    EXPECT_EQ(commands(panel->ValueMenu()), (QList<int>{1, 2}));
    EXPECT_EQ(panel->RowMenu().Items().Items(2).Caption, "&Delete Current Row");
    Click(View(0).Button());
    EXPECT_FALSE(panel->RowMenu().Items().Items(2).Enabled);
    EXPECT_FALSE(panel->RowMenu().Items().Items(4).Enabled);
    Press(Qt::Key_Escape);
    panel->MenuItemClick(pcAddBracket);
    EXPECT_EQ(panel->Lines().Count(), 3);
    panel->SetCurrentRow(Row(2));
    panel->MenuItemClick(pcEnableDisable);
    EXPECT_FALSE(Row(1).GetEnabled()) << "its last row is off";
    panel->SetCurrentRow(Row(2));
    panel->MenuItemClick(pcDeleteRow);
    EXPECT_EQ(panel->Lines().Count(), 1) << "the bracket goes with its last row";
}

TEST_F(TPanelAppearanceTest, StructureOfTheFormIsFoundByName) {
    delete panel;
    panel = new TKQueryPanel(&window);
    panel->SetDbStructName("shop");
    EXPECT_EQ(panel->DbStruct(), nullptr) << "not there yet";
    auto* component = new TKDBStructure(&window);
    component->setObjectName("shop");
    component->SetStructString(QByteArray::fromStdString(structure.GetStructString()));
    EXPECT_EQ(panel->DbStruct(), &component->Structure());
    component->show();
    EXPECT_FALSE(component->isVisible());
    component->SetStructString("[Main");
    EXPECT_FALSE(component->LoadError().isEmpty());
    EXPECT_EQ(component->StructString(), "[Main") << "a text that can not be read is not lost";
    EXPECT_EQ(component->Structure().GetFieldCount(), structure.GetFieldCount());
    delete component;
    EXPECT_EQ(panel->DbStruct(), nullptr);
}

TEST_F(TPanelAppearanceTest, LinksHearOfChangesAndOfTheEnd) {
    TKQueryPanelLinkList links;
    TKQueryPanelLink& link = links.Add(panel);
    int changes = 0;
    link.OnChange = [&](TKQueryPanelLink&) { ++changes; };
    TShop::Add(panel->Root(), "C.city", "Equal", "Berlin");
    EXPECT_GT(changes, 0);
    panel->SetActive(false);
    changes = 0;
    panel->ClearAll();
    EXPECT_EQ(changes, 0);
    panel->SetActive(true);
    EXPECT_EQ(changes, 1);
    delete panel;
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(link.QueryPanel(), nullptr);
}

TEST_F(TPanelAppearanceTest, TitlesAreEditedByADialog) {
    TStrings offered;
    panel->Dialogs.editTitles = [&](QWidget*, const TStrings& defaults, TStrings& titles) {
        offered = defaults;
        titles = {"[Query Panel]", "ttlFilter=Find @!"};
        return true;
    };
    EXPECT_TRUE(panel->EditTitles());
    EXPECT_EQ(offered.front(), "[Query Panel]");
    EXPECT_EQ(Shown(0), "Find all !");
    EXPECT_FALSE(panel->EditTitles()) << "the same again";
    bool asked = false;
    EXPECT_FALSE(panel->HelpCall());
    panel->OnRFEHelpClick = [&](TKQueryPanel&) { asked = true; };
    panel->HelpCall(true)();
    EXPECT_TRUE(asked);
}

} // namespace tern7
