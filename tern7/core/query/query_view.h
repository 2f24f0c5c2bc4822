#pragma once

namespace tern7 {

class TFilterBracket;
class TFilterRow;

/// Whatever shows a query. It is told what happened, never how big anything is. Calls that announce
/// the end of objects always come; all others only while the query is active and outside nested
/// updates (one EverythingChanged stands for what was missed).
class TKQueryView {
public:
    virtual ~TKQueryView() = default;
    virtual void RowsAdded(TFilterBracket& parent, int index, int count) = 0;
    /// Before the rows leave the tree; afterwards they may be freed.
    virtual void RowsRemoved(TFilterBracket& parent, int index, int count) = 0;
    /// Row numbers were given anew.
    virtual void RowsRenumbered() = 0;
    virtual void RowChanged(TFilterRow& row) = 0;
    /// Value labels and their editors are to be made anew.
    virtual void ValueEditorsChanged(TFilterRow& row) = 0;
    virtual void ResultFieldsChanged() = 0;
    virtual void ParametersChanged() = 0;
    virtual void EverythingChanged() = 0;
    virtual void CloseEditors() = 0;
    virtual void QueryDestroyed() = 0;
};

} // namespace tern7
