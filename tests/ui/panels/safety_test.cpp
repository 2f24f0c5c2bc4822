// Whatever goes while something is open does no harm.
#include <ui/panels/panel_form.h>

#include <QTimer>

namespace tern7 {

class TPanelSafetyTest : public TPanelTest {
protected:
    /// A row with an open editor, in which something was typed.
    void OpenEditor() {
        Add("C.city", "Equal", "Berlin");
        ClickLabel(1, TRowLabelKind::rlValue, 1);
        Type("Rome");
    }
    void OpenMenu() {
        Add("C.city", "Equal", "Berlin");
        ClickLabel(1, TRowLabelKind::rlField);
    }
    TFilterCond* Add(std::string_view field, std::string_view op, std::string value) {
        TFilterCond* added = TShop::Add(panel->Root(), field, op, std::move(value));
        Settle();
        return added;
    }
    bool AnythingOpen() { return QApplication::activePopupWidget() || panel->CloseEdit(false); }
};

TEST_F(TPanelSafetyTest, PanelGoesWithAnOpenEditorOrMenu) {
    OpenEditor();
    delete panel;
    Settle();
    panel = new TKQueryPanel(&window);
    panel->SetDbStruct(&structure);
    panel->setGeometry(0, 0, 600, 300);
    panel->show();
    Settle();
    OpenMenu();
    delete panel;
    Settle();
    EXPECT_FALSE(QApplication::activePopupWidget());
}

TEST_F(TPanelSafetyTest, HandlersDeleteThePanel) {
    QPointer<TKQueryPanel> alive(panel);
    OpenEditor();
    panel->OnChange = [](TKQueryPanel& p) { delete &p; };
    Press(Qt::Key_Return);
    Settle();
    EXPECT_FALSE(alive);
}

TEST_F(TPanelSafetyTest, RowGoesWithAnOpenEditorOrMenu) {
    OpenEditor();
    panel->Root().ClearRows();
    Settle();
    EXPECT_FALSE(AnythingOpen());
    OpenMenu();
    panel->Root().ClearRows();
    Settle();
    EXPECT_FALSE(AnythingOpen());
    EXPECT_EQ(panel->Lines().Count(), 1);
    // a row that goes while its value is accepted
    OpenEditor();
    panel->OnSetValue = [this](TFilterCond&, std::string&, std::string&) {
        QTimer::singleShot(0, panel, [this] { panel->Root().ClearRows(); });
    };
    panel->OnConditionChange = [this](TFilterCond&, int) { panel->Root().ClearRows(); };
    Press(Qt::Key_Return);
    Settle();
    EXPECT_EQ(panel->Root().GetRowCount(), 0);
}

TEST_F(TPanelSafetyTest, StructureIsReadAgainBelowAFilledPanel) {
    const std::string text = structure.GetStructString();
    OpenEditor();
    structure.SetStructString(text);
    Settle();
    EXPECT_FALSE(AnythingOpen());
    EXPECT_EQ(Shown(1), "City is equal to Berlin") << "what was not accepted is dropped";
    ClickLabel(1, TRowLabelKind::rlField);
    structure.SetStructString(text);
    Settle();
    EXPECT_FALSE(AnythingOpen());
    structure.ClearStructure();
    Settle();
    EXPECT_EQ(Shown(1), "Unrecognized field (ID 2) is equal to Berlin");
    structure.SetStructString(text);
    Settle();
    EXPECT_EQ(Condition(), "C.city = 'Berlin'");
}

TEST_F(TPanelSafetyTest, StructureGoesWithAnOpenEditor) {
    auto other = std::make_unique<TKCustomDBStructure>();
    other->Assign(structure);
    panel->SetDbStruct(other.get());
    TFilterCond* row = panel->Root().AddCond();
    row->SetField(other->GetField(1));
    row->SetOperator(other->OperatorByName("Equal"));
    Settle();
    ClickLabel(1, TRowLabelKind::rlValue, 1);
    other.reset();
    Settle();
    EXPECT_FALSE(AnythingOpen());
    EXPECT_EQ(panel->DbStruct(), nullptr);
    EXPECT_EQ(Shown(1), "_____");
}

TEST_F(TPanelSafetyTest, ErrorsOfHandlersAreShownAndLeaveThePanelUsable) {
    Add("C.city", "Equal", "Berlin");
    panel->OnSetValue = [](TFilterCond&, std::string&, std::string&) {
        throw EKTernError("not today");
    };
    EnterValue(1, "Rome");
    panel->OnSetValue = nullptr;
    EXPECT_EQ(Cond(1).Value(1), "Berlin");
    EnterValue(1, "Rome");
    EXPECT_EQ(Shown(1), "City is equal to Rome");
}

TEST_F(TPanelSafetyTest, WhatIsNotRecognisedIsShownUntilAnotherFieldIsChosen) {
    panel->ParseSQL("select C.city from Customers C where soundex(C.city) = soundex(C.name)");
    Settle();
    const std::string kept = "soundex(C.city) = soundex(C.name)";
    EXPECT_EQ(Shown(1), "Unrecognized field is equal to " + kept);
    EXPECT_EQ(Condition(), kept);
    EXPECT_TRUE(View(1).Label(TRowLabelKind::rlKept)->Fixed());
    EXPECT_FALSE(View(1).ValueLabel(1)) << "nothing that would change nothing";
    PickField(1, "City");
    EXPECT_EQ(Shown(1), "City is equal to soundex(C.name)");
    panel->Undo();
    Settle();
    EXPECT_EQ(Shown(1), "Unrecognized field is equal to " + kept);
    EXPECT_EQ(Condition(), kept);
}

TEST_F(TPanelSafetyTest, HandlersThatEndARowOrThePanelEndWhatIsToldOfThem) {
    Add("C.city", "Equal", "Berlin");
    int told = 0;
    QObject::connect(panel, &TKQueryPanel::conditionChanged, panel, [&] { ++told; });
    panel->OnConditionChange = [this](TFilterCond& row, int) { panel->Root().DeleteRow(&row); };
    Cond(1).SetValue(1, "Rome");
    EXPECT_EQ(told, 0);
    TStrings text;
    panel->SaveToStrings(text);
    QPointer<TKQueryPanel> alive(panel);
    panel->OnActive = [](TKQueryPanel& p) { delete &p; };
    panel->LoadFromStrings(text);
    EXPECT_FALSE(alive);
}

/// As screen readers do, who hear of the focus too.
TEST_F(TPanelSafetyTest, LinesAreAskedForWhileARowGoes) {
    Add("C.city", "Equal", "Berlin");
    TFilterCond* last = Add("C.city", "Equal", "Rome");
    panel->FocusRow(Row(1));
    const auto asking = QObject::connect(qApp, &QApplication::focusChanged, panel,
                                         [this, last] { panel->Lines().LineOf(*last); });
    panel->Root().DeleteRow(&Row(1));
    QObject::disconnect(asking);
    EXPECT_EQ(panel->Lines().Count(), 2);
    EXPECT_EQ(panel->Lines().LineOf(*last), 1);
}

TEST_F(TPanelSafetyTest, UndoActionOfAPanelThatAHandlerDeletes) {
    panel->InsertCondition();
    QPointer<TKQueryPanel> alive(panel);
    QAction* undo = panel->Editor().MakeUndoAction(&window);
    panel->OnChange = [](TKQueryPanel& p) { delete &p; };
    undo->trigger();
    EXPECT_FALSE(alive);
}

} // namespace tern7
