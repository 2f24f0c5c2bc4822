#include <tern7/ui/panels/appearance.h>

#include <tern7/ui/support/colors.h>

namespace tern7 {

TQPAppearance::TQPAppearance(QObject* parent)
    : QObject(parent), fieldColor(ColorFromNumber(clBlue)), operatorColor(fieldColor),
      valueColor(fieldColor), boolOpColor(fieldColor),
      options(aoFlatButtons | aoRoundButtons | aoNonEmptyBrackets | aoPopupField | aoPopupValue |
              aoAllowKeyboard | aoShowAddRow | aoShowCheckBoxes | aoAllowParams) {}

void TQPAppearance::SetFormStyle(TStyle value) {
    SetStyle(value == psAndOr ? TQPStyle::psAndOr : TQPStyle::psGroups);
}

void TQPAppearance::EndUpdate() {
    if (nesting > 0 && --nesting > 0) return;
    if (!pending) return;
    pending = false;
    emit changed();
}

void TQPAppearance::Changed() {
    if (nesting > 0)
        pending = true;
    else
        emit changed();
}

void TQPAppearance::AssignTo(TQPAppearance& other) const {
    other.BeginUpdate();
    other.SetActiveRowColor(activeRowColor);
    other.SetControlBorderColor(controlBorderColor);
    other.SetFieldColor(fieldColor);
    other.SetOperatorColor(operatorColor);
    other.SetValueColor(valueColor);
    other.SetBoolOpColor(boolOpColor);
    other.SetOptions(options);
    other.SetStyle(style);
    other.EndUpdate();
}

} // namespace tern7
