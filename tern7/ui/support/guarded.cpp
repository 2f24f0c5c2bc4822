#include <tern7/ui/support/guarded.h>
#include <tern7/ui/support/tool_tip_text.h>

#include <QString>
#include <QToolTip>

namespace tern7 {

void ReportError(QWidget* widget, const std::exception& error) {
    qWarning("%s", error.what());
    if (!widget || !widget->isVisible()) return;
    const QPoint below = widget->mapToGlobal(QPoint(0, widget->height()));
    QToolTip::showText(below, ToolTipText(QString::fromUtf8(error.what())), widget);
}

} // namespace tern7
