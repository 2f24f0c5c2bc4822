#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include <tern7/core/corekit/vocabulary.h>

namespace tern7 {

enum class TKTokenType : uint8_t {
    Symbol = 1,  ///< one character, or one of <> <= >= !=
    Keyword = 2, ///< reserved word; also the empty token at the end
    Word = 3,    ///< letters, digits, _ # $ and bytes above 127
    Literal = 4, ///< '...' with doubled quotes, over lines too
    Name = 5,    ///< between two of the given name quotes
    Integer = 6, ///< digits
    Real = 7     ///< digits with a point or an exponent
};

/// The tokens of an SQL source, by number; the last is an empty keyword right behind the last one.
class TKTokens {
public:
    /// Closing characters of names by opening one.
    using TNameQuotes = std::array<char, 256>;

    TKTokens() = default;
    /// One pass over the source, which must be shorter than 4 GB. TKScanner says what a token is.
    TKTokens(std::string_view source, const TKVocabulary& vocabulary,
             const TNameQuotes& nameQuotes);

    size_t Count() const { return tokens.size(); }
    TKTokenType Type(size_t i) const {
        return static_cast<TKTokenType>((tokens[i].rest >> 16) & 0xFF);
    }
    /// Number of the word or symbol, 0 when the vocabulary has none for it.
    uint8_t Code(size_t i) const { return static_cast<uint8_t>(tokens[i].rest >> 24); }
    /// Offsets in the source.
    size_t Begin(size_t i) const { return tokens[i].begin; }
    size_t End(size_t i) const {
        const uint32_t length = tokens[i].rest & LongLength;
        return length == LongLength ? LongEnd(i) : tokens[i].begin + length;
    }

    /// Offset behind the semicolons that end the statement.
    size_t Behind() const { return behind; }
    /// The deepest nesting of "(" in the statement.
    size_t MaxDepth() const { return maxDepth; }

private:
    /// Two numbers instead of four fields keep the pass over the text fast.
    struct TToken {
        uint32_t begin;
        uint32_t rest; // from the lowest bit: length (16), type (8), code (8)
    };
    static constexpr uint32_t LongLength = 0xFFFF; // stands for this and any greater length
    struct TLongToken {
        size_t token, end;
    };

    std::vector<TToken> tokens;
    std::vector<TLongToken> longTokens; // those of LongLength, in order
    size_t behind = 0;
    size_t maxDepth = 0;

    size_t LongEnd(size_t token) const;
};

} // namespace tern7
