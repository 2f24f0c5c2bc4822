#include <tern7/core/corekit/token_reader.h>

namespace tern7 {

TKTokenReader::TKTokenReader(std::string_view text) : rest(text) {
    SetSeparatorList(" \t\r\n\f\v");
}

void TKTokenReader::SetSeparatorList(std::string_view characters) {
    separators.reset();
    for (char c : characters)
        separators.set(static_cast<unsigned char>(c));
}

bool TKTokenReader::GetToken(std::string_view& token) {
    size_t start = 0;
    while (start < rest.size() && IsSeparator(rest[start]))
        ++start;
    size_t end = start;
    while (end < rest.size() && !IsSeparator(rest[end]))
        ++end;
    token = rest.substr(start, end - start);
    rest.remove_prefix(end);
    return !token.empty();
}

} // namespace tern7
