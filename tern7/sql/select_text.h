#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <tern7/sql/engine.h>

namespace tern7 {

/// A statement that may be executed: one SELECT (or WITH ... SELECT), every quote and bracket
/// closed.
struct TKSelectText {
    std::string text;                 ///< without comments and without a ";" at the end
    std::vector<size_t> placeholders; ///< positions of "?" in the text
    bool canBeLimited = false;        ///< LIMIT may be written behind it
};

/// Reads a statement as the engine does. EKDBInfoError for a second statement, anything but SELECT,
/// INTO, a NUL, something not closed, a named parameter. Linear in the text.
TKSelectText ReadSelect(std::string_view sql, const TKLexis& lexis);

} // namespace tern7
