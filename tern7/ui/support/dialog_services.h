#pragma once

#include <functional>

#include <tern7/core/corekit/strings.h>

class QWidget;

namespace tern7 {

class TFilterCond;
class TRFieldList;

using TResultFieldsChange = std::function<void(TRFieldList& columns)>;

/// The dialogs that a panel may open. Each panel holds its own copy, so that an application can put
/// its own dialog in a place; an empty callable means: not available. `parent` is what the dialog
/// stands in front of.
struct TKDialogServices {
    /// Edits a title list that has the keys of `defaults`; true when it was accepted.
    std::function<bool(QWidget* parent, const TStrings& defaults, TStrings& titles)> editTitles;
    /// Edits the columns of a query with the texts of `titles` (section "Result Fields Editor").
    /// The result puts what was changed into the list, none when the user gave up; so it can be
    /// made one step. `help` answers the Help button; empty: no such button.
    std::function<TResultFieldsChange(QWidget* parent, const TRFieldList& columns,
                                      const TStrings& titles, const std::function<void()>& help)>
        editResultFields;
    /// The same, beginning with one of them; empty: it begins anywhere.
    std::function<TResultFieldsChange(QWidget* parent, const TRFieldList& columns, int first,
                                      const TStrings& titles, const std::function<void()>& help)>
        editResultField;
    /// Edits the sub-query of a condition; true when it was changed. The condition may be deleted
    /// while the dialog is open.
    std::function<bool(QWidget* parent, TFilterCond& condition, const std::function<void()>& help)>
        editSubQuery;
};

/// The dialogs of this library, modal ones.
TKDialogServices StandardDialogs();

} // namespace tern7
