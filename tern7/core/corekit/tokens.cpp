#include <tern7/core/corekit/tokens.h>

#include <algorithm>
#include <cstring>

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
    Comment,
    Open,
    Close
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
    classes['-'] = classes['/'] = TClass::Comment;
    classes['('] = TClass::Open;
    classes[')'] = TClass::Close;
    return classes;
}

constexpr std::array<TClass, 256> Classes = MakeClasses();

constexpr std::array<bool, 256> MakeWordChars() {
    std::array<bool, 256> chars{};
    for (size_t i = 0; i < 256; ++i)
        chars[i] = Classes[i] == TClass::Letter || Classes[i] == TClass::Digit;
    return chars;
}

constexpr std::array<bool, 256> WordChars = MakeWordChars();

TClass ClassOf(char c) {
    return Classes[static_cast<unsigned char>(c)];
}

bool ContinuesWord(char c) {
    return WordChars[static_cast<unsigned char>(c)];
}

uint32_t Packed(uint32_t length, uint32_t type, uint32_t code) {
    return length | type << 16 | code << 24;
}

/// The pass over a source, one token per step.
class TCutter {
public:
    // Whole words: a byte that is written and read back as part of a word stalls the loop.
    struct TPiece {
        const char* begin;
        const char* end;
        uint32_t type;
        uint32_t code;
    };

    TCutter(std::string_view source, const TKVocabulary& words, const TKTokens::TNameQuotes& quotes)
        : vocabulary(words), nameQuotes(quotes), text(source.data()), end(text + source.size()),
          at(text) {}

    /// To the next token; false at the end of the statement.
    bool Next() { return SkipBlanks() && (*at != ';' || inQuotes); }
    TPiece Take() {
        const char* const begin = at;
        const TTaken taken = TakeToken();
        at = taken.end;
        return {begin, taken.end, taken.type, taken.code};
    }
    void SkipSemicolons() {
        while (SkipBlanks() && *at == ';')
            ++at;
    }
    size_t Offset() const { return static_cast<size_t>(at - text); }
    size_t MaxDepth() const { return maxDepth; }

private:
    struct TTaken {
        TTaken(const char* behind, TKTokenType tokenType, uint32_t wordCode)
            : end(behind), type(static_cast<uint32_t>(tokenType)), code(wordCode) {}
        const char* end;
        uint32_t type;
        uint32_t code;
    };

    const TKVocabulary& vocabulary;
    const TKTokens::TNameQuotes& nameQuotes;
    const char* const text;
    const char* const end;
    const char* at; // next character
    size_t depth = 0, maxDepth = 0;
    bool inQuotes = false;

    char Behind() const { return end - at > 1 ? at[1] : '\0'; }

    /// To the next character that is no blank; false at the end.
    bool SkipBlanks() {
        while (at != end && IsSpace(*at))
            ++at;
        return at != end && (ClassOf(*at) != TClass::Comment || SkipComments());
    }

    bool SkipComments() {
        while (at != end && SkipComment())
            while (at != end && IsSpace(*at))
                ++at;
        return at != end;
    }

    bool SkipComment() {
        const bool isLine = *at == '-' && Behind() == '-';
        if (inQuotes || !(isLine || (*at == '/' && Behind() == '*'))) return false;
        const std::string_view rest(at, static_cast<size_t>(end - at));
        const size_t hit = isLine ? rest.find_first_of("\r\n") : rest.find("*/", 2);
        at = hit == std::string_view::npos ? end : at + hit + (isLine ? 0 : 2);
        return true;
    }

    TTaken TakeToken() {
        if (inQuotes && *at != '"') return TakeMeaningless();
        if (const char close = nameQuotes[static_cast<unsigned char>(*at)]; close != '\0')
            return TakeQuoted(close, TKTokenType::Name);
        switch (ClassOf(*at)) {
        case TClass::Letter:
            return TakeWord();
        case TClass::Digit:
            return TakeNumber();
        case TClass::Quote:
            return TakeQuoted('\'', TKTokenType::Literal);
        case TClass::Operator:
            return TakeOperator();
        case TClass::Point:
            return StartsNumber() ? TakeNumber() : TakeSymbol();
        case TClass::DoubleQuote:
            inQuotes = !inQuotes;
            break;
        case TClass::Open:
            maxDepth = std::max(maxDepth, ++depth);
            break;
        case TClass::Close:
            depth -= depth > 0 ? 1 : 0;
            break;
        default:
            break;
        }
        return TakeSymbol();
    }

