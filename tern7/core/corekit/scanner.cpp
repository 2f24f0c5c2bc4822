#include <tern7/core/corekit/scanner.h>

#include <algorithm>

namespace tern7 {

TKScanner::TKScanner() : TKScanner(std::make_shared<const TKVocabulary>()) {}

TKScanner::TKScanner(std::shared_ptr<const TKVocabulary> words) : vocabulary(std::move(words)) {
    static const auto nothing = std::make_shared<const TKSourceText>(std::string());
    SetSource(nothing);
}

uint8_t TKScanner::AddTo(std::string_view word, bool reserved) {
    auto copy = std::make_shared<TKVocabulary>(*vocabulary);
    const uint8_t code = copy->Add(word, reserved);
    vocabulary = std::move(copy);
    return code;
}

void TKScanner::AddNameQuotes(char open, char close) {
    nameQuotes[static_cast<unsigned char>(open)] = close;
}

void TKScanner::SetSource(const TStrings& lines) {
    SetSource(std::make_shared<const TKSourceText>(JoinStrings(lines, "\n")));
}

void TKScanner::SetSource(std::shared_ptr<const TKSourceText> text) {
    source = std::move(text);
    tokens = TKTokens(source->Text(), *vocabulary, nameQuotes);
    pairScans.clear();
    position = 0;
}

std::string TKScanner::TokStr(size_t token) const {
    const bool isText = tokens.Type(token) == TKTokenType::Literal;
    return isText ? std::string(RealStr(token)) : LowerCase(RealStr(token));
}

std::string_view TKScanner::Rest() const {
    return TrimRight(source->Text().substr(GetTokOffset()));
}

std::string_view TKScanner::Behind() const {
    return TrimRight(source->Text().substr(tokens.Behind()));
}

std::string_view TKScanner::OpenString() const {
    if (tokens.Count() < 2) return {};
    const size_t last = tokens.Count() - 2;
    const std::string_view text = RealStr(last);
    if (text.empty()) return {};
    char close = 0;
    if (tokens.Type(last) == TKTokenType::Literal) close = '\'';
    if (tokens.Type(last) == TKTokenType::Name)
        close = nameQuotes[static_cast<unsigned char>(text.front())];
    if (close == 0) return {};
    // inner ones are doubled
    return std::count(text.begin() + 1, text.end(), close) % 2 == 0 ? text : std::string_view();
}

} // namespace tern7
