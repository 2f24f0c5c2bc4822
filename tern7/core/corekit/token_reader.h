#pragma once

#include <bitset>
#include <string_view>

namespace tern7 {

/// Cuts a text into tokens at separator characters. Separators are blanks and line breaks until
/// SetSeparatorList gives others. The text must outlive the reader.
class TKTokenReader {
public:
    explicit TKTokenReader(std::string_view text);

    void SetSeparatorList(std::string_view characters);
    bool IsSeparator(char c) const { return separators[static_cast<unsigned char>(c)]; }
    /// The next token; false at the end. Separators in a row count as one.
    bool GetToken(std::string_view& token);

private:
    std::string_view rest;
    std::bitset<256> separators;
};

} // namespace tern7
