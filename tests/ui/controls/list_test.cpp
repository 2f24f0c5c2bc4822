#include <QSignalSpy>

#include <tern7/ui/controls/drop_down_list.h>
#include <ui/controls/control_form.h>

namespace tern7 {

namespace {

void AddOrders(TDropDownList& list) {
    list.AddItems("", {"Not sorted", "Ascending", "Descending"}, {"0", "1", "2"});
}

} // namespace

TEST(ItemGroups, FoundByNameInAnyCase) {
    TItemGroupList groups;
    EXPECT_EQ(groups.AddGroup("Été", 3), 0);
    EXPECT_EQ(groups.AddGroup("été", 4), 1);
    groups.FindByName("ÉTÉ")->Add(7);
    EXPECT_EQ(groups.Items(0).Indices(), (std::vector<int>{3, 7}));
    EXPECT_EQ(groups.Items(1).Items(0), 4);
    EXPECT_THROW(groups.Items(2), EDDLabelError);
    EXPECT_THROW(groups.Items(1).Items(1), EDDLabelError);
    groups.Clear();
    EXPECT_EQ(groups.FindByName("été"), nullptr);
}

TEST(List, ItemIndexSetsValueAndCaption) {
    TDropDownList list;
    AddOrders(list);
    EXPECT_EQ(list.ItemIndex(), -1);
    list.SetItemIndex(1);
    EXPECT_EQ(list.Value(), "1");
    EXPECT_EQ(list.Caption(), "Ascending");
    list.SetItemIndex(-1);
    EXPECT_EQ(list.Value(), "");
    EXPECT_EQ(list.Caption(), "_____");
    list.AddItem("", "Nothing", "");
    list.SetItemIndex(0);
    list.SetItemIndex(3);
    EXPECT_EQ(list.Caption(), "Nothing");
    EXPECT_EQ(list.ItemIndex(), 3);
}

TEST(List, WrongIndexChangesNothing) {
    TDropDownList list;
    AddOrders(list);
    list.SetItemIndex(2);
    const auto message = [&](int index) {
        try {
            list.SetItemIndex(index);
        } catch (const EDDLabelError& error) {
            return std::string(error.what());
        }
        return std::string("none");
    };
    EXPECT_EQ(message(4), "Index out of bounds");
    EXPECT_EQ(message(-2), "Index out of bounds");
    // One behind the last has a message of its own.
    EXPECT_EQ(message(3), "List index out of bounds (3)");
    EXPECT_EQ(list.ItemIndex(), 2);
    EXPECT_EQ(list.Value(), "2");
}

TEST(List, GroupsAndClearing) {
    TDropDownList list;
    list.SetItems({"a", "b"});
    list.SetValues({"1", "2"});
    list.AddItem("Later", "c", "3");
    list.AddItem("LATER", "d", "4");
    ASSERT_EQ(list.Groups().Count(), 2);
    EXPECT_EQ(list.Groups().Items(0).Indices(), (std::vector<int>{0, 1}));
    EXPECT_EQ(list.Groups().Items(1).Indices(), (std::vector<int>{2, 3}));
    EXPECT_THROW(list.AddItems("x", {"one"}, {"1", "2"}), EDDLabelError);
    list.SetItemIndex(3);
    list.ClearAll();
    EXPECT_TRUE(list.Items().isEmpty() && list.Values().isEmpty() && list.Value().isEmpty());
    EXPECT_EQ(list.Groups().Count(), 0);
    EXPECT_EQ(list.ItemIndex(), -1);
}

TEST(List, HandlerSeesTheCaptionAndMayChooseAnother) {
    TDropDownList list;
    AddOrders(list);
    QStringList seen;
    QObject::connect(&list, &TDropDownLabel::valueChanged, [&](const QString& value) {
        seen << value + ' ' + list.Caption();
        if (value == "1") list.SetItemIndex(2);
    });
    list.SetItemIndex(1);
    EXPECT_EQ(seen, (QStringList{"1 Ascending", "2 Descending"}));
    EXPECT_EQ(list.ItemIndex(), 2);
    EXPECT_EQ(list.Caption(), "Descending");
}

TEST(List, HandlerDeletesList) {
    for (const bool clear : {false, true}) {
        auto* list = new TDropDownList;
        AddOrders(*list);
        if (clear) list->SetItemIndex(1);
        QObject::connect(list, &TDropDownLabel::valueChanged, [&] { delete list; });
        QSignalSpy destroyed(list, &QObject::destroyed);
        if (clear)
            list->ClearAll();
        else
            list->SetItemIndex(1);
        EXPECT_EQ(destroyed.count(), 1);
    }
}

} // namespace tern7
