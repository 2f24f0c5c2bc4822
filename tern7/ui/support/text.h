#pragma once

#include <string>
#include <string_view>

#include <QString>

namespace tern7 {

/// Texts cross between core (UTF-8) and screen here and nowhere else. Tern7::Sql has the same two, word
/// for word, because neither library may know the other.
inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) {
    return text.toStdString();
}

} // namespace tern7
