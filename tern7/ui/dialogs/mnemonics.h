#pragma once

class QWidget;

namespace tern7 {

/// Gives each caption of a dialog a letter of its own for the Alt key: texts of buttons and check
/// boxes, and labels that have a buddy. A letter that the text marks with "&" is kept where it is
/// the first that asks for it. Captions come from titles, which may mark no letter or one twice.
void GiveMnemonics(QWidget& dialog);

} // namespace tern7
