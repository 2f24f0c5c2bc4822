#pragma once

#include <functional>

#include <QFrame>

class QLabel;
class QPushButton;
class QToolButton;

namespace tern7 {

/// Gives a text in the program's language, whichever that is by then.
using TWording = std::function<QString()>;

/// A line of text that is hidden until there is something to say, with an offer to do something
/// about it.
class TMessageBar : public QFrame {
    Q_OBJECT

public:
    enum class TKind { Note, Warning };

    explicit TMessageBar(QWidget* parent = nullptr);

    void Say(TKind kind, TWording text, TWording offer = {}, std::function<void()> action = {});
    void Clear();
    QString Text() const;
    /// The number of the message that is shown; 0 when there is none.
    int Shown() const { return isHidden() ? 0 : number; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void Colour();
    void Word();

    QLabel* label;
    QPushButton* button;
    QToolButton* close;
    TWording shownText, shownOffer;
    std::function<void()> whenPressed;
    TKind shownKind = TKind::Note;
    int number = 0;
    bool isColouring = false;
};

} // namespace tern7
