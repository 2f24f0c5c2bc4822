#pragma once

#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

/// The names of the sections of a text, in order, without brackets.
TStrings ReadSLSections(const TStrings& lines);
/// The lines of the first section of that name (ignoring case), up to the next section header, as
/// they stand; empty lines at the end are left out. Empty when the section is missing.
TStrings XReadSLSectionValues(const TStrings& lines, std::string_view section);

/// One section of an INI-like text: views into the text, which must outlive it.
class TKIniSection {
public:
    /// `sectionName` and `sectionBody` lie in the text that begins at `textStart`.
    TKIniSection(std::string_view sectionName, std::string_view sectionBody, const char* textStart)
        : name(sectionName), body(sectionBody), origin(textStart) {}

    std::string_view Name() const { return name; }
    /// The text between this header and the next one, as it stands.
    std::string_view Body() const { return body; }
    /// 1-based line of the header; counted in the text before it.
    int Line() const;
    /// The lines of the body, empty lines at the end left out.
    TStrings Lines() const;

    /// True when the section has the key, ignoring case. Keys asked for in the order in which they
    /// stand are found at once, whatever the size of the section.
    bool Has(std::string_view key) const;
    /// The value of the key as it stands behind "="; empty when the key is missing.
    std::string_view Raw(std::string_view key) const {
        return StandsNext(key) ? TakeNext(key.size()) : FindRaw(key);
    }
    /// The value of the key; where the key stands with the suffix ".Encoded" instead, its value
    /// decoded (DecodePercent). Empty when both are missing.
    std::string Text(std::string_view key) const {
        return StandsNext(key) ? std::string(TakeNext(key.size())) : FindText(key);
    }
    /// Integer value; `otherwise` when the key is missing or empty, EKTernError naming section and
    /// key when the value is no integer.
    int Int(std::string_view key, int otherwise = 0) const {
        const std::string_view value = Raw(key);
        if (value.empty() || value.size() > 9) return ToInt(key, value, otherwise);
        int number = 0;
        for (char c : value) {
            if (!IsDigit(c)) return ToInt(key, value, otherwise);
            number = number * 10 + (c - '0');
        }
        return number;
    }
    /// Boolean value; `otherwise` when missing or empty, EKTernError when it is neither 0 nor 1
    /// (nor a word that XStrToBool knows).
    bool Bool(std::string_view key, bool otherwise = false) const {
        const std::string_view value = Raw(key);
        if (value == "0" || value == "1") return value == "1";
        return ToBool(key, value, otherwise);
    }

private:
    std::string_view name;
    std::string_view body;
    const char* origin;
    mutable size_t next = 0; // offset behind the last key found: the search starts there and wraps

    struct TFound {
        std::string_view value;
        bool encoded = false; // the key stood with the suffix
    };
    std::optional<TFound> Find(std::string_view key, bool orEncoded) const;
    std::optional<TFound> FindWithin(size_t from, size_t to, std::string_view key,
                                     bool orEncoded) const;
    // Keys mostly are asked for in the order in which they stand: that is tried first, in line.
    bool StandsNext(std::string_view key) const {
        return body.size() - next > key.size() && body[next + key.size()] == '=' &&
               std::memcmp(body.data() + next, key.data(), key.size()) == 0;
    }
    std::string_view TakeNext(size_t keySize) const;
    std::string_view FindRaw(std::string_view key) const;
    std::string FindText(std::string_view key) const;
    int ToInt(std::string_view key, std::string_view value, int otherwise) const;
    bool ToBool(std::string_view key, std::string_view value, bool otherwise) const;
    [[noreturn]] void FailValue(std::string_view key, std::string_view value) const;
};

/// An INI-like text cut into sections, indexed by name once; views into the text, which must
/// outlive it. A header is a line whose first character is "[" and whose last, blanks at the end
/// aside, is "]". Linear in the text.
class TKIniText {
public:
    explicit TKIniText(std::string_view text);

    const std::vector<TKIniSection>& Sections() const { return sections; }
    /// The first section of that name, ignoring case; none when it is missing.
    const TKIniSection* Find(std::string_view name) const;
    /// The first section of that name at or behind the position in Sections(), else the first of
    /// all; none when it is missing. Logarithmic in the number of sections of that name.
    const TKIniSection* FindFrom(size_t position, std::string_view name) const;
    size_t PositionOf(const TKIniSection& section) const;

private:
    std::vector<TKIniSection> sections;
    // Made when a name is first asked for. Open hash of names: 0 is empty, else 1 + the number of a
    // name. The positions of the sections of name n, ascending, are positions[starts[n]] up to
    // positions[starts[n + 1]].
    mutable std::vector<uint32_t> cells;
    mutable std::vector<uint32_t> starts;
    mutable std::vector<uint32_t> positions;

    void Cut(std::string_view text);
    void Index() const;
};

/// True when the text can stand behind "=" as it is: no line break, no blank at either end, no NUL,
/// and UTF-8, for a reader would take the whole text for another encoding.
bool FitsOnLine(std::string_view text);
/// "%", CR, LF, NUL and blanks at the ends as "%" and two hex digits; in a text that is no UTF-8
/// every byte above 127 too.
std::string EncodePercent(std::string_view text);
/// The reverse; a "%" without two hex digits behind it stays.
std::string DecodePercent(std::string_view text);

/// Writes an INI-like text into one string, lines ended by LF.
class TKIniWriter {
public:
    void Section(std::string_view name);
    /// A text that is no UTF-8 is taken for Windows-1252, as a reader would.
    void Line(std::string_view line);
    /// As it stands; the value must fit on a line (an assertion in debug builds).
    void Key(std::string_view key, std::string_view value);
    void Key(std::string_view key, int value);
    void Bool(std::string_view key, bool value); // 0 or 1
    /// `key=value`, or `key.Encoded=` and the percent-encoded value when it does not fit on a line.
    void Text(std::string_view key, std::string_view value);
    /// A line of a free text: one whose first character after any blanks is "[" gets a blank in
    /// front, so that it can not be taken for a header.
    void BodyLine(std::string_view line);

    std::string Take() { return std::move(text); }

private:
    std::string text;
};

/// A line written by TKIniWriter::BodyLine as it was before.
std::string_view UnprotectBodyLine(std::string_view line);

/// The text without the mark of the byte order that some programs put before it.
std::string_view WithoutByteOrderMark(std::string_view text);

/// What DecodeTextFile found.
struct TKDecodedText {
    std::string text;            ///< UTF-8 without a byte order mark
    bool wasWindows1252 = false; ///< the text was no UTF-8 and was read as Windows-1252 as a whole
};
TKDecodedText DecodeTextFile(std::string bytes);
/// False for overlong forms, surrogates, and whatever else is no UTF-8.
bool IsUTF8(std::string_view text);

/// Splits a text at line ends: calls nothing, yields one line per call. CR LF and LF end a line; a
/// final line end does not open another line.
class TKLineReader {
public:
    explicit TKLineReader(std::string_view text) : rest(text) {}
    bool Next(std::string_view& line);

private:
    std::string_view rest;
};

} // namespace tern7
