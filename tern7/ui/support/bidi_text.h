#pragma once

#include <QString>

namespace tern7 {

/// A text of users or of the database as it is put into a sentence: isolated (U+2068, U+2069) where
/// directions of reading meet, so that its numbers, brackets and words keep their places. Each line
/// by itself; unchanged where all is read from the left.
QString Isolated(const QString& text);

} // namespace tern7
