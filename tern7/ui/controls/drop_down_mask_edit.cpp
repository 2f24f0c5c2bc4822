#include <tern7/ui/controls/drop_down_mask_edit.h>

#include <tern7/ui/controls/edit_mask.h>
#include <tern7/ui/controls/silent_edit.h>

namespace tern7 {

TDropDownMaskEdit::TDropDownMaskEdit(QWidget* parent) : TDropDownLineEdit(parent) {}

void TDropDownMaskEdit::ShowEditControl() {
    Edit()->setInputMask(TEditMask(editMask).InputMask());
    TDropDownLineEdit::ShowEditControl();
    if (Value().isEmpty()) Edit()->setCursorPosition(0);
}

void TDropDownMaskEdit::AcceptInput() {
    if (!IsEditMode() || !Edit()->isModified()) return;
    const QString typed = TEditMask(editMask).Typed(Edit()->displayText());
    SetValue(useFormattedValue && !typed.isEmpty() ? Edit()->text() : typed);
}

QString TDropDownMaskEdit::GetEditText() const {
    return Edit() ? Edit()->displayText() : QString();
}

} // namespace tern7
