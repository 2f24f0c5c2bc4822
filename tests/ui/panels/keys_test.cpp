// The panel's keys, the clipboard and dragging: what they do, where the focus goes, and that each
// is one step.
#include <QClipboard>
#include <QScrollBar>

#include <tern7/ui/panels/row_drag.h>
#include <ui/panels/panel_form.h>

namespace tern7 {

class TPanelKeysTest : public TPanelTest {
protected:
    TPanelKeysTest() { Fill(); }

    /// a, b, a bracket with c
    void Fill() {
        panel->ClearAll();
        Put(panel->Root(), "a");
        Put(panel->Root(), "b");
        Put(*panel->Root().AddBracket(), "c");
        Settle();
    }
    void Put(TFilterBracket& bracket, const char* value) {
        TFilterCond* row = bracket.AddCond();
        row->SetField(Field("City"));
        row->SetOperator(structure.OperatorByName("Equal"));
        row->SetValue(1, value);
    }
    /// Level and value of each line: "1a 1b 1( 2c"; "-" before a row that is off.
    std::string Outline() {
        std::string text;
        for (int line = 1; line < panel->Lines().Count(); ++line) {
            const TFilterRow& row = Row(line);
            if (line > 1) text += ' ';
            text += std::to_string(row.Level()) + (row.GetEnabled() ? "" : "-");
            if (row.IsBracket())
                text += '(';
            else
                text += row.AsCond()->Value(1).empty() ? "_" : row.AsCond()->Value(1);
        }
        return text;
    }
    /// The line that has the focus; -1 for none.
    int FocusLine() {
        const TFilterRowView* view = panel->ViewOf(QApplication::focusWidget());
        return view ? panel->Lines().LineOf(view->Row()) : -1;
    }
    QUndoStack& Stack() { return panel->Editor().Stack(); }
    QPoint Gap(int gap, int level) {
        const TRowGeometry& geometry = panel->Geometry();
        return {geometry.LevelLeft(level) + geometry.TabSpace / 2, geometry.LineTop(gap) - 1};
    }
    void PressButton(int line) {
        QWidget* button = View(line).Button();
        start = button->mapTo(&window, button->rect().center());
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, start);
    }
    void MoveTo(const QPoint& inViewport) {
        const QPoint end = panel->viewport()->mapTo(&window, inViewport);
        QTest::mouseMove(window.windowHandle(), start + QPoint(40, 0));
        QTest::mouseMove(window.windowHandle(), end);
    }
    void Release(const QPoint& inViewport, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, modifiers,
                            panel->viewport()->mapTo(&window, inViewport));
        Settle();
    }

    QPoint start;
};

TEST_F(TPanelKeysTest, EachKeyIsOneStepAndTheFocusFollows) {
    const Qt::KeyboardModifiers none = Qt::NoModifier, control = Qt::ControlModifier;
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        int line;
        const char* outline;
        int focus;
        const char* step;
    } cases[] = {
        {Qt::Key_Insert, none, 1, "1a 1_ 1b 1( 2c", 2, "Add condition"},
        {Qt::Key_Insert, none, 3, "1a 1b 1( 2c 2_", 5, "Add condition"},
        {Qt::Key_Insert, none, 0, "1a 1b 1( 2c 1_", 5, "Add condition"},
        {Qt::Key_Insert, Qt::ShiftModifier, 1, "1a 1( 2_ 1b 1( 2c", 2, "Add bracket"},
        {Qt::Key_Delete, none, 1, "1b 1( 2c", 1, "Delete condition"},
        {Qt::Key_Delete, none, 2, "1a 1( 2c", 2, "Delete condition"},
        {Qt::Key_Delete, none, 3, "1a 1b", 2, "Delete bracket"},
        {Qt::Key_Delete, none, 4, "1a 1b", 2, "Delete condition"},
        {Qt::Key_Space, control, 1, "1-a 1b 1( 2c", 1, "Disable"},
        {Qt::Key_Down, control, 1, "1b 1a 1( 2c", 2, "Move down"},
        {Qt::Key_Down, control, 2, "1a 1( 2b 2c", 3, "Move down"},
        {Qt::Key_Up, control, 3, "1a 1( 2c 1b", 2, "Move up"},
        {Qt::Key_Up, control, 4, "1a 1b 1c", 3, "Move up"},
        {Qt::Key_D, control, 1, "1a 1a 1b 1( 2c", 2, "Duplicate"},
        {Qt::Key_D, control, 3, "1a 1b 1( 2c 1( 2c", 5, "Duplicate"},
        {Qt::Key_X, control, 2, "1a 1( 2c", 2, "Cut"},
    };
    for (const auto& c : cases) {
        Fill();
        SCOPED_TRACE(QKeySequence(c.key | c.modifiers).toString().toStdString() + " on line " +
                     std::to_string(c.line));
        panel->FocusRow(Row(c.line));
        Press(c.key, c.modifiers);
        Settle();
        EXPECT_EQ(Outline(), c.outline);
        EXPECT_EQ(FocusLine(), c.focus);
        EXPECT_EQ(Stack().count(), 1);
        EXPECT_EQ(Stack().undoText(), c.step);
        Press(Qt::Key_Z, control);
        Settle();
        EXPECT_EQ(Outline(), "1a 1b 1( 2c");
        EXPECT_GE(FocusLine(), 0) << "the focus stays on the rows";
        Press(Qt::Key_Z, control | Qt::ShiftModifier);
        Settle();
        EXPECT_EQ(Outline(), c.outline);
        EXPECT_GE(FocusLine(), 0);
    }
}

