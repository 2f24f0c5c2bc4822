#include <QAccessible>
#include <QInputMethodEvent>
#include <QMessageBox>
#include <QTimer>

#include <tern7/DDLabel.h>
#include <tern7/ui/support/text_size.h>
#include <ui/controls/control_form.h>

namespace tern7 {

TEST(Edit, Protocol) {
    const struct {
        QString way;
        bool veto;
        QString value;
        bool accepted;
        bool labelHasFocus;
    } cases[] = {
        {"enter", false, "new", true, true},  {"escape", false, "old", false, true},
        {"leave", false, "new", true, false}, {"mode off", false, "new", true, true},
        {"click", false, "old", false, true}, {"enter", true, "old", false, true},
        {"leave", true, "old", false, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.way.toStdString() + (c.veto ? ", veto" : ""));
        TControlForm form;
        auto* label = form.Add<TDropDownEdit>();
        label->setAccessibleName("Name contains");
        label->SetValue("old");
        QStringList log;
        Record(*label, log);
        if (c.veto)
            label->BeforeDropUp = [&](TDropDownLabel*, const QString& value, bool& accept) {
                log << QString("before up '%1' %2").arg(value).arg(accept);
                accept = false;
            };
        ASSERT_TRUE(form.Open());
        ClickAt(label, label->rect().center());
        EXPECT_EQ(log, (QStringList{"before down", "after down"}));
        ASSERT_TRUE(label->Dropped() && label->EditMode() && !label->isVisible());
        EXPECT_EQ(label->GetClientRect(), label->EditControl()->rect());
        ASSERT_TRUE(label->EditControl()->hasFocus());
        EXPECT_EQ(label->EditControl()->accessibleName(), "Name contains");
        Type("new");
        if (c.way == "enter") Press(Qt::Key_Return);
        if (c.way == "escape") Press(Qt::Key_Escape);
        if (c.way == "leave") ClickAt(form.neighbour, {5, 5});
        if (c.way == "mode off") label->SetEditMode(false);
        if (c.way == "click") label->Click();
        EXPECT_EQ(label->Value(), c.value);
        EXPECT_EQ(label->hasFocus(), c.labelHasFocus);
        EXPECT_TRUE(!label->Dropped() && !label->EditMode() && label->isVisible());
        ASSERT_EQ(log.size(), 4);
        EXPECT_TRUE(log[2].startsWith("before up ''"));
        EXPECT_EQ(log[3], QString("after up %1").arg(c.accepted));
    }
}

TEST(Edit, KeysByValueType) {
    using enum TDropDownCustomEdit::TValueType;
    const struct {
        TValueType type;
        QString value, typed, result;
    } cases[] = {
        {vtInteger, "", "a1.-,2 \"", "1,2\""},
        {vtInteger, "", "12\b3", "13"},
        {vtFloat, "", "-1.5e", "1.5"},
        // A second point is looked for in the value before the edit, not in what is typed.
        {vtFloat, "", "1.2.3", "1.2.3"},
        {vtFloat, "1.5", "\b2.5", "25"},
        {vtString, "", "a1.- \",", "a1.- \","},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed.toStdString());
        TControlForm form;
        auto* label = form.Add<TDropDownEdit>();
        label->SetValueType(c.type);
        label->SetValue(c.value);
        ASSERT_TRUE(form.Open());
        label->DropDown();
        Type(c.typed);
        Press(Qt::Key_Return);
        EXPECT_EQ(label->Value(), c.result);

        QInputMethodEvent committed;
        label->DropDown();
        committed.setCommitString("x7");
        QApplication::sendEvent(label->EditControl(), &committed);
        Press(Qt::Key_Enter);
        EXPECT_EQ(label->Value(), c.type == vtString ? "x7" : "7");
    }
}

TEST(Edit, CaseOfNewValues) {
    TDropDownEdit label;
    label.SetAutoLowerCase(true);
    label.SetValue("Straße");
    EXPECT_EQ(label.Value(), "straße");
    label.SetAutoUpperCase(true);
    ASSERT_TRUE(label.GetOption(3));
    label.SetValue("Å a");
    EXPECT_EQ(label.Value(), "Å A");
    EXPECT_EQ(label.Caption(), "Å A");
    label.SetOption(1, false);
    ASSERT_TRUE(!label.GetOption(3) && label.AutoLowerCase() && !label.AutoUpperCase());
}

TEST(Edit, EditorIsOneCharacterWider) {
    TControlForm form;
    auto* label = form.Add<TDropDownEdit>(30, 40);
    ASSERT_TRUE(form.Open());
    label->DropDown();
    const QWidget* editor = label->EditControl();
    for (const char* typed : {"", "i", "W", "another word"}) {
        Type(typed);
        const QString text = qobject_cast<const QLineEdit*>(editor)->text();
        EXPECT_EQ(editor->width(), ternTextWidth(text + "W", label->font()) + 6);
    }
    EXPECT_EQ(editor->height(), ternTextHeight("W", label->font()));
    EXPECT_EQ(editor->pos(), label->pos());
}

