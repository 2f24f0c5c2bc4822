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
    simple = paramCount <= 2;

    size_t textStart = 0;
    auto addText = [&](size_t end) {
        if (end > textStart)
            items.push_back({TPiece::Text, static_cast<uint32_t>(textStart),
                             static_cast<uint32_t>(end - textStart)});
    };
    auto addPiece = [&](size_t at, TPiece kind) {
        addText(at);
        items.push_back({kind, 0, 0});
        textStart = at + 2;
    };
    for (size_t at = text.find('@'); at != std::string::npos; at = text.find('@', at + 1)) {
        const char next = at + 1 < text.size() ? text[at + 1] : '\0';
        switch (next) {
        case 'f':
            addPiece(at, TPiece::Field);
            break;
        case 't':
            addPiece(at, TPiece::Table);
            break;
        case 'm':
            addPiece(at, TPiece::MainTable);
            break;
        case '1':
            if (paramCount >= 1) addPiece(at, TPiece::Value1);
            break;
        case '2':
            if (paramCount >= 2) addPiece(at, TPiece::Value2);
            break;
        // an "@" may form a placeholder with text that is put in behind it
        default:
            simple = false;
        }
    }
    addText(text.size());
}

} // namespace tern7
