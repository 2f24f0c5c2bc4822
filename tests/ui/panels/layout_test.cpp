// Where rows stand, and which of them have controls.
#include <ui/panels/panel_form.h>

#include <QScrollBar>

#include <tern7/core/structure/value_editors.h>

namespace tern7 {

class TPanelLayoutTest : public TPanelTest {
protected:
    /// City, a bracket with Amount and a bracket with Paid in it, Name.
    void Nest() {
        TShop::Add(panel->Root(), "C.city", "Equal", "Berlin");
        TFilterBracket* outer = panel->Root().AddBracket();
        TShop::Add(*outer, "O.amount", "Equal", "5");
        TShop::Add(*outer->AddBracket(), "O.paid", "Equal", "1");
        TShop::Add(panel->Root(), "C.name", "Equal", "A");
        Settle();
    }
    std::string Numbers() {
        std::string numbers;
        panel->PlaceAllRows();
        Walk(panel->Root(), numbers);
        return numbers;
    }
    static void Walk(const TFilterBracket& bracket, std::string& numbers) {
        for (const auto& row : bracket.Rows()) {
            numbers += std::to_string(row->RowNum()) + " ";
            if (row->IsBracket()) Walk(*row->AsBracket(), numbers);
        }
    }
    int Left(int line) { return View(line).Button()->x(); }
    void Fill(int count) {
        TKQueryUpdate update(panel->Query());
        for (int i = 0; i < count; ++i)
            TShop::Add(panel->Root(), "C.city", "Equal", "v" + std::to_string(i));
    }
    int LabelCount() const {
        return static_cast<int>(panel->viewport()->findChildren<TDropDownLabel*>().size());
    }
};

TEST_F(TPanelLayoutTest, NumbersLinesAndLevels) {
    Nest();
    EXPECT_EQ(Numbers(), "1 2 3 4 5 6 ") << "the header line uses up 0";
    const int step = panel->Geometry().LineHeight + panel->RowSpace();
    for (int line = 0; line < 7; ++line)
        EXPECT_EQ(panel->LineRect(line).top(), panel->HeaderTop() + line * step);
    const int levels[] = {0, 1, 1, 2, 2, 3, 1};
    for (int line = 0; line < 7; ++line)
        EXPECT_EQ(Left(line), panel->HeaderLeft() + levels[line] * panel->TabSpace()) << line;
    panel->Appearance().SetStyle(TQPStyle::psAndOr);
    EXPECT_EQ(Numbers(), "0 -1 1 -1 2 3 ") << "brackets use up none";
    EXPECT_EQ(Left(0), panel->HeaderLeft());
    EXPECT_EQ(Left(2), panel->HeaderLeft() + 2 * panel->TabSpace());
}

TEST_F(TPanelLayoutTest, ElementsAndAddRow) {
    TShop::Add(panel->Root(), "C.city", "Equal", "Berlin");
    panel->SetRowSpace(7);
    panel->SetElemSpace(9);
    panel->SetTabSpace(31);
    panel->SetHeaderLeft(11);
    panel->SetHeaderTop(13);
    Settle();
    const std::vector<QWidget*> widgets = View(1).Widgets();
    EXPECT_EQ(widgets[0]->x(), 11 + 31);
    for (size_t i = 1; i < widgets.size(); ++i)
        EXPECT_EQ(widgets[i]->x(), widgets[i - 1]->x() + widgets[i - 1]->width() + 9);
    const TDropDownLabel* label = View(1).Label(TRowLabelKind::rlField);
    const TDropDownLabel* addRow = panel->AddRowLabel();
    EXPECT_EQ(addRow->y(), label->y() + label->height() + 7 + 2);
    EXPECT_EQ(addRow->x(), label->x());
    panel->Appearance().SetOptions(panel->Appearance().Options() ^ TQPAppearance::aoShowAddRow ^
                                   TQPAppearance::aoShowCheckBoxes);
    Settle();
    EXPECT_FALSE(addRow->isVisible());
    EXPECT_EQ(View(1).CheckBox(), nullptr);
}

TEST_F(TPanelLayoutTest, RightToLeftIsTheMirrorImage) {
    Nest();
    panel->resize(420, 400); // narrow: some rows are wider
    Settle();
    const auto places = [&] {
        std::vector<QRect> all;
        for (int line = 0; line < panel->Lines().Count(); ++line)
            for (const QWidget* widget : View(line).Widgets())
                all.push_back(widget->geometry());
        all.push_back(panel->AddRowLabel()->geometry());
        return all;
    };
    for (const int sideways : {0, 40}) {
        panel->setLayoutDirection(Qt::LeftToRight);
        Settle();
        panel->horizontalScrollBar()->setValue(sideways);
        const std::vector<QRect> left = places();
        panel->setLayoutDirection(Qt::RightToLeft);
        Settle();
        panel->horizontalScrollBar()->setValue(sideways);
        const std::vector<QRect> right = places();
        ASSERT_EQ(left.size(), right.size());
        const int width = panel->viewport()->width();
        for (size_t i = 0; i < left.size(); ++i)
            EXPECT_EQ(right[i], QRect(width - left[i].x() - left[i].width(), left[i].y(),
                                      left[i].width(), left[i].height()))
                << i;
    }
}

TEST_F(TPanelLayoutTest, OnlyRowsInSightHaveControls) {
    Fill(10000);
    Settle();
    const int few = LabelCount();
    EXPECT_LT(few, 200);
    EXPECT_EQ(Shown(9000), "City is equal to v8999") << "scrolls there";
    EXPECT_GE(panel->LineRect(9000).top(), 0);
    EXPECT_LE(panel->LineRect(9000).bottom(), panel->viewport()->height());
    EXPECT_EQ(panel->ExistingView(Row(3)), nullptr);
    Settle();
    EXPECT_LT(LabelCount(), 2 * few);
    // the row that is edited keeps its controls
    ClickLabel(9000, TRowLabelKind::rlValue, 1);
    Type("kept");
    panel->verticalScrollBar()->setValue(0);
    Settle();
    ASSERT_NE(panel->ExistingView(Row(9000)), nullptr);
    Press(Qt::Key_Return);
    EXPECT_EQ(Cond(9000).Value(1), "kept");
}

TEST_F(TPanelLayoutTest, RowsTakeOverControlsThatLeftSight) {
    Field("C.name")->SetEditType(TDSEditType::etEdit);
    Field("C.name")->ValueEditorAs<TDSTextEditor>()->SetOption(TDSTextEditor::UpperCaseOption,
                                                               true);
    {
        TKQueryUpdate update(panel->Query());
        TFilterBracket* bracket = &panel->Root();
        for (int i = 0; i < 300; ++i) {
            const std::string n = std::to_string(i);
            if (i % 7 == 0) bracket = panel->Root().AddBracket();
            if (i % 5 == 0)
                TShop::Add(*bracket, "O.amount", "Between", n, n + "0");
            else if (i % 5 == 1)
                TShop::Add(*bracket, "O.placed", "Equal", "2024-05-06");
            else if (i % 5 == 2)
                TShop::Add(*bracket, "O.paid", "Equal", i % 2 ? "1" : "0");
            else
                TShop::Add(*bracket, i % 2 ? "C.name" : "C.city", "Equal", "v" + n);
            bracket->GetRow(bracket->GetRowCount() - 1)->SetEnabled(i % 4 != 0);
        }
    }
    Settle();
    TStrings saved; // dates come back in the local form
    panel->SaveToStrings(saved);
    panel->LoadFromStrings(saved);
    Settle();
    // the labels of a row and their places, as a panel shows them that never scrolled
    const auto seen = [](TFilterRowView& view) {
        QStringList all;
        for (const QWidget* widget : view.Widgets()) {
            const auto* label = qobject_cast<const TDropDownLabel*>(widget);
            all << QString("%1 %2 %3 %4 %5")
                       .arg(widget->metaObject()->className())
                       .arg(label ? label->Caption() + label->Value() : QString())
                       .arg(label ? label->FontColor().name() : QString())
                       .arg(widget->x())
                       .arg(widget->width())
                << widget->toolTip() << widget->accessibleName();
        }
        if (view.CheckBox()) all << QString::number(view.CheckBox()->isChecked());
        return all.join("\n");
    };
    QScrollBar* bar = panel->verticalScrollBar();
    const int steps[] = {bar->pageStep(),     bar->singleStep(),  -bar->pageStep(),
                         bar->maximum(),      -bar->singleStep(), -3 * bar->singleStep(),
                         -2 * bar->pageStep()};
    for (const int step : steps) {
        bar->setValue(bar->value() + step);
        Settle();
        TKQueryPanel fresh(&window);
        fresh.resize(panel->size());
        fresh.SetDbStruct(&structure);
        TStrings text;
        panel->SaveToStrings(text);
        fresh.LoadFromStrings(text);
        int shown = 0;
        for (int line = 0; line < panel->Lines().Count(); ++line) {
            TFilterRowView* view = panel->ExistingView(Row(line));
            if (!view) continue;
            ++shown;
            EXPECT_EQ(view->Button()->y(), panel->LineRect(line).y()) << line;
            EXPECT_EQ(seen(*view), seen(*fresh.RowView(*fresh.Lines().At(line).row))) << line;
        }
        EXPECT_GE(shown, panel->LinesInSight());
        EXPECT_LE(shown, panel->LinesInSight() + 5);
    }
    // an editor shows the value of its row, whoever had the label before
    for (int line = 1; line < 40; ++line) {
        if (!Row(line).AsCond() || Cond(line).Field() != Field("C.city")) continue;
        const std::string value = Cond(line).Value(1);
        ClickLabel(line, TRowLabelKind::rlValue, 1);
        Press(Qt::Key_Return);
        EXPECT_EQ(Cond(line).Value(1), value);
        bar->setValue(bar->maximum());
        bar->setValue(0);
    }
}

TEST_F(TPanelLayoutTest, OpenEditorPushesWhatFollows) {
    TShop::Add(panel->Root(), "O.amount", "Between", "1", "2");
    Settle();
    const TDropDownLabel* second = View(1).ValueLabel(2);
    const int before = second->x();
    ClickLabel(1, TRowLabelKind::rlValue, 1);
    Type("1234567890");
    Settle();
    const QWidget* editor = View(1).ValueLabel(1)->EditControl();
    EXPECT_GT(second->x(), before + 40);
    EXPECT_GT(second->x(), editor->geometry().right());
    Press(Qt::Key_Escape);
    Settle();
    EXPECT_EQ(second->x(), before);
}

TEST_F(TPanelLayoutTest, HiddenRowsLeaveTheirLineEmpty) {
    Nest();
    Row(1).SetHidden(true);
    Settle();
    EXPECT_EQ(panel->ExistingView(Row(1)), nullptr);
    EXPECT_EQ(Row(2).RowNum(), 2);
    Row(1).SetHidden(false);
    Settle();
    EXPECT_NE(panel->ExistingView(Row(1)), nullptr);
}

TEST_F(TPanelLayoutTest, KeysLeadOutOfThePage) {
    Fill(100);
    panel->FocusRow(Row(5));
    const int steps = 3 * panel->LinesInSight();
    for (int i = 0; i < steps; ++i)
        Press(Qt::Key_Down);
    EXPECT_EQ(&panel->CurrentRow(), &Row(5 + steps));
    EXPECT_TRUE(panel->viewport()->rect().contains(panel->LineRect(5 + steps)));
    for (int i = 0; i < steps; ++i)
        Press(Qt::Key_Up);
    EXPECT_EQ(&panel->CurrentRow(), &Row(5));
}

TEST_F(TPanelLayoutTest, CaptionsAndFontsCanChangeAtAnyTime) {
    Nest();
    ClickLabel(1, TRowLabelKind::rlValue, 1);
    Type("Rom");
    panel->SetTitles({"[Query Panel]", "ttlFilter=Suche, wenn @ gelten", "ttlAll=alle",
                      "ttlBracket=@!", "ttlDelRow=Zeile &l\u00F6schen"});
    Settle();
    Type("a");
    Press(Qt::Key_Return);
    EXPECT_EQ(Shown(0), "Suche, wenn alle gelten");
    EXPECT_EQ(Shown(1), "City is equal to Roma") << "what was being typed is still there";
    EXPECT_EQ(Shown(2), "alle !");
    EXPECT_EQ(panel->RowMenu().Items().Items(2).PlainCaption(), "Zeile l\u00F6schen");
    const int before = panel->Geometry().LineHeight;
    QFont large = panel->font();
    large.setPointSizeF(large.pointSizeF() * 2);
    panel->setFont(large);
    Settle();
    EXPECT_GT(panel->Geometry().LineHeight, before * 3 / 2);
    EXPECT_EQ(View(1).Label(TRowLabelKind::rlField)->sizeHint(),
              View(1).Label(TRowLabelKind::rlField)->size());
}

} // namespace tern7
