#pragma once

#include <QFont>
#include <QString>

namespace tern7 {

/// Width in pixels of a text of one line, as it is drawn in a font.
int ternTextWidth(const QString& text, const QFont& font);

/// Height in pixels of a line in a font; it is the same for every text of one line.
int ternTextHeight(const QString& text, const QFont& font);

} // namespace tern7
