#include <tern7/ui/support/colors.h>

namespace tern7 {

QColor ColorFromNumber(uint32_t bgr) {
    return {static_cast<int>(bgr & 0xFF), static_cast<int>(bgr >> 8 & 0xFF),
            static_cast<int>(bgr >> 16 & 0xFF)};
}

uint32_t ColorToNumber(const QColor& color) {
    return static_cast<uint32_t>(color.red()) | static_cast<uint32_t>(color.green()) << 8 |
           static_cast<uint32_t>(color.blue()) << 16;
}

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::WindowText).lightness() >
           palette.color(QPalette::Window).lightness();
}

QColor ReadableColor(const QColor& color, const QColor& publishedDefault, const QPalette& palette) {
    if (color == publishedDefault && IsDark(palette)) return palette.color(QPalette::Link);
    return color;
}

} // namespace tern7
