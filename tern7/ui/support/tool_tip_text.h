#pragma once

#include <QString>
#include <QTextDocument>

namespace tern7 {

/// What a tool tip is given so that it shows a text as it stands: tool tips take what looks like
/// HTML for it, and show the escapes of what does not.
inline QString ToolTipText(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace tern7
