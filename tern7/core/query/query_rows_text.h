#pragma once

#include <string>
#include <vector>

#include <tern7/core/global/sql_options.h>
#include <tern7/core/query/filter_row.h>

namespace tern7 {

class TKIniText;
class TKIniWriter;
class TKQuery;

/// A row as its section says it, checked and not yet part of a query.
struct TRowText {
    struct TValue {
        std::string text, caption, format;
        std::string name; ///< of a parameter that was given one
        bool isParam = false;
        bool hasCaption = false;
    };
    int id = -1;
    bool isBracket = false;
    bool enabled = true;
    bool chosen = true;  ///< false for a condition that has no field yet
    bool entered = true; ///< see TFilterCond::Entered
    // brackets
    int rowCount = 0;
    TFilterLinkType linkType = TFilterLinkType::fltAll;
    // conditions
    TDSField* field = nullptr; ///< none: unknown, by ID or name
    int fieldID = -1;
    std::string fieldName;
    TDSOperator* op = nullptr; ///< none: unknown when there is a name
    std::string operatorName;
    TValue values[2];
    std::string subQuery;
    TSQLOptions subQueryOptions;
    std::string sqlText;
};

/// Reads the sections [Row...] in the order in which they stand: depth first, the root first, every
/// bracket's row count fulfilled. EKTernError naming section and key for a missing row or a wrong
/// number, EKQueryPanelError "Rows are nested too deep" beyond 1,000 levels. `version` is that of
/// the text: older ones name fields instead of numbering them.
std::vector<TRowText> ParseRows(const TKIniText& text, double version, const TKQuery& query);

/// Puts rows that were read under the root, which has none.
void AddRows(TKQuery& query, std::vector<TRowText> rows);
/// Puts what was read below the root into a bracket; a root that joins its rows otherwise than by
/// "all" becomes a bracket of its own. Returns the topmost rows. EKQueryPanelError "Rows are nested
/// too deep", before anything is changed.
std::vector<TFilterRow*> InsertRows(TFilterBracket& parent, int index, std::vector<TRowText> rows);

/// Writes the rows depth first and numbers them; conditions without a field are left out.
void WriteRows(TKIniWriter& out, TKQuery& query);
/// Writes these rows below a root of their own, which joins them by "all"; the rows keep their
/// numbers. With `unfinishedToo` conditions without a field are written as well, and which ones are
/// still to be entered.
void WriteRows(TKIniWriter& out, const TKQuery& query, const std::vector<TFilterRow*>& rows,
               bool unfinishedToo);

} // namespace tern7
