#pragma once

#include <vector>

#include <QString>

namespace tern7 {

/// An edit mask, place by place.
///
///     mask  [;literals  [;blank]]          "(000) 000-0000;1;_"
///
///     0 9   a digit that is required, that may be missing      #  a digit or sign, may be missing
///     L l   a letter                                           A a  a letter or digit
///     C c   any character                                      > < <>  upper, lower, as typed
///     \x    the character x                                    !  allowed and without effect
///
/// Everything else stands for itself. The second part is read over: `UseFormattedValue` says
/// whether literals belong to the value. The third is shown in empty places, else "_".
class TEditMask {
public:
    explicit TEditMask(const QString& mask);

    /// The same mask as QLineEdit writes it.
    const QString& InputMask() const { return inputMask; }
    /// What was typed, from the text with blanks and literals that the editor shows.
    QString Typed(const QString& shown) const;

private:
    void AddLiteral(QChar c);
    void AddInput(QChar inputMaskCharacter);

    QString inputMask;
    QChar blank = u'_';
    std::vector<bool> isInput; // of each place
};

} // namespace tern7
