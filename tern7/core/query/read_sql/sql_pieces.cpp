#include <tern7/core/query/read_sql/sql_pieces.h>

#include <algorithm>

#include <tern7/core/corekit/strings.h>
#include <tern7/core/corekit/tokens.h>
#include <tern7/core/structure/structure.h>

namespace tern7 {

namespace {

/// The tokens of a piece of a statement; a name in double quotes is one.
class TPieceTokens {
public:
    explicit TPieceTokens(std::string_view sql) : text(sql), tokens(Cut(sql)) {}

    size_t Count() const { return tokens.Count() - 1; }
    std::string_view operator[](size_t i) const {
        return text.substr(tokens.Begin(i), tokens.End(i) - tokens.Begin(i));
    }
    bool IsSymbol(size_t i) const { return tokens.Type(i) == TKTokenType::Symbol; }
    size_t Begin(size_t i) const { return tokens.Begin(i); }
    size_t End(size_t i) const { return tokens.End(i); }
    /// How a token changes the depth of brackets.
    int Step(size_t i) const {
        const char c = tokens.End(i) - tokens.Begin(i) == 1 ? text[tokens.Begin(i)] : '\0';
        return c == '(' ? 1 : c == ')' ? -1 : 0;
    }

private:
    static TKTokens Cut(std::string_view sql) {
        static const TKVocabulary noWords;
        static const TKTokens::TNameQuotes quotes = [] {
            TKTokens::TNameQuotes made{};
            made['"'] = '"';
            made['`'] = '`';
            return made;
        }();
        return {sql, noWords, quotes};
    }

    std::string_view text;
    TKTokens tokens;
};

} // namespace

std::string_view WithoutOuterBrackets(std::string_view sql) {
    const TPieceTokens tokens(sql);
    const size_t count = tokens.Count();
    size_t opening = 0, closing = 0;
    while (opening < count && tokens.Step(opening) > 0)
        ++opening;
    while (closing < count && tokens.Step(count - 1 - closing) < 0)
        ++closing;
    if (opening + closing >= count) return sql;
    // brackets that are closed and opened again in between enclose less than all
    int depth = static_cast<int>(opening), least = depth;
    for (size_t i = opening; i < count - closing; ++i) {
        depth += tokens.Step(i);
        least = std::min(least, depth);
    }
    const size_t enclosing = std::min(closing, static_cast<size_t>(std::max(least, 0)));
    const size_t last = count - 1 - enclosing;
    return sql.substr(tokens.Begin(enclosing), tokens.End(last) - tokens.Begin(enclosing));
}

std::string JoinedTokens(std::string_view sql) {
    const TPieceTokens tokens(sql);
    std::string joined;
    for (size_t i = 0; i < tokens.Count(); ++i) {
        const bool wouldMeet =
            i > 0 && ((!tokens.IsSymbol(i) && !tokens.IsSymbol(i - 1)) ||
                      (tokens[i - 1] == "-" && tokens[i] == "-") ||
                      (tokens[i - 1] == "/" && tokens[i] == "*")); // would open a comment
        if (wouldMeet && tokens.Begin(i) > tokens.End(i - 1)) joined += ' ';
        joined += tokens[i];
    }
    return joined;
}

std::string_view MirroredOperator(std::string_view op) {
    if (op == "<") return ">";
    if (op == ">") return "<";
    if (op == "<=") return ">=";
    if (op == ">=") return "<=";
    return op == "=" || op == "<>" || op == "!=" ? op : std::string_view();
}

std::vector<TDSTable*> TablesOfText(const TKCustomDBStructure& structure, std::string_view sql) {
    const TPieceTokens tokens(sql);
    std::string outer; // the text outside sub-selects
    size_t from = 0;
    int depth = 0, selectDepth = 0;
    for (size_t i = 0; i < tokens.Count(); ++i) {
        depth += tokens.Step(i);
        if (selectDepth == 0 && SameText(tokens[i], "select")) {
            outer.append(sql.substr(from, tokens.Begin(i) - from));
            selectDepth = std::max(depth, 1);
        } else if (selectDepth > 0 && depth < selectDepth) {
            from = tokens.Begin(i);
            selectDepth = 0;
        }
    }
    if (selectDepth == 0) outer.append(sql.substr(from));
    return structure.TablesOfExpression(outer);
}

} // namespace tern7