TEST_F(TPanelKeysTest, WhatKeysLeaveAlone) {
    // the header line stays, whatever is pressed
    panel->FocusRow(panel->Root());
    for (const auto& [key, modifiers] :
         {std::pair(Qt::Key_Delete, Qt::NoModifier), std::pair(Qt::Key_Space, Qt::ControlModifier),
          std::pair(Qt::Key_Up, Qt::ControlModifier), std::pair(Qt::Key_D, Qt::ControlModifier),
          std::pair(Qt::Key_X, Qt::ControlModifier), std::pair(Qt::Key_Z, Qt::ControlModifier)})
        Press(key, modifiers);
    EXPECT_EQ(Outline(), "1a 1b 1( 2c");
    EXPECT_EQ(Stack().count(), 0);

    // an open editor has its own
    ClickLabel(1, TRowLabelKind::rlValue, 1);
    Type("xy");
    Press(Qt::Key_Z, Qt::ControlModifier);
    Press(Qt::Key_Delete);
    Press(Qt::Key_Insert);
    Press(Qt::Key_Up, Qt::ControlModifier);
    Press(Qt::Key_Escape);
    Settle();
    EXPECT_EQ(Outline(), "1a 1b 1( 2c");
    EXPECT_EQ(Stack().count(), 0);

    panel->Appearance().SetOptions(
        TQPAppearance::TQPAppearanceOptions(panel->Appearance().Options())
            .setFlag(TQPAppearance::aoAllowKeyboard, false));
    panel->FocusRow(Row(1));
    Press(Qt::Key_Delete);
    EXPECT_EQ(Outline(), "1a 1b 1( 2c");
}

TEST_F(TPanelKeysTest, ValuesAreSteps) {
    EnterValue(1, "Rome");
    EnterValue(1, "Oslo");
    EXPECT_EQ(Stack().count(), 2) << "an answer each, however many keys";
    panel->FocusRow(Row(4));
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Outline(), "1Rome 1b 1( 2c");
    Settle();
    EXPECT_EQ(FocusLine(), 1) << "the row that changed";
    EXPECT_EQ(Shown(1), "City is equal to Rome");
}

TEST_F(TPanelKeysTest, RowsGoThroughTheClipboard) {
    panel->FocusRow(Row(3));
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().contains("Value1=c"));
    panel->FocusRow(Row(1));
    Press(Qt::Key_V, Qt::ControlModifier);
    Settle();
    EXPECT_EQ(Outline(), "1a 1( 2c 1b 1( 2c");
    EXPECT_EQ(FocusLine(), 2);
    EXPECT_EQ(Stack().undoText(), "Paste");
    QApplication::clipboard()->setText("no rows");
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Stack().count(), 1);
}

TEST_F(TPanelKeysTest, ArrowsTabAndMenuKey) {
    panel->FocusRow(Row(1));
    QWidget* value = View(1).ValueLabel(1);
    value->setFocus();
    Press(Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), View(2).ValueLabel(1));
    Press(Qt::Key_Up);
    EXPECT_EQ(QApplication::focusWidget(), value);
    Press(Qt::Key_Left);
    EXPECT_EQ(QApplication::focusWidget(), View(1).Label(TRowLabelKind::rlOperator));
    Press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), value);
    Press(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::activePopupWidget(), &panel->RowMenu());
    Press(Qt::Key_Escape);
    Settle();
    EXPECT_EQ(window.focusWidget(), value);
}

