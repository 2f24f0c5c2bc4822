#pragma once

#include <functional>

#include <QFrame>

class QLabel;
class QPushButton;

namespace tern7 {

/// A line of text that is hidden until there is something to say, with an offer to do something
/// about it.
class TMessageBar : public QFrame {
    Q_OBJECT

public:
    enum class TKind { Note, Warning };

    explicit TMessageBar(QWidget* parent = nullptr);

    void Say(TKind kind, const QString& text, const QString& offer = {},
             const std::function<void()>& action = {});
    void Clear();
    QString Text() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void Colour();

    QLabel* label;
    QPushButton* button;
    std::function<void()> whenPressed;
    TKind shownKind = TKind::Note;
};

} // namespace tern7
