#include <tern7/core/corekit/dates.h>

#include <algorithm>
#include <array>
#include <vector>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

namespace {

enum class TPart { Literal, Year, Month, Day, Hour, Minute, Second, Millisecond, Half };

struct TItem {
    TPart part = TPart::Literal;
    size_t width = 0;         // digits that are written at least
    std::string_view literal; // for literals
};

TPart PartOf(char letter) {
    switch (LowerChar(letter)) {
    case 'y':
        return TPart::Year;
    case 'm':
        return TPart::Month;
    case 'd':
        return TPart::Day;
    case 'h':
        return TPart::Hour;
    case 'n':
        return TPart::Minute;
    case 's':
        return TPart::Second;
    case 'z':
        return TPart::Millisecond;
    default:
        return TPart::Literal;
    }
}

/// A run of letters that is longer than the longest known form means that form.
size_t WidthOf(TPart part, size_t run) {
    switch (part) {
    case TPart::Year:
        return run > 2 ? 4 : 2;
    case TPart::Millisecond:
        return run > 1 ? 3 : 1;
    default:
        return std::min<size_t>(run, 2);
    }
}

/// Takes a quoted literal, a single character or am/pm off the format.
TItem TakeLiteral(std::string_view& format) {
    constexpr std::string_view half = "am/pm";
    if (StartsText(format, half)) {
        format.remove_prefix(half.size());
        return {TPart::Half, 0, {}};
    }
    const char quote = format.front();
    if (quote != '"' && quote != '\'') {
        const TItem item{TPart::Literal, 0, format.substr(0, 1)};
        format.remove_prefix(1);
        return item;
    }
    const size_t end = std::min(format.find(quote, 1), format.size());
    const TItem item{TPart::Literal, 0, format.substr(1, end - 1)};
    format.remove_prefix(std::min(end + 1, format.size()));
    return item;
}

std::vector<TItem> ItemsOf(std::string_view format) {
    std::vector<TItem> items;
    TPart last = TPart::Literal;
    while (!format.empty()) {
        TPart part = PartOf(format.front());
        if (part == TPart::Literal) {
            items.push_back(TakeLiteral(format));
            continue;
        }
        const char letter = LowerChar(format.front());
        size_t run = 1;
        while (run < format.size() && LowerChar(format[run]) == letter)
            ++run;
        if (part == TPart::Month && last == TPart::Hour) part = TPart::Minute;
        items.push_back({part, WidthOf(part, run), {}});
        format.remove_prefix(run);
        last = part;
    }
    return items;
}

bool HasHalf(const std::vector<TItem>& items) {
    return std::any_of(items.begin(), items.end(),
                       [](const TItem& item) { return item.part == TPart::Half; });
}

void AppendNumber(std::string& result, int number, size_t width) {
    const std::string digits = std::to_string(number);
    if (digits.size() < width) result.append(width - digits.size(), '0');
    result.append(digits);
}

/// Takes between `least` and `most` digits off the text.
bool TakeNumber(std::string_view& text, size_t least, size_t most, int& number) {
    size_t count = 0;
    number = 0;
    while (count < most && count < text.size() && IsDigit(text[count]))
        number = number * 10 + (text[count++] - '0');
    text.remove_prefix(count);
    return count >= least;
}

bool TakeChar(std::string_view& text, char c) {
    if (text.empty() || text.front() != c) return false;
    text.remove_prefix(1);
    return true;
}

int DaysIn(int year, int month) {
    constexpr std::array<int, 12> days = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return month == 2 && leap ? 29 : days[static_cast<size_t>(month - 1)];
}

bool IsValid(const TKDateTime& value) {
    if (value.hasDate && (value.year < 1 || value.month < 1 || value.month > 12 || value.day < 1 ||
                          value.day > DaysIn(value.year, value.month)))
        return false;
    return value.hour < 24 && value.minute < 60 && value.second < 60;
}

/// Reads a text item by item.
class TDateReader {
public:
    TDateReader(const std::vector<TItem>& formatItems, std::string_view text)
        : items(formatItems), rest(text) {}

    std::optional<TKDateTime> Read() {
        for (size_t i = 0; i < items.size(); ++i)
            if (!TakeItem(i)) return std::nullopt;
        const bool anyDate = year >= 0 || month >= 0 || day >= 0;
        const bool anyTime = hour >= 0 || minute >= 0 || second >= 0 || millisecond >= 0;
        if (!rest.empty() || (!anyDate && !anyTime) || (anyDate && year < 0) ||
            (anyTime && hour < 0) || !TurnHour())
            return std::nullopt;
        TKDateTime value;
        value.hasDate = anyDate;
        value.hasTime = anyTime;
        if (anyDate) {
            value.year = year;
            value.month = month < 0 ? 1 : month;
            value.day = day < 0 ? 1 : day;
        }
        value.hour = std::max(hour, 0);
        value.minute = std::max(minute, 0);
        value.second = std::max(second, 0);
        value.millisecond = std::max(millisecond, 0);
        if (!IsValid(value)) return std::nullopt;
        return value;
    }

private:
    const std::vector<TItem>& items;
    std::string_view rest;
    int year = -1, month = -1, day = -1, hour = -1, minute = -1, second = -1, millisecond = -1;
    enum class THalf { None, Morning, Afternoon } half = THalf::None;

