#include <tern7/ui/support/text_size.h>

#include <QFontMetrics>

namespace tern7 {

int ternTextWidth(const QString& text, const QFont& font) {
    return QFontMetrics(font).horizontalAdvance(text);
}

int ternTextHeight(const QString& text, const QFont& font) {
    return QFontMetrics(font).size(Qt::TextSingleLine, text).height();
}

} // namespace tern7
