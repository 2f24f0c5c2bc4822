#include <tern7/core/corekit/vocabulary.h>

#include <stdexcept>

namespace tern7 {

TKVocabulary::TKVocabulary() : words(1) {}

uint8_t TKVocabulary::Add(std::string_view word, bool reserved) {
    if (word.empty()) throw std::invalid_argument("empty word");
    uint8_t code = CodeOf(word);
    if (code == 0) {
        if (words.size() > 127) throw std::length_error("too many words");
        code = static_cast<uint8_t>(words.size());
        words.push_back(LowerCase(word));
        size_t slot = SlotOf(word);
        while (cells[slot] != 0)
            slot = (slot + 1) & 255u;
        cells[slot] = code;
        if (word.size() == 1) symbols[static_cast<unsigned char>(words.back()[0])] = code;
    }
    reservedWords[code] = reservedWords[code] || reserved;
    return code;
}

} // namespace tern7
