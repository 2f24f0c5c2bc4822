#include <tern7/ui/panels/form_component.h>

#include <QPainter>

namespace tern7 {

namespace {

bool designTime = false;

} // namespace

TFormComponent::TFormComponent(QWidget* parent) : QWidget(parent) {
    resize(TFormComponent::sizeHint());
    if (!designTime) hide();
}

void TFormComponent::SetDesignTime(bool on) {
    designTime = on;
}

QSize TFormComponent::sizeHint() const {
    const int side = 2 * fontMetrics().height();
    return {side, side};
}

/// A form that is shown shows its children; this one stays hidden.
void TFormComponent::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!designTime) hide();
}

void TFormComponent::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().color(QPalette::Button));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const QString name = QString::fromLatin1(metaObject()->className());
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(rect(), Qt::AlignCenter, name.section(QStringLiteral("::TK"), -1).left(2));
}

} // namespace tern7
