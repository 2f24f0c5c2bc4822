#include <cstdlib>

#include <QSignalSpy>

#include <tern7/DDLabel.h>
#include <ui/controls/control_form.h>

namespace tern7 {

TEST(Label, CaptionShowsAmpersandsAndPlaceholder) {
    const struct {
        QString caption, shown, readBack;
    } cases[] = {
        {"Berlin", "Berlin", "Berlin"},       {"A&B", "A&&B", "A&B"},
        {"A&&B", "A&&&&B", "A&&B"},           {"", "_____", "_____"},
        {"<b>x</b>", "<b>x</b>", "<b>x</b>"}, // markup is text
    };
    for (const auto& c : cases) {
        TDropDownLabel label;
        label.SetValue("old");
        label.SetValue(c.caption);
        EXPECT_EQ(label.text(), c.shown);
        EXPECT_EQ(label.Caption(), c.readBack);
        EXPECT_EQ(label.Value(), c.caption);
        EXPECT_EQ(label.width(), label.sizeHint().width());
    }
}

TEST(Label, SameValueIsNoChange) {
    TDropDownLabel label;
    label.SetValue("a");
    label.SetCaption("shown otherwise");
    QSignalSpy changed(&label, &TDropDownLabel::valueChanged);
    label.SetValue("a");
    EXPECT_EQ(label.Caption(), "shown otherwise");
    label.SetValue("b");
    EXPECT_EQ(label.Caption(), "b");
    EXPECT_EQ(changed.count(), 1);
}

TEST(Label, CustomDropDown) {
    const struct {
        const char* name;
        bool assigned;
        QString answer;
        bool accept;
        QString value;
    } cases[] = {
        {"no handler", false, "", true, "old"},
        {"accepted", true, "new", true, "new"},
        {"refused", true, "new", false, "old"},
        {"an empty answer keeps", true, "", true, "old"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        TDropDownLabel label;
        label.SetValue("old");
        QStringList log;
        Record(label, log);
        QString offered = "old";
        if (c.assigned)
            label.OnCustomDropDown = [&](TDropDownLabel* sender, QString& text, bool& accepted) {
                ASSERT_TRUE(sender->Dropped());
                offered = text;
                text = c.answer;
                accepted = c.accept;
            };
        label.DropDown();
        EXPECT_EQ(offered, "old");
        EXPECT_EQ(label.Value(), c.value);
        // It closed before the call returned, so it is never reported as dropped down.
        EXPECT_EQ(log, (QStringList{"before down", QString("before up '' %1").arg(c.accept),
                                    QString("after up %1").arg(c.accept)}));
        EXPECT_FALSE(label.Dropped());
    }
}

TEST(Label, KeysAndClicks) {
    TControlForm form;
    auto* label = form.Add<TDropDownLabel>();
    int opened = 0, alternative = 0;
    label->OnCustomDropDown = [&](TDropDownLabel*, QString&, bool&) { ++opened; };
    label->OnAltClick = [&](TDropDownLabel*) { ++alternative; };
    ASSERT_TRUE(form.Open());
    ClickAt(label, label->rect().center());
    EXPECT_EQ(opened, 1);
    ASSERT_TRUE(label->hasFocus());
    ClickAt(label, label->rect().center(), Qt::ControlModifier);
    Press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(alternative, 2);
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_F2, Qt::Key_F4})
        Press(key);
    Press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(opened, 7);
    QTest::mousePress(label, Qt::LeftButton);
    QTest::mouseRelease(label, Qt::LeftButton, {}, QPoint(-5, -5));
    EXPECT_EQ(opened, 7);
    label->SetFixed(true);
    ClickAt(label, label->rect().center());
    Press(Qt::Key_Space);
    label->DropDown();
    EXPECT_EQ(opened, 7);
}

