#pragma once

#include <string>
#include <string_view>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

/// Comma text of a list: items separated by commas; an item with a blank, comma or double quote is
/// written in double quotes with inner ones doubled. An empty list is an empty text, a list of one
/// empty item is `""`.
std::string ComposeCommaText(const TStrings& items);

/// The items of a comma text. Only commas separate; blanks around an item are dropped. A text that
/// ends inside quotes ends there. Linear.
TStrings ParseCommaText(std::string_view text);

} // namespace tern7
