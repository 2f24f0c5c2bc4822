#pragma once

#include <tern7/core/query/query.h>

namespace tern7 {

/// Knows whether a row is still in its query, for whoever waits (for a dialog, a menu, a list from
/// the database) while anything may happen.
class TRowGuard : private TKQueryView {
public:
    explicit TRowGuard(TFilterRow& guarded) : row(&guarded), query(guarded.Query()) {
        if (query) query->AddView(this);
    }
    ~TRowGuard() override {
        if (query) query->RemoveView(this);
    }
    TRowGuard(const TRowGuard&) = delete;
    TRowGuard& operator=(const TRowGuard&) = delete;

    /// None when it was taken out, or its query is gone.
    TFilterRow* Row() const { return row; }

private:
    void RowsRemoved(TFilterBracket& parent, int index, int count) override {
        for (const TFilterRow* r = row; r && r->Parent(); r = r->Parent()) {
            const int at = r->Parent() == &parent ? parent.GetRowIndex(r) : -1;
            if (at >= index && at < index + count) row = nullptr;
            if (!row) return;
        }
    }
    void QueryDestroyed() override { row = nullptr, query = nullptr; }
    void RowsAdded(TFilterBracket&, int, int) override {}
    void RowsRenumbered() override {}
    void RowChanged(TFilterRow&) override {}
    void ValueEditorsChanged(TFilterRow&) override {}
    void ResultFieldsChanged() override {}
    void ParametersChanged() override {}
    void EverythingChanged() override {}
    void CloseEditors() override {}

    TFilterRow* row;
    TKQuery* query;
};

} // namespace tern7
