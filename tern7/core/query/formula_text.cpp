#include <tern7/core/query/formula_text.h>

#include <vector>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

namespace {

struct TFunction {
    TAggregate aggregate;
    std::string_view name;
    std::string_view sqlTemplate;
};

constexpr TFunction aggregateFunctions[] = {
    {TAggregate::Sum, "SUM", "SUM(@1)"},     {TAggregate::Count, "COUNT", "COUNT(@1)"},
    {TAggregate::Min, "MIN", "MIN(@1)"},     {TAggregate::Max, "MAX", "MAX(@1)"},
    {TAggregate::Average, "AVG", "AVG(@1)"},
};

bool IsFunctionChar(char c) {
    return IsLetter(c) || IsDigit(c) || c == '_' || c == '$' || static_cast<unsigned char>(c) > 127;
}

/// Position behind a literal, a quoted name or a field in braces that begins at `i`; `i` itself
/// when none does, and behind the text's end when it is not closed. Doubled closing signs belong to
/// it.
size_t SkipEnclosed(std::string_view text, size_t i) {
    const char open = text[i];
    if (open != '\'' && open != '"' && open != '`' && open != '{') return i;
    const char close = open == '{' ? '}' : open;
    for (++i; i < text.size(); ++i) {
        if (text[i] != close) continue;
        if (i + 1 >= text.size() || text[i + 1] != close) return i + 1;
        ++i;
    }
    return text.size() + 1;
}

/// Calls `visit(position, depth)` for every character outside literals, names and braces; depth
/// counts the round brackets around it.
template <class Visit>
void Walk(std::string_view text, Visit visit) {
    int depth = 0;
    for (size_t i = 0; i < text.size();) {
        const size_t behind = SkipEnclosed(text, i);
        if (behind > i) {
            i = behind;
            continue;
        }
        if (text[i] == ')') --depth;
        visit(i, depth);
        if (text[i] == '(') ++depth;
        ++i;
    }
}

/// True when the bracket at `open` is closed by the last character.
bool EnclosesRest(std::string_view text, size_t open) {
    size_t close = text.size();
    int wanted = 0;
    Walk(text, [&](size_t i, int depth) {
        if (i == open) wanted = depth;
        if (text[i] == ')' && i > open && depth == wanted && close == text.size()) close = i;
    });
    return close + 1 == text.size();
}

/// A sign with something before it that it can join.
bool JoinsAt(std::string_view text, size_t i) {
    for (size_t before = i; before-- > 0;)
        if (!IsSpace(text[before]))
            return std::string_view("(,+-*/").find(text[before]) == std::string_view::npos;
    return false;
}

/// True when one of the signs joins the outermost parts.
bool IsJoinedBy(std::string_view text, std::string_view signs) {
    bool joined = false;
    Walk(text, [&](size_t i, int depth) {
        const bool sign = depth == 0 && signs.find(text[i]) != std::string_view::npos;
        joined = joined || (sign && JoinsAt(text, i));
    });
    return joined;
}

std::string Bracketed(std::string_view text, bool brackets) {
    return brackets ? "(" + std::string(text) + ")" : std::string(text);
}

} // namespace

std::string_view AggregateTemplate(TAggregate aggregate) {
    for (const TFunction& function : aggregateFunctions)
        if (function.aggregate == aggregate) return function.sqlTemplate;
    return "@1";
}

TAggregateParts SplitAggregate(std::string_view expression) {
    const std::string_view text = Trim(expression);
    for (const TFunction& function : aggregateFunctions) {
        const size_t length = function.name.size();
        if (text.size() < length + 2 || !SameText(text.substr(0, length), function.name)) continue;
        const size_t open = text.find_first_not_of(" \t\r\n", length);
        if (open == std::string_view::npos || text[open] != '(' || !EnclosesRest(text, open))
            continue;
        return {function.aggregate, Trim(text.substr(open + 1, text.size() - open - 2))};
    }
    return {TAggregate::None, text};
}

std::string WithAggregate(std::string_view expression, TAggregate aggregate) {
    const std::string_view inner = SplitAggregate(expression).inner;
    return ReplaceStr(AggregateTemplate(aggregate), "@1", inner);
}

bool HoldsAggregate(std::string_view expression) {
    const std::string_view inner = SplitAggregate(expression).inner;
    bool found = false;
    Walk(inner, [&](size_t open, int) {
        if (inner[open] != '(') return;
        const size_t end = inner.find_last_not_of(" \t\r\n", open == 0 ? 0 : open - 1) + 1;
        for (const TFunction& function : aggregateFunctions) {
            if (end < function.name.size() || end > open) continue;
            const size_t from = end - function.name.size();
            const bool whole = from == 0 || !IsFunctionChar(inner[from - 1]);
            const std::string_view word = inner.substr(from, function.name.size());
            found = found || (whole && SameText(word, function.name));
        }
    });
    return found;
}

std::optional<size_t> UnclosedAt(std::string_view expression) {
    std::vector<size_t> open;
    for (size_t i = 0; i < expression.size();) {
        const size_t behind = SkipEnclosed(expression, i);
        if (behind > i) {
            if (behind > expression.size()) return i;
            i = behind;
            continue;
        }
        if (expression[i] == '(') open.push_back(i);
        if (expression[i] == ')') {
            if (open.empty()) return i;
            open.pop_back();
        }
        ++i;
    }
    if (open.empty()) return std::nullopt;
    return open.front();
}

std::optional<size_t> CommentOrEndAt(std::string_view expression) {
    std::optional<size_t> found;
    Walk(expression, [&](size_t i, int) {
        const std::string_view two = expression.substr(i, 2);
        if (!found && (two == "--" || two == "/*" || two.front() == ';')) found = i;
    });
    return found;
}

bool HoldsWords(std::string_view expression) {
    bool found = false;
    Walk(expression, [&](size_t i, int) {
        const bool letter =
            IsLetter(expression[i]) || static_cast<unsigned char>(expression[i]) > 127;
        found = found || letter;
    });
    return found;
}

std::string JoinedBy(char operation, std::string_view expression, std::string_view operand) {
    const TAggregateParts parts = SplitAggregate(expression);
    if (parts.inner.empty()) return WithAggregate(operand, parts.aggregate);
    const bool product = operation == '*' || operation == '/';
    const std::string_view looser = product ? "+-|" : "|";
    const std::string_view asLoose = operation == '+'   ? "|"
                                     : operation == '-' ? "+-|"
                                     : operation == '*' ? "+-/|"
                                                        : "+-*/|";
    const std::string joined = Bracketed(parts.inner, IsJoinedBy(parts.inner, looser)) + " " +
                               operation + " " + Bracketed(operand, IsJoinedBy(operand, asLoose));
    return WithAggregate(joined, parts.aggregate);
}

} // namespace tern7
