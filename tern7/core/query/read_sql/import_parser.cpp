#include <tern7/core/query/read_sql/import_parser.h>

#include <tern7/core/global/messages.h>

namespace tern7 {

TImportParser::TImportParser(char openQuote, char closeQuote, bool isNested) : nested(isNested) {
    Scanner().AddNameQuotes('"', '"');
    Scanner().AddNameQuotes('`', '`');
    if (openQuote != '\0' && openQuote != '\'') Scanner().AddNameQuotes(openQuote, closeQuote);
}

/// Names in square brackets, as other programs write them; nothing is in them when there is an
/// array's index among them.
void TImportParser::TakeBracketNames(std::string_view sql) {
    bool any = false;
    char before = ' ';
    for (const char c : sql) {
        const bool isIndex = IsLetter(before) || IsDigit(before) || before == '_' ||
                             before == ')' || before == ']' || before == '"' ||
                             static_cast<unsigned char>(before) > 127;
        if (c == '[' && isIndex) return;
        any = any || c == '[';
        before = c;
    }
    if (any) Scanner().AddNameQuotes('[', ']');
}

// --- tokens

bool TImportParser::IsText(std::string_view word) const {
    const TKScanner& tokens = const_cast<TImportParser*>(this)->Scanner();
    return tokens.GetTokType() == TKTokenType::Word && SameText(tokens.GetRealStr(), word);
}

/// a is distinct from b
bool TImportParser::IsBehindDistinct() {
    Scanner().GotoBookmark(At() - 1);
    const bool isDistinct = Is(wDistinct);
    Step();
    return isDistinct;
}

bool TImportParser::AtClauseEnd() {
    if (Scanner().EOS()) return true;
    if (Is(wFrom) && IsBehindDistinct()) return false;
    if (Scanner().GetTokType() == TKTokenType::Keyword) return !Is(wJoin);
    return Is(wHaving) || Is(wUnion) || Is(wExcept) || Is(wIntersect) || Is(wLimit) ||
           Is(wOffset) || Is(wFetch) || IsText("for") || IsText("window");
}

size_t TImportParser::CloseOf(size_t open) {
    if (closeOf.empty()) {
        const size_t here = At();
        std::vector<size_t> opened;
        for (Scanner().FirstToken(); !Scanner().EOS(); Step()) {
            closeOf.push_back(At());
            if (Is(wOpen)) opened.push_back(At());
            if (!Is(wClose) || opened.empty()) continue;
            closeOf[opened.back()] = At();
            opened.pop_back();
        }
        // a bracket that is never closed ends with the text
        for (const size_t lost : opened)
            closeOf[lost] = At();
        Scanner().GotoBookmark(here);
    }
    return closeOf[open];
}

/// Up to a comma or the end of the clause, brackets aside.
void TImportParser::SkipExpression() {
    for (const size_t start = At(); !Is(wComma) && !Is(wClose); Step()) {
        if (AtClauseEnd() && (At() == start ? Scanner().EOS() : true)) return;
        if (Is(wOpen)) Scanner().GotoBookmark(CloseOf(At()));
        if (Scanner().EOS()) return;
    }
}

void TImportParser::Lose(std::string_view what, size_t from) {
    statement.losses.push_back({std::string(what), {from, At()}});
}

// --- select

void TImportParser::ProcessSelect() {
    Require(wSelect);
    ReadQuantifier();
    if (Is(wStar)) {
        const size_t star = At();
        Step();
        if (Is(wFrom)) {
            statement.allFields = true;
            return;
        }
        Scanner().GotoBookmark(star);
    }
    do
        ReadColumn();
    while (Take(wComma));
}

void TImportParser::ReadQuantifier() {
    const size_t start = At();
    if (Take(wDistinct)) {
        statement.distinct = true;
        if (!Is(wOn)) return;
        Step();
        if (Is(wOpen)) {
            Scanner().GotoBookmark(CloseOf(At()));
            Step();
        }
        statement.distinct = false;
        Lose("distinct on", start);
    } else if (IsText("all") || IsText("top")) {
        const bool isTop = IsText("top");
        Step();
        const bool isCount = Scanner().GetTokType() == TKTokenType::Integer;
        if (isTop ? !isCount : Is(wComma) || Is(wFrom) || Is(wPoint) || Is(wAs) || Is(wOpen)) {
            Scanner().GotoBookmark(start); // a column of that name
        } else if (isTop) {
            Step();
            Lose("top", start);
        }
    }
}

void TImportParser::ReadColumn() {
    TImportColumn column;
    const size_t start = At();
    size_t last = start;
    for (; !Scanner().EOS() && !Is(wComma) && !Is(wAs) && !(Is(wFrom) && !IsBehindDistinct());
         Step()) {
        last = At();
        if (Is(wOpen)) Scanner().GotoBookmark(last = CloseOf(last));
        if (Scanner().EOS()) break;
    }
    column.expression = {start, At()};
    if (column.expression.IsEmpty()) Error(messages::WrongSQL);
    if (Take(wAs)) {
        ReadAlias(column, At());
        Step();
    } else if (IsImpliedAlias(start, last)) {
        const size_t here = At();
        ReadAlias(column, last);
        column.expression.to = last;
        Scanner().GotoBookmark(here);
    }
    statement.columns.push_back(std::move(column));
}

void TImportParser::ReadAlias(TImportColumn& column, size_t last) {
    Scanner().GotoBookmark(last);
    const TKTokenType type = Scanner().GetTokType();
    column.hasAlias = true;
    column.isAliasQuoted = type == TKTokenType::Name || type == TKTokenType::Literal;
    column.alias =
        type == TKTokenType::Literal ? UnquotedString(Scanner().GetRealStr()) : ProcessIdentifier();
    Scanner().GotoBookmark(last);
}

/// A name right behind something that is complete without it.
bool TImportParser::IsImpliedAlias(size_t start, size_t last) {
    if (last == start) return false;
    const size_t here = At();
    Scanner().GotoBookmark(last);
    const TKTokenType type = Scanner().GetTokType();
    const bool isName =
        type == TKTokenType::Name || (type == TKTokenType::Word && Scanner().GetTokCode() == 0 &&
                                      !IsText("end") && !IsText("null"));
    Scanner().GotoBookmark(last - 1);
    // what stands right behind a digit belongs to the number: 0x1F
    const bool isNumber = Scanner().GetTokType() == TKTokenType::Integer &&
                          Written({last - 1, last + 1}).size() ==
                              Written({last - 1, last}).size() + Written({last, last + 1}).size();
    const bool isComplete =
        Is(wClose) || (Scanner().GetTokType() != TKTokenType::Symbol &&
                       Scanner().GetTokCode() == 0 && !IsText("case") && !IsText("when") &&
                       !IsText("then") && !IsText("else") && !IsText("collate"));
    Scanner().GotoBookmark(here);
    return isName && isComplete && !isNumber;
}

// --- where, group by, order by

void TImportParser::ProcessWhere() {
    Require(wWhere);
    if (!AtClauseEnd()) statement.where = ReadOr();
    SkipHaving();
}

void TImportParser::ProcessGroupBy() {
    Require(wGroup);
    Require(wBy);
    do {
        const size_t start = At();
        SkipExpression();
        if (At() == start) Error(messages::WrongSQL);
        statement.grouping.push_back({start, At()});
    } while (Take(wComma));
    SkipHaving();
}

void TImportParser::SkipHaving() {
    const size_t start = At();
    if (!Take(wHaving)) return;
    while (!AtClauseEnd()) {
        if (Is(wOpen)) Scanner().GotoBookmark(CloseOf(At()));
        Step();
    }
    Lose("having", start);
}

void TImportParser::ProcessOrderBy() {
    Require(wOrder);
    Require(wBy);
    do {
        TImportSorting item;
        const size_t start = At();
        for (; !Is(wComma) && !Is(wAsc) && !Is(wDesc) && !IsText("nulls") && !AtClauseEnd(); Step())
            if (Is(wOpen)) {
                Scanner().GotoBookmark(CloseOf(At()));
                if (Scanner().EOS()) break;
            }
        item.expression = {start, At()};
        if (item.expression.IsEmpty()) Error(messages::WrongSQL);
        item.descending = Is(wDesc);
        if (!Take(wAsc)) Take(wDesc);
        const size_t nulls = At();
        if (IsText("nulls")) {
            Step();
            if (IsText("first") || IsText("last")) Step();
            Lose("order of nulls", nulls);
        }
        statement.sorting.push_back(item);
    } while (Take(wComma));
}

} // namespace tern7
