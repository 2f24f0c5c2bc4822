#pragma once

#include <cstdint>

#include <QColor>
#include <QPalette>

namespace tern7 {

/// Colour numbers in texts and published defaults are blue-green-red: 0xFF0000 is blue.
constexpr uint32_t clBlue = 0xFF0000;
constexpr uint32_t clNavy = 0x800000;

QColor ColorFromNumber(uint32_t bgr);
uint32_t ColorToNumber(const QColor& color);

/// True when text is lighter than what it stands on.
bool IsDark(const QPalette& palette);

/// The colour to draw with: a default that is made for light ground gives way to the link colour of
/// a dark palette; a colour that somebody chose is taken as it is.
QColor ReadableColor(const QColor& color, const QColor& publishedDefault, const QPalette& palette);

} // namespace tern7
