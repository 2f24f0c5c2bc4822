#pragma once

#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

/// Lines of text in one buffer, separated by LF. The last line can grow.
class TKLineBuffer {
public:
    bool IsEmpty() const { return starts.empty(); }
    int GetCount() const { return static_cast<int>(starts.size()); }
    void Clear() {
        text.clear();
        starts.clear();
    }
    /// Opens a new last line.
    void NewLine() {
        if (!starts.empty()) text += '\n';
        starts.push_back(text.size());
    }
    void AddLine(std::string_view line) {
        NewLine();
        text += line;
    }
    /// The buffer, to append to the last line; there must be one, and no LF may be appended that is
    /// not part of the line's text.
    std::string& Last() { return text; }

    /// All lines, with none behind the last.
    const std::string& Text() const { return text; }
    std::string_view Line(int i) const {
        const size_t n = static_cast<size_t>(i);
        const size_t end = n + 1 < starts.size() ? starts[n + 1] - 1 : text.size();
        return std::string_view(text).substr(starts.at(n), end - starts[n]);
    }
    /// The lines as strings.
    TStrings Lines() const {
        TStrings lines;
        lines.reserve(starts.size());
        for (int i = 0; i < GetCount(); ++i)
            lines.emplace_back(Line(i));
        return lines;
    }
    /// The lines, blanks at their ends taken off, joined by one blank.
    std::string OnOneLine() const {
        std::string line;
        for (int i = 0; i < GetCount(); ++i) {
            if (i > 0) line += ' ';
            line += Trim(Line(i));
        }
        return line;
    }
    void AddLines(const TKLineBuffer& other) {
        for (int i = 0; i < other.GetCount(); ++i)
            AddLine(other.Line(i));
    }
    void Swap(TKLineBuffer& other) {
        text.swap(other.text);
        starts.swap(other.starts);
    }

private:
    friend class TKLineWriter;
    std::string text;
    std::vector<size_t> starts;
};

/// Copies a text that mostly is short, without a call, and returns where it ends.
[[gnu::always_inline]] inline char* PutShort(char* to, std::string_view text) {
    const char* const from = text.data();
    const size_t n = text.size();
    // two moves that overlap, of the largest size that fits
    const auto twoMoves = [&]<size_t Size>(std::integral_constant<size_t, Size>) {
        std::memcpy(to, from, Size);
        std::memcpy(to + n - Size, from + n - Size, Size);
    };
    if (n >= 8) {
        if (n > 32)
            std::memcpy(to, from, n);
        else if (n >= 16)
            twoMoves(std::integral_constant<size_t, 16>());
        else
            twoMoves(std::integral_constant<size_t, 8>());
    } else if (n >= 4) {
        twoMoves(std::integral_constant<size_t, 4>());
    } else if (n > 0) {
        to[0] = from[0];
        to[n / 2] = from[n / 2];
        to[n - 1] = from[n - 1];
    }
    return to + n;
}

/// Writes a line buffer anew from many short pieces, in the room that it has. What was written
/// since a mark can be taken back. The buffer holds the text when Finish was called.
class TKLineWriter {
public:
    struct TMark {
        size_t used, lines;
    };

    explicit TKLineWriter(TKLineBuffer& buffer) : text(buffer.text), starts(buffer.starts) {
        starts.clear();
    }
    TKLineWriter(const TKLineWriter&) = delete;
    TKLineWriter& operator=(const TKLineWriter&) = delete;
    void Finish() { text.resize(used); }

    /// Where up to so many characters can be written; Wrote says where they end.
    char* Room(size_t characters) {
        if (text.size() - used < characters) text.resize(2 * text.size() + characters);
        return text.data() + used;
    }
    void Wrote(const char* end) { used = static_cast<size_t>(end - text.data()); }

    void Append(std::string_view piece) { Wrote(PutShort(Room(piece.size()), piece)); }
    /// Notes that a line begins so many characters behind the end: they are appended next, as the
    /// end of the last line, the LF behind it the last of them.
    void StartLineBehind(size_t characters) { starts.push_back(used + characters); }
    void AddLine(std::string_view line) {
        char* to = Room(line.size() + 1);
        if (!starts.empty()) *to++ = '\n';
        starts.push_back(static_cast<size_t>(to - text.data()));
        Wrote(PutShort(to, line));
    }

    TMark Mark() const { return {used, starts.size()}; }
    void Rollback(TMark mark) {
        used = mark.used;
        starts.resize(mark.lines);
    }

private:
    std::string& text; // all of it is room, `used` characters are written
    std::vector<size_t>& starts;
    size_t used = 0;
};

} // namespace tern7
