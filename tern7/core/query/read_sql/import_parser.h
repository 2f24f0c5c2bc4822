#pragma once

#include <tern7/core/parser/sql_parser.h>
#include <tern7/core/query/read_sql/import_statement.h>

namespace tern7 {

/// Reads SELECT statements as people and other programs write them: "as" before table aliases,
/// aliases of columns without it, joins of all kinds, functions and CASE, conditions without a
/// comparison, grouping and sorting by expressions. Unlike the parser that it is made of it keeps
/// brackets and negations as they stand.
class TImportParser : public TKSQLParser {
public:
    /// Names may stand in double quotes, back quotes or between the two given characters.
    /// In a nested statement, which is written on one line, a blank stands for a line break.
    TImportParser(char openQuote, char closeQuote, bool isNested);

    /// To be called before the text is set.
    void TakeBracketNames(std::string_view sql);
    TImportStatement& Statement() { return statement; }
    TKScanner& Tokens() { return Scanner(); }
    /// The text of tokens as it is written.
    std::string_view Written(TTokenRange range) {
        return Scanner().ExtractPiece(range.from, range.to, false);
    }
    /// The bookmark of the ")" that closes a "("; the end of the text when there is none.
    size_t CloseOf(size_t open);

protected:
    void ProcessSelect() override;
    void ProcessFrom() override;
    void ProcessWhere() override;
    void ProcessGroupBy() override;
    void ProcessOrderBy() override;

private:
    // select
    void ReadQuantifier();
    void ReadColumn();
    void ReadAlias(TImportColumn& column, size_t last);
    bool IsImpliedAlias(size_t start, size_t last);
    // from
    void ReadTables(TImportJoin join);
    void ReadTable(TImportJoin join);
    void ReadTableName(TImportTable& table);
    void ReadJoined();
    void ReadJoinCondition(size_t table);
    bool AtJoin();
    TImportJoin TakeJoinWords(bool& natural);
    // conditions
    TImportNode* ReadOr();
    TImportNode* ReadAnd();
    TImportNode* ReadNot();
    TImportNode* ReadFactor();
    TImportNode* ReadComparison();
    TImportNode* Negated(TImportNode& node, size_t start);
    bool IsBooleanBracket();
    bool EndsOperand(size_t start);
    // all
    bool IsText(std::string_view word) const;
    bool AtClauseEnd();
    bool IsBehindDistinct();
    size_t At() { return Scanner().GetBookmark(); }
    void SkipExpression();
    void SkipHaving();
    void Lose(std::string_view what, size_t from);

    TImportStatement statement;
    std::vector<size_t> closeOf; // by bookmark of "("; made when first asked for
    const bool nested;
    bool inOn = false; // a join condition ends at the next join
};

} // namespace tern7
