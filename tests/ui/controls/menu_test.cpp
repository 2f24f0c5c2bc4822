#include <QAccessible>
#include <QLineEdit>

#include <tern7/ui/controls/drop_down_popup.h>
#include <tern7/ui/controls/popup_place.h>
#include <tern7/ui/controls/text_search.h>
#include <ui/controls/control_form.h>

namespace tern7 {

namespace {

using enum TKPopupSplitType;

/// What the keys reach, innermost sub menu first.
TKPopupMenu* Innermost(TKPopupMenu* menu) {
    while (menu->OpenSubMenu())
        menu = menu->OpenSubMenu();
    return menu;
}

QString Current(TKPopupMenu* menu) {
    const TMenuItem* item = Innermost(menu)->CurrentItem();
    return item ? item->PlainCaption() : QString();
}

QStringList Rows(const TKPopupMenu* menu) {
    QStringList rows;
    for (int i = 0; i < menu->RowCount(); ++i)
        rows << menu->Row(i)->PlainCaption();
    return rows;
}

void ClickRow(TKPopupMenu* menu, int row) {
    ClickAt(menu, menu->RowRect(row).center());
}

/// A label with two groups, some items outside, and an open menu.
struct TOpenPopup {
    explicit TOpenPopup(int outside = 3, int perGroup = 3) {
        for (int i = 0; i < outside; ++i)
            label->AddItem("", QString("Item %1").arg(i), QString("i%1").arg(i));
        for (const QString group : {"Customer", "Order && more"})
            for (int i = 0; i < perGroup; ++i)
                label->AddItem(group, QString("%1 %2").arg(group[0]).arg(i),
                               group.left(1) + QString::number(i));
        Record(*label, log);
    }
    bool Open() {
        if (!form.Open()) return false;
        ClickAt(label, label->rect().center());
        return label->Menu()->isVisible();
    }
    QStringList WaitForEnd() {
        WaitUntilIdle(label);
        return log;
    }
    static void WaitUntilIdle(const QPointer<TDropDownPopup>& label) {
        for (int i = 0; i < 50 && label && label->Dropped(); ++i)
            QTest::qWait(1);
    }

