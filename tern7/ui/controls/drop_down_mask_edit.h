#pragma once

#include <tern7/ui/controls/drop_down_edit.h>

namespace tern7 {

/// A label that is edited in an edit box with a mask. The value is the text with the mask's
/// literals when `UseFormattedValue` is set, else only what was typed, and empty when nothing was.
/// Leaving without an edit changes nothing, so that a value that does not fit the mask is not cut.
class TDropDownMaskEdit : public TDropDownLineEdit {
    Q_OBJECT
    Q_PROPERTY(QString EditMask READ EditMask WRITE SetEditMask)
    Q_PROPERTY(bool UseFormattedValue READ UseFormattedValue WRITE SetUseFormattedValue)

public:
    explicit TDropDownMaskEdit(QWidget* parent = nullptr);

    /// The language of masks is described at TEditMask; an empty mask takes any text.
    QString EditMask() const { return editMask; }
    void SetEditMask(const QString& mask) { editMask = mask; }
    bool UseFormattedValue() const { return useFormattedValue; }
    void SetUseFormattedValue(bool on) { useFormattedValue = on; }

protected:
    void AcceptInput() override;
    void ShowEditControl() override;
    QString GetEditText() const override;

private:
    QString editMask;
    bool useFormattedValue = false;
};

} // namespace tern7
