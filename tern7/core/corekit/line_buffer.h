#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

/// Lines of text in one buffer, separated by LF. The last line can grow; what was written since a
/// mark can be taken back.
class TKLineBuffer {
public:
    struct TMark {
        size_t text, lines;
    };

    bool IsEmpty() const { return starts.empty(); }
    int GetCount() const { return static_cast<int>(starts.size()); }
    void Clear() {
        text.clear();
        starts.clear();
    }
    /// Room for as much as the other has.
    void Reserve(const TKLineBuffer& other) {
        text.reserve(other.text.size());
        starts.reserve(other.starts.size());
    }
    /// Opens a new last line.
    void NewLine() {
        if (!starts.empty()) text += '\n';
        starts.push_back(text.size());
    }
    /// Notes that a line begins so many characters behind the end: they are appended next, as the
    /// end of the last line, the LF behind it the last of them.
    void LineBeginsBehind(size_t characters) { starts.push_back(text.size() + characters); }
    void AddLine(std::string_view line) {
        NewLine();
        text += line;
    }
    /// The buffer, to append to the last line; there must be one, and no LF may be appended that is
    /// not part of the line's text.
    std::string& Last() { return text; }
    /// Where the last line begins in the buffer.
    size_t LastStart() const { return starts.back(); }

    TMark Mark() const { return {text.size(), starts.size()}; }
    void Rollback(TMark mark) {
        text.resize(mark.text);
        starts.resize(mark.lines);
    }

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

private:
    std::string text;
    std::vector<size_t> starts;
};

} // namespace tern7
