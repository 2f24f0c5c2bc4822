#pragma once

#include <string>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

/// Makes of `dest` the lines of `defaults` with the texts of `source` where it has non-empty ones
/// for the same key, ignoring case, in the section of the same name. Keys that only `source` has
/// are left out. Defaults without sections take a text wherever it stands in `source`. The older
/// section names PanelTitles and RFETitles are understood in `source`. `dest` may be one of the
/// others. Linear.
void LoadTitlesFromStrings(const TStrings& defaults, TStrings& dest, const TStrings& source);

/// Puts the texts of an older list without sections into a title list: each non-empty text replaces
/// that of its key in every section. Linear.
void LoadOldTitlesFromStrings(TStrings& titles, const TStrings& values);

struct TKLoadedTitles {
    TStrings titles;
    bool wasWindows1252 = false; ///< the file was no UTF-8 and was read as Windows-1252
    bool isForeign = false;      ///< the file has text, but none for any of the keys
};
/// A titles file, or a query file with title sections, merged over the defaults. EKTernError when
/// the file can not be read.
TKLoadedTitles LoadTitlesFile(const TStrings& defaults, const std::string& fileName);
/// EKTernError when the file can not be written; then the old file is whole.
void SaveTitlesFile(const TStrings& titles, const std::string& fileName);

} // namespace tern7
