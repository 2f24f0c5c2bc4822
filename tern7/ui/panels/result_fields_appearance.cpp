#include <tern7/ui/panels/result_fields_appearance.h>

#include <tern7/ui/support/colors.h>

namespace tern7 {

TRFPAppearance::TRFPAppearance(QObject* parent)
    : QObject(parent), fieldColor(ColorFromNumber(clBlue)), sortColor(ColorFromNumber(clBlue)),
      options(aoFlatButtons | aoRoundButtons | aoPopupField) {}

void TRFPAppearance::AssignTo(TRFPAppearance& other) const {
    other.leftMargin = leftMargin;
    other.topMargin = topMargin;
    other.rowSpace = rowSpace;
    other.elemSpace = elemSpace;
    other.fieldColor = fieldColor;
    other.sortColor = sortColor;
    other.options = options;
    emit other.changed();
}

} // namespace tern7
