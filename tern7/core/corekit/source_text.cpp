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
    const std::string_view before = Text().substr(0, offset);
    TKTextPosition position;
    size_t lineStart = 0;
    for (size_t i = 0; i < before.size(); ++i) {
        const bool ends =
            before[i] == '\n' || (before[i] == '\r' && text.compare(i, 2, "\r\n") != 0);
        if (!ends) continue;
        ++position.line;
        lineStart = i + 1;
    }
    const auto isCharacter = [](char c) { return (static_cast<unsigned char>(c) & 0xC0u) != 0x80; };
    position.column += static_cast<int>(std::count_if(
        before.begin() + static_cast<std::ptrdiff_t>(lineStart), before.end(), isCharacter));
    return position;
}

} // namespace tern7