    TControlForm form;
    QPointer<TDropDownPopup> label = form.Add<TDropDownPopup>();
    QStringList log;
};

} // namespace

TEST(MenuSplit, Table) {
    const struct {
        int count, limit;
        TKPopupSplitType type;
        std::vector<int> breaks;
    } cases[] = {
        {40, 15, pstBalanced, {14, 28}}, // columns of 14, 14 and 12
        {40, 15, pstFillFirst, {15, 30}},
        {15, 15, pstBalanced, {8}}, // exactly the limit makes two columns
        {14, 15, pstBalanced, {}},
        {14, 15, pstFillFirst, {}},
        {16, 15, pstFillFirst, {15}},
        {0, 15, pstBalanced, {}},
        {0, 15, pstFillFirst, {}},
        {2, 1, pstBalanced, {1}}, // the break behind the last item is left out
        {3, 0, pstBalanced, {1, 2}},
        {10, 4, pstBalanced, {4, 8}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ColumnBreaks(c.count, c.limit, c.type), c.breaks) << c.count << "/" << c.limit;
    EXPECT_THROW(ColumnBreaks(30, 15, pstFillFirst), EDDLabelError);
    EXPECT_THROW(ColumnBreaks(1, 0, pstFillFirst), EDDLabelError);
}

TEST(MenuLayout, ColumnsBarsAndMirror) {
    const std::vector<TMenuRow> rows = {
        {50, false, false, false}, {80, false, false, false}, {0, true, false, false},
        {30, false, true, true},   {40, false, true, false},
    };
    const TMenuMetrics metrics{20, 5, 6, 10};
    const TMenuLayout layout = LayoutMenu(rows, metrics, false);
    EXPECT_EQ(layout.size, QSize(90 + 6 + 40 + 50, 45));
    EXPECT_EQ(layout.rows[2], QRect(0, 40, 90, 5));
    EXPECT_EQ(layout.rows[3], QRect(96, 0, 40, 20));
    EXPECT_EQ(layout.bars, std::vector<QRect>{QRect(90, 0, 6, 45)});
    EXPECT_EQ(layout.ColumnOf(2), 0);
    EXPECT_EQ(layout.ColumnOf(4), 2);
    EXPECT_EQ(layout.RowAt({100, 10}), 3);
    EXPECT_EQ(layout.RowAt({92, 10}), -1);
    const TMenuLayout mirrored = LayoutMenu(rows, metrics, true);
    EXPECT_EQ(mirrored.rows[4], QRect(0, 0, 50, 20));
    EXPECT_EQ(mirrored.rows[0], QRect(96, 0, 90, 20));
}

TEST(PopupPlace, BelowAboveAndInside) {
    const QRect room(0, 0, 800, 600);
    const struct {
        QRect anchor;
        QSize size;
        bool fromRight;
        QPoint place;
    } cases[] = {
        {{100, 100, 50, 20}, {200, 300}, false, {100, 120}},
        {{400, 100, 50, 20}, {200, 300}, true, {250, 120}},
        {{100, 400, 50, 20}, {200, 300}, false, {100, 100}}, // more room above
        {{100, 280, 50, 20}, {200, 300}, false, {100, 300}}, // ends with the room
        {{100, 250, 50, 20}, {200, 400}, false, {100, 200}}, // fits nowhere: moved
        {{700, 100, 50, 20}, {200, 100}, false, {600, 120}},
        {{10, 100, 50, 20}, {200, 100}, true, {0, 120}},
        {{100, 100, 50, 20}, {900, 700}, false, {0, 0}},
    };
    for (const auto& c : cases) {
        const QPoint at = PlaceBelow(c.anchor, c.size, room, c.fromRight);
        EXPECT_EQ(MovedInto(room, at, c.size), QRect(c.place, c.size)) << c.anchor.y();
    }
}

TEST(MenuItem, Captions) {
    const TMenuItem item("S&ave && go");
    EXPECT_EQ(item.PlainCaption(), "Save & go");
    EXPECT_EQ(item.Mnemonic(), u'a');
    EXPECT_TRUE(TMenuItem("A&&B").Mnemonic().isNull());
    EXPECT_TRUE(TTextSearch(" cit  CUST ").Finds("Customer City"));
    EXPECT_FALSE(TTextSearch("city order").Finds("Customer City"));
}

TEST(PopupMenu, OneListBeyondWhatTheScreenHolds) {
    TControlForm form;
    ASSERT_TRUE(form.Open());
    TKPopupMenu menu(&form);
    for (int i = 0; i < 2000; ++i)
        menu.Items().Add(QString("Table number %1").arg(i));
    const QRect anchor(100, 40, 50, 20);
    menu.PopupAt(anchor);
    int breaks = 0;
    for (int i = 0; i < 2000; ++i)
        breaks += menu.Items().Items(i).Break == TMenuBreak::mbBarBreak;
    EXPECT_GT(breaks, 10) << "the split itself stays";
    EXPECT_LT(menu.width(), 400);
    EXPECT_EQ(menu.RowRect(1999).left(), menu.RowRect(0).left());
    EXPECT_FALSE(menu.geometry().intersects(anchor)) << "what it was opened from is in sight";
    Press(Qt::Key_End);
    EXPECT_TRUE(menu.rect().contains(menu.RowRect(1999)));
    EXPECT_TRUE(menu.SearchField()->visibleRegion().contains(menu.SearchField()->rect()));
    menu.Items().Clear();
    for (int i = 0; i < 100; ++i)
        menu.Items().Add(QString("T%1").arg(i));
    menu.PopupAt(anchor);
    EXPECT_NE(menu.RowRect(99).left(), menu.RowRect(0).left()) << "columns that are seen at once";
}

TEST(PopupMenu, SplitsEveryLevel) {
    TControlForm form;
    ASSERT_TRUE(form.Open());
    TKPopupMenu menu(&form);
    EXPECT_TRUE(menu.FitToScreen());
    EXPECT_EQ(menu.PopupSplitType(), pstBalanced);
    TMenuItem& deep = menu.Items().Add("deep");
    for (int i = 0; i < 200; ++i)
        deep.Add("x").Break = TMenuBreak::mbBreak;
    menu.Popup(10, 10);
    EXPECT_THROW(menu.Row(1), EDDLabelError);
    menu.SetCurrentRow(1);
    EXPECT_EQ(menu.CurrentRow(), -1);
    int breaks = 0, plain = 0;
    for (int i = 0; i < deep.Count(); ++i) {
        breaks += deep.Items(i).Break == TMenuBreak::mbBarBreak;
        plain += deep.Items(i).Break == TMenuBreak::mbBreak;
    }
    EXPECT_GT(breaks, 1);
    EXPECT_EQ(plain, 0);
    menu.SetFitToScreen(false);
    deep.Items(7).Break = TMenuBreak::mbBreak;
    EXPECT_FALSE(menu.isVisible() && menu.RowCount() == 0);
    menu.Popup(10, 10);
    EXPECT_EQ(deep.Items(7).Break, TMenuBreak::mbBreak);
    menu.SetCurrentItem(&deep.Items(7));
    deep.Clear(); // under an open menu
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(menu.RowCount(), 0);
    menu.Popup(10, 10);
    EXPECT_EQ(menu.RowCount(), 1);
}

TEST(PopupMenu, ArrowStripsLeaveTheRowFree) {
    TControlForm form;
    ASSERT_TRUE(form.Open());
    TKPopupMenu menu(&form);
    for (int i = 0; i < 200; ++i)
        menu.Items().Add("x");
    menu.SetFitToScreen(false);
    menu.Popup(10, 10);
    const int strip = 14;
    const QRect free = menu.rect().adjusted(0, menu.SearchField()->height() + strip, 0, -strip);
    for (const int row : {100, 199, 50, 0}) {
        menu.SetCurrentRow(row);
        const bool atAnEnd = row == 0 || row == 199;
        EXPECT_TRUE((atAnEnd ? menu.rect() : free).contains(menu.RowRect(row))) << row;
    }
}

TEST(PopupMenu, DisabledItemLooksDisabled) {
    TControlForm form;
    ASSERT_TRUE(form.Open());
    TKPopupMenu menu(&form);
    for (const bool enabled : {true, true, true, false, true})
        menu.Items().Add("Item").Enabled = enabled;
    menu.Popup(10, 10);
    const auto picture = [&](int row) { return menu.grab(menu.RowRect(row)).toImage(); };
    EXPECT_EQ(picture(1), picture(2));
    EXPECT_NE(picture(2), picture(3));
}

TEST(Popup, ChosenByMouse) {
    TOpenPopup t;
    ASSERT_TRUE(t.Open());
    TKPopupMenu* menu = t.label->Menu();
    EXPECT_EQ(Rows(menu), (QStringList{"Item 0", "Item 1", "Item 2", "Customer", "Order && more"}));
    EXPECT_EQ(menu->pos(), t.form.mapToGlobal(t.label->geometry().bottomLeft() + QPoint(0, 1)));
    ClickRow(menu, 4);
    ASSERT_TRUE(menu->OpenSubMenu());
    EXPECT_EQ(Rows(menu->OpenSubMenu()), (QStringList{"O 0", "O 1", "O 2"}));
    ClickRow(menu->OpenSubMenu(), 2);
    EXPECT_EQ(t.label->Value(), "O2");
    EXPECT_EQ(t.label->Caption(), "O 2");
    EXPECT_EQ(t.WaitForEnd(),
              (QStringList{"before down", "after down", "before up '' 1", "after up 1"}));
    EXPECT_FALSE(menu->isVisible());
    EXPECT_EQ(t.form.focusWidget(), t.label);
}

TEST(Popup, ChosenByKeys) {
    const struct {
        std::initializer_list<Qt::Key> keys;
        QString value;
    } cases[] = {
        {{Qt::Key_Down, Qt::Key_Return}, "i0"},
        {{Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Space}, "O1"},
        {{Qt::Key_End, Qt::Key_Return, Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Return},
         "C0"},
        {{Qt::Key_I, Qt::Key_T, Qt::Key_Return}, "i0"},
        {{Qt::Key_I, Qt::Key_I, Qt::Key_Return}, "i1"},
        {{Qt::Key_Down, Qt::Key_Escape}, ""},
        {{Qt::Key_End, Qt::Key_Right, Qt::Key_Escape, Qt::Key_Home, Qt::Key_Tab, Qt::Key_Return},
         "i1"},
    };
    for (const auto& c : cases) {
        TOpenPopup t;
        ASSERT_TRUE(t.form.Open());
        t.label->setFocus();
        Press(Qt::Key_Space);
        ASSERT_TRUE(t.label->Menu()->isVisible());
        Press(c.keys);
        EXPECT_EQ(t.WaitForEnd().last(), c.value.isEmpty() ? "after up 0" : "after up 1");
        EXPECT_EQ(t.label->Value(), c.value);
        EXPECT_EQ(t.form.focusWidget(), t.label) << c.value.toStdString();
    }
}

TEST(Popup, ArrowsAreMirrored) {
    TOpenPopup t;
    t.label->move(320, 20);
    t.label->SetBiDiMode(Qt::RightToLeft);
    ASSERT_TRUE(t.Open());
    TKPopupMenu* menu = t.label->Menu();
    EXPECT_EQ(menu->geometry().right(), t.form.mapToGlobal(t.label->geometry().topRight()).x());
    Press({Qt::Key_Up, Qt::Key_Left});
    EXPECT_EQ(Current(menu), "O 0");
    EXPECT_LT(menu->OpenSubMenu()->x(), menu->x());
    Press(Qt::Key_Right);
    EXPECT_FALSE(menu->OpenSubMenu());
}

TEST(Popup, OpensAtItsItem) {
    TOpenPopup t;
    t.label->SetValue("C1");
    ASSERT_TRUE(t.Open());
    EXPECT_EQ(Current(t.label->Menu()), "Customer");
    Press(Qt::Key_Escape);
    t.WaitForEnd();
    t.label->SetValue("i2");
    t.label->DropDown();
    EXPECT_EQ(Current(t.label->Menu()), "Item 2");
}

TEST(Popup, ClicksOutside) {
    TOpenPopup t;
    ASSERT_TRUE(t.Open());
    // On the label itself: the menu goes and does not come back.
    ClickAt(t.label->Menu(),
            t.label->Menu()->mapFromGlobal(t.label->mapToGlobal(t.label->rect().center())));
    EXPECT_EQ(t.WaitForEnd().last(), "after up 0");
    EXPECT_FALSE(t.label->Menu()->isVisible());
    EXPECT_EQ(t.log.size(), 4);
    // Elsewhere: the menu goes, and the press is heard by nobody twice.
    t.label->DropDown();
    ClickAt(t.label->Menu(), t.label->Menu()->mapFromGlobal(t.form.mapToGlobal(QPoint(400, 350))));
    t.WaitForEnd();
    EXPECT_EQ(t.log.size(), 8);
    EXPECT_EQ(t.label->Value(), "");
}

TEST(Popup, SeparatorsAndDisabledItemsAreNotChosen) {
    TOpenPopup t(0, 1);
    t.label->ClearAll();
    t.label->AddItem("", "-", "a");
    t.label->AddItem("", "off", "b");
    t.label->AddItem("-", "never seen", "c");
    t.label->AddItem("", "on", "d");
    QStringList asked;
    t.label->OnGetGroupImageIndex = [&](const QString& group, int&) { asked << group; };
    t.label->OnGetItemImageIndex = [&](const QString& group, const QString& item, int& image) {
        asked << group + '/' + item;
        image = 4;
    };
    ASSERT_TRUE(t.Open());
    EXPECT_EQ(asked, (QStringList{"/off", "/on", "-/never seen"}));
    EXPECT_EQ(t.label->Menu()->Row(1)->ImageIndex, 4);
    TKPopupMenu* menu = t.label->Menu();
    EXPECT_EQ(Rows(menu), (QStringList{"-", "off", "on", "-"}));
    menu->Items().Items(1).Enabled = false;
    ClickRow(menu, 0);
    ClickRow(menu, 1);
    ClickRow(menu, 3);
    EXPECT_TRUE(menu->isVisible() && !menu->OpenSubMenu());
    Press({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(t.label->Value(), "d");
}

TEST(Popup, CountPerColumn) {
    TOpenPopup t(5, 3);
    t.label->SetMaxItemCount(2);
    ASSERT_TRUE(t.Open());
    const TMenuItem& root = t.label->Menu()->Items();
    QString breaks;
    for (int i = 0; i < root.Count(); ++i)
        breaks += root.Items(i).Break == TMenuBreak::mbBarBreak ? '|' : '.';
    EXPECT_EQ(breaks, "..|.|..");
    EXPECT_EQ(root.Items(5).Items(2).Break, TMenuBreak::mbBarBreak);
    EXPECT_FALSE(t.label->Menu()->FitToScreen());
    t.label->SetMaxItemCount(0);
    EXPECT_TRUE(t.label->Menu()->FitToScreen());
}

TEST(Popup, SearchFromFifteenItemsOn) {
    TOpenPopup few(2, 6);
    ASSERT_TRUE(few.Open());
    EXPECT_FALSE(few.label->Menu()->SearchField());

    TOpenPopup t(3, 6);
    ASSERT_TRUE(t.Open());
    TKPopupMenu* menu = t.label->Menu();
    ASSERT_TRUE(menu->SearchField());
    EXPECT_EQ(menu->RowCount(), 5);
    Type("3 cus");
    EXPECT_EQ(Rows(menu), QStringList{"C 3"});
    EXPECT_EQ(Current(menu), "C 3");
    for (int i = 0; i < 5; ++i)
        Press(Qt::Key_Backspace);
    EXPECT_EQ(menu->RowCount(), 5);
    Type("zzz");
    EXPECT_EQ(menu->RowCount(), 0);
    Press({Qt::Key_Return, Qt::Key_Down});
    EXPECT_TRUE(menu->isVisible());
    menu->SearchField()->setText("o");
    Press({Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(t.label->Value(), "C1");
}

TEST(Popup, TenThousandItems) {
    TOpenPopup t(0, 5000);
    ASSERT_TRUE(t.Open());
    TKPopupMenu* menu = t.label->Menu();
    Press({Qt::Key_Down, Qt::Key_Right, Qt::Key_End});
    EXPECT_EQ(Current(menu), "C 4999");
    const TKPopupMenu* sub = Innermost(menu);
    EXPECT_TRUE(sub->screen()->availableGeometry().contains(sub->geometry()));
    EXPECT_TRUE(sub->rect().contains(sub->RowRect(sub->CurrentRow())));
    Press(Qt::Key_Escape);
    Type("4998");
    EXPECT_EQ(Rows(menu), (QStringList{"C 4998", "O 4998"}));
    EXPECT_LT(menu->findChildren<QWidget*>().size(), 10);
    Press(Qt::Key_Return);
    EXPECT_EQ(t.label->Value(), "C4998");
}

TEST(PopupMenu, OpensAgainFromItsOwnHandler) {
    TControlForm form;
    ASSERT_TRUE(form.Open());
    TKPopupMenu menu(&form);
    int taken = 0;
    for (int i = 0; i < searchFrom; ++i)
        menu.Items().Add("&x").OnClick = [&](TMenuItem*) {
            if (++taken == 1) menu.Popup(10, 10);
        };
    menu.Popup(10, 10);
    Press({Qt::Key_Down, Qt::Key_Return});
    EXPECT_TRUE(menu.isVisible());
    Press({Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(taken, 2);
    EXPECT_FALSE(menu.isVisible());
}

TEST(Popup, HandlerDropsDownAgain) {
    TOpenPopup t;
    int closed = 0;
    t.label->AfterDropUp = [&](TDropDownLabel* label, bool) {
        if (++closed == 1) label->DropDown();
    };
    ASSERT_TRUE(t.Open());
    Press({Qt::Key_Down, Qt::Key_Return});
    QTest::qWait(5);
    EXPECT_TRUE(t.label->Menu()->isVisible());
    Press(Qt::Key_Escape);
    t.WaitForEnd();
    EXPECT_EQ(closed, 2);
    EXPECT_EQ(t.label->Value(), "i0");
}

TEST(Popup, Veto) {
    TOpenPopup t;
    t.label->SetItemIndex(1);
    QString seen;
    t.label->BeforeDropUp = [&](TDropDownLabel* sender, const QString&, bool& accept) {
        seen += sender->Value();
        accept = false;
    };
    t.label->AfterDropUp = [&](TDropDownLabel* sender, bool accepted) {
        seen += ' ' + sender->Value() + ' ' + QString::number(accepted);
    };
    ASSERT_TRUE(t.Open());
    Press({Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(seen, "i2 i1 0");
    EXPECT_EQ(t.label->Value(), "i1");
    EXPECT_EQ(t.label->ItemIndex(), 1);
    EXPECT_EQ(t.label->Caption(), "Item 1");
}

TEST(Popup, ErrorInAChoiceLeavesTheLabelIdle) {
    TOpenPopup t;
    t.label->SetValues({"i0"}); // two items without a value
    ASSERT_TRUE(t.Open());
    Press({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(t.WaitForEnd().last(), "after up 0");
    t.label->DropDown();
    Press(Qt::Key_Escape);
    EXPECT_EQ(t.WaitForEnd().size(), 8);
    EXPECT_EQ(t.label->Value(), "");
}

TEST(Popup, WorksOffItsParent) {
    TOpenPopup t;
    ASSERT_TRUE(t.label->Menu());
    t.label->setParent(nullptr);
    t.label->DropDown();
    EXPECT_TRUE(t.label->Menu()->isVisible());
    delete t.label;
}

TEST(Popup, DestroyedWhileOpen) {
    for (const QString event : {"outside", "form", "group", "item", "after down", "before up",
                                "value", "after up", "dismissed", "cleared"}) {
        SCOPED_TRACE(event.toStdString());
        auto t = std::make_unique<TOpenPopup>();
        const QPointer<TDropDownPopup> label = t->label;
        const auto die = [label] { delete label; };
        if (event == "group") label->OnGetGroupImageIndex = [=](const QString&, int&) { die(); };
        if (event == "item")
            label->OnGetItemImageIndex = [=](const QString&, const QString&, int&) { die(); };
        When(event, *label, [&] { event == "after up" ? t.reset() : die(); });
        if (event == "dismissed") label->AfterDropUp = [=](TDropDownLabel*, bool) { die(); };
        ASSERT_TRUE(t->form.Open());
        ClickAt(label, label->rect().center());
        if (event == "outside") die();
        if (event == "form") t.reset();
        if (event == "cleared") {
            label->ClearAll();
            die();
        }
        if (event == "dismissed") Press(Qt::Key_Escape);
        if (label && event != "dismissed") Press({Qt::Key_End, Qt::Key_Right, Qt::Key_Return});
        TOpenPopup::WaitUntilIdle(label);
        EXPECT_FALSE(label);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(QApplication::activePopupWidget());
    }
}

} // namespace tern7
