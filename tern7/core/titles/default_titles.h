#pragma once

#include <string_view>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

inline constexpr std::string_view QueryPanelTitles = "Query Panel";
inline constexpr std::string_view ResultFieldsEditorTitles = "Result Fields Editor";

/// The titles of the query panel and of the result fields editor, a section each. A title list is a
/// list of `key=text` lines; with sections, each is a line `[name]`, its lines and an empty line.
/// In a text, "&" marks the letter of a menu item or button and "@" the place of a drop-down label.
///
/// The query panel also asks for ttlSortTypeHint, ttlRename, ttlDelete, ttlWithoutGroup and
/// ttlAllResFieds (spelled so), which have no default text.
const TStrings& DefaultQueryTitles();
/// The titles of the result fields panel, without sections.
const TStrings& DefaultResultFieldsPanelTitles();

} // namespace tern7
