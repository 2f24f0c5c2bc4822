#pragma once

#include <QColor>
#include <QPushButton>

namespace tern7 {

/// A small push button: square or with round corners, with or without a body of its own ("flat"),
/// with colours for the mouse above it and for being pressed. Colours that are not set come from
/// the palette. Space, Enter and the mouse press it.
class TKRndBtn : public QPushButton {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
    Q_PROPERTY(bool AutoSize READ AutoSize WRITE SetAutoSize)
    Q_PROPERTY(bool Flat READ Flat WRITE SetFlat)
    Q_PROPERTY(bool RoundCorners READ RoundCorners WRITE SetRoundCorners)
    Q_PROPERTY(QColor HoverColor READ HoverColor WRITE SetHoverColor)
    Q_PROPERTY(QColor PressedColor READ PressedColor WRITE SetPressedColor)

public:
    explicit TKRndBtn(QWidget* parent = nullptr);

    QString Caption() const { return text(); }
    void SetCaption(const QString& caption);
    /// The width follows the caption where no layout manages the button; on at first.
    bool AutoSize() const { return autoSize; }
    void SetAutoSize(bool on);
    /// A flat button shows its body only below the mouse, pressed or with the focus.
    bool Flat() const { return isFlat(); }
    void SetFlat(bool on) { setFlat(on); }
    bool RoundCorners() const { return roundCorners; }
    void SetRoundCorners(bool on);
    QColor HoverColor() const { return hoverColor; }
    void SetHoverColor(const QColor& color);
    QColor PressedColor() const { return pressedColor; }
    void SetPressedColor(const QColor& color);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {}; }

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void FitToCaption();
    QColor BodyColor() const;

    bool autoSize = true;
    bool roundCorners = true;
    QColor hoverColor;
    QColor pressedColor;
};

} // namespace tern7
