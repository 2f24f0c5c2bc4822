#include <algorithm>

#include <tern7/core/global/messages.h>
#include <tern7/core/parser/sql_parser.h>

namespace tern7 {

bool TKSQLParser::IsBracketWithJoiningWord() {
    if (!Is(wOpen)) return false;
    if (!joiningWords) joiningWords = &scanner.PairScan("(", ")", "between", "and,or");
    return (*joiningWords)[scanner.GetBookmark()];
}

bool TKSQLParser::IsBracketWithComparingWord() {
    constexpr std::string_view words = "=,<>,!=,<,>,<=,>=,in,like,is,between";
    if (!Is(wOpen)) return false;
    if (!comparingWords) comparingWords = &scanner.PairScan("(", ")", "", words);
    return (*comparingWords)[scanner.GetBookmark()];
}

// A bracket is made where a second node joins the first, so that none ever holds a single node.
void TKSQLParser::ProcessBoolExpr(TSQLBracket& parent) {
    ProcessBoolTerm(parent);
    if (!Is(wOr)) return;
    TSQLBracket& bracket = WrapLast(parent, "or");
    while (Take(wOr))
        ProcessBoolTerm(bracket);
}

void TKSQLParser::ProcessBoolTerm(TSQLBracket& parent) {
    ProcessBoolFactor(parent);
    if (!Is(wAnd)) return;
    TSQLBracket& bracket = WrapLast(parent, "and");
    while (Take(wAnd))
        ProcessBoolFactor(bracket);
}

TSQLBracket& TKSQLParser::WrapLast(TSQLBracket& parent, std::string_view linkType) {
    TSQLConditionNode* const node = parent.Nodes().Last();
    TSQLBracket& bracket = *result->NewBracket(nullptr);
    bracket.SetLinkType(linkType);
    bracket.SetParent(&parent);
    bracket.Nodes().Add(node);
    node->SetParent(&bracket);
    parent.Nodes().SetItem(parent.Nodes().GetCount() - 1, &bracket);
    return bracket;
}

void TKSQLParser::ProcessBoolFactor(TSQLBracket& parent) {
    if (!IsBracketWithJoiningWord()) return ProcessCondition(parent, false);
    const size_t start = scanner.GetBookmark();
    Step();
    ProcessBoolExpr(parent);
    RequireBracket();
    WidenSource(parent, start);
}

void TKSQLParser::ProcessCondition(TSQLBracket& parent, bool negated) {
    const size_t start = scanner.GetBookmark();
    while (Take(wNot))
        negated = !negated;
    if (negated && IsBracketWithJoiningWord()) {
        Step();
        ProcessBoolExpr(parent);
        RequireBracket();
        TSQLConditionNode& node = *parent.Nodes().Last();
        node.SetNot(!node.Not());
    } else if (IsBracketWithComparingWord()) {
        Step();
        ProcessCondition(parent, negated);
        RequireBracket();
    } else {
        ProcessComparison(parent, negated);
    }
    WidenSource(parent, start);
}

void TKSQLParser::ProcessComparison(TSQLBracket& parent, bool negated) {
    TSQLCondition& condition = *result->NewCondition(&parent);
    condition.SetField(ProcessConditionField());
    if (scanner.EOS()) Error(messages::WrongSQL);
    if (Take(wNot)) negated = !negated;
    condition.SetNot(negated);
    const bool isBetween = Is(wBetween);
    condition.SetOperator(OperatorText());
    Step();
    if (scanner.EOS()) Error(messages::WrongSQL);
    bool isSubQuery = false;
    const size_t start = scanner.GetBookmark();
    std::string_view value = WithSingleQuotes(ProcessConditionValue(isSubQuery));
    if (isBetween) value = ProcessSecondValue(value, start, isSubQuery);
    condition.SetValue(value);
    condition.SetIsSubQuery(isSubQuery);
}

/// The token in lower case.
std::string_view TKSQLParser::OperatorText() {
    const std::string_view written = scanner.GetRealStr();
    const bool isLower =
        std::none_of(written.begin(), written.end(), [](char c) { return c != LowerChar(c); });
    return isLower ? written : result->KeepText(scanner.GetTokStr());
}

std::string_view TKSQLParser::ProcessSecondValue(std::string_view first, size_t start,
                                                 bool& isSubQuery) {
    constexpr std::string_view joint = " and ";
    Require(wAnd);
    const std::string_view second = WithSingleQuotes(ProcessConditionValue(isSubQuery));
    std::string both(first);
    both.append(joint).append(second);
    const std::string_view written = scanner.ExtractPiece(start, scanner.GetBookmark(), false);
    return both == written ? written : result->KeepText(both);
}

/// "abc" as 'abc'. A text that only begins and ends with double quotes is an expression, and stays.
std::string_view TKSQLParser::WithSingleQuotes(std::string_view value) {
    if (value.size() < 2 || value.front() != '"' || value.back() != '"') return value;
    const std::string inner = UnquotedString(value, '"');
    return inner == value ? value : result->KeepText(QuotedString(inner));
}

std::string_view TKSQLParser::ProcessConditionField() {
    bool ignored = false;
    return ReadOperand(true, ignored);
}

std::string_view TKSQLParser::ProcessConditionValue(bool& isSubQuery) {
    return ReadOperand(false, isSubQuery);
}

std::string_view TKSQLParser::ReadOperand(bool isLeft, bool& isSubQuery) {
    const size_t start = scanner.GetBookmark();
    bool isColumn = true; // the present token stands where a column may bear any name
    const auto isEnd = [&] {
        const uint8_t word = scanner.GetTokCode();
        return (word >= wAnd && word <= wBetween) || (isLeft && word == wNot) ||
               (!isLeft && !isColumn && word >= wHaving && word <= wFetch) ||
               scanner.GetTokType() == TKTokenType::Keyword;
    };
    int depth = 0;
    for (; Is(wOpen); Step())
        ++depth;
    if (Is(wSelect)) isSubQuery = true;
    for (; !scanner.EOS(); Step()) {
        if (Is(wOpen)) {
            ++depth;
        } else if (Is(wClose)) {
            if (depth <= 0) break;
            --depth;
        } else if (depth == 0 && isEnd()) {
            break;
        }
        isColumn = Is(wPoint);
    }
    return scanner.ExtractPiece(start, scanner.GetBookmark(), false);
}

/// The source of the condition that was read last begins where its brackets and negations do.
void TKSQLParser::WidenSource(const TSQLBracket& parent, size_t start) {
    if (TSQLCondition* const condition = parent.Nodes().Last()->AsCondition())
        condition->SetSource(scanner.ExtractPiece(start, scanner.GetBookmark(), false));
}

void TKSQLParser::RequireBracket() {
    if (!Take(wClose)) Error(messages::LostBracket);
}

} // namespace tern7
