#pragma once

#include <string_view>

namespace tern7::proof {

/// LIKE by bytes: "%" stands for any text, "_" for one character.
inline bool MatchesLike(std::string_view text, std::string_view pattern) {
    auto skipCharacter = [&] {
        do
            text.remove_prefix(1);
        while (!text.empty() && (static_cast<unsigned char>(text[0]) & 0xC0) == 0x80);
    };
    while (!pattern.empty()) {
        const char c = pattern[0];
        if (c == '%') {
            pattern.remove_prefix(1);
            for (;; skipCharacter()) {
                if (MatchesLike(text, pattern)) return true;
                if (text.empty()) return false;
            }
        }
        if (text.empty() || (c != '_' && text[0] != c)) return false;
        pattern.remove_prefix(1);
        if (c == '_')
            skipCharacter();
        else
            text.remove_prefix(1);
    }
    return text.empty();
}

} // namespace tern7::proof
