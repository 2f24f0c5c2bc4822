#include <tern7/core/corekit/comma_text.h>

#include <algorithm>

namespace tern7 {

namespace {

bool NeedsQuotes(std::string_view item) {
    return std::any_of(item.begin(), item.end(),
                       [](char c) { return IsSpace(c) || c == ',' || c == '"'; });
}

/// Takes a quoted item off the text, up to the comma behind it. Text between the closing quote and
/// the comma belongs to the item.
std::string TakeQuoted(std::string_view& text) {
    std::string item;
    size_t i = 1;
    for (; i < text.size(); ++i) {
        if (text[i] != '"') {
            item += text[i];
        } else if (i + 1 < text.size() && text[i + 1] == '"') {
            item += '"';
            ++i;
        } else {
            ++i;
            break;
        }
    }
    const size_t comma = std::min(text.find(',', i), text.size());
    item.append(Trim(text.substr(std::min(i, text.size()), comma - std::min(i, comma))));
    text.remove_prefix(comma);
    return item;
}

std::string TakePlain(std::string_view& text) {
    const size_t comma = std::min(text.find(','), text.size());
    std::string item(TrimRight(text.substr(0, comma)));
    text.remove_prefix(comma);
    return item;
}

} // namespace

std::string ComposeCommaText(const TStrings& items) {
    if (items.size() == 1 && items.front().empty()) return "\"\"";
    std::string result;
    for (size_t i = 0; i < items.size(); ++i) {
        if (i > 0) result += ',';
        if (NeedsQuotes(items[i]))
            result.append(QuotedString(items[i], '"'));
        else
            result.append(items[i]);
    }
    return result;
}

TStrings ParseCommaText(std::string_view text) {
    TStrings items;
    text = TrimLeft(text);
    if (text.empty()) return items;
    for (;;) {
        items.push_back(text.substr(0, 1) == "\"" ? TakeQuoted(text) : TakePlain(text));
        if (text.empty()) return items;
        text = TrimLeft(text.substr(1));
    }
}

} // namespace tern7