TEST_F(TPanelKeysTest, RowsAreDraggedByTheirButtons) {
    const struct {
        int line, gap, level;
        bool copy;
        const char* outline;
    } cases[] = {
        {1, 3, 1, false, "1b 1a 1( 2c"},
        {1, 4, 2, false, "1b 1( 2a 2c"},
        {1, 4, 0, false, "1b 1( 2a 2c"}, // the one place there
        {1, 5, 2, false, "1b 1( 2c 2a"},
        {1, 5, 1, false, "1b 1( 2c 1a"},
        {4, 1, 1, false, "1c 1a 1b"}, // the bracket goes with its last row
        {3, 1, 1, false, "1( 2c 1a 1b"},
        {3, 0, 1, false, "1( 2c 1a 1b"}, // not above the header line
        {3, 5, 2, false, "1a 1b 1( 2c"}, // not into itself
        {2, 2, 1, false, "1a 1b 1( 2c"},
        {1, 5, 1, true, "1a 1b 1( 2c 1a"},
        {3, 4, 2, true, "1a 1b 1( 2( 3c 2c"},
    };
    for (const auto& c : cases) {
        Fill();
        SCOPED_TRACE(std::to_string(c.line) + " to " + std::to_string(c.gap) + " at level " +
                     std::to_string(c.level));
        const QPoint target = Gap(c.gap, c.level);
        PressButton(c.line);
        MoveTo(target);
        ASSERT_EQ(panel->RowDrag().Row(), &Row(c.line));
        if (c.copy) QTest::keyPress(&window, Qt::Key_Alt);
        EXPECT_TRUE(panel->RowDrag().Indicator()->isVisible());
        Release(target, c.copy ? Qt::AltModifier : Qt::NoModifier);
        EXPECT_EQ(Outline(), c.outline);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "a drag is no click";
        if (c.copy) QTest::keyRelease(&window, Qt::Key_Alt);
        const bool changed = Outline() != "1a 1b 1( 2c";
        EXPECT_EQ(Stack().count(), changed ? 1 : 0);
        panel->Undo();
        EXPECT_EQ(Outline(), "1a 1b 1( 2c");
    }
}

TEST_F(TPanelKeysTest, DragsInTheAndOrStyle) {
    panel->Appearance().SetStyle(TQPStyle::psAndOr);
    Settle();
    const struct {
        int line, gap, level;
        const char* rows;
    } cases[] = {
        {0, 3, 1, "b (c a)"},                     // behind the bracket's last condition, into it
        {0, 3, 0, "b (c) a"},                     // or behind the bracket
        {0, 2, 1, "b (a c)"}, {2, 0, 0, "c a b"}, // the bracket goes with its last condition
        {1, 0, 0, "b a (c)"},
    };
    const std::function<std::string(const TFilterBracket&)> rows =
        [&rows](const TFilterBracket& bracket) {
            std::string text;
            for (const auto& row : bracket.Rows()) {
                if (!text.empty()) text += ' ';
                text += row->IsBracket() ? "(" + rows(*row->AsBracket()) + ")"
                                         : row->AsCond()->Value(1);
            }
            return text;
        };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.rows);
        PressButton(c.line);
        MoveTo(Gap(c.gap, c.level));
        Release(Gap(c.gap, c.level));
        EXPECT_EQ(rows(panel->Root()), c.rows);
        EXPECT_EQ(Stack().index(), 1);
        panel->Undo();
        EXPECT_EQ(rows(panel->Root()), "a b (c)");
        Fill();
    }
}

TEST_F(TPanelKeysTest, DragShowsItsPlaceAndCanBeCancelled) {
    const auto indicator = [&] { return panel->RowDrag().Indicator()->geometry(); };
    PressButton(1);
    MoveTo(Gap(5, 2));
    const QRect deep = indicator();
    MoveTo(Gap(5, 1));
    EXPECT_EQ(deep.left() - indicator().left(), panel->TabSpace());
    EXPECT_EQ(deep.top(), indicator().top());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(panel->RowDrag().Row());
    EXPECT_FALSE(panel->RowDrag().Indicator()->isVisible());
    Release(Gap(5, 1));
    EXPECT_EQ(Outline(), "1a 1b 1( 2c");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);

    panel->setLayoutDirection(Qt::RightToLeft);
    Settle();
    PressButton(1);
    const QPoint mirrored(panel->viewport()->width() - 1 - Gap(5, 2).x(), Gap(5, 2).y());
    MoveTo(mirrored);
    EXPECT_EQ(panel->viewport()->width() - indicator().right() - 1, deep.left());

    // whatever happens meanwhile
    panel->Root().DeleteRow(&Row(1));
    EXPECT_FALSE(panel->RowDrag().Row());
    Settle();
    Release(mirrored);
    EXPECT_EQ(Outline(), "1b 1( 2c");
    PressButton(1);
    MoveTo(mirrored);
    structure.ClearStructure();
    Release(mirrored);
    EXPECT_EQ(panel->Lines().Count(), 4);
    PressButton(1);
    MoveTo(Gap(1, 1));
    delete panel;
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton);
}

TEST_F(TPanelKeysTest, DraggingScrollsAtTheEdges) {
    for (int i = 0; i < 30; ++i)
        Put(panel->Root(), "more");
    Settle();
    TFilterRow& dragged = Row(1);
    const QPoint below(20, panel->viewport()->height() - 2);
    PressButton(1);
    MoveTo(below);
    QScrollBar* bar = panel->verticalScrollBar();
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar->value() == bar->maximum(); }, 20000));
    EXPECT_EQ(panel->RowDrag().Row(), &dragged) << "a dragged row is kept out of sight";
    Release(below);
    EXPECT_EQ(panel->Root().GetRowIndex(&dragged), panel->Root().GetRowCount() - 1);
    EXPECT_EQ(FocusLine(), panel->Lines().Count() - 1);
}

} // namespace tern7
