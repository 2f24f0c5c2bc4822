#pragma once

#include <QColor>
#include <QFont>
#include <QLabel>
#include <QPointer>

#include <tern7/ui/controls/control_events.h>

namespace tern7 {

/// A text that shows a value like a link and drops down an editor over itself when it is clicked,
/// or when Space, Enter, F2, F4 or Alt+Down is pressed. When the editor closes ("drops up") its
/// input is accepted or discarded.
///
///     idle --Click, key, EditMode := true--> dropped --DropUp(accept)--> idle
///
/// This class has no editor of its own: `OnCustomDropDown` may show a dialog. Every event may
/// delete the label. A label that no layout manages takes the size of its text.
class TDropDownLabel : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption NOTIFY captionChanged)
    Q_PROPERTY(QString Value READ Value WRITE SetValue NOTIFY valueChanged)
    Q_PROPERTY(bool Fixed READ Fixed WRITE SetFixed)
    Q_PROPERTY(bool Focused READ Focused WRITE SetFocused STORED false DESIGNABLE false)
    Q_PROPERTY(bool Dropped READ Dropped STORED false DESIGNABLE false)
    Q_PROPERTY(bool EditMode READ EditMode WRITE SetEditMode STORED false DESIGNABLE false)
    Q_PROPERTY(bool ArrowKeys READ ArrowKeys WRITE SetArrowKeys)
    Q_PROPERTY(QColor FontColor READ FontColor WRITE SetFontColor)
    Q_PROPERTY(Qt::LayoutDirection BiDiMode READ BiDiMode WRITE SetBiDiMode STORED false)

public:
    explicit TDropDownLabel(QWidget* parent = nullptr);
    ~TDropDownLabel() override;

    /// The displayed text; an empty one shows as five underscores. "&" stands for itself.
    QString Caption() const;
    void SetCaption(const QString& caption);
    const QString& Value() const { return value; }
    /// A different text is stored and shown; the same text does nothing.
    void SetValue(const QString& newValue);
    /// Shows a text that somebody else made of the value; nobody is told of the value.
    void ShowValue(const QString& newValue, const QString& caption);
    /// A fixed label never drops down.
    bool Fixed() const { return fixed; }
    void SetFixed(bool on);
    /// Draws the focus frame also when the keyboard focus is elsewhere.
    bool Focused() const { return focused; }
    void SetFocused(bool on);
    bool Dropped() const { return dropped; }
    bool EditMode() const { return IsEditMode(); }
    /// Opens the editor, or closes it and accepts.
    void SetEditMode(bool on);
    /// Whether the arrow keys move the focus to the nearest control beside; on at first. A key that
    /// leads nowhere goes on to the parent.
    bool ArrowKeys() const { return arrowKeys; }
    void SetArrowKeys(bool on) { arrowKeys = on; }
    /// The text's colour; an invalid colour means the palette's link colour.
    QColor FontColor() const { return fontColor; }
    void SetFontColor(const QColor& color);
    Qt::LayoutDirection BiDiMode() const { return layoutDirection(); }
    void SetBiDiMode(Qt::LayoutDirection direction) { setLayoutDirection(direction); }

    void Click();
    void AltClick();
    void DropDown();
    /// Closes the editor. Nothing happens when the label is not dropped, or is dropping up already.
    void DropUp(bool accept);
    /// The inner area of the editor while it is open, else of the label.
    virtual QRect GetClientRect() const;
    /// The control that edits the value, or null.
    virtual QWidget* EditControl() const { return nullptr; }

    /// The index is -1 when nobody knows an image.
    void DoGetGroupImageIndex(const QString& groupName, int& imageIndex) const;
    void DoGetItemImageIndex(const QString& groupName, const QString& itemName,
                             int& imageIndex) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    TNotifyEvent BeforeDropDown;
    TNotifyEvent AfterDropDown;
    /// Its value is always empty, on purpose: existing handlers expect that the text which is being
    /// accepted is not handed to them.
    TBeforeDropUpEvent BeforeDropUp;
    TAfterDropUpEvent AfterDropUp;
    TCustomDropDownEvent OnCustomDropDown;
    TAltClickEvent OnAltClick;
    TNotifyEvent OnRightClick;
    TGetGroupImageIndexEvent OnGetGroupImageIndex;
    TGetItemImageIndexEvent OnGetItemImageIndex;

signals:
    void captionChanged(const QString& caption);
    void valueChanged(const QString& value);
    void clicked();
    void altClicked();
    void rightClicked();
    void droppedDown();
    void droppedUp(bool accepted);

protected:
    /// Makes the editor on the label's parent; called again when the parent changes.
    virtual void CreateControl() {}
    virtual void ShowControl();
    virtual void HideControl() {}
    virtual void AcceptInput();
    virtual void ValueChanged();
    virtual bool IsEditMode() const { return false; }
    virtual void BiDiModeChanged() {}
    virtual void DoBeforeDropUp(bool& accept);
    virtual void DoAfterDropUp(bool accepted);
    virtual void DoRightClick();

    /// Replaces the value without telling anybody.
    void StoreValue(const QString& newValue) { value = newValue; }
    /// Calls CreateControl once; editors are made at their first use.
    void EnsureControl() const;
    bool HasControl() const { return hasControl; }
    /// The colour and font that the text is drawn with.
    QColor TextColor() const;
    QFont TextFont() const;

    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void paintEvent(QPaintEvent* event) override;

private:
    void Click(Qt::KeyboardModifiers modifiers);
    void FinishDropUp(bool accepted);
    void AbortDropDown();
    void FitToText();
    void ShowCursor();
    const QSize& TextSize() const;

    QString value;
    QString editValue; // what a custom drop-down edits; empty outside one
    QColor fontColor;
    bool fixed = false;
    bool focused = false;
    bool dropped = false;
    bool droppingUp = false;
    bool pressed = false;
    bool arrowKeys = true;
    mutable bool hasControl = false;
    // what was measured last: measuring takes longer than all else that a change of texts needs
    mutable QString measuredText;
    mutable QFont measuredFont;
    mutable QSize measuredSize;
};

} // namespace tern7
