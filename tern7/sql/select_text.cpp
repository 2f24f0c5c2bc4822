#include <tern7/sql/select_text.h>

#include <algorithm>
#include <iterator>

#include <tern7/core/corekit/strings.h>
#include <tern7/core/global/errors.h>
#include <tern7/core/global/messages.h>

namespace tern7 {

namespace {

[[noreturn]] void Refuse(std::string_view message) {
    throw EKDBInfoError(std::string(message));
}

bool IsWordStart(char c) {
    return IsLetter(c) || c == '_' || static_cast<unsigned char>(c) > 127;
}
bool IsWordPart(char c) {
    return IsWordStart(c) || IsDigit(c) || c == '$' || c == '#';
}

bool IsOneOf(std::string_view word, std::initializer_list<std::string_view> words) {
    return std::any_of(words.begin(), words.end(),
                       [&](std::string_view each) { return SameText(word, each); });
}

/// Walks over the text once; each step takes one token.
class TSelectReader {
public:
    TSelectReader(std::string_view source, const TKLexis& engineLexis)
        : sql(source), lexis(engineLexis) {}

    TKSelectText Read() {
        if (sql.find('\0') != std::string_view::npos) Refuse(messages::NulInStatement);
        while (at < sql.size())
            Step();
        if (!begun) Refuse(messages::OnlySelect);
        if (depth != 0) Refuse(messages::StatementNotClosed);
        result.text.resize(TrimRight(result.text).size());
        return std::move(result);
    }

private:
    bool Is(TKEngine engine) const { return lexis.engine == engine; }
    char Next(size_t offset = 1) const {
        return at + offset < sql.size() ? sql[at + offset] : '\0';
    }

    void Step() {
        const char c = sql[at];
        if (IsSpace(c)) {
            Take(1);
        } else if (IsCommentStart()) {
            Comment();
        } else if (c == ';') {
            ended = true;
            ++at;
        } else {
            if (ended) Refuse(messages::OnlyOneStatement);
            if (IsWordStart(c))
                Word();
            else
                Sign(c);
        }
    }

    void Sign(char c) {
        const char sign = c;
        if (!begun && c != '(') Refuse(messages::OnlySelect);
        if (c == '\'' || c == '"' || c == '`') {
            Quoted(c,
                   lexis.backslashEscapes && (c == '\'' || (c == '"' && lexis.doubleQuotedText)));
        } else if (c == '[' && (Is(TKEngine::SQLite) || Is(TKEngine::Generic))) {
            Quoted(']', false);
        } else if (c == '$' && Is(TKEngine::PostgreSQL)) {
            DollarQuoted();
        } else if (c == ':' || ((c == '@' || c == '$') && Is(TKEngine::SQLite))) {
            ParameterOrCast();
        } else {
            if (c == '?') result.placeholders.push_back(result.text.size());
            if (c == '(') ++depth;
            if (c == ')' && --depth < 0) Refuse(messages::StatementNotClosed);
            Take(1);
        }
        before = sign;
    }

    /// Copies characters to the result.
    void Take(size_t count) {
        result.text.append(sql.substr(at, count));
        at += count;
    }

    /// A literal or name; a doubled quote ends one and begins the next, which comes to the same.
    void Quoted(char close, bool backslashEscapes) {
        size_t end = at + 1;
        while (end < sql.size() && sql[end] != close)
            end += backslashEscapes && sql[end] == '\\' ? 2 : 1;
        if (end >= sql.size()) Refuse(messages::StatementNotClosed);
        Take(end + 1 - at);
    }

    /// $$...$$ or $word$...$word$.
    void DollarQuoted() {
        size_t end = at + 1;
        while (end < sql.size() && (IsWordStart(sql[end]) || (IsDigit(sql[end]) && end > at + 1)))
            ++end;
        if (end >= sql.size() || sql[end] != '$') {
            Take(1);
            return;
        }
        const std::string_view tag = sql.substr(at, end + 1 - at);
        const size_t close = sql.find(tag, end + 1);
        if (close == std::string_view::npos) Refuse(messages::StatementNotClosed);
        Take(close + tag.size() - at);
    }

