#pragma once

#include <QIcon>
#include <QPalette>

namespace tern7 {

enum class TDialogIcon { Create, Plus, Minus, Times, Divide, New, Delete, Sort, Up, Down };

/// A small picture in the text colour of a palette. What points in the reading direction points to
/// the left where text is read from the right.
QIcon DialogIcon(TDialogIcon kind, const QPalette& palette, Qt::LayoutDirection direction);

} // namespace tern7
