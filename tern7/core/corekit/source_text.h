#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tern7 {

/// A place in a text, counted from 1; columns are characters.
struct TKTextPosition {
    int line = 1, column = 1;
};

/// A text that views point into: it never changes, and is shared by whoever holds views.
class TKSourceText {
public:
    /// EKTernError when the text has 4 GB or more.
    explicit TKSourceText(std::string source);
    TKSourceText(const TKSourceText&) = delete;
    TKSourceText& operator=(const TKSourceText&) = delete;

    std::string_view Text() const { return text; }
    /// True for a view into Text().
    bool Owns(std::string_view piece) const;
    /// Offset of a view into Text(); 0 for any other text.
    size_t OffsetOf(std::string_view piece) const {
        return Owns(piece) ? static_cast<size_t>(piece.data() - text.data()) : 0;
    }
    /// CR LF, LF and CR end a line. Linear in the text before the offset.
    TKTextPosition PositionOf(size_t offset) const;

private:
    std::string text;
};

/// The positions of rising offsets; all of them together are linear in the text.
class TKPositionWalk {
public:
    explicit TKPositionWalk(const TKSourceText& source) : text(source.Text()) {}
    TKTextPosition At(size_t offset);

private:
    std::string_view text;
    size_t at = 0;
    TKTextPosition position;
};

} // namespace tern7
