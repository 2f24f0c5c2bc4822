#pragma once

#include <vector>

#include <tern7/core/query/filter_row.h>
#include <tern7/core/query/query.h>

namespace tern7 {

/// The lines of a query from top to bottom: line n shows the row with the number n. With brackets
/// as lines, line 0 is the header line (the root); with and/or words only conditions have lines.
/// Holds plain pointers: to be cleared before rows go.
class TRowLines {
public:
    struct TLine {
        TFilterRow* row;
        int level;    ///< of indentation
        int position; ///< among the rows of its bracket, from 0
    };

    /// Linear in the number of rows.
    void Build(TKQuery& query);
    void Clear() { lines.clear(); }

    int Count() const { return static_cast<int>(lines.size()); }
    const TLine& At(int line) const { return lines.at(static_cast<size_t>(line)); }
    /// -1 for a row that has no line.
    int LineOf(const TFilterRow& row) const;

private:
    void Add(TFilterRow& row, int level, int position, bool brackets);
    std::vector<TLine> lines;
};

} // namespace tern7
