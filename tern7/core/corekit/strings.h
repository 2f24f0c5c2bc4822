#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

/// String routines. Texts are UTF-8. Whatever ignores case folds A to Z only, as SQL engines do
/// with names; everything else compares by bytes.
namespace tern7 {

/// A list of lines: captions, parameters, SQL text, the lines of a file.
using TStrings = std::vector<std::string>;

constexpr char LowerChar(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}
constexpr char UpperChar(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
}
constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
/// True for bytes up to and including the blank: blanks, tabs, line breaks, control characters.
constexpr bool IsSpace(char c) {
    return static_cast<unsigned char>(c) <= ' ';
}

std::string LowerCase(std::string_view text);
std::string UpperCase(std::string_view text);

/// Equality without regard to the case of A to Z.
bool SameText(std::string_view a, std::string_view b);
bool StartsText(std::string_view text, std::string_view prefix);

/// Hash and equality for containers keyed by names that ignore case.
struct TTextHash {
    using is_transparent = void;
    size_t operator()(std::string_view text) const;
};
struct TTextEqual {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return SameText(a, b); }
};

/// The text without the characters that IsSpace accepts at both ends.
std::string_view Trim(std::string_view text);
std::string_view TrimLeft(std::string_view text);
std::string_view TrimRight(std::string_view text);

/// True when the list has an item that equals the text without regard to case.
bool StrInList(std::string_view text, const TStrings& list);

/// Equality that ignores all blanks on both sides; letters compare exactly.
bool EqualToSpaces(std::string_view a, std::string_view b);

/// Equality of two pieces of SQL: blanks and case don't count but in literals, '...'.
bool SameSQLText(std::string_view a, std::string_view b);

/// True when `word` stands in `text` with no letter, digit or underscore next to it, ignoring case.
/// Bytes above 127 count as letters.
bool ContainsAsWholeWord(std::string_view text, std::string_view word);

/// The part before the first separator; the whole text when there is none.
std::string_view GetBeforeSep(std::string_view text, std::string_view separator);
/// The part after the first separator; empty when there is none.
std::string_view GetAfterSep(std::string_view text, std::string_view separator);

/// Every occurrence of `from` replaced by `to`, from left to right in one pass. An empty `from`
/// changes nothing.
std::string ReplaceStr(std::string_view text, std::string_view from, std::string_view to);
/// As ReplaceStr, finding `from` without regard to case.
std::string XReplaceStr(std::string_view text, std::string_view from, std::string_view to);

/// The text between two quote characters, embedded ones doubled.
std::string QuotedString(std::string_view text, char quote = '\'');
/// The reverse of QuotedString; a text that is not one quoted string comes back as it is.
std::string UnquotedString(std::string_view text, char quote = '\'');

size_t CharCount(std::string_view text, char c);
std::string Replicate(std::string_view piece, size_t count);

/// Lines joined by the separator, with none behind the last.
std::string JoinStrings(const TStrings& lines, std::string_view separator);
/// The lines of a text; CR LF, LF and CR end a line. A final line end does not open another line.
TStrings SplitLines(std::string_view text);

/// The name of a "name=value" line; empty when there is no "=".
std::string_view LineName(std::string_view line);
/// The value of a "name=value" line; empty when there is no "=".
std::string_view LineValue(std::string_view line);
/// The value of the first line of that name, ignoring case; empty when there is none.
std::string ValueOf(const TStrings& lines, std::string_view name);
/// Position of the first line of that name, ignoring case; -1 when there is none.
int IndexOfName(const TStrings& lines, std::string_view name);

/// The message with the first "%s" or "%d" of each argument replaced, in order.
std::string FormatMessage(std::string_view format,
                          std::initializer_list<std::string_view> arguments);

} // namespace tern7
