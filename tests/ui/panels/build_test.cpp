// Queries that are put together by mouse or by keys, held against their statement, and against what
// the command line tool makes of the saved query.
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <ui/panels/panel_form.h>

namespace tern7 {

class TPanelBuildTest : public TPanelTest {
protected:
    /// Adds a condition to the outermost bracket.
    void AddByMouse(const QString& field) {
        Click(panel->AddRowLabel());
        Pick(field); // the field menu opens by itself
    }
    void PickRowMenu(int line, const QString& item) {
        Click(View(line).Button());
        Pick(item);
    }
    void CloseMenu() {
        if (QApplication::activePopupWidget()) Press(Qt::Key_Escape);
        Settle();
    }
    /// Moves the focus with Tab until the label of a kind has it.
    void TabTo(int line, TRowLabelKind kind, int value = 0) {
        for (int i = 0; i < 60; ++i) {
            const TFilterRowView* view = panel->ExistingView(Row(line));
            if (view && QApplication::focusWidget() == view->Label(kind, value)) return;
            Press(Qt::Key_Tab);
        }
        FAIL() << "Tab does not lead to line " << line;
    }
    void TypeInto(int line, TRowLabelKind kind, const QString& text, int value = 0) {
        TabTo(line, kind, value);
        Press(Qt::Key_F2);
        Settle();
        Type(text);
        Press(Qt::Key_Return);
        Settle();
    }
    /// The tool prints the same query text and the same statement for the query as it is saved.
    void AgreesWithTheTool() {
#ifdef TERN7_TOOL
        panel->Editor().AddResultField(0, *Field("City"));
        panel->BuildQuery();
        panel->SetSaveTitles(false);
        TStrings text;
        panel->SaveToStrings(text);
        const QTemporaryDir folder;
        const QString files[] = {folder.filePath("shop.str"), folder.filePath("shop.qry")};
        structure.SaveToFile(FromQt(files[0]));
        panel->SaveToFile(files[1]);
        EXPECT_EQ(Tool({"query", files[0], files[1]}), Lines(text));
        EXPECT_EQ(Tool({"sql", files[0], files[1], "--options", "none"}),
                  panel->QResult().GetSQL().Text() + "\n");
#endif
    }
#ifdef TERN7_TOOL
    static std::string Lines(const TStrings& lines) {
        std::string all;
        for (const std::string& line : lines)
            all += line + "\n";
        return all;
    }
    static std::string Tool(const QStringList& arguments) {
        QProcess tool;
        tool.start(QStringLiteral(TERN7_TOOL), arguments);
        EXPECT_TRUE(tool.waitForFinished(60000));
        EXPECT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().toStdString();
        return tool.readAllStandardOutput().toStdString();
    }
#endif
};

TEST_F(TPanelBuildTest, ConditionByMouse) {
    EXPECT_EQ(Shown(0), "Choose records where all of the following apply");
    AddByMouse("City");
    EXPECT_EQ(Shown(1), "City is equal to _____");
    EXPECT_EQ(Cond(1).Unfinished(), TUnfinished::NotEntered);
    EnterValue(1, "Berlin");
    EXPECT_EQ(Shown(1), "City is equal to Berlin");
    PickOperator(1, "is not equal to");
    EXPECT_EQ(Condition(), "C.city <> 'Berlin'");
    PickField(1, "Order number");
    EXPECT_EQ(Shown(1), "Order number is not equal to _____");
    EnterValue(1, "12");
    EXPECT_EQ(Condition(), "O.id <> 12");
    AgreesWithTheTool();
}

TEST_F(TPanelBuildTest, NestedConditionsByMouse) {
    AddByMouse("City");
    EnterValue(1, "Berlin");
    PickRowMenu(0, "Add Bracket"); // comes with its first condition
    ASSERT_EQ(panel->Lines().Count(), 4);
    EXPECT_EQ(Shown(2), "all of the following apply");
    ClickLabel(2, TRowLabelKind::rlBracketWord);
    Pick("none");
    PickField(3, "Amount");
    PickOperator(3, "is between");
    EnterValue(3, "10");
    EnterValue(3, "20", 2);
    EXPECT_EQ(Shown(3), "Amount is between 10 and 20");
    PickRowMenu(3, "Add Condition"); // behind it, and its field menu opens
    Pick("Paid");
    ClickLabel(4, TRowLabelKind::rlValue, 1);
    Pick("yes");
    EXPECT_EQ(Shown(4), "Paid is equal to yes");
    EXPECT_EQ(Condition(),
              "C.city = 'Berlin' AND NOT ( O.amount between 10 and 20 OR O.paid = '1' )");

    Click(View(3).CheckBox());
    EXPECT_EQ(Condition(), "C.city = 'Berlin' AND NOT ( O.paid = '1' )");
    AgreesWithTheTool();
    PickRowMenu(4, "Enable/Disable Row");
    EXPECT_EQ(Condition(), "C.city = 'Berlin'") << "the bracket goes off with its last row";
    EXPECT_FALSE(View(2).CheckBox()->isChecked());
    PickRowMenu(2, "Delete Current Row");
    ASSERT_EQ(panel->Lines().Count(), 2);
    EXPECT_TRUE(View(1).GetCurrentControl()) << "the focus goes on to a row that is left";
}

TEST_F(TPanelBuildTest, ConditionsByKeys) {
    panel->AddRowLabel()->setFocus();
    Press(Qt::Key_Return);
    Settle();
    Press({Qt::Key_Down, Qt::Key_Return}); // the first field
    Settle();
    EXPECT_EQ(Shown(1), "Customer number is equal to _____");
    TypeInto(1, TRowLabelKind::rlValue, "7", 1);
    TabTo(1, TRowLabelKind::rlOperator);
    Press(Qt::Key_F4);
    Settle();
    Press({Qt::Key_Down, Qt::Key_Return});
    Settle();
    EXPECT_EQ(Shown(1), "Customer number is not equal to 7");
    panel->AddRowLabel()->setFocus();
    Press(Qt::Key_Space);
    Settle();
    Type("ci");
    Press(Qt::Key_Return);
    Settle();
    TypeInto(2, TRowLabelKind::rlValue, "O'Hara", 1);
    TypeInto(0, TRowLabelKind::rlBracketWord, "an");
    EXPECT_EQ(Condition(), "C.id <> 7 OR C.city = 'O''Hara'");
    View(2).CheckBox()->setFocus();
    Press(Qt::Key_Space);
    EXPECT_EQ(Condition(), "C.id <> 7");
    AgreesWithTheTool();
}

TEST_F(TPanelBuildTest, AndOrStyle) {
    panel->Appearance().SetStyle(TQPStyle::psAndOr);
    Settle();
    Add("C.city", "Equal", "Berlin");
    TFilterBracket* bracket = panel->Root().AddBracket();
    EXPECT_EQ(panel->Lines().Count(), 0) << "no header line, and an empty bracket is not seen";
    panel->ClearAll();
    AddByMouse("City");
    EnterValue(0, "Berlin");
    bracket = panel->InsertBracket();
    bracket->SetLinkType(TFilterLinkType::fltNotAll);
    PickField(1, "Amount");
    EnterValue(1, "5");
    panel->FocusRow(Row(1));
    panel->InsertCondition();
    PickField(2, "Customer Name");
    EnterValue(2, "A");
    EXPECT_EQ(Shown(0), "City is equal to Berlin");
    EXPECT_EQ(Shown(1), "and not all ( Amount is equal to 5");
    EXPECT_EQ(Shown(2), "and Customer Name is equal to A )");
    ClickLabel(2, TRowLabelKind::rlBoolWord);
    Pick("or"); // the negation stays
    EXPECT_EQ(bracket->LinkType(), TFilterLinkType::fltNone);
    ClickLabel(1, TRowLabelKind::rlBoolWord);
    Pick("or");
    EXPECT_EQ(panel->Root().LinkType(), TFilterLinkType::fltAny);
    EXPECT_EQ(Condition(), "C.city = 'Berlin' OR NOT ( O.amount = 5 OR C.name = 'A' )");
    panel->DeleteRow(Row(2));
    panel->DeleteRow(Row(1));
    EXPECT_EQ(panel->Root().GetRowCount(), 1) << "brackets never stay empty in this style";
}

} // namespace tern7
