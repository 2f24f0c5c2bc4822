#include <tern7/ui/controls/edit_mask.h>

#include <algorithm>

#include <QStringList>

namespace tern7 {

namespace {

// One table: a mask character and the same in an input mask of QLineEdit.
constexpr struct {
    char16_t mask, inputMask;
} inputs[] = {{u'0', u'9'}, {u'9', u'0'}, {u'#', u'#'}, {u'L', u'A'}, {u'l', u'a'},
              {u'A', u'N'}, {u'a', u'n'}, {u'C', u'X'}, {u'c', u'x'}};

QChar InputCharacter(QChar c) {
    for (const auto& input : inputs)
        if (c == input.mask) return input.inputMask;
    return {};
}

} // namespace

TEditMask::TEditMask(const QString& mask) {
    qsizetype i = 0;
    for (; i < mask.size() && mask[i] != u';'; ++i) {
        const QChar c = mask[i];
        const bool last = i + 1 == mask.size();
        if (c == u'\\' && !last) {
            AddLiteral(mask[++i]);
        } else if (c == u'<' && !last && mask[i + 1] == u'>') {
            inputMask += u'!';
            ++i;
        } else if (c == u'<' || c == u'>') {
            inputMask += c;
        } else if (const QChar input = InputCharacter(c); !input.isNull()) {
            AddInput(input);
        } else if (c != u'!') {
            AddLiteral(c);
        }
    }
    const QStringList rest = mask.mid(i).split(u';');
    if (rest.size() > 2 && !rest[2].isEmpty()) blank = rest[2][0];
    if (!inputMask.isEmpty()) inputMask += QStringLiteral(";") + blank;
}

void TEditMask::AddLiteral(QChar c) {
    if (QStringLiteral("AaNnXx90Dd#HhBb><!\\[]{};").contains(c)) inputMask += u'\\';
    inputMask += c;
    isInput.push_back(false);
}

void TEditMask::AddInput(QChar inputMaskCharacter) {
    inputMask += inputMaskCharacter;
    isInput.push_back(true);
}

QString TEditMask::Typed(const QString& shown) const {
    if (inputMask.isEmpty()) return shown;
    QString typed;
    const auto places = std::min(shown.size(), static_cast<qsizetype>(isInput.size()));
    for (qsizetype i = 0; i < places; ++i)
        if (isInput[static_cast<size_t>(i)] && shown[i] != blank) typed += shown[i];
    return typed;
}

} // namespace tern7
