#include <tern7/core/corekit/strings.h>
#include <tern7/core/query/condition_text.h>

namespace tern7 {

namespace {

/// Walks over a text as an SQL engine does, with backslashes in literals as escapes or not.
bool IsSafe(std::string_view text, bool backslashEscapes) {
    int depth = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const char next = i + 1 < text.size() ? text[i + 1] : '\0';
        switch (c) {
        case '\0':
        case ';':
        case '#':
            return false;
        case '-':
            if (next == '-') return false;
            break;
        case '/':
            if (next == '*') return false;
            break;
        case '(':
            ++depth;
            break;
        case ')':
            if (--depth < 0) return false;
            break;
        case '\'':
        case '"':
        case '`': {
            // a doubled quote ends one literal and begins the next, which comes to the same
            size_t end = i + 1;
            while (end < text.size() && text[end] != c) {
                if (text[end] == '\0') return false;
                end += backslashEscapes && text[end] == '\\' && c != '`' ? 2 : 1;
            }
            if (end >= text.size()) return false;
            i = end;
            break;
        }
        default:
            break;
        }
    }
    return depth == 0;
}

} // namespace

bool IsSafeFragment(std::string_view text) {
    return IsSafe(text, false) && IsSafe(text, true);
}

} // namespace tern7
