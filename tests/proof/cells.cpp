#include "cells.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <stdexcept>

namespace tern7::proof {

TCell NumberCell(std::string_view text) {
    if (!text.empty() && text[0] == '+') text.remove_prefix(1);
    int64_t whole = 0;
    const char* end = text.data() + text.size();
    if (const auto read = std::from_chars(text.data(), end, whole);
        read.ec == std::errc() && read.ptr == end)
        return whole;
    double number = 0;
    if (const auto read = std::from_chars(text.data(), end, number);
        read.ec != std::errc() || read.ptr != end)
        throw std::invalid_argument("no number: " + std::string(text));
    return number;
}

int Compare(const TCell& a, const TCell& b) {
    if (IsNull(a) || IsNull(b)) return static_cast<int>(IsNull(b)) - static_cast<int>(IsNull(a));
    const auto* text = std::get_if<std::string>(&a);
    const auto* otherText = std::get_if<std::string>(&b);
    if (text && otherText) return text->compare(*otherText);
    if (text || otherText) throw std::logic_error("a text is compared with a number");
    auto number = [](const TCell& cell) {
        const auto* whole = std::get_if<int64_t>(&cell);
        // wide enough to hold both exactly
        return whole ? static_cast<long double>(*whole)
                     : static_cast<long double>(std::get<double>(cell));
    };
    const long double x = number(a), y = number(b);
    return x < y ? -1 : x > y;
}

std::string TextOf(const TCell& cell) {
    if (IsNull(cell)) return "<null>";
    if (const auto* text = std::get_if<std::string>(&cell)) return "'" + *text + "'";
    if (const auto* whole = std::get_if<int64_t>(&cell)) return std::to_string(*whole);
    char buffer[400];
    std::snprintf(buffer, sizeof buffer, "%.5f", std::get<double>(cell));
    std::string text = buffer;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text == "-0" ? "0" : text;
}

std::vector<std::string> SortedTexts(const TRows& rows) {
    std::vector<std::string> texts;
    texts.reserve(rows.size());
    for (const TRow& row : rows) {
        std::string& text = texts.emplace_back();
        for (const TCell& cell : row)
            text += (&cell == row.data() ? "" : " | ") + TextOf(cell);
    }
    std::sort(texts.begin(), texts.end());
    return texts;
}

} // namespace tern7::proof
