#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tern7/core/corekit/strings.h>

namespace tern7 {

/// The words and symbols that a scanner tells apart by number, so that a parser compares numbers
/// instead of texts. Case does not count.
class TKVocabulary {
public:
    TKVocabulary();

    /// The number of the word, from 1 in order of adding; a word that is known keeps its number.
    /// std::length_error after 127 words, std::invalid_argument for an empty one.
    uint8_t Add(std::string_view word, bool reserved);
    /// 0 for an unknown word. The text must not be empty.
    uint8_t CodeOf(std::string_view word) const {
        for (size_t slot = SlotOf(word);; slot = (slot + 1) & 255u) {
            const uint8_t code = cells[slot];
            if (code == 0 || SameText(words[code], word)) return code;
        }
    }
    uint8_t CodeOf(char symbol) const { return symbols[static_cast<unsigned char>(symbol)]; }
    /// The word in lower case.
    const std::string& Word(uint8_t code) const { return words[code]; }
    bool IsReserved(uint8_t code) const { return reservedWords[code]; }

private:
    std::vector<std::string> words; // by code; 0 is none
    std::array<uint8_t, 256> cells{};
    std::array<uint8_t, 256> symbols{};
    std::array<bool, 256> reservedWords{};

    static size_t SlotOf(std::string_view word) {
        const auto byte = [word](size_t i) { return static_cast<unsigned char>(word[i]) | 0x20u; };
        return (byte(0) * 7u + byte(word.size() - 1) * 31u + word.size()) & 255u;
    }
};

} // namespace tern7
