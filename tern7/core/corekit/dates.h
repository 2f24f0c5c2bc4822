#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tern7 {

/// A calendar date and a time of day, each of them optional in a text.
struct TKDateTime {
    int year = 0, month = 0, day = 0;
    int hour = 0, minute = 0, second = 0, millisecond = 0;
    bool hasDate = false, hasTime = false;
};

/// Writes by a format: yyyy yy m mm d dd h hh n nn s ss z zzz am/pm, "quoted" or 'quoted' literals,
/// m and mm behind h or hh as minutes; letters of formats ignore case; every other character stands
/// for itself. A longer run of a letter means its longest form; with am/pm hours go from 1 to 12.
std::string FormatDateTime(std::string_view format, const TKDateTime& value);

/// Reads a text that was written by the format; nothing when it does not fit or is no valid date.
/// Leading zeros may be missing before a separator; yy from 69 on is 19yy; a format without month
/// or day gives 1 for it, one without a year or an hour gives nothing.
std::optional<TKDateTime> ParseDateTime(std::string_view format, std::string_view text);

/// Reads `yyyy-mm-dd`, `hh:nn:ss` or both with a blank (or a T) between; hours and minutes may have
/// one digit, seconds and a fraction of them may be missing. A fraction finer than milliseconds
/// gives nothing, because it would be lost.
std::optional<TKDateTime> ParseIsoDateTime(std::string_view text);

} // namespace tern7
