#include <tern7/core/structure/sql_formats.h>

namespace tern7 {

void TSQLFormats::SetDate(std::string format) {
    if (format == date) return;
    date = std::move(format);
    Changed();
}

void TSQLFormats::SetTime(std::string format) {
    if (format == time) return;
    time = std::move(format);
    Changed();
}

void TSQLFormats::SetDateTime(std::string format) {
    if (format == dateTime) return;
    dateTime = std::move(format);
    Changed();
}

void TSQLFormats::SetQuoteSymbol1(char symbol) {
    if (symbol == quote1) return;
    quote1 = symbol;
    Changed();
}

void TSQLFormats::SetQuoteSymbol2(char symbol) {
    if (symbol == quote2) return;
    quote2 = symbol;
    Changed();
}

void TSQLFormats::Assign(const TSQLFormats& other) {
    if (*this == other) return;
    date = other.date;
    time = other.time;
    dateTime = other.dateTime;
    quote1 = other.quote1;
    quote2 = other.quote2;
    Changed();
}

bool TSQLFormats::operator==(const TSQLFormats& other) const {
    return date == other.date && time == other.time && dateTime == other.dateTime &&
           quote1 == other.quote1 && quote2 == other.quote2;
}

void TSQLFormats::AppendQuoted(std::string& out, std::string_view name) const {
    if (quote1) out += quote1;
    for (char c : name) {
        out += c;
        if (c == quote2 && quote2) out += c;
    }
    if (quote2) out += quote2;
}

} // namespace tern7
