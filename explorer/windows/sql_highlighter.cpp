#include "sql_highlighter.h"

#include <QGuiApplication>
#include <QPalette>
#include <QSet>
#include <QTextCharFormat>

#include <tern7/ui/support/plain_line.h>

namespace tern7 {

namespace {

const QSet<QString>& Keywords() {
    static const QSet<QString> words = [] {
        QSet<QString> all;
        for (const char* word :
             {"select", "distinct", "from",  "where",  "and",     "or",     "not",   "in",
              "is",     "null",     "like",  "escape", "between", "exists", "any",   "all",
              "some",   "join",     "inner", "left",   "right",   "full",   "outer", "cross",
              "on",     "group",    "by",    "having", "order",   "asc",    "desc",  "as",
              "union",  "limit",    "case",  "when",   "then",    "else",   "end",   "sum",
              "count",  "min",      "max",   "avg",    "cast"})
            all.insert(QLatin1String(word));
        return all;
    }();
    return words;
}

bool IsWordChar(QChar c) {
    return c.isLetterOrNumber() || c == u'_' || c == u'$' || c == u'#';
}

// What a line may end within.
enum TState { stPlain = 0, stLiteral = 1, stQuotedName = 2, stComment = 3 };

} // namespace

TSQLHighlighter::TSQLHighlighter(QTextDocument* document) : QSyntaxHighlighter(document) {}

void TSQLHighlighter::highlightBlock(const QString& text) {
    const bool dark = QGuiApplication::palette().color(QPalette::Base).lightness() < 128;
    QTextCharFormat keyword, literal, number, comment;
    keyword.setFontWeight(QFont::Bold);
    keyword.setForeground(QGuiApplication::palette().color(QPalette::Link));
    literal.setForeground(dark ? QColor(0x9C, 0xD6, 0x8A) : QColor(0x2E, 0x6B, 0x1F));
    number.setForeground(dark ? QColor(0xE0, 0xB0, 0x70) : QColor(0x8A, 0x4B, 0x00));
    comment.setForeground(QGuiApplication::palette().color(QPalette::Disabled, QPalette::Text));

    int state = std::max(previousBlockState(), 0);
    const auto end = static_cast<int>(text.size());
    int at = 0;
    // Ends a piece at a closing text, or goes on in the next line.
    const auto piece = [&](int from, int searchFrom, const QString& closing, TState inside,
                           const QTextCharFormat& format) {
        const auto close = static_cast<int>(text.indexOf(closing, searchFrom));
        state = close < 0 ? inside : stPlain;
        at = close < 0 ? end : close + static_cast<int>(closing.size());
        setFormat(from, at - from, format);
    };
    const QTextCharFormat plain;
    if (state == stLiteral) piece(0, 0, QStringLiteral("'"), stLiteral, literal);
    if (state == stQuotedName) piece(0, 0, QStringLiteral("\""), stQuotedName, plain);
    if (state == stComment) piece(0, 0, QStringLiteral("*/"), stComment, comment);
    while (at < end) {
        const QChar c = text[at];
        const QChar next = at + 1 < end ? text[at + 1] : QChar();
        if (c == u'\'') {
            piece(at, at + 1, QStringLiteral("'"), stLiteral, literal);
        } else if (c == u'"') {
            piece(at, at + 1, QStringLiteral("\""), stQuotedName, plain);
        } else if (c == u'/' && next == u'*') {
            piece(at, at + 2, QStringLiteral("*/"), stComment, comment);
        } else if (c == u'-' && next == u'-') {
            setFormat(at, end - at, comment);
            at = end;
        } else if (IsWordChar(c)) {
            const int from = at;
            while (at < end && (IsWordChar(text[at]) || (c.isDigit() && text[at] == u'.')))
                ++at;
            if (c.isDigit())
                setFormat(from, at - from, number);
            else if (Keywords().contains(text.mid(from, at - from).toLower()))
                setFormat(from, at - from, keyword);
        } else {
            ++at;
        }
    }
    // they have no picture, but what they do to the text behind them is seen
    for (int i = 0; i < end; ++i) {
        if (!TurnsDirection(text[i])) continue;
        QTextCharFormat warning;
        warning.setBackground(dark ? QColor(0x7A, 0x2A, 0x2A) : QColor(0xFF, 0xC8, 0xC8));
        setFormat(i, end - i, warning);
        break;
    }
    setCurrentBlockState(state);
}

} // namespace tern7
