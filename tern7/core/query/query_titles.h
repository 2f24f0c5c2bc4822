#pragma once

#include <optional>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

class TKIniText;

/// True when the text holds captions, of any version.
bool HasQueryTitles(const TKIniText& text);

/// The captions that the text holds, over the defaults (those of a form of old over `present`, the
/// query's own); nothing when it holds none, so that those of the application stay. `stored` is the
/// version that the query has before the reading, not that of the text; kept, since applications
/// set it to say which form their texts have.
std::optional<TStrings> ParseQueryTitles(const TKIniText& text, double stored,
                                         const TStrings& present);

} // namespace tern7
