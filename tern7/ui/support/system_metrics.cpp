#include <tern7/ui/support/system_metrics.h>

#include <QApplication>

namespace tern7 {

void TKSystemMetrics::GetMetricSettings() {
    const bool hasSystem = qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
    font = hasSystem ? QApplication::font("QMenu") : QFont();
}

TKSystemMetrics& SystemMetrics() {
    static TKSystemMetrics metrics;
    return metrics;
}

} // namespace tern7
