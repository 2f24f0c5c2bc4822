#include <QLineEdit>
#include <QListView>

#include <tern7/ui/controls/check_list_box.h>
#include <tern7/ui/controls/drop_down_list_box.h>
#include <ui/controls/control_form.h>

namespace tern7 {

namespace {

QListView* ListOf(const TDropDownLabel* label) {
    return static_cast<QListView*>(label->EditControl());
}

QLineEdit* SearchOf(const TDropDownLabel* label) {
    return label->EditControl()->parentWidget()->findChild<QLineEdit*>();
}

QStringList Rows(const TDropDownLabel* label) {
    QStringList rows;
    const QAbstractItemModel* model = ListOf(label)->model();
    for (int i = 0; i < model->rowCount(); ++i)
        rows << model->index(i, 0).data().toString();
    return rows;
}

void ClickRow(const TDropDownLabel* label, int row) {
    QListView* list = ListOf(label);
    const QRect place = list->visualRect(list->model()->index(row, 0));
    ClickAt(list->viewport(), place.center());
}

template <class Label>
struct TOpenList {
    explicit TOpenList(const QStringList& items) {
        label->SetItems(items);
        QStringList values;
        for (const QString& item : items)
            values << item.toLower();
        label->SetValues(values);
        Record(*label, log);
    }
    bool Open() {
        if (!form.Open()) return false;
        ClickAt(label, label->rect().center());
        return label->EditMode();
    }

