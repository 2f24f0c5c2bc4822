#pragma once

#include <QFont>

namespace tern7 {

/// Holds the system's menu font. One object is shared by all controls: see SystemMetrics.
class TKSystemMetrics {
public:
    TKSystemMetrics() { GetMetricSettings(); }

    const QFont& Font() const { return font; }
    /// Asks the system again; without an application object the font is the plain default one.
    void GetMetricSettings();

private:
    QFont font;
};

/// The shared object, made at the first call.
TKSystemMetrics& SystemMetrics();

} // namespace tern7
