#include <tern7/ui/support/bidi_text.h>

#include <algorithm>

#include <QGuiApplication>

namespace tern7 {

QString Isolated(const QString& text) {
    const auto fromRight = [](QChar c) {
        return c.direction() == QChar::DirR || c.direction() == QChar::DirAL;
    };
    if (text.isEmpty() ||
        (!QGuiApplication::isRightToLeft() && std::none_of(text.begin(), text.end(), fromRight)))
        return text;
    QString isolated = text;
    isolated.replace(u'\n', QStringLiteral("\u2069\n\u2068"));
    return QChar(0x2068) + isolated + QChar(0x2069);
}

} // namespace tern7
