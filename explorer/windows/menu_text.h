#pragma once

#include <QString>

namespace tern7 {

/// A text as it stands, in a menu or beside a buddy: "&" marks no key in it.
inline QString MenuText(QString text) {
    return text.replace(u'&', QStringLiteral("&&"));
}

} // namespace tern7
