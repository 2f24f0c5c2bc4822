#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tern7/core/corekit/source_text.h>

namespace tern7 {

/// What became of a part of a statement that was read.
enum class TSQLReportKind : uint8_t {
    rkRecognised, ///< the query says it with its own means
    rkKeptAsText, ///< the query holds the text and gives it back
    rkDropped     ///< the query does not have it
};

/// "recognised", "kept as text", "dropped".
std::string_view SQLReportKindToStr(TSQLReportKind kind);

struct TSQLReportEntry {
    TSQLReportKind kind;
    std::string what;        ///< "column", "table", "join", "condition", ...
    std::string text;        ///< as the statement writes it
    std::string reason;      ///< empty for what was recognised
    size_t offset = 0;       ///< of the text in the statement, in bytes
    TKTextPosition position; ///< line and column of the text
};

/// What became of a statement that was read, in the order of its text.
class TSQLReport {
public:
    const std::vector<TSQLReportEntry>& Entries() const { return entries; }
    bool AnyDropped() const { return Has(TSQLReportKind::rkDropped); }
    bool Has(TSQLReportKind kind) const;

    void Clear() { entries.clear(); }
    size_t Count() const { return entries.size(); }
    /// Takes back all but the first entries.
    void CutTo(size_t count) { entries.resize(count); }
    void Add(TSQLReportKind kind, std::string_view what, std::string_view text, size_t offset,
             std::string_view reason = {});
    /// Takes the entries over a part of the statement that begins at the offset.
    void Append(TSQLReport part, size_t offset);
    /// Brings the entries into the order of the text and gives them their positions. n log n.
    void Place(const TKSourceText& source);

private:
    std::vector<TSQLReportEntry> entries;
};

/// "3:14: dropped: join: ...", one line.
std::string SQLReportLine(const TSQLReportEntry& entry);

} // namespace tern7
