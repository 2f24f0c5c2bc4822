#include <tern7/core/corekit/scanner.h>

#include <algorithm>
#include <stdexcept>

namespace tern7 {

namespace {

enum class TClass : uint8_t {
    Symbol,
    Blank,
    Letter,
    Digit,
    Quote,
    DoubleQuote,
    Operator,
    Point,
    Minus,
    Slash,
    Open,
    Close,
    Semicolon
};

constexpr std::array<TClass, 256> MakeClasses() {
    std::array<TClass, 256> classes{};
    for (size_t i = 0; i < 256; ++i) {
        const char c = static_cast<char>(i);
        if (i <= ' ') classes[i] = TClass::Blank;
        if (IsLetter(c) || c == '_' || c == '#' || c == '$' || i > 127) classes[i] = TClass::Letter;
        if (IsDigit(c)) classes[i] = TClass::Digit;
    }
    classes['\''] = TClass::Quote;
    classes['"'] = TClass::DoubleQuote;
    classes['<'] = classes['>'] = classes['!'] = TClass::Operator;
    classes['.'] = TClass::Point;
    classes['-'] = TClass::Minus;
    classes['/'] = TClass::Slash;
    classes['('] = TClass::Open;
    classes[')'] = TClass::Close;
    classes[';'] = TClass::Semicolon;
    return classes;
}

constexpr std::array<TClass, 256> Classes = MakeClasses();

TClass ClassOf(char c) {
    return Classes[static_cast<unsigned char>(c)];
}

bool ContinuesWord(char c) {
    return ClassOf(c) == TClass::Letter || ClassOf(c) == TClass::Digit;
}

} // namespace

TKVocabulary::TKVocabulary() {
    words.reserve(64);
    words.emplace_back();
}

uint8_t TKVocabulary::Add(std::string_view word, bool reserved) {
    const std::string lower = LowerCase(word);
    if (lower.empty()) throw std::invalid_argument("empty word");
    uint8_t code = CodeOf(lower);
    if (code == 0) {
        if (words.size() > 127) throw std::length_error("too many words");
        code = static_cast<uint8_t>(words.size());
        words.push_back(lower);
        size_t slot = SlotOf(lower);
        while (cells[slot] != 0)
            slot = (slot + 1) & 255u;
        cells[slot] = code;
        if (lower.size() == 1) symbols[static_cast<unsigned char>(lower[0])] = code;
    }
    reservedWords[code] = reservedWords[code] || reserved;
    return code;
}

/// The pass over the text. Between double quotes, apostrophes, comment signs and semicolons are
/// plain symbols: "Owner's name".
class TKScanner::TCutter {
public:
    explicit TCutter(TKScanner& owner)
        : scanner(owner), text(owner.source->Text()), lower(owner.source->Lower()) {}

    void Run() {
        while (SkipBlanks() && (text[i] != ';' || inQuotes))
            Take();
        while (SkipBlanks() && text[i] == ';')
            ++i;
        scanner.behind = i;
        i = scanner.tokens.empty() ? 0 : scanner.tokens.back().end;
        Add(i, TKTokenType::Keyword, 0);
    }

private:
    TKScanner& scanner;
    const std::string_view text, lower;
    size_t i = 0;
    size_t depth = 0;
    bool inQuotes = false;

    char At(size_t offset) const { return offset < text.size() ? text[offset] : '\0'; }

    bool IsComment() const {
        return !inQuotes &&
               ((text[i] == '-' && At(i + 1) == '-') || (text[i] == '/' && At(i + 1) == '*'));
    }

    /// To the next character of a token; false at the end.
    bool SkipBlanks() {
        while (i < text.size()) {
            const TClass kind = ClassOf(text[i]);
            if (kind == TClass::Blank) {
                ++i;
            } else if ((kind == TClass::Minus || kind == TClass::Slash) && IsComment()) {
                const bool isLine = kind == TClass::Minus;
                const size_t end = isLine ? text.find_first_of("\r\n", i) : text.find("*/", i + 2);
                i = end == std::string_view::npos ? text.size() : end + (isLine ? 0 : 2);
            } else {
                return true;
            }
        }
        return false;
    }

    void Add(size_t end, TKTokenType type, uint8_t code) {
        scanner.tokens.push_back(
            {static_cast<uint32_t>(i), static_cast<uint32_t>(end), type, code});
        i = end;
    }

    void AddSymbol() { Add(i + 1, TKTokenType::Symbol, scanner.vocabulary.CodeOf(text[i])); }