    /// Digits that follow without a separator must be as many as were written.
    bool IsPacked(size_t index) const {
        return index + 1 < items.size() && items[index + 1].part != TPart::Literal &&
               items[index + 1].part != TPart::Half;
    }

    bool TakeItem(size_t index) {
        const TItem& item = items[index];
        const size_t least = IsPacked(index) ? item.width : 1;
        switch (item.part) {
        case TPart::Literal:
            if (rest.substr(0, item.literal.size()) != item.literal) return false;
            rest.remove_prefix(item.literal.size());
            return true;
        case TPart::Half:
            return TakeHalf();
        case TPart::Year:
            return TakeYear(item.width);
        case TPart::Month:
            return TakeNumber(rest, least, 2, month);
        case TPart::Day:
            return TakeNumber(rest, least, 2, day);
        case TPart::Hour:
            return TakeNumber(rest, least, 2, hour);
        case TPart::Minute:
            return TakeNumber(rest, least, 2, minute);
        case TPart::Second:
            return TakeNumber(rest, least, 2, second);
        case TPart::Millisecond:
            return TakeNumber(rest, item.width, 3, millisecond);
        }
        return false;
    }

    bool TakeYear(size_t width) {
        if (!TakeNumber(rest, width, width, year)) return false;
        if (width == 2) year += year < 69 ? 2000 : 1900;
        return true;
    }

    bool TakeHalf() {
        half = StartsText(rest, "pm") ? THalf::Afternoon : THalf::Morning;
        if (half == THalf::Morning && !StartsText(rest, "am")) return false;
        rest.remove_prefix(2);
        return true;
    }

    /// The hour of a twelve hour clock on the clock of 24 hours.
    bool TurnHour() {
        if (half == THalf::None || hour < 0) return true;
        if (hour < 1 || hour > 12) return false;
        hour = hour % 12 + (half == THalf::Afternoon ? 12 : 0);
        return true;
    }
};

bool TakeIsoDate(std::string_view& text, TKDateTime& value) {
    return TakeNumber(text, 4, 4, value.year) && TakeChar(text, '-') &&
           TakeNumber(text, 2, 2, value.month) && TakeChar(text, '-') &&
           TakeNumber(text, 2, 2, value.day);
}

/// A fraction finer than milliseconds is refused: it would be lost.
bool TakeFraction(std::string_view& text, int& milliseconds) {
    if (text.empty() || !IsDigit(text.front())) return false;
    for (int weight = 100; !text.empty() && IsDigit(text.front()); weight /= 10) {
        if (weight == 0 && text.front() != '0') return false;
        milliseconds += (text.front() - '0') * weight;
        text.remove_prefix(1);
    }
    return true;
}

bool TakeIsoTime(std::string_view& text, TKDateTime& value) {
    if (!TakeNumber(text, 1, 2, value.hour) || !TakeChar(text, ':') ||
        !TakeNumber(text, 1, 2, value.minute))
        return false;
    if (!TakeChar(text, ':')) return true;
    if (!TakeNumber(text, 1, 2, value.second)) return false;
    return !TakeChar(text, '.') || TakeFraction(text, value.millisecond);
}

} // namespace

std::string FormatDateTime(std::string_view format, const TKDateTime& value) {
    const std::vector<TItem> items = ItemsOf(format);
    const bool halves = HasHalf(items);
    std::string result;
    for (const TItem& item : items) {
        const auto number = [&](int n) { AppendNumber(result, n, item.width); };
        switch (item.part) {
        case TPart::Literal:
            result.append(item.literal);
            break;
        case TPart::Year:
            number(item.width == 2 ? value.year % 100 : value.year);
            break;
        case TPart::Month:
            number(value.month);
            break;
        case TPart::Day:
            number(value.day);
            break;
        case TPart::Hour:
            number(halves ? (value.hour + 11) % 12 + 1 : value.hour);
            break;
        case TPart::Minute:
            number(value.minute);
            break;
        case TPart::Second:
            number(value.second);
            break;
        case TPart::Millisecond:
            number(value.millisecond);
            break;
        case TPart::Half:
            result.append(value.hour < 12 ? "am" : "pm");
            break;
        }
    }
    return result;
}

std::optional<TKDateTime> ParseDateTime(std::string_view format, std::string_view text) {
    const std::vector<TItem> items = ItemsOf(Trim(format));
    return TDateReader(items, Trim(text)).Read();
}

std::optional<TKDateTime> ParseIsoDateTime(std::string_view text) {
    text = Trim(text);
    TKDateTime value;
    value.hasDate = text.size() >= 5 && text[4] == '-';
    if (value.hasDate && !TakeIsoDate(text, value)) return std::nullopt;
    value.hasTime = !value.hasDate || !text.empty();
    if (value.hasDate && value.hasTime && !TakeChar(text, ' ') && !TakeChar(text, 'T'))
        return std::nullopt;
    if (value.hasTime && !TakeIsoTime(text, value)) return std::nullopt;
    if (!text.empty() || !IsValid(value)) return std::nullopt;
    return value;
}

} // namespace tern7