TEST(Label, MenuKeyAndRightButton) {
    TControlForm form;
    auto* label = form.Add<TDropDownLabel>();
    ASSERT_TRUE(form.Open());
    QContextMenuEvent unheard(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(label, &unheard);
    ASSERT_TRUE(!unheard.isAccepted());
    int asked = 0;
    label->OnRightClick = [&](TDropDownLabel*) { ++asked; };
    QTest::mouseClick(label, Qt::RightButton);
    EXPECT_EQ(asked, 1);
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(label, &byKey);
    QContextMenuEvent byMouse(QContextMenuEvent::Mouse, {}, {});
    QApplication::sendEvent(label, &byMouse);
    EXPECT_EQ(asked, 2);
    ASSERT_TRUE(!label->Dropped());
}

TEST(Label, ErrorInHandlerLeavesLabelIdle) {
    TControlForm form;
    auto* label = form.Add<TDropDownLabel>();
    label->SetValue("old");
    label->OnCustomDropDown = [](TDropDownLabel*, QString& value, bool&) {
        value = "half";
        throw EDDLabelError("refused");
    };
    ASSERT_TRUE(form.Open());
    EXPECT_THROW(label->DropDown(), EDDLabelError);
    ASSERT_TRUE(!label->Dropped());
    ClickAt(label, label->rect().center());
    ASSERT_TRUE(!label->Dropped());
    EXPECT_EQ(label->Value(), "old");
}

TEST(Label, HandlerDeletesLabel) {
    for (const QString event :
         {"clicked", "before down", "custom", "before up", "value", "after up"}) {
        SCOPED_TRACE(event.toStdString());
        TControlForm form;
        QPointer<TDropDownLabel> label = form.Add<TDropDownLabel>();
        const auto die = [&label] { delete label; };
        if (event == "clicked") QObject::connect(label, &TDropDownLabel::clicked, die);
        When(event, *label, die);
        label->OnCustomDropDown = [=](TDropDownLabel*, QString& value, bool&) {
            value = "new";
            if (event == "custom") die();
        };
        ASSERT_TRUE(form.Open());
        ClickAt(label, label->rect().center());
        EXPECT_FALSE(label);
    }
}

TEST(Label, FocusFrameIsDrawn) {
    TControlForm form;
    auto* label = form.Add<TDropDownLabel>();
    ASSERT_TRUE(form.Open());
    form.neighbour->setFocus();
    const auto corner = [&] { return label->grab().toImage().pixelColor(0, 0); };
    const QColor plain = corner();
    label->SetFocused(true);
    EXPECT_EQ(corner(), QColor(0, 0, 128));
    label->SetFocused(false);
    EXPECT_EQ(corner(), plain);
    label->setFocus();
    EXPECT_EQ(corner(), QColor(0, 0, 128));
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Link, QColor(120, 180, 255));
    form.setPalette(dark);
    EXPECT_EQ(corner(), QColor(120, 180, 255));
}

TEST(Label, KeepsRightEdgeWhenReadFromRight) {
    TControlForm form;
    form.setLayoutDirection(Qt::RightToLeft);
    auto* label = form.Add<TDropDownLabel>(200, 20);
    const int right = label->geometry().right();
    label->SetValue("a much longer text than before");
    EXPECT_EQ(label->geometry().right(), right);
}

TEST(Label, BracketsTurnWithTheLineAndTextsDoNot) {
    /// How much of the ink stands in the left half, in percent.
    const auto leftInk = [](const QString& text, Qt::LayoutDirection direction) {
        TDropDownLabel label;
        QFont large = label.font();
        large.setPixelSize(80);
        label.setFont(large);
        label.SetFixed(true);
        label.setLayoutDirection(direction);
        label.SetCaption(text);
        const QImage image = label.grab().toImage().convertToFormat(QImage::Format_Grayscale8);
        QRect ink;
        const auto isInk = [&](int x, int y) { return image.pixel(x, y) != image.pixel(0, 0); };
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height(); ++y)
                if (isInk(x, y)) ink |= QRect(x, y, 1, 1);
        int left = 0, all = 0;
        for (int x = ink.left(); x <= ink.right(); ++x)
            for (int y = ink.top(); y <= ink.bottom(); ++y) {
                const int dark = std::abs(qGray(image.pixel(x, y)) - qGray(image.pixel(0, 0)));
                all += dark;
                if (2 * x < ink.left() + ink.right()) left += dark;
            }
        return all > 0 ? 100 * left / all : -1;
    };
    EXPECT_GT(leftInk("(", Qt::LeftToRight), 50);
    EXPECT_LT(leftInk("(", Qt::RightToLeft), 50) << "the line goes the other way";
    EXPECT_GT(leftInk(")", Qt::RightToLeft), 50);
    EXPECT_LT(leftInk("1.... W", Qt::LeftToRight), 50);
    EXPECT_LT(leftInk("1.... W", Qt::RightToLeft), 50) << "a text keeps its order";
}

} // namespace tern7
