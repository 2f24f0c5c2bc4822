#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <tern7/core/query/result_field.h>

namespace tern7 {

/// Sorting of columns that were added, by name or number.
class TImportSorter {
public:
    explicit TImportSorter(TRFieldList& list);
    struct TItem {
        std::string text; ///< as the structure writes it
        std::string name; ///< when the item is one name
        int number = 0;   ///< when it is a number
        bool descending = false;
    };
    /// Sorts the columns; gives the positions of the items that can not be said.
    std::vector<size_t> Sort(const std::vector<TItem>& items);
    /// True when the statement has to name what it sorts by.
    bool ByNames() const { return byNames; }

private:
    struct TChoice {
        TResultField* byName = nullptr;
        TResultField* byNumber = nullptr;
    };
    TChoice ChoiceFor(const TItem& item);

    TRFieldList& fields;
    std::unordered_map<std::string, std::vector<TResultField*>> bySortText;
    std::unordered_map<std::string, TResultField*> byExpression, byAlias;
    bool byNames = false;
};

/// A text without blanks and in lower case but in its literals, to be compared with others.
std::string ComparableText(std::string_view text);
/// What a sorted column is sorted by where names are written.
std::string SortText(const TResultField& field);

} // namespace tern7
