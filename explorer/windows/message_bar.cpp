#include "message_bar.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace tern7 {

namespace {

/// The colour of the window, tinted.
QColor Tinted(const QColor& base, const QColor& tint) {
    const auto mix = [](int a, int b) { return (a * 4 + b) / 5; };
    return {mix(base.red(), tint.red()), mix(base.green(), tint.green()),
            mix(base.blue(), tint.blue())};
}

} // namespace

TMessageBar::TMessageBar(QWidget* parent)
    : QFrame(parent), label(new QLabel), button(new QPushButton), close(new QToolButton) {
    setAutoFillBackground(true);
    setFrameShape(QFrame::StyledPanel);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText); // it quotes values and databases
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    close->setText(QStringLiteral("×"));
    close->setAutoRaise(true);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 4, 4);
    row->addWidget(label, 1);
    row->addWidget(button);
    row->addWidget(close);
    connect(close, &QToolButton::clicked, this, &TMessageBar::Clear);
    connect(button, &QPushButton::clicked, this, [this] {
        const std::function<void()> action = whenPressed;
        Clear();
        if (action) action();
    });
    Word();
    hide();
}

void TMessageBar::Say(TKind kind, TWording text, TWording offer, std::function<void()> action) {
    shownKind = kind;
    shownText = std::move(text);
    shownOffer = std::move(offer);
    whenPressed = std::move(action);
    ++number;
    Word();
    button->setVisible(shownOffer != nullptr);
    Colour();
    show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void TMessageBar::Clear() {
    hide();
    shownText = shownOffer = nullptr;
    whenPressed = nullptr;
    Word();
}

QString TMessageBar::Text() const {
    return isHidden() ? QString() : label->text();
}

void TMessageBar::Word() {
    label->setText(shownText ? shownText() : QString());
    button->setText(shownOffer ? shownOffer() : QString());
    close->setAccessibleName(tr("Close the message"));
}

void TMessageBar::Colour() {
    const QColor base = parentWidget() ? parentWidget()->palette().color(QPalette::Window)
                                       : palette().color(QPalette::Window);
    QPalette tinted; // all else is that of the window
    tinted.setColor(QPalette::Window,
                    Tinted(base, shownKind == TKind::Warning ? QColor(0xE0, 0x90, 0x00)
                                                             : QColor(0x30, 0x80, 0xE0)));
    isColouring = true;
    setPalette(tinted);
    isColouring = false;
}

void TMessageBar::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    const bool isLook =
        event->type() == QEvent::StyleChange || event->type() == QEvent::PaletteChange;
    if (isLook && !isColouring && shownText) Colour();
    if (event->type() == QEvent::LanguageChange) Word();
}

} // namespace tern7
