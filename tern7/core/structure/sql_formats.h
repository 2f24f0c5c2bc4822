#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tern7 {

/// How dates, times and quoted names are written for the database at hand. An empty date or time
/// format leaves a value as the user entered it.
class TSQLFormats {
public:
    const std::string& Date() const { return date; }
    const std::string& Time() const { return time; }
    const std::string& DateTime() const { return dateTime; }
    char QuoteSymbol1() const { return quote1; } ///< opens a quoted name, 0 for none
    char QuoteSymbol2() const { return quote2; } ///< closes a quoted name, 0 for none
    void SetDate(std::string format);
    void SetTime(std::string format);
    void SetDateTime(std::string format);
    void SetQuoteSymbol1(char symbol);
    void SetQuoteSymbol2(char symbol);
    /// Copies all settings.
    void Assign(const TSQLFormats& other);
    bool operator==(const TSQLFormats& other) const;

    /// Appends the name between the quote symbols.
    void AppendQuoted(std::string& out, std::string_view name) const;

private:
    friend class TKCustomDBStructure;
    std::string date, time, dateTime;
    char quote1 = '"';
    char quote2 = '"';
    std::function<void()> changed; // set by the owning structure
    void Changed() const {
        if (changed) changed();
    }
};

} // namespace tern7
