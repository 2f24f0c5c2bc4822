#include <tern7/ui/dialogs/mnemonics.h>

#include <QAbstractButton>
#include <QLabel>
#include <QSet>

#include <tern7/core/titles/titles.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

QString CaptionText(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->buddy() ? label->text() : QString();
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    return button ? button->text() : QString();
}

void SetCaptionText(QWidget& widget, const QString& text) {
    if (auto* label = qobject_cast<QLabel*>(&widget)) label->setText(text);
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) button->setText(text);
}

/// The letter behind the first "&" that is not one of a pair; null when there is none.
QChar MarkedLetter(const QString& text) {
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != u'&') continue;
        if (text[++i] != u'&') return text[i].toUpper();
    }
    return {};
}

/// Letters that keys of one press give.
bool IsKeyLetter(QChar c) {
    constexpr char16_t firstIdeographic = 0x2E80;
    return c.isLetter() && c.unicode() < firstIdeographic;
}

/// Where to mark a text without marks: the first letter of a word, else any letter; -1 when all of
/// them are taken.
qsizetype PlaceOfMark(const QString& plain, const QSet<QChar>& taken) {
    for (const bool anywhere : {false, true})
        for (qsizetype i = 0; i < plain.size(); ++i) {
            const bool begins = i == 0 || !plain[i - 1].isLetterOrNumber();
            if ((begins || anywhere) && IsKeyLetter(plain[i]) &&
                !taken.contains(plain[i].toUpper()))
                return i;
        }
    return -1;
}

QString Marked(const QString& caption, QSet<QChar>& taken) {
    QString plain = ToQt(PlainTitle(FromQt(caption)));
    qsizetype at = PlaceOfMark(plain, taken);
    for (QChar letter = u'A'; at < 0 && letter <= u'Z'; letter = QChar(letter.unicode() + 1)) {
        if (taken.contains(letter)) continue;
        at = plain.size() + 1;
        plain += u'(' + QString(letter) + u')';
    }
    if (at < 0) return caption;
    taken.insert(plain[at].toUpper());
    const QString before = plain.left(at), rest = plain.mid(at);
    const auto literal = [](QString text) {
        return text.replace(QStringLiteral("&"), QStringLiteral("&&"));
    };
    return literal(before) + u'&' + literal(rest);
}

} // namespace

void GiveMnemonics(QWidget& dialog) {
    QSet<QChar> taken;
    QList<QWidget*> without;
    for (QWidget* widget : dialog.findChildren<QWidget*>()) {
        const QString text = CaptionText(*widget);
        if (text.isEmpty()) continue;
        const QChar letter = MarkedLetter(text);
        if (letter.isNull() || taken.contains(letter))
            without << widget;
        else
            taken.insert(letter);
    }
    for (QWidget* widget : without)
        SetCaptionText(*widget, Marked(CaptionText(*widget), taken));
}

} // namespace tern7
