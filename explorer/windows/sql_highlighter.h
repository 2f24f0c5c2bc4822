#pragma once

#include <QSyntaxHighlighter>

namespace tern7 {

/// Colours keywords, literals, numbers, names in quotes and comments of a statement, after the
/// palette.
class TSQLHighlighter : public QSyntaxHighlighter {
    Q_OBJECT

public:
    explicit TSQLHighlighter(QTextDocument* document);

protected:
    void highlightBlock(const QString& text) override;
};

} // namespace tern7