    TTaken TakeSymbol() const { return {at + 1, TKTokenType::Symbol, vocabulary.CodeOf(*at)}; }

    const char* WordEnd() const {
        const char* behind = at;
        while (behind != end && ContinuesWord(*behind))
            ++behind;
        return behind;
    }

    const char* DigitsEnd(const char* from) const {
        while (from != end && IsDigit(*from))
            ++from;
        return from;
    }

    TTaken TakeMeaningless() const {
        const char* const behind = WordEnd();
        if (behind == at) return {at + 1, TKTokenType::Symbol, 0};
        return {behind, TKTokenType::Word, 0};
    }

    TTaken TakeWord() const {
        const char* const behind = WordEnd();
        const uint8_t code = vocabulary.CodeOf({at, static_cast<size_t>(behind - at)});
        return {behind, vocabulary.IsReserved(code) ? TKTokenType::Keyword : TKTokenType::Word,
                code};
    }

    /// A point starts a number unless it stands behind a name: .5, but t.5 is a column.
    bool StartsNumber() const {
        if (!IsDigit(Behind())) return false;
        return at == text || !(ContinuesWord(at[-1]) || at[-1] == '"' || at[-1] == ')');
    }

    TTaken TakeNumber() const {
        const char* const whole = DigitsEnd(at);
        const char* behind = whole;
        if (behind != end && *behind == '.') behind = DigitsEnd(behind + 1);
        if (behind != end && LowerChar(*behind) == 'e') {
            const char* digits = behind + 1;
            if (digits != end && (*digits == '+' || *digits == '-')) ++digits;
            if (digits != end && IsDigit(*digits)) behind = DigitsEnd(digits);
        }
        return {behind, behind == whole ? TKTokenType::Integer : TKTokenType::Real, 0};
    }

    /// Up to the closing character; a doubled one stands for itself.
    TTaken TakeQuoted(char close, TKTokenType type) const {
        const char* behind = at + 1;
        for (;;) {
            const void* const hit = std::memchr(behind, close, static_cast<size_t>(end - behind));
            if (!hit) return {end, type, 0};
            behind = static_cast<const char*>(hit) + 1;
            if (behind == end || *behind != close) return {behind, type, 0};
            ++behind;
        }
    }

    TTaken TakeOperator() const {
        const bool two = Behind() == '=' || (*at == '<' && Behind() == '>');
        if (!two) return TakeSymbol();
        return {at + 2, TKTokenType::Symbol, vocabulary.CodeOf(std::string_view(at, 2))};
    }
};

} // namespace

TKTokens::TKTokens(std::string_view source, const TKVocabulary& vocabulary,
                   const TNameQuotes& nameQuotes) {
    tokens.reserve(source.size() / 3 + 2);
    TCutter cutter(source, vocabulary, nameQuotes);
    while (cutter.Next()) {
        const TCutter::TPiece piece = cutter.Take();
        const auto length = static_cast<size_t>(piece.end - piece.begin);
        if (length >= LongLength) longTokens.push_back({tokens.size(), cutter.Offset()});
        const auto shown = static_cast<uint32_t>(std::min<size_t>(length, LongLength));
        tokens.push_back({static_cast<uint32_t>(piece.begin - source.data()),
                          Packed(shown, piece.type, piece.code)});
    }
    cutter.SkipSemicolons();
    behind = cutter.Offset();
    maxDepth = cutter.MaxDepth();
    const auto last = static_cast<uint32_t>(tokens.empty() ? 0 : End(tokens.size() - 1));
    tokens.push_back({last, Packed(0, static_cast<uint32_t>(TKTokenType::Keyword), 0)});
}

size_t TKTokens::LongEnd(size_t token) const {
    return std::lower_bound(
               longTokens.begin(), longTokens.end(), token,
               [](const TLongToken& each, size_t wanted) { return each.token < wanted; })
        ->end;
}

} // namespace tern7