    void Take() {
        if (inQuotes && text[i] != '"') return TakeMeaningless();
        if (const char close = scanner.nameQuotes[static_cast<unsigned char>(text[i])];
            close != '\0')
            return TakeQuoted(close, TKTokenType::Name);
        switch (ClassOf(text[i])) {
        case TClass::Letter:
            return TakeWord();
        case TClass::Digit:
            return TakeNumber();
        case TClass::Quote:
            return TakeQuoted('\'', TKTokenType::Literal);
        case TClass::Operator:
            return TakeOperator();
        case TClass::Point:
            return StartsNumber() ? TakeNumber() : AddSymbol();
        case TClass::DoubleQuote:
            inQuotes = !inQuotes;
            return AddSymbol();
        case TClass::Open:
            scanner.maxDepth = std::max(scanner.maxDepth, ++depth);
            return AddSymbol();
        case TClass::Close:
            depth -= depth > 0 ? 1 : 0;
            return AddSymbol();
        default:
            return AddSymbol();
        }
    }

    size_t WordEnd() const {
        size_t end = i;
        while (end < text.size() && ContinuesWord(text[end]))
            ++end;
        return end;
    }

    void TakeMeaningless() {
        const size_t end = WordEnd();
        if (end == i) return Add(i + 1, TKTokenType::Symbol, 0);
        Add(end, TKTokenType::Word, 0);
    }

    void TakeWord() {
        const size_t end = WordEnd();
        const uint8_t code = scanner.vocabulary.CodeOf(lower.substr(i, end - i));
        const bool reserved = scanner.vocabulary.IsReserved(code);
        Add(end, reserved ? TKTokenType::Keyword : TKTokenType::Word, code);
    }

    /// A point starts a number unless it stands behind a name: .5, but t.5 is a column.
    bool StartsNumber() const {
        if (ClassOf(At(i + 1)) != TClass::Digit) return false;
        return i == 0 || !(ContinuesWord(text[i - 1]) || text[i - 1] == '"' || text[i - 1] == ')');
    }

    size_t SkipDigits(size_t from) const {
        while (from < text.size() && ClassOf(text[from]) == TClass::Digit)
            ++from;
        return from;
    }

    void TakeNumber() {
        size_t end = SkipDigits(i);
        const size_t whole = end;
        if (At(end) == '.') end = SkipDigits(end + 1);
        if (At(end) == 'e' || At(end) == 'E') {
            const size_t digits = end + (At(end + 1) == '+' || At(end + 1) == '-' ? 2 : 1);
            if (ClassOf(At(digits)) == TClass::Digit) end = SkipDigits(digits);
        }
        Add(end, end == whole ? TKTokenType::Integer : TKTokenType::Real, 0);
    }

    /// Up to the closing character; a doubled one stands for itself.
    void TakeQuoted(char close, TKTokenType type) {
        size_t end = i + 1;
        for (;;) {
            end = text.find(close, end);
            if (end == std::string_view::npos) return Add(text.size(), type, 0);
            if (At(end + 1) != close) return Add(end + 1, type, 0);
            end += 2;
        }
    }

    void TakeOperator() {
        const char next = At(i + 1);
        const bool two = next == '=' || (text[i] == '<' && next == '>');
        if (!two) return AddSymbol();
        Add(i + 2, TKTokenType::Symbol, scanner.vocabulary.CodeOf(text.substr(i, 2)));
    }
};

TKScanner::TKScanner() {
    SetSource(std::string());
}

void TKScanner::AddNameQuotes(char open, char close) {
    nameQuotes[static_cast<unsigned char>(open)] = close;
}

void TKScanner::SetSource(const TStrings& lines) {
    SetSource(JoinStrings(lines, "\n"));
}

void TKScanner::SetSource(std::string text) {
    source = std::make_shared<const TKSourceText>(std::move(text));
    tokens.clear();
    tokens.reserve(source->Text().size() / 5 + 2);
    pairScans.clear();
    position = maxDepth = 0;
    TCutter(*this).Run();
}

std::string_view TKScanner::TokStr(const TToken& token) const {
    const bool isWord = token.type == TKTokenType::Word || token.type == TKTokenType::Keyword;
    const std::string_view text = isWord ? source->Lower() : source->Text();
    return text.substr(token.begin, token.end - token.begin);
}

std::string_view TKScanner::GetTokStr() const {
    return TokStr(tokens[position]);
}

std::string_view TKScanner::ExtractPiece(size_t from, size_t to, bool withBlanks) const {
    if (from >= to) return {};
    const std::string_view piece = Piece(tokens[from], tokens[to - 1]);
    if (!withBlanks) return piece;
    return source->Text().substr(tokens[from].begin, tokens[to].begin - tokens[from].begin);
}

std::string_view TKScanner::Rest() const {
    return TrimRight(source->Text().substr(tokens[position].begin));
}

std::string_view TKScanner::Behind() const {
    return TrimRight(source->Text().substr(behind));
}

} // namespace tern7
