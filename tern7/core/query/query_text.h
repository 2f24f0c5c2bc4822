#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tern7/core/global/field_types.h>
#include <tern7/core/global/services.h>

namespace tern7 {

class TFilterBracket;
class TFilterRow;

/// Version of the query texts that are written.
inline constexpr double QueryTextVersion = 3.3;
/// Version of texts written before they named one.
inline constexpr double FirstQueryTextVersion = 1.1;

/// What a query text says about itself; needs no structure.
struct TQueryTextHead {
    bool isQuery = false; ///< the text has a section [Main]
    std::string queryName;
    double version = FirstQueryTextVersion;
    bool hasTitles = false;    ///< caption sections, of any version
    bool hasOptions = false;   ///< SQL options are kept in it
    bool hasMainTable = false; ///< a main table is kept in it
    bool hasAvoidedJoins = false;
};

/// Never raises: a text that is no query gives the defaults. Linear.
TQueryTextHead ReadQueryTextHead(std::string_view text);

/// Rows as a query text whose root holds them, in their order. With `unfinishedToo` in the form
/// that travels inside the program only: conditions without a field, and what is still to be
/// entered, are in it.
std::string RowsToText(const std::vector<TFilterRow*>& rows, bool unfinishedToo = false);
/// Puts the rows of a query text into a bracket, from a position on, and returns the topmost of
/// them. Rows that its root joins otherwise than by "all" come in a bracket. EKQueryPanelError for
/// a text that is damaged, too deep or no query; nothing is changed then.
std::vector<TFilterRow*> InsertRowsFromText(TFilterBracket& parent, int index,
                                            std::string_view text);

/// The stored form of a value, whatever the locale: dates and times `yyyy-mm-dd`, `hh:nn:ss` or
/// both with a blank between, list items one by one. Whatever is no date stands as it is.
std::string SaveValue(const TKServices& services, TFieldType type, bool isList,
                      std::string_view value);
/// The reverse: the local form of a stored value.
std::string LoadValue(const TKServices& services, TFieldType type, bool isList,
                      std::string_view stored);

} // namespace tern7