    TControlForm form;
    QPointer<Label> label = form.Add<Label>();
    QStringList log;
};

const QStringList fruits = {"Pear", "Apple", "Cherry", "banana"};

QStringList Numbered(int count) {
    QStringList items;
    for (int i = 0; i < count; ++i)
        items << QString("Item %1").arg(i);
    return items;
}

} // namespace

TEST(ListBox, ChosenByMouseThroughSorting) {
    TOpenList<TDropDownListBox> t(fruits);
    t.label->SetSortList(true);
    ASSERT_TRUE(t.Open());
    EXPECT_EQ(Rows(t.label), (QStringList{"Apple", "banana", "Cherry", "Pear"}));
    EXPECT_TRUE(SearchOf(t.label)->isHidden());
    ClickRow(t.label, 1);
    EXPECT_EQ(t.label->ItemIndex(), 3);
    EXPECT_EQ(t.label->Value(), "banana");
    EXPECT_EQ(t.label->Caption(), "banana");
    EXPECT_EQ(t.log, (QStringList{"before down", "after down", "before up '' 1", "after up 1"}));
    EXPECT_FALSE(t.label->EditMode());
    EXPECT_EQ(t.form.focusWidget(), t.label);
}

TEST(ListBox, ChosenByKeys) {
    const struct {
        QString before;
        std::initializer_list<Qt::Key> keys;
        QString value;
        bool accepted;
    } cases[] = {
        {"apple", {Qt::Key_Down, Qt::Key_Return}, "cherry", true},
        {"apple", {Qt::Key_Return}, "apple", true},
        {"apple", {Qt::Key_End, Qt::Key_Enter}, "banana", true},
        {"apple", {Qt::Key_C, Qt::Key_Return}, "cherry", true},
        {"apple", {Qt::Key_Down, Qt::Key_Escape}, "apple", false},
        {"apple", {Qt::Key_Down, Qt::Key_Tab}, "cherry", true}, // leaving accepts
        // no row is selected: none is taken
        {"melon", {Qt::Key_Return}, "melon", true},
        {"melon", {Qt::Key_Z, Qt::Key_Tab}, "melon", true},
        {"melon", {Qt::Key_Down, Qt::Key_Return}, "pear", true},
        {"melon", {Qt::Key_End, Qt::Key_Return}, "banana", true},
    };
    for (const auto& c : cases) {
        TOpenList<TDropDownListBox> t(fruits);
        t.label->SetValue(c.before);
        ASSERT_TRUE(t.Open());
        EXPECT_EQ(ListOf(t.label)->selectionModel()->isRowSelected(1), c.before == "apple");
        Press(c.keys);
        EXPECT_EQ(t.label->Value(), c.value);
        EXPECT_EQ(t.log.last(), QString("after up %1").arg(c.accepted));
        EXPECT_FALSE(t.label->EditMode());
    }
}

TEST(ListBox, ClicksOutside) {
    for (const bool onLabel : {true, false}) {
        TOpenList<TDropDownListBox> t(fruits);
        t.label->SetValue("apple");
        ASSERT_TRUE(t.Open());
        Press(Qt::Key_Down);
        QWidget* window = t.label->EditControl()->window();
        const QPoint at = onLabel ? t.label->mapToGlobal(t.label->rect().center())
                                  : t.form.mapToGlobal(QPoint(480, 20));
        ClickAt(window, window->mapFromGlobal(at));
        EXPECT_EQ(t.label->Value(), onLabel ? "apple" : "cherry");
        EXPECT_FALSE(t.label->Dropped());
        EXPECT_EQ(t.log.size(), 4);
    }
}

TEST(ListBox, SearchInTenThousandItems) {
    TOpenList<TDropDownListBox> t(Numbered(10000));
    ASSERT_TRUE(t.Open());
    EXPECT_TRUE(SearchOf(t.label)->isVisible());
    Type("77 item");
    EXPECT_EQ(Rows(t.label)[1], "Item 177");
    Press(Qt::Key_Return);
    EXPECT_EQ(t.label->Value(), "item 77");
    EXPECT_LT(t.label->EditControl()->window()->findChildren<QWidget*>().size(), 25);

    // A search that is left chooses nothing; its second hit is chosen by arrow and Enter.
    t.label->DropDown();
    EXPECT_EQ(ListOf(t.label)->currentIndex().row(), 77);
    Type("99");
    Press(Qt::Key_Tab);
    EXPECT_EQ(t.label->Value(), "item 77");
    t.label->DropDown();
    EXPECT_EQ(Rows(t.label).size(), 10000);
    Type("99");
    Press({Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(t.label->Value(), "item 199");

    t.label->DropDown();
    Type("nowhere");
    Press(Qt::Key_Return);
    EXPECT_TRUE(t.label->Dropped());
}

TEST(CheckList, ValueIsCommaText) {
    TOpenList<TDropDownCheckListBox> t({"New York", "a, b", "Rome", "Oslo"});
    t.label->SetValue("rome,\"new york\"");
    EXPECT_EQ(t.label->Caption(), "Rome, New York");
    t.label->SetSortList(true);
    ASSERT_TRUE(t.Open());
    EXPECT_EQ(Rows(t.label), (QStringList{"a, b", "New York", "Oslo", "Rome"}));
    EXPECT_EQ(ListOf(t.label)->model()->index(3, 0).data(Qt::CheckStateRole), Qt::Checked);
    ClickRow(t.label, 0);
    Press({Qt::Key_End, Qt::Key_Space, Qt::Key_Return});
    EXPECT_EQ(t.label->Value(), "\"a, b\",\"new york\"");
    EXPECT_EQ(t.label->Caption(), "a, b, New York");
    EXPECT_EQ(t.label->ItemIndex(), -1);
    t.label->SetValue("rome");
    EXPECT_EQ(t.label->ItemIndex(), 2);
}

TEST(CheckList, WhatClosesIt) {
    const struct {
        Qt::Key last;
        bool change;
        QString value;
    } cases[] = {
        {Qt::Key_Return, true, "pear,apple"},
        {Qt::Key_Tab, true, "pear,apple"},
        {Qt::Key_Escape, true, "gone,apple"},
        // Nothing was switched: an item that the list does not have stays.
        {Qt::Key_Return, false, "gone,apple"},
    };
    for (const auto& c : cases) {
        TOpenList<TDropDownCheckListBox> t(fruits);
        t.label->SetValue("gone,apple");
        ASSERT_TRUE(t.Open());
        if (c.change) Press({Qt::Key_Home, Qt::Key_Space});
        Press(c.last);
        EXPECT_EQ(t.label->Value(), c.value);
    }
}

TEST(CheckList, SearchChecksHits) {
    TOpenList<TDropDownCheckListBox> t(Numbered(100));
    ASSERT_TRUE(t.Open());
    Type("77");
    Press(Qt::Key_Return);
    EXPECT_TRUE(t.label->Dropped());
    EXPECT_EQ(Rows(t.label).size(), 100);
    Type("5");
    Press({Qt::Key_Down, Qt::Key_Space, Qt::Key_Return, Qt::Key_Return});
    // The mark of a hidden row counts too.
    EXPECT_TRUE(t.label->Value().contains("item 77"));
    EXPECT_TRUE(t.label->Value().contains("item 15"));
}

TEST(CheckListBox, MarksAndSelection) {
    TControlForm form;
    auto* box = form.Add<TKCheckListBox>();
    EXPECT_TRUE(box->ExtendedSelect());
    EXPECT_FALSE(box->MultiSelect());
    box->resize(200, 200);
    box->SetItems(fruits);
    box->SetMultiSelect(true);
    int clicks = 0;
    box->OnClickCheck = [&](TKCheckListBox*) { ++clicks; };
    ASSERT_TRUE(form.Open());
    box->setFocus();
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Space);
    for (int i = 0; i < fruits.size(); ++i)
        EXPECT_TRUE(box->Checked(i));
    ClickAt(box->viewport(), box->visualRect(box->model()->index(1, 0)).center());
    EXPECT_FALSE(box->Checked(1));
    EXPECT_EQ(clicks, 2);
    EXPECT_THROW(box->Checked(4), EDDLabelError);
    EXPECT_THROW(box->SetChecked(-1, true), EDDLabelError);
    QObject::connect(box, &TKCheckListBox::checkChanged, [&] { delete box; });
    const QPointer<TKCheckListBox> alive(box);
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Space);
    EXPECT_FALSE(alive);
}

TEST(ListBox, DestroyedWhileOpen) {
    for (const QString event :
         {"outside", "form", "image", "after down", "before up", "value", "after up", "cleared"}) {
        SCOPED_TRACE(event.toStdString());
        auto t = std::make_unique<TOpenList<TDropDownListBox>>(fruits);
        const QPointer<TDropDownListBox> label = t->label;
        const auto die = [label] { delete label; };
        label->SetImages({QIcon()});
        if (event == "image")
            label->OnGetItemImageIndex = [=](const QString&, const QString&, int&) { die(); };
        When(event, *label, [&] { event == "after up" ? t.reset() : die(); });
        ASSERT_TRUE(t->form.Open());
        ClickAt(label, label->rect().center());
        if (event == "outside") die();
        if (event == "form") t.reset();
        if (event == "cleared") {
            label->ClearAll();
            Press({Qt::Key_Down, Qt::Key_Escape});
            die();
        }
        if (label) Press({Qt::Key_Down, Qt::Key_Return});
        EXPECT_FALSE(label);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(QApplication::activePopupWidget());
    }
}

} // namespace tern7
