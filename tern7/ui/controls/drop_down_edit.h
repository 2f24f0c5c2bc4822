#pragma once

#include <typeinfo>

#include <tern7/ui/controls/drop_down_label.h>
#include <tern7/ui/controls/silent_edit.h>

namespace tern7 {

/// A label that is edited in place: the editor stands where the label was and grows with its text.
/// Enter accepts, Escape discards, leaving the editor accepts.
class TDropDownCustomEdit : public TDropDownLabel {
    Q_OBJECT
    Q_PROPERTY(TValueType ValueType READ ValueType WRITE SetValueType)
    Q_PROPERTY(bool AutoUpperCase READ AutoUpperCase WRITE SetAutoUpperCase)
    Q_PROPERTY(bool AutoLowerCase READ AutoLowerCase WRITE SetAutoLowerCase)
    Q_PROPERTY(QColor BorderColor READ BorderColor WRITE SetBorderColor)

public:
    /// Which keys the editor takes.
    enum class TValueType { vtInteger = 0, vtFloat = 1, vtString = 2 };
    Q_ENUM(TValueType)
    enum TOption : int { optAutoUpperCase = 1, optAutoLowerCase = 2 };

    explicit TDropDownCustomEdit(QWidget* parent = nullptr);

    TValueType ValueType() const { return valueType; }
    void SetValueType(TValueType type) { valueType = type; }
    /// Option bits: reads true when all the given bits are set.
    bool GetOption(int bits) const { return (options & bits) == bits; }
    void SetOption(int bits, bool on) { options = on ? options | bits : options & ~bits; }
    /// New values are put into upper or lower case; upper wins when both are set.
    bool AutoUpperCase() const { return GetOption(optAutoUpperCase); }
    void SetAutoUpperCase(bool on) { SetOption(optAutoUpperCase, on); }
    bool AutoLowerCase() const { return GetOption(optAutoLowerCase); }
    void SetAutoLowerCase(bool on) { SetOption(optAutoLowerCase, on); }
    /// The line around the open editor; invalid means the palette's highlight.
    QColor BorderColor() const { return borderColor; }
    void SetBorderColor(const QColor& color) { borderColor = color; }

    /// Sizes and places the editor over the label.
    void AdjustPlacement();
    /// What the editor does with a key; a null character means that it is swallowed.
    void EditKeyPress(QWidget* sender, QChar& key);

    TChangeValueEvent OnEditDblClick;

protected:
    void ShowControl() override;
    void HideControl() override;
    void ValueChanged() override;
    bool IsEditMode() const override;
    void BiDiModeChanged() override;

    virtual void EditExit();
    virtual void EditDblClick();
    virtual void AdjustSizes();
    virtual void AdjustPosition();
    virtual void ShowEditControl() {}
    virtual QString GetEditText() const { return {}; }
    virtual void SetEditText(const QString&) {}

    /// Connects an editor's events to the rules above.
    void Listen(TEditorEvents& events);

private:
    bool IsWindowDestroyed() const;
    bool TakesKey(QChar key) const;
    void KeepInSight(QWidget& editor) const;

    TValueType valueType = TValueType::vtString;
    int options = 0;
    QColor borderColor;
    QPointer<QWidget> openIn; // the window, and its class while it lived
    const std::type_info* openInClass = nullptr;
};

using TValueType = TDropDownCustomEdit::TValueType;

/// What the editors with an edit box share: its value is the text.
class TDropDownLineEdit : public TDropDownCustomEdit {
    Q_OBJECT

public:
    explicit TDropDownLineEdit(QWidget* parent = nullptr);
    ~TDropDownLineEdit() override;

    QWidget* EditControl() const override;

protected:
    void CreateControl() override;
    void AcceptInput() override;
    void ShowEditControl() override;
    QString GetEditText() const override;
    void SetEditText(const QString& text) override;

    TSilentEdit* Edit() const { return edit; }

private:
    QPointer<TSilentEdit> edit;
};

/// A label that is edited in an edit box.
class TDropDownEdit : public TDropDownLineEdit {
    Q_OBJECT

public:
    explicit TDropDownEdit(QWidget* parent = nullptr);
};

} // namespace tern7
