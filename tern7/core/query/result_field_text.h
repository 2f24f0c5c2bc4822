#pragma once

#include <string>
#include <vector>

#include <tern7/core/global/sql_options.h>

namespace tern7 {

class TKIniText;
class TKIniWriter;
class TRFieldList;

/// The columns of a query as their text says them, checked and not yet part of a list.
struct TRFieldListText {
    struct TColumn {
        std::string formula, alias, caption;
        std::vector<int> fieldIDs;
        TSortingType sorting = TSortingType::stNoSort;
        int sortOrder = 0;
    };
    std::vector<TColumn> columns;
    bool justSorting = false;
};

/// Reads the sections [RFields], [RField0] ...; EKQueryPanelError naming section and key for a
/// missing section or a wrong number.
TRFieldListText ParseResultFields(const TKIniText& text);
void WriteResultFields(TKIniWriter& out, const TRFieldList& list);

} // namespace tern7
