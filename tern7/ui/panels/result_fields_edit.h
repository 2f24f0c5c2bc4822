#pragma once

#include <functional>

#include <tern7/core/query/result_field.h>

namespace tern7 {

/// What a user does to the columns of a query, each call one step. A step changes what its name
/// says and nothing else: another sort order leaves formula, caption and alias alone.
///
/// As long as the ranks of the sorted columns follow the order of the columns they go on to do so;
/// a query that sorts in another order keeps it.
class TResultFieldsEdit {
public:
    explicit TResultFieldsEdit(TRFieldList& columns) : list(columns) {}

    /// A new column that is a plain field.
    TResultField* Insert(int index, TDSField& field, std::string caption);
    /// Another field: replaces fields, formula and caption.
    void Replace(TResultField& column, TDSField& field, std::string caption);
    void SetSorting(TResultField& column, TSortingType sorting);
    /// A second column like it, not sorted, behind it.
    TResultField* Duplicate(int index);
    void Delete(int index);
    void Move(int from, int to);
    void Clear();
    /// The sorted columns get the ranks 1, 2 ... in the order of the columns.
    void RefreshSortOrder();

private:
    void Step(const std::function<void()>& change);
    bool RanksFollowColumns() const;
    void RankByColumns();

    TRFieldList& list;
};

} // namespace tern7