TEST(Edit, EditorFollowsReadingDirection) {
    TControlForm form;
    auto* label = form.Add<TDropDownEdit>(200, 40);
    label->SetValue("שלום");
    ASSERT_TRUE(form.Open());
    label->SetBiDiMode(Qt::RightToLeft);
    label->DropDown();
    EXPECT_EQ(label->EditControl()->layoutDirection(), Qt::RightToLeft);
    EXPECT_EQ(label->EditControl()->geometry().right(), label->geometry().right());
    Type("and more");
    EXPECT_EQ(label->EditControl()->geometry().right(), label->geometry().right());
}

TEST(Edit, FocusThatStays) {
    TControlForm form;
    auto* label = form.Add<TDropDownEdit>();
    ASSERT_TRUE(form.Open());
    label->DropDown();
    Type("abc");
    for (const auto reason : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason}) {
        QFocusEvent away(QEvent::FocusOut, reason);
        QApplication::sendEvent(label->EditControl(), &away);
        ASSERT_TRUE(label->Dropped());
    }
    // A question in a handler takes the focus away; the editor does not close a second time.
    int closed = 0;
    label->BeforeDropUp = [&](TDropDownLabel*, const QString&, bool&) {
        ++closed;
        QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
        QMessageBox::question(&form, "", "Sure?");
        label->DropUp(false);
    };
    Press(Qt::Key_Return);
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(label->Value(), "abc");
}

TEST(Edit, TypedTextCountsWhenTheWindowCloses) {
    for (const bool destroyed : {false, true}) {
        auto form = std::make_unique<TControlForm>();
        QPointer<TDropDownEdit> label = form->Add<TDropDownEdit>();
        QStringList log;
        Record(*label, log);
        ASSERT_TRUE(form->Open());
        label->DropDown();
        Type("new");
        if (destroyed) {
            // What the handlers refer to may be gone: they are not called.
            form.reset();
            EXPECT_EQ(log, (QStringList{"before down", "after down"}));
            continue;
        }
        form->close();
        EXPECT_EQ(label->Value(), "new");
        EXPECT_EQ(log.last(), "after up 1");
    }
}

TEST(Edit, TabGoesOnBehindTheLabel) {
    TControlForm form;
    auto* first = form.Add<TDropDownEdit>(20, 20);
    auto* second = form.Add<TDropDownEdit>(20, 50);
    ASSERT_TRUE(form.Open());
    second->DropDown();
    Press(Qt::Key_Escape);
    first->DropDown();
    Type("one");
    Press(Qt::Key_Tab);
    EXPECT_EQ(first->Value(), "one");
    ASSERT_TRUE(second->hasFocus());
    Press(Qt::Key_Space);
    Type("two");
    Press(Qt::Key_Backtab);
    EXPECT_EQ(second->Value(), "two");
    ASSERT_TRUE(first->hasFocus());
}

TEST(Edit, LineBreaksAndLongValuesSurvive) {
    TControlForm form;
    auto* label = form.Add<TDropDownEdit>();
    const QString value = "a\nb\tc" + QString(40000, 'x');
    label->SetValue(value);
    ASSERT_TRUE(form.Open());
    label->DropDown();
    EXPECT_LT(label->EditControl()->geometry().right(), form.width());
    Press(Qt::Key_Return);
    ASSERT_TRUE(label->Value() == value);
}

TEST(Edit, DestroyedWhileOpen) {
    for (const QString event :
         {"outside", "form", "after down", "before up", "after up", "double click", "on leaving"}) {
        SCOPED_TRACE(event.toStdString());
        auto form = std::make_unique<TControlForm>();
        QPointer<TDropDownEdit> label = form->Add<TDropDownEdit>();
        const auto die = [&label] { delete label; };
        When(event == "on leaving" ? "before up" : event, *label,
             [&] { event == "after up" ? form.reset() : die(); });
        if (event == "double click")
            label->OnEditDblClick = [=](TDropDownLabel*, QString&) { die(); };
        ASSERT_TRUE(form->Open());
        ClickAt(label, label->rect().center());
        if (event == "outside") die();
        if (event == "form") form.reset();
        if (event == "double click") QTest::mouseDClick(label->EditControl(), Qt::LeftButton);
        if (event == "on leaving") ClickAt(form->neighbour, {5, 5});
        if (label) Press(Qt::Key_Return);
        EXPECT_FALSE(label);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (form) {
            EXPECT_EQ(form->findChildren<TSilentEdit*>().size(), 0);
        }
    }
}

TEST(Edit, ControlFollowsParent) {
    TControlForm form;
    auto* label = new TDropDownEdit;
    ASSERT_TRUE(!label->EditControl());
    label->setParent(&form);
    EXPECT_EQ(label->EditControl()->parentWidget(), &form);
    QWidget other;
    label->setParent(&other);
    EXPECT_EQ(label->EditControl()->parentWidget(), &other);
    ASSERT_TRUE(label->EditControl()->isHidden());
}

} // namespace tern7
