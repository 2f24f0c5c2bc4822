#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <tern7/core/corekit/object_list.h>
#include <tern7/core/global/events.h>
#include <tern7/core/query/query_view.h>

namespace tern7 {

class TKQuery;
class TKQueryBase;
class TKQueryBaseLink;

/// A stored query: a name, a description and a query text. Owned by its query base.
struct TKQueryItem {
    std::string Name;
    std::string Description;
    std::string QueryText;
};

/// Stored queries with a current one. While the base is open, linked queries show the current item:
/// moving on hands their text back to the item that is left and gives them that of the next.
///
///     TKQueryBase base;
///     base.AddItem("Late orders", "", textOfLateOrders);
///     TKQueryBaseLink link(query);
///     link.SetQueryBase(&base);
///     base.Open();           // the query is "Late orders" now
///     base.SetItemIndex(1);  // edits of it were kept, the next one is shown
class TKQueryBase {
public:
    TKQueryBase() = default;
    ~TKQueryBase();
    TKQueryBase(const TKQueryBase&) = delete;
    TKQueryBase& operator=(const TKQueryBase&) = delete;

    // --- items
    int GetItemCount() const { return items.GetCount(); }
    /// std::out_of_range outside 0..count-1.
    TKQueryItem& GetItem(int index) const { return *items.GetItem(index); }
    /// By name without regard to case, -1 when absent.
    int IndexOfName(std::string_view name) const;
    TKQueryItem& AddItem(std::string name, std::string description = {}, std::string text = {});
    /// Inserts before the position; the current item stays current. std::out_of_range outside
    /// 0..count.
    TKQueryItem& InsertItem(int index, TKQueryItem item);
    /// Deletes an item; when it is the current one, linked queries show the one that follows (else
    /// the one before, else none), and what they held goes with it.
    void DeleteItem(int index);
    void MoveItem(int from, int to);
    /// Closes the base and deletes all items.
    void Clear();

    // --- the current item
    /// -1 when there are no items, or none is chosen yet.
    int ItemIndex() const { return itemIndex; }
    /// Moves to an item (-1: to none). std::out_of_range for an index that does not exist; an item
    /// whose text can not be read raises EKQueryPanelError, and the item before stays current.
    void SetItemIndex(int index);
    /// None when there is no current item.
    TKQueryItem* CurrentItem() const;
    /// Hands the texts of linked queries back to the current item; nothing while the base is
    /// closed.
    void Post();

    bool IsOpen() const { return open; }
    /// Shows the current item, or the first one, in the linked queries. When its text can not be
    /// read, EKQueryPanelError, and the base stays closed.
    void Open();
    /// Hands back the texts of linked queries and empties them.
    void Close();

    TEvent<TKQueryBase&> BeforeScroll;
    TEvent<TKQueryBase&> AfterScroll;
    TEvent<TKQueryBase&> BeforeOpen;
    TEvent<TKQueryBase&> AfterOpen;
    TEvent<TKQueryBase&> BeforeClose;
    TEvent<TKQueryBase&> AfterClose;
    /// Items were added, deleted, moved, or took a text back.
    TEvent<TKQueryBase&> OnChange;

private:
    friend class TKQueryBaseLink;
    void ShowItem(int index);
    void Show(const std::string& text);

    TKObjectList<TKQueryItem> items;
    std::vector<TKQueryBaseLink*> links;
    int itemIndex = -1;
    bool open = false;
};

/// Ties a query to a query base. Owned by whoever shows the query; base and query may go first, and
/// whichever goes, what the query shows is handed back before.
class TKQueryBaseLink : private TKQueryView {
public:
    explicit TKQueryBaseLink(TKQuery& query);
    ~TKQueryBaseLink() override;
    TKQueryBaseLink(const TKQueryBaseLink&) = delete;
    TKQueryBaseLink& operator=(const TKQueryBaseLink&) = delete;

    TKQueryBase* QueryBase() const { return base; }
    /// With an open base the query is given the current item's text (EKQueryPanelError when it can
    /// not be read; the link is as it was then). The base that is left is handed the text back.
    void SetQueryBase(TKQueryBase* value);
    /// None when it was destroyed.
    TKQuery* Query() const { return query; }

    /// EKQueryPanelError "Query base is not specified" without a base.
    TKQueryBase& RequireBase() const;
    /// One item on or back; false at the end, where nothing happens.
    bool Next() { return MoveBy(1); }
    bool Prior() { return MoveBy(-1); }
    /// Hands the query's text back to the current item.
    void Post() { RequireBase().Post(); }

private:
    friend class TKQueryBase;
    bool MoveBy(int step);
    std::string Text() const;
    void Show(const std::string& text);
    /// The query's text when it was changed since it was shown or handed back; else false.
    bool TakeText(std::string& text);
    /// Hands the text back and forgets the base, quietly.
    void Leave();

    void RowsAdded(TFilterBracket&, int, int) override {}
    void RowsRemoved(TFilterBracket&, int, int) override {}
    void RowsRenumbered() override {}
    void RowChanged(TFilterRow&) override {}
    void ValueEditorsChanged(TFilterRow&) override {}
    void ResultFieldsChanged() override {}
    void ParametersChanged() override {}
    void EverythingChanged() override {}
    void CloseEditors() override {}
    void QueryDestroyed() override;

    TKQuery* query;
    TKQueryBase* base = nullptr;
    std::string shown;            // the query's text when it was last the item's
    bool hadMainTable = false;    // the main table came with the item
    bool hadAvoidedJoins = false; // so did these
};

} // namespace tern7
