#include "row_writer.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <unordered_map>

#include <tern7/core/corekit/strings.h>
#include <tern7/sql/csv_row.h>

#include "../json.h"
#include "../streams.h"
#include "display_width.h"

namespace tern7 {

namespace {

using TKind = TBoundValue::TKind;

bool IsNumeric(TKind kind) {
    return kind == TKind::Integer || kind == TKind::Float || kind == TKind::Decimal;
}

/// As people read it: of the 17 digits that a floating point number may have the last two say
/// nothing.
std::string TableText(const TBoundValue& cell) {
    if (cell.kind == TKind::Null) return "<null>";
    double number = 0;
    const char* const end = cell.text.data() + cell.text.size();
    if (cell.kind != TKind::Float || std::from_chars(cell.text.data(), end, number).ptr != end)
        return Printable(cell.text);
    char digits[32];
    return {digits,
            std::to_chars(digits, std::end(digits), number, std::chars_format::general, 15).ptr};
}

class TTableWriter : public TRowWriter {
public:
    void Begin(const std::vector<std::string>& columnNames) override {
        for (const std::string& name : columnNames) {
            TColumn& column = columns.emplace_back();
            column.cells.push_back(Printable(name));
            column.width = DisplayWidth(column.cells.back());
        }
    }

    void Row(const std::vector<TBoundValue>& cells) override {
        for (size_t i = 0; i < columns.size(); ++i) {
            const TBoundValue& cell = cells[i];
            const bool isNull = cell.kind == TKind::Null;
            TColumn& column = columns[i];
            column.cells.push_back(TableText(cell));
            column.width = std::max(column.width, DisplayWidth(column.cells.back()));
            column.onlyNumbers &= isNull || IsNumeric(cell.kind);
            column.anyNumber |= IsNumeric(cell.kind);
        }
    }

    void End() override {
        if (columns.empty()) return;
        for (size_t row = 0; row < columns[0].cells.size(); ++row) {
            PrintRow(row);
            if (row == 0) PrintRule();
        }
    }

private:
    struct TColumn {
        std::vector<std::string> cells; // the first is the name
        int width = 0;
        bool onlyNumbers = true, anyNumber = false;
    };

    void PrintRow(size_t row) const {
        std::string line;
        for (const TColumn& column : columns) {
            const std::string& cell = column.cells[row];
            const std::string blanks(static_cast<size_t>(column.width - DisplayWidth(cell)), ' ');
            if (&column != &columns.front()) line += " | ";
            line += column.onlyNumbers && column.anyNumber ? blanks + cell : cell + blanks;
        }
        PrintLine(TrimRight(line));
    }

    void PrintRule() const {
        std::string line;
        for (const TColumn& column : columns) {
            if (&column != &columns.front()) line += "-+-";
            line.append(static_cast<size_t>(column.width), '-');
        }
        PrintLine(line);
    }

    std::vector<TColumn> columns;
};

class TCsvWriter : public TRowWriter {
public:
    void Begin(const std::vector<std::string>& columns) override { Print(CsvRow(columns)); }
    void Row(const std::vector<TBoundValue>& cells) override { Print(CsvRow(cells)); }
    void End() override {}
};

class TJsonWriter : public TRowWriter {
public:
    void Begin(const std::vector<std::string>& columns) override {
        for (const std::string& name : columns) {
            AppendJsonString(names.emplace_back(), Unique(name));
        }
        Print("[");
    }

    void Row(const std::vector<TBoundValue>& cells) override {
        std::string line = any ? ",\n{" : "\n{";
        any = true;
        for (size_t i = 0; i < names.size(); ++i) {
            line += (i ? "," : "") + names[i] + ":";
            AppendCell(line, cells[i]);
        }
        Print(line + "}");
    }

    void End() override { Print(any ? "\n]\n" : "]\n"); }

private:
    std::string Unique(const std::string& name) {
        const auto [entry, isNew] = lastNumbers.try_emplace(name, 1);
        if (isNew) return name;
        int& last = entry->second; // stays where it is when others are added
        for (;;) {
            std::string numbered = name + "_" + std::to_string(++last);
            if (lastNumbers.try_emplace(numbered, 1).second) return numbered;
        }
    }

    static void AppendCell(std::string& line, const TBoundValue& cell) {
        if (cell.kind == TKind::Null)
            line += "null";
        else if (cell.kind == TKind::Boolean)
            line += cell.text == "1" ? "true" : "false";
        else if (IsNumeric(cell.kind))
            AppendJsonNumber(line, cell.text);
        else
            AppendJsonString(line, cell.text);
    }

    std::unordered_map<std::string, int> lastNumbers; // of the names that are taken
    std::vector<std::string> names;                   // as JSON strings
    bool any = false;
};

} // namespace

std::unique_ptr<TRowWriter> MakeRowWriter(TRowFormat format) {
    switch (format) {
    case TRowFormat::Csv:
        return std::make_unique<TCsvWriter>();
    case TRowFormat::Json:
        return std::make_unique<TJsonWriter>();
    case TRowFormat::Table:
        break;
    }
    return std::make_unique<TTableWriter>();
}

} // namespace tern7
