#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <tern7/core/corekit/scanner.h>
#include <tern7/core/global/errors.h>
#include <tern7/core/parser/parser_result.h>

namespace tern7 {

/// ESQLParserError with the message and the place.
[[noreturn]] void RaiseSQLError(std::string_view message, TKTextPosition at);

/// Reads one SELECT statement into a TKParserResult. It does not check SQL in general: it takes
/// what a query panel needs and leaves out the rest.
///
///     statement  = select from [ where ] [ group-by ] [ order-by ] .
///     select     = "select" [ "distinct" ] ( "*" | field { "," field } ) .
///     field      = expression [ "as" identifier ] .
///     from       = "from" table { "," table } .
///     table      = { "(" } name { ")" } [ alias ] { join } .
///     join       = [ "inner" | ( "left" | "right" | "full" ) [ "outer" ] ] "join"
///                  name [ alias ] "on" bool-expr { ")" } .
///     name       = identifier { "." identifier } .
///     where      = "where" bool-expr .
///     bool-expr  = bool-term { "or" bool-term } .
///     bool-term  = factor { "and" factor } .
///     factor     = "(" bool-expr ")" | condition .
///     condition  = "not" condition | "(" condition ")" | "not" "(" bool-expr ")"
///                | value [ "not" ] operator value [ "and" value ] .
///     group-by   = "group" "by" identifier "." .
///     order-by   = "order" "by" ( number [ direction ] { "," number [ direction ] }
///                               | name [ direction ] { "," name [ direction ] } ) .
///     identifier = token | double-quote { token } double-quote .
///
/// Bad text raises ESQLParserError; the result then holds what was read before. Brackets nested
/// deeper than 1,000 and sub-selects deeper than 200 are refused before anything is read. Linear in
/// the text. A parser serves for one statement.
class TKSQLParser {
public:
    TKSQLParser();
    TKSQLParser(const TKSQLParser&) = delete;
    TKSQLParser& operator=(const TKSQLParser&) = delete;
    virtual ~TKSQLParser();

    void SetSQL(const TStrings& lines);
    void SetText(std::string sql);
    void Parse();

    TKParserResult& Result() { return *result; }
    /// Gives the result away; the parser is of no more use then.
    std::unique_ptr<TKParserResult> TakeResult() { return std::move(result); }

protected:
    // The clauses. Each stands on its first word and stops behind its last token.
    virtual void ProcessSelect();
    virtual void ProcessFrom();
    virtual void ProcessWhere();
    virtual void ProcessOrderBy();
    virtual void ProcessGroupBy();

    /// The name between double quotes, its tokens put together without blanks; else the token.
    std::string ProcessIdentifier();
    /// Identifiers joined by points.
    std::string ProcessName();

    void ProcessResultField();
    TSQLResultField& AddResultField(std::string expression, std::string alias);
    /// The tokens up to a reserved word, "," or "as" outside of brackets, put together without
    /// blanks.
    std::string ProcessSQLExpr();
    std::string ProcessAlias();

    void ProcessTable();
    void ProcessTableJoins();

    // Each appends one node to the bracket.
    void ProcessBoolExpr(TSQLBracket& parent);
    void ProcessBoolTerm(TSQLBracket& parent);
    void ProcessBoolFactor(TSQLBracket& parent);
    void ProcessCondition(TSQLBracket& parent, bool negated);
    /// The right-hand text up to a reserved word, an operator, "and", "or" or the word of a clause
    /// that is not read, outside of brackets; sets the flag when it is a sub-select.
    std::string_view ProcessConditionValue(bool& isSubQuery);
    /// The left-hand text: it ends at "not" too.
    std::string_view ProcessConditionField();

    void ProcessField(std::string& table, std::string& field);

    // Words and symbols that the scanner knows; the first seven are reserved.
    enum TWord : uint8_t {
        wNone,
        wSelect,
        wFrom,
        wJoin,
        wWhere,
        wOrder,
        wGroup,
        wBy,
        wDistinct,
        wAs,
        wInner,
        wLeft,
        wRight,
        wFull,
        wOuter,
        wOn,
        wNot,
        wAnd,
        wOr,
        wEqual,
        wNotEqual,
        wUnequal,
        wGreater,
        wLess,
        wGreaterEqual,
        wLessEqual,
        wLike,
        wIn,
        wIs,
        wBetween,
        wHaving,
        wUnion,
        wExcept,
        wIntersect,
        wLimit,
        wOffset,
        wFetch,
        wDesc,
        wAsc,
        wOpen,
        wClose,
        wComma,
        wPoint,
        wStar,
        wDoubleQuote
    };

    TKScanner& Scanner() { return scanner; }
    /// True when the current token is the word. Words added to the scanner by derived classes are
    /// asked for by the number that adding gave.
    bool Is(uint8_t word) const { return scanner.GetTokCode() == word; }
    bool IsJoinWord() const;
    bool IsClauseWord() const;
    void Step() { scanner.NextToken(); }
    /// Steps past the word if it is there.
    bool Take(uint8_t word) {
        if (!Is(word)) return false;
        Step();
        return true;
    }
    /// Steps past the word, or raises "Wrong SQL statement".
    void Require(uint8_t word);
    void SkipTokens(uint8_t word);
    /// Raises the message with the line of the current token.
    [[noreturn]] void Error(std::string_view message) const;

private:
    std::shared_ptr<const TKSourceText> source;
    TKScanner scanner;
    std::unique_ptr<TKParserResult> result;
    bool isRestNoted = false;
    size_t noted = 0; // bookmark of the first token that was stepped over without notice

    // Whether such words stand in the bracket that opens at a bookmark; none until first asked for.
    const std::vector<bool>* joiningWords = nullptr;
    const std::vector<bool>* comparingWords = nullptr;

    void RefuseDeepNesting();
    bool IsBracketWithJoiningWord();
    bool IsBracketWithComparingWord();
    void KeepRest();
    TSQLBracket& WrapLast(TSQLBracket& parent, std::string_view linkType);
    void ProcessComparison(TSQLBracket& parent, bool negated);
    std::string_view ReadOperand(bool isLeft, bool& isSubQuery);
    std::string_view OperatorText();
    std::string_view ProcessSecondValue(std::string_view first, size_t start, bool& isSubQuery);
    std::string_view WithSingleQuotes(std::string_view value);
    void WidenSource(const TSQLBracket& parent, size_t start);
    void RequireBracket();
    void ProcessOrderByNumbers();
    void ProcessOrderByNames();
    void ProcessDirection(TSQLResultField& field, int sortIndex);
};

} // namespace tern7
