#pragma once

#include <string>
#include <string_view>

#include <QString>

namespace tern7 {

/// Texts cross between core (UTF-8) and screen here and nowhere else.
inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    return {bytes.constData(), static_cast<size_t>(bytes.size())};
}

} // namespace tern7
