// Stored queries and the queries that show them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include <core/query/shop.h>
#include <tern7/kqrybase.h>

namespace tern7 {
namespace {

class QueryBase : public TShop {
protected:
    QueryBase() {
        query.SaveTitles = false;
        for (const char* name : {"one", "two", "three"})
            base.AddItem(name, "", TextFor(name));
        auto note = [this](const char* name) {
            return [this, name](TKQueryBase&) { events += std::string(name) + " "; };
        };
        base.BeforeScroll = note("BeforeScroll");
        base.AfterScroll = note("AfterScroll");
        base.BeforeOpen = note("BeforeOpen");
        base.AfterOpen = note("AfterOpen");
        base.BeforeClose = note("BeforeClose");
        base.AfterClose = note("AfterClose");
    }
    std::string TextFor(const std::string& city) {
        query.ClearAll();
        Add("City", "Equal", city);
        std::string text = query.GetQueryString();
        query.ClearAll();
        return text;
    }
    static std::string Shown(const TKQuery& shown) {
        return shown.Root().GetRowCount() ? shown.Root().GetFirstCondition()->Value(1) : "";
    }
    void Edit(const std::string& value) { query.Root().GetFirstCondition()->SetValue(1, value); }
    std::string Events() { return std::exchange(events, {}); }

    std::string events;
    TKQueryBase base;
    TKQueryBaseLink link{query};
};

TEST_F(QueryBase, HandsTextsOverWhenItMoves) {
    link.SetQueryBase(&base);
    EXPECT_EQ(Shown(query), ""); // closed
    base.Open();
    EXPECT_EQ(base.ItemIndex(), 0);
    EXPECT_EQ(Shown(query), "one");
    EXPECT_EQ(Events(), "BeforeOpen AfterOpen ");
    const std::string untouched = base.GetItem(1).QueryText;
    Edit("changed");
    EXPECT_TRUE(link.Next());
    EXPECT_EQ(Shown(query), "two");
    EXPECT_EQ(Events(), "BeforeScroll AfterScroll ");
    EXPECT_TRUE(link.Next());
    EXPECT_EQ(base.GetItem(1).QueryText, untouched);
    EXPECT_FALSE(link.Next());
    base.SetItemIndex(0);
    EXPECT_EQ(Shown(query), "changed");
    base.SetItemIndex(-1);
    EXPECT_EQ(Shown(query), "");
    EXPECT_FALSE(link.Prior());
    base.SetItemIndex(2);
    Edit("last");
    Events();
    base.Close();
    EXPECT_EQ(Events(), "BeforeClose AfterClose ");
    EXPECT_EQ(Shown(query), "");
    EXPECT_NE(base.GetItem(2).QueryText.find("Value1=last"), std::string::npos);
    base.SetItemIndex(1); // moves quietly while closed
    EXPECT_EQ(Shown(query), "");
    EXPECT_THROW(base.SetItemIndex(3), std::out_of_range);
}

TEST_F(QueryBase, AnUnreadableTextStaysWhereItIs) {
    base.AddItem("bad", "", "[Main]\n");
    TKQuery second(&structure);
    TKQueryBaseLink secondLink(second);
    link.SetQueryBase(&base);
    secondLink.SetQueryBase(&base);
    base.Open();
    Edit("edited");
    EXPECT_THROW(base.SetItemIndex(3), EKQueryPanelError);
    EXPECT_EQ(base.ItemIndex(), 0);
    EXPECT_EQ(Shown(query), "edited");
    EXPECT_TRUE(query.Active());
    EXPECT_EQ(base.GetItem(3).QueryText, "[Main]\n");
    // one that only the second query can not read: the first gets its own back
    second.SetDbStruct(nullptr);
    EXPECT_THROW(base.SetItemIndex(1), EKQueryPanelError);
    EXPECT_EQ(Shown(query), "edited");
}

TEST_F(QueryBase, MainTablesComeAndGoWithTheirItem) {
    query.SaveMainTable = true;
    query.SetMainTableName("O");
    base.AddItem("with a main table", "", TextFor("x"));
    for (bool saved : {true, false}) {
        query.SaveMainTable = saved;
        query.SetMainTableName("C"); // the application's
        link.SetQueryBase(&base);
        base.SetItemIndex(0);
        base.Open();
        EXPECT_EQ(query.MainTableName(), saved ? "" : "C");
        base.SetItemIndex(3);
        EXPECT_EQ(query.MainTableName(), "O");
        base.SetItemIndex(0);
        EXPECT_EQ(query.MainTableName(), "");
        base.SetItemIndex(3);
        base.Close();
        EXPECT_EQ(query.MainTableName(), "") << "nothing is left of the item";
        link.SetQueryBase(nullptr);
    }
}

TEST_F(QueryBase, ItemsComeAndGo) {
    link.SetQueryBase(&base);
    base.SetItemIndex(1);
    base.Open();
    base.InsertItem(0, {"zero", "", ""});
    EXPECT_EQ(base.CurrentItem()->Name, "two");
    base.MoveItem(3, 0);
    EXPECT_EQ(base.CurrentItem()->Name, "two");
    base.MoveItem(base.ItemIndex(), 0);
    EXPECT_EQ(base.ItemIndex(), 0);
    base.DeleteItem(base.IndexOfName("THREE"));
    Edit("goes with its item");
    base.DeleteItem(0);
    EXPECT_EQ(base.CurrentItem()->Name, "zero");
    EXPECT_EQ(Shown(query), "");
    base.SetItemIndex(1);
    EXPECT_EQ(Shown(query), "one");
    base.DeleteItem(1);
    EXPECT_EQ(base.CurrentItem()->Name, "zero");
    base.DeleteItem(0);
    EXPECT_EQ(base.ItemIndex(), -1);
    EXPECT_THROW(base.DeleteItem(0), std::out_of_range);
}

TEST_F(QueryBase, WhoGoesFirstHandsBack) {
    base.Open();
    auto second = std::make_unique<TKQuery>(&structure);
    second->SaveTitles = false;
    TKQueryBaseLink secondLink(*second);
    secondLink.SetQueryBase(&base);
    EXPECT_EQ(Shown(*second), "one");
    second->Root().GetFirstCondition()->SetValue(1, "kept");
    second.reset();
    EXPECT_EQ(secondLink.Query(), nullptr);
    {
        TKQueryBaseLink brief(query);
        brief.SetQueryBase(&base);
        EXPECT_EQ(Shown(query), "kept");
        Edit("kept too");
    }
    EXPECT_NE(base.GetItem(0).QueryText.find("Value1=kept too"), std::string::npos);
    auto other = std::make_unique<TKQueryBase>();
    link.SetQueryBase(other.get());
    other.reset();
    EXPECT_EQ(link.QueryBase(), nullptr);
    EXPECT_THAT([&] { link.Next(); },
                testing::ThrowsMessage<EKQueryPanelError>("Query base is not specified"));
}

} // namespace
} // namespace tern7
