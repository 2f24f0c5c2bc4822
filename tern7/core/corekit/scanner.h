#pragma once

#include <array>
#include <cstdint>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <tern7/core/corekit/source_text.h>
#include <tern7/core/corekit/strings.h>
#include <tern7/core/corekit/tokens.h>

namespace tern7 {

/// Cuts SQL source into tokens, all of it at once in one pass, and walks over them.
///
/// `--` to the end of the line and `/* */` are blanks. A literal that is not closed ends with the
/// text. A double quote is a symbol of its own, unless AddNameQuotes names it; between two of them
/// are words and symbols that mean nothing and have no number: "Salt and Owner's -- pepper". A
/// semicolon ends the statement: what follows it is Behind(). The end is an empty keyword token
/// right behind the last one; stepping on stays there.
class TKScanner {
public:
    TKScanner();
    /// With words that are added already; they are copied when a further one is added.
    explicit TKScanner(std::shared_ptr<const TKVocabulary> words);

    /// To be called before SetSource. They give the number by which GetTokCode knows the word.
    uint8_t AddKeyword(std::string_view word) { return AddTo(word, true); }
    uint8_t AddWord(std::string_view word) { return AddTo(word, false); }
    /// Text between these characters is one token of type Name; inside, a doubled closing one
    /// stands for itself.
    void AddNameQuotes(char open, char close);

    /// Cuts the text and stands on the first token.
    void SetSource(const TStrings& lines);
    void SetSource(std::shared_ptr<const TKSourceText> text);
    /// The source, to be held by whoever keeps views of it.
    std::shared_ptr<const TKSourceText> Source() const { return source; }

    void FirstToken() { position = 0; }
    void NextToken() {
        if (position + 1 < tokens.Count()) ++position;
    }
    bool EOS() const { return position + 1 == tokens.Count(); }

    /// The token, words in lower case.
    std::string GetTokStr() const { return TokStr(position); }
    /// The token as written, a literal with its quotes; a view of the source.
    std::string_view GetRealStr() const { return RealStr(position); }
    TKTokenType GetTokType() const { return tokens.Type(position); }
    /// Number of the word or symbol, 0 when it was not added.
    uint8_t GetTokCode() const { return tokens.Code(position); }
    /// Lines count from 1. Linear in the text before the token.
    int GetTokLine() const { return source->PositionOf(GetTokOffset()).line; }
    /// Offset of the token in the source.
    size_t GetTokOffset() const { return tokens.Begin(position); }

    size_t GetBookmark() const { return position; }
    void GotoBookmark(size_t bookmark) { position = bookmark; }
    /// The source from one token up to another, which is not part of it. Blanks before that other
    /// token are left out unless `withBlanks` is set. A view of the source.
    std::string_view ExtractPiece(size_t from, size_t to, bool withBlanks) const {
        if (from >= to) return {};
        return Piece(tokens.Begin(from), withBlanks ? tokens.Begin(to) : tokens.End(to - 1));
    }
    /// The source from the current token to the end, blanks at the end aside.
    std::string_view Rest() const;
    /// The literal or quoted name that the text leaves open; empty when there is none.
    std::string_view OpenString() const;
    /// The source behind the semicolon that ends the statement, without blanks around.
    std::string_view Behind() const;

    /// Standing on an `open` token: true when one of the words (a comma list) stands between it and
    /// its matching `close`, at any depth; each word `skip` lets one "and" of its own depth pass.
    /// Without a matching `close` the search goes on to the end. The first call with given
    /// arguments takes one pass over all tokens, every further one constant time.
    bool ScanToPair(std::string_view open, std::string_view close, std::string_view skip,
                    std::string_view words) {
        return PairScan(open, close, skip, words)[position];
    }
    /// The answers of ScanToPair by bookmark, for those who ask often; valid until SetSource.
    const std::vector<bool>& PairScan(std::string_view open, std::string_view close,
                                      std::string_view skip, std::string_view words);

    /// The deepest nesting of "(" in the statement.
    size_t MaxDepth() const { return tokens.MaxDepth(); }

private:
    struct TPairScan {
        std::array<std::string, 4> arguments;
        std::vector<bool> answers; // by token; meaningful for `open` tokens
    };

    std::shared_ptr<const TKVocabulary> vocabulary;
    TKTokens::TNameQuotes nameQuotes{};
    std::shared_ptr<const TKSourceText> source;
    TKTokens tokens;
    size_t position = 0;
    std::list<TPairScan> pairScans;

    uint8_t AddTo(std::string_view word, bool reserved);
    TPairScan MakePairScan(const std::array<std::string_view, 4>& arguments) const;
    std::string TokStr(size_t token) const;
    std::string_view RealStr(size_t token) const {
        return Piece(tokens.Begin(token), tokens.End(token));
    }
    std::string_view Piece(size_t begin, size_t end) const {
        return {source->Text().data() + begin, end - begin};
    }
};

} // namespace tern7
