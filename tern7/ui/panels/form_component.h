#pragma once

#include <QWidget>

namespace tern7 {

/// A component of a form that is not seen when the program runs: only widgets can stand on a form
/// in a form editor, so it is a small widget with a name, shown at design time only.
class TFormComponent : public QWidget {
    Q_OBJECT

public:
    explicit TFormComponent(QWidget* parent = nullptr);

    /// Set once by a form editor's plugin: from now on components show themselves.
    static void SetDesignTime(bool on);

    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

/// The component of that name on the form of a widget: the nearest ancestor that has one below it.
/// Forms create their components in any order, so this is asked when it is needed and not before.
template <class Component>
Component* FindComponent(const QWidget& widget, const QString& name) {
    if (name.isEmpty()) return nullptr;
    for (const QWidget* form = widget.parentWidget(); form; form = form->parentWidget())
        if (auto* found = form->findChild<Component*>(name)) return found;
    return nullptr;
}

} // namespace tern7
