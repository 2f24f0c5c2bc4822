#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tern7 {

/// A constant of a query, bound to a placeholder instead of standing in the text.
struct TBoundValue {
    enum class TKind : uint8_t {
        Null,
        Integer,
        Float,
        Decimal,
        Boolean,
        Date,
        Time,
        Timestamp,
        Text
    };
    TKind kind = TKind::Null;
    /// Canonical text: 12, 1.5, 1 or 0, yyyy-mm-dd, hh:nn:ss, both with a blank between, or the
    /// text.
    std::string text;

    bool operator==(const TBoundValue&) const = default;
};

/// "integer", "float", "decimal", "boolean", "date", "time", "timestamp", "text" or "null".
std::string_view BoundKindToStr(TBoundValue::TKind kind);

/// How placeholders are written.
enum class TPlaceholderStyle : uint8_t {
    Question, ///< ?
    Named,    ///< :v1, :v2 ...
    Numbered  ///< $1, $2 ...
};

/// A statement and its values, in the order of the placeholders.
struct TBoundSQL {
    std::string text; ///< lines ended by LF, none behind the last
    std::vector<TBoundValue> values;
};

} // namespace tern7
