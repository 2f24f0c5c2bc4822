#pragma once

#include <exception>

#include <QPointer>
#include <QWidget>

namespace tern7 {

/// Tells the user beside a widget that something was refused, and writes it to the warnings.
void ReportError(QWidget* widget, const std::exception& error);

/// Runs what a mouse or key event asked for. An exception must not travel through Qt's event loop,
/// so it ends here and is reported. The call may delete the widget.
template <class Call>
void Guarded(QWidget* widget, Call&& call) {
    const QPointer<QWidget> alive(widget);
    try {
        call();
    } catch (const std::exception& error) {
        ReportError(alive, error);
    }
}

} // namespace tern7
