#include <algorithm>

#include <tern7/core/global/errors.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/query/query.h>
#include <tern7/core/query/query_text.h>
#include <tern7/core/querybase/query_base.h>

namespace tern7 {

TKQueryBaseLink::TKQueryBaseLink(TKQuery& linked) : query(&linked) {
    query->AddView(this);
}

TKQueryBaseLink::~TKQueryBaseLink() {
    Leave();
    if (query) query->RemoveView(this);
}

void TKQueryBaseLink::SetQueryBase(TKQueryBase* value) {
    if (value == base) return;
    if (base) base->Post();
    if (value && value->IsOpen()) {
        const TKQueryItem* item = value->CurrentItem();
        Show(item ? item->QueryText : std::string());
    }
    if (base) std::erase(base->links, this);
    base = value;
    if (base) base->links.push_back(this);
}

void TKQueryBaseLink::Leave() {
    if (!base) return;
    TKQueryItem* item = base->IsOpen() ? base->CurrentItem() : nullptr;
    if (item) TakeText(item->QueryText);
    std::erase(base->links, this);
    base = nullptr;
}

TKQueryBase& TKQueryBaseLink::RequireBase() const {
    if (!base) throw EKQueryPanelError(std::string(messages::NoQueryBase));
    return *base;
}

bool TKQueryBaseLink::MoveBy(int step) {
    TKQueryBase& target = RequireBase();
    const int index = target.ItemIndex() + step;
    if (index < 0 || index >= target.GetItemCount()) return false;
    target.SetItemIndex(index);
    return true;
}

std::string TKQueryBaseLink::Text() const {
    return query ? query->GetQueryString() : std::string();
}

void TKQueryBaseLink::Show(const std::string& text) {
    if (!query) return;
    if (text.empty()) {
        // a query of its own, with nothing left of the one before
        query->ClearAll();
        query->SetQueryName({});
        query->Description.clear();
        query->UserData.clear();
    } else {
        const bool wasActive = query->Active();
        try {
            query->SetQueryString(text);
        } catch (...) {
            query->SetActive(wasActive); // it still shows what it showed before
            throw;
        }
    }
    const TQueryTextHead head = ReadQueryTextHead(text);
    // what the application chose stays, unless it goes with the texts
    if (!head.hasMainTable && (hadMainTable || query->SaveMainTable)) query->SetMainTableName({});
    if (!head.hasAvoidedJoins && (hadAvoidedJoins || query->SaveMainTable))
        query->SetAvoidedJoins({});
    hadMainTable = head.hasMainTable;
    hadAvoidedJoins = head.hasAvoidedJoins;
    shown = Text();
}

bool TKQueryBaseLink::TakeText(std::string& text) {
    std::string present = Text();
    if (!query || present == shown) return false;
    text = shown = std::move(present);
    return true;
}

void TKQueryBaseLink::QueryDestroyed() {
    Leave();
    query = nullptr;
}

} // namespace tern7
