#include <tern7/core/structure/sql_template.h>

namespace tern7 {

namespace {

int CountParams(std::string_view text) {
    int count = 0;
    while (text.find("@" + std::to_string(count + 1)) != std::string_view::npos)
        ++count;
    return count;
}

} // namespace

void TKSQLTemplate::SetText(std::string newText) {
    text = std::move(newText);
    items.clear();
    paramCount = CountParams(text);
    simple = true;
    bareValues = 0;

    size_t textStart = 0;
    auto addText = [&](size_t end) {
        if (end > textStart)
            items.push_back({TPiece::Text, static_cast<uint32_t>(textStart),
                             static_cast<uint32_t>(end - textStart)});
    };
    bool quoted = false;
    for (size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\'') quoted = !quoted;
        if (text[at] != '@') continue;
        const char next = at + 1 < text.size() ? text[at + 1] : '\0';
        TPiece kind;
        if (next == 'f') {
            kind = TPiece::Field;
        } else if (next == 't') {
            kind = TPiece::Table;
        } else if (next == 'm') {
            kind = TPiece::MainTable;
        } else if (next >= '1' && next <= '9' && next - '0' <= paramCount) {
            kind = next == '1' ? TPiece::Value1 : next == '2' ? TPiece::Value2 : TPiece::NoValue;
            if (!quoted) bareValues |= 1u << (next - '0');
        } else {
            simple = false; // the "@" may form a placeholder with what is put in behind it
            continue;
        }
        addText(at);
        items.push_back({kind, 0, 0});
        textStart = at + 2;
        ++at;
    }
    addText(text.size());
}

} // namespace tern7
