#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <tern7/core/corekit/source_text.h>
#include <tern7/core/corekit/strings.h>

namespace tern7 {

enum class TKTokenType : uint8_t {
    Symbol = 1,  ///< one character, or one of <> <= >= !=
    Keyword = 2, ///< reserved word; also the empty token at the end
    Word = 3,    ///< letters, digits, _ # $ and bytes above 127
    Literal = 4, ///< '...' with doubled quotes, over lines too
    Name = 5,    ///< between two of the characters given by AddNameQuotes
    Integer = 6, ///< digits
    Real = 7     ///< digits with a point or an exponent
};

/// The words and symbols that a scanner tells apart by number, so that a parser compares numbers
/// instead of texts. Case does not count.
class TKVocabulary {
public:
    TKVocabulary();

    /// The number of the word, from 1 in order of adding; a word that is known keeps its number.
    /// std::length_error after 127 words.
    uint8_t Add(std::string_view word, bool reserved);
    /// 0 for an unknown word. The text must be in lower case.
    uint8_t CodeOf(std::string_view lowerWord) const {
        for (size_t slot = SlotOf(lowerWord);; slot = (slot + 1) & 255u) {
            const uint8_t code = cells[slot];
            if (code == 0 || words[code] == lowerWord) return code;
        }
    }
    uint8_t CodeOf(char symbol) const { return symbols[static_cast<unsigned char>(symbol)]; }
    bool IsReserved(uint8_t code) const { return reservedWords[code]; }

private:
    std::vector<std::string> words; // by code; 0 is none
    std::array<uint8_t, 256> cells{};
    std::array<uint8_t, 256> symbols{};
    std::array<bool, 256> reservedWords{};

    static size_t SlotOf(std::string_view word) {
        const auto byte = [word](size_t i) { return static_cast<unsigned char>(word[i]); };
        return (byte(0) * 7u + byte(word.size() - 1) * 31u + word.size()) & 255u;
    }
};

/// Cuts SQL source into tokens, all of it at once in one pass, and walks over them.
///
/// `--` to the end of the line and `/* */` are blanks. A literal that is not closed ends with the
/// text. A double quote is a symbol of its own, unless AddNameQuotes names it; between two of them
/// are words and symbols that mean nothing and have no number: "Salt and Owner's -- pepper". A
/// semicolon ends the statement: what follows it is Behind(). The end is an
/// empty keyword token right behind the last one; stepping on stays there.
class TKScanner {
public:
    TKScanner();

    /// To be called before SetSource. They give the number by which GetTokCode knows the word.
    uint8_t AddKeyword(std::string_view word) { return vocabulary.Add(word, true); }
    uint8_t AddWord(std::string_view word) { return vocabulary.Add(word, false); }
    /// Text between these characters is one token of type Name; inside, a doubled closing one
    /// stands for itself.
    void AddNameQuotes(char open, char close);

    /// Cuts the text and stands on the first token.
    void SetSource(const TStrings& lines);
    void SetSource(std::string text);
    /// The source, to be held by whoever keeps views of it.
    std::shared_ptr<const TKSourceText> Source() const { return source; }

    void FirstToken() { position = 0; }
    void NextToken() {
        if (position + 1 < tokens.size()) ++position;
    }
    bool EOS() const { return position + 1 == tokens.size(); }

    /// The token, words in lower case. A view of the source, as all texts from here are.
    std::string_view GetTokStr() const;
    /// The token as written, a literal with its quotes.
    std::string_view GetRealStr() const { return Piece(tokens[position], tokens[position]); }
    TKTokenType GetTokType() const { return tokens[position].type; }
    /// Number of the word or symbol, 0 when it was not added.
    uint8_t GetTokCode() const { return tokens[position].code; }
    /// Lines count from 1. Linear in the text before the token.
    int GetTokLine() const { return source->PositionOf(tokens[position].begin).line; }
    /// Offset of the token in the source.
    size_t GetTokOffset() const { return tokens[position].begin; }

    size_t GetBookmark() const { return position; }
    void GotoBookmark(size_t bookmark) { position = bookmark; }
    /// The source from one token up to another, which is not part of it. Blanks before that other
    /// token are left out unless `withBlanks` is set.
    std::string_view ExtractPiece(size_t from, size_t to, bool withBlanks) const;
    /// The source from the current token to the end, blanks at the end aside.
    std::string_view Rest() const;
    /// The source behind the semicolon that ends the statement, without blanks around.
    std::string_view Behind() const;

    /// Standing on an `open` token: true when one of the words (a comma list) stands between it and
    /// its matching `close`, at any depth; each word `skip` lets one "and" of its own depth pass.
    /// Without a matching `close` the search goes on to the end. The first call with given
    /// arguments takes one pass over all tokens, every further one constant time.
    bool ScanToPair(std::string_view open, std::string_view close, std::string_view skip,
                    std::string_view words);

    /// The deepest nesting of "(" in the statement.
    size_t MaxDepth() const { return maxDepth; }

private:
    struct TToken {
        uint32_t begin, end;
        TKTokenType type;
        uint8_t code;
    };
    struct TPairScan {
        std::array<std::string, 4> arguments;
        std::vector<bool> answers; // by token; meaningful for `open` tokens
    };

    TKVocabulary vocabulary;
    std::array<char, 256> nameQuotes{}; // closing character by opening one
    std::shared_ptr<const TKSourceText> source;
    std::vector<TToken> tokens;
    size_t position = 0;
    size_t behind = 0; // offset behind the end of the statement
    size_t maxDepth = 0;
    std::vector<TPairScan> pairScans;

    class TCutter;
    TPairScan MakePairScan(const std::array<std::string_view, 4>& arguments) const;
    std::string_view TokStr(const TToken& token) const;
    std::string_view Piece(const TToken& first, const TToken& last) const {
        return source->Text().substr(first.begin, last.end - first.begin);
    }
};

} // namespace tern7