    /// "::" is a cast; ":word" would be taken for a placeholder.
    void ParameterOrCast() {
        if (sql[at] == ':' && Next() == ':') {
            Take(2);
            return;
        }
        if (IsWordStart(Next())) {
            size_t end = at + 1;
            while (end < sql.size() && IsWordPart(sql[end]))
                ++end;
            throw EKDBInfoError(
                FormatMessage(messages::ParameterWithoutValue, {sql.substr(at, end - at)}));
        }
        Take(1);
    }

    bool IsCommentStart() const {
        const char c = sql[at];
        if (c == '/') return Next() == '*';
        if (c == '#') return Is(TKEngine::MySQL);
        if (c != '-' || Next() != '-') return false;
        return !Is(TKEngine::MySQL) || at + 2 >= sql.size() || IsSpace(Next(2));
    }

    /// A blank stands for a comment, because drivers look for placeholders in comments too. Hints
    /// stay when there is nothing in them to be misunderstood.
    void Comment() {
        const size_t from = at;
        if (sql[at] == '/') {
            BlockComment();
        } else {
            at = std::min(sql.find('\n', at), sql.size());
        }
        const std::string_view comment = sql.substr(from, at - from);
        if (comment.starts_with("/*+") && comment.find_first_of("?'\"`:[$@") == comment.npos)
            result.text += comment;
        else
            result.text += ' ';
    }

    void BlockComment() {
        // what MySQL executes although it looks like a comment
        if (Is(TKEngine::MySQL) && (Next(2) == '!' || (Next(2) == 'M' && Next(3) == '!')))
            Refuse(messages::OnlySelect);
        int nesting = 1;
        at += 2;
        while (nesting > 0) {
            if (at + 1 >= sql.size()) Refuse(messages::StatementNotClosed);
            if (sql[at] == '*' && sql[at + 1] == '/') {
                --nesting;
                at += 2;
            } else if (Is(TKEngine::PostgreSQL) && sql[at] == '/' && sql[at + 1] == '*') {
                ++nesting;
                at += 2;
            } else {
                ++at;
            }
        }
    }

    void Word() {
        size_t end = at;
        while (end < sql.size() && IsWordPart(sql[end]))
            ++end;
        const std::string_view word = sql.substr(at, end - at);
        const bool isName = before == '.' || before == '@';
        if (!isName) Keyword(word);
        Take(word.size());
        before = 'a';
        lastWord = word;
        // E'...' has backslash escapes whatever the setting
        if (Is(TKEngine::PostgreSQL) && !isName && SameText(word, "e") && at < sql.size() &&
            sql[at] == '\'')
            Quoted('\'', true);
    }

    void Keyword(std::string_view word) {
        if (!begun) {
            isWith = SameText(word, "with");
            if (!isWith && !SameText(word, "select")) Refuse(messages::OnlySelect);
            result.canBeLimited = depth == 0;
            begun = true;
        } else if (SameText(word, "into")) {
            Refuse(messages::OnlySelect);
        } else if (isWith && !SameText(lastWord, "for") &&
                   IsOneOf(word, {"insert", "update", "delete", "merge"})) {
            Refuse(messages::OnlySelect);
        } else if (depth == 0 && IsOneOf(word, {"limit", "offset", "fetch", "for", "lock"})) {
            result.canBeLimited = false;
        }
    }

    std::string_view sql;
    const TKLexis& lexis;
    TKSelectText result;
    size_t at = 0;
    int depth = 0;
    bool begun = false; // the first word was read
    bool ended = false; // behind ";"
    bool isWith = false;
    char before = '\0'; // the sign that came last, 'a' for a word
    std::string_view lastWord;
};

} // namespace

TKSelectText ReadSelect(std::string_view sql, const TKLexis& lexis) {
    return TSelectReader(sql, lexis).Read();
}

} // namespace tern7
