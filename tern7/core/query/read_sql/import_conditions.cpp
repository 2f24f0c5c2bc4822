// Conditions as ImportSQL reads them: the tree keeps brackets and negations as they are written.

#include <tern7/core/global/messages.h>
#include <tern7/core/query/read_sql/import_parser.h>

namespace tern7 {

using TNodeKind = TImportNode::TKind;

TImportNode* TImportParser::ReadOr() {
    const size_t start = At();
    TImportNode* const first = ReadAnd();
    if (!Is(wOr)) return first;
    TImportNode& group = statement.NewNode(TNodeKind::Or);
    group.nodes.push_back(first);
    while (Take(wOr))
        group.nodes.push_back(ReadAnd());
    group.all = {start, At()};
    return &group;
}

TImportNode* TImportParser::ReadAnd() {
    const size_t start = At();
    TImportNode* const first = ReadNot();
    if (!Is(wAnd)) return first;
    TImportNode& group = statement.NewNode(TNodeKind::And);
    group.nodes.push_back(first);
    while (Take(wAnd))
        group.nodes.push_back(ReadNot());
    group.all = {start, At()};
    return &group;
}

TImportNode* TImportParser::ReadNot() {
    const size_t start = At();
    bool negated = false;
    while (Take(wNot))
        negated = !negated;
    TImportNode* const node = ReadFactor();
    return negated ? Negated(*node, start) : node;
}

TImportNode* TImportParser::Negated(TImportNode& node, size_t start) {
    node.all.from = start;
    if (node.IsGroup()) {
        node.negated = !node.negated;
        return &node;
    }
    if (!node.notBefore) {
        node.notBefore = true;
        node.notBrackets = node.brackets;
        node.brackets = 0;
        node.body = {start, At()};
        return &node;
    }
    TImportNode& group = statement.NewNode(TNodeKind::And);
    group.nodes.push_back(&node);
    group.all = node.all;
    group.inBrackets = group.negated = true;
    return &group;
}

TImportNode* TImportParser::ReadFactor() {
    if (!Is(wOpen) || !IsBooleanBracket()) return ReadComparison();
    const size_t open = At();
    Step();
    const std::string_view behind = Scanner().ExtractPiece(open, At(), true).substr(1);
    const bool opensRows =
        behind.find_first_of(nested ? " \r\n" : "\r\n") != std::string_view::npos;
    TImportNode* node = ReadOr();
    if (!Take(wClose)) Error(messages::LostBracket);
    if (!node->IsGroup() && !opensRows) {
        ++node->brackets; // belongs to the condition
    } else if (!node->IsGroup() || (node->inBrackets && opensRows)) {
        TImportNode& group = statement.NewNode(TNodeKind::And);
        group.nodes.push_back(node);
        node = &group;
    }
    node->inBrackets = true;
    node->all = {open, At()};
    return node;
}

/// A bracket around a condition, not around a part of an expression: what follows it says so.
bool TImportParser::IsBooleanBracket() {
    const size_t open = At();
    Step();
    const bool isSelect = Is(wSelect);
    Scanner().GotoBookmark(CloseOf(open));
    const bool isClosed = Is(wClose);
    Step();
    const bool endsCondition =
        Is(wAnd) || Is(wOr) || Is(wClose) || Is(wComma) || AtClauseEnd() || AtJoin();
    Scanner().GotoBookmark(open);
    return !isSelect && (!isClosed || endsCondition);
}

bool TImportParser::EndsOperand(size_t start) {
    if (Is(wAnd) || Is(wOr) || Is(wComma)) return true;
    if (At() == start) return Scanner().GetTokType() == TKTokenType::Keyword;
    // a name behind a point, and a function, are none of these words
    Scanner().GotoBookmark(At() - 1);
    const bool isColumn = Is(wPoint);
    Step();
    if (isColumn) return Scanner().EOS();
    if (AtClauseEnd()) return true;
    if (!inOn || !AtJoin()) return false;
    if (Is(wJoin)) return true;
    Step();
    const bool isFunction = Is(wOpen);
    Scanner().GotoBookmark(At() - 1);
    return !isFunction;
}

TImportNode* TImportParser::ReadComparison() {
    const size_t start = At();
    size_t comparison = start; // bookmark of the operator
    size_t passing = 0;        // "and" that belong to "between"
    int cases = 0;
    bool isBehindNot = false;
    TImportNode& node = statement.NewNode(TNodeKind::Condition);
    for (; !Scanner().EOS() && !Is(wClose); Step()) {
        if (IsText("case")) ++cases;
        if (IsText("end") && cases > 0) --cases;
        if (Is(wOpen)) {
            Scanner().GotoBookmark(CloseOf(At()));
            if (!Is(wClose)) Error(messages::LostBracket);
        } else if (cases == 0) {
            if (Is(wAnd) && passing > 0)
                --passing;
            else if (EndsOperand(start))
                break;
            if (Is(wBetween)) ++passing;
            const uint8_t word = Scanner().GetTokCode();
            if (comparison == start && word >= wEqual && word <= wBetween) {
                comparison = At();
                node.op = Scanner().GetTokStr();
                node.notInside = isBehindNot;
            }
        }
        isBehindNot = Is(wNot);
    }
    node.all = node.body = {start, At()};
    node.left = node.all;
    if (!node.op.empty()) {
        node.left.to = comparison - (node.notInside ? 1 : 0);
        node.right = {comparison + 1, At()};
    }
    if (passing > 0 || node.left.IsEmpty() || (!node.op.empty() && node.right.IsEmpty()))
        Error(messages::WrongSQL);
    const size_t end = At();
    Scanner().GotoBookmark(node.right.from);
    node.isNot = node.op == "is" && Is(wNot) && node.right.to > node.right.from + 1;
    node.isSubQuery = !node.op.empty() && Take(wOpen) && Is(wSelect);
    Scanner().GotoBookmark(end);
    return &node;
}

} // namespace tern7
