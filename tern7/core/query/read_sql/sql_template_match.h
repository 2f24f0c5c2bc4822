#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tern7/core/corekit/tokens.h>
#include <tern7/core/structure/sql_template.h>

namespace tern7 {

/// The right-hand text of a condition, cut into tokens once for all templates.
class TSQLOperand {
public:
    explicit TSQLOperand(std::string_view operandText);

    size_t Count() const { return tokens.Count() - 1; } // without the end
    TKTokenType Type(size_t i) const { return tokens.Type(i); }
    std::string_view Token(size_t i) const { return Piece(i, i + 1); }
    /// The text from one token up to another, which is not part of it.
    std::string_view Piece(size_t from, size_t to) const;

private:
    std::string_view text;
    TKTokens tokens;
};

/// What stands in the place of a value.
struct TSQLCapture {
    enum class TForm { None, Literal, Bare, Param };
    TForm form = TForm::None;
    std::string text;     ///< of a literal what it means, of a parameter its name
    std::string_view raw; ///< the place in the operand

    bool operator==(const TSQLCapture& other) const {
        return form == other.form && text == other.text;
    }
};

/// An operator's template as a pattern: the whole text must match; blanks outside quotes do not
/// count, nor does case; "@f" stands for the left-hand text. A placeholder between quotes takes one
/// whole literal, or a bare `:name`, and where values stand without quotes bare text as well, which
/// must not begin with = < or >.
///
///     @f = '@1'             =  then a literal
///     not(@f like '@1%')    negated; like, then a literal that ends in %
class TSQLTemplateMatch {
public:
    explicit TSQLTemplateMatch(const TKSQLTemplate& sqlTemplate);

    /// False for a template whose texts the parser never gives as one condition.
    bool IsUsable() const { return usable; }
    bool IsNegated() const { return negated; }
    /// The first word behind the left-hand text, in lower case.
    const std::string& OperatorWord() const { return pieces.front().text; }
    /// Holds the template, from behind the operator word, against the right-hand text.
    bool Match(const TSQLOperand& operand, std::string_view leftText, bool bareValues,
               TSQLCapture (&values)[2]) const;

private:
    enum class TKind { Exact, Literal, Value, Field };
    struct TLiteralPart {
        std::string before; // the text before the value
        int value;
    };
    struct TPiece {
        TKind kind;
        std::string text; // of a literal: behind the last value
        int value = 0;
        std::vector<TLiteralPart> parts;
    };

    void AddPiece(std::string_view token, TKTokenType type);
    void AddLiteral(std::string_view content);
    void TakeShape();
    bool EnclosedInNot() const;
    size_t RunEnd(const TSQLOperand& operand, size_t from, size_t piece) const;
    bool MatchPlace(const TPiece& piece, std::string_view raw, bool isLiteral, bool bareValues,
                    TSQLCapture (&values)[2]) const;
    static bool MatchContent(const TPiece& piece, std::string_view content, TSQLCapture::TForm form,
                             std::string_view raw, TSQLCapture (&values)[2]);

    std::vector<TPiece> pieces;
    bool usable = false;
    bool negated = false;
};

} // namespace tern7
