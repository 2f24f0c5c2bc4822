#include <tern7/ui/controls/accessible_label.h>

#include <QAccessibleWidget>
#include <QCoreApplication>

#include <tern7/ui/controls/accessible_menu.h>
#include <tern7/ui/controls/drop_down_label.h>
#include <tern7/ui/controls/popup_menu.h>
#include <tern7/ui/support/guarded.h>

namespace tern7 {

namespace {

/// A label is read as a button that opens something: its name (the field it belongs to, or what it
/// shows), what it shows as value, and "press to change".
class TAccessibleLabel : public QAccessibleWidget {
    Q_DECLARE_TR_FUNCTIONS(tern7::TDropDownLabel)

public:
    explicit TAccessibleLabel(TDropDownLabel* label)
        : QAccessibleWidget(label, QAccessible::ButtonMenu) {}

    QString text(QAccessible::Text kind) const override {
        const TDropDownLabel& label = Label();
        const bool empty = label.Value().isEmpty() && label.Caption() == QStringLiteral("_____");
        switch (kind) {
        case QAccessible::Name:
            if (!label.accessibleName().isEmpty()) return label.accessibleName();
            return empty ? tr("empty") : label.Caption();
        case QAccessible::Value:
            return empty ? QString() : label.Caption();
        case QAccessible::Description: {
            QString own = label.accessibleDescription();
            if (label.Fixed()) return own;
            return own.isEmpty() ? tr("press to change") : tr("%1, press to change").arg(own);
        }
        default:
            return QAccessibleWidget::text(kind);
        }
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = Label().Fixed();
        state.hasPopup = state.expandable = !Label().Fixed();
        state.expanded = Label().Dropped();
        state.collapsed = state.expandable && !state.expanded;
        return state;
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (widget()->isEnabled() && !Label().Fixed()) names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& name) override {
        if (name != pressAction()) return QAccessibleWidget::doAction(name);
        if (!widget()->isEnabled()) return;
        Guarded(widget(),
                [this] { Label().Dropped() ? Label().DropUp(true) : Label().DropDown(); });
    }

    QStringList keyBindingsForAction(const QString& name) const override {
        if (name == pressAction()) return {QStringLiteral("Space"), QStringLiteral("F2")};
        return QAccessibleWidget::keyBindingsForAction(name);
    }

private:
    TDropDownLabel& Label() const { return *static_cast<TDropDownLabel*>(widget()); }
};

QAccessibleInterface* MakeAccessible(const QString& className, QObject* object) {
    if (className == QLatin1String("tern7::TDropDownLabel"))
        if (auto* label = qobject_cast<TDropDownLabel*>(object)) return new TAccessibleLabel(label);
    if (className == QLatin1String("tern7::TKPopupMenu"))
        if (auto* menu = qobject_cast<TKPopupMenu*>(object)) return MakeAccessibleMenu(menu);
    return nullptr;
}

} // namespace

void InstallAccessibleControls() {
    static const bool installed = [] {
        QAccessible::installFactory(MakeAccessible);
        return true;
    }();
    static_cast<void>(installed);
}

} // namespace tern7
