#pragma once

#include <QString>

namespace tern7 {

/// Embeddings, overrides and isolates: characters without a picture that turn the direction of all
/// text behind them. A statement with one is not what it looks like. (The marks U+200E, U+200F and
/// U+061C have no effect beyond their neighbours and are no such characters.)
inline bool TurnsDirection(QChar c) {
    return (c >= QChar(0x202A) && c <= QChar(0x202E)) || (c >= QChar(0x2066) && c <= QChar(0x2069));
}

/// A text as it can be a caption: without those, and with blanks for line breaks, tabs and other
/// control characters.
inline QString PlainLine(QString text) {
    text.removeIf(TurnsDirection);
    for (QChar& c : text)
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
            c == QChar::ParagraphSeparator)
            c = u' ';
    return text;
}

} // namespace tern7
