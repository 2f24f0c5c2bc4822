#include <tern7/core/corekit/source_text.h>

#include <algorithm>
#include <functional>
#include <limits>

#include <tern7/core/corekit/errors.h>
#include <tern7/core/corekit/messages.h>

namespace tern7 {

TKSourceText::TKSourceText(std::string source) : text(std::move(source)) {
    if (text.size() >= std::numeric_limits<uint32_t>::max())
        throw EKTernError(std::string(messages::TextTooLong));
}

bool TKSourceText::Owns(std::string_view piece) const {
    const std::less_equal<const char*> notAfter;
    return notAfter(text.data(), piece.data()) &&
           notAfter(piece.data() + piece.size(), text.data() + text.size());
}

TKTextPosition TKSourceText::PositionOf(size_t offset) const {
    return TKPositionWalk(*this).At(offset);
}

TKTextPosition TKPositionWalk::At(size_t offset) {
    const auto continuesCharacter = [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0u) == 0x80;
    };
    for (; at < std::min(offset, text.size()); ++at) {
        if (text[at] == '\n' || (text[at] == '\r' && text.compare(at, 2, "\r\n") != 0)) {
            ++position.line;
            position.column = 1;
        } else if (!continuesCharacter(text[at])) {
            ++position.column;
        }
    }
    return position;
}

} // namespace tern7
