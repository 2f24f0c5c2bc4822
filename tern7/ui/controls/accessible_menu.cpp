#include <tern7/ui/controls/accessible_menu.h>

#include <QAccessibleWidget>
#include <QHash>
#include <QLineEdit>

#include <tern7/ui/controls/popup_menu.h>
#include <tern7/ui/support/guarded.h>

namespace tern7 {

namespace {

class TAccessibleRow : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    TAccessibleRow(TKPopupMenu* owner, int rowIndex) : menu(owner), row(rowIndex) {}

    const TKPopupMenu* Menu() const { return menu; }
    int Row() const { return row; }

    bool isValid() const override { return menu && row < menu->RowCount(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(menu);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    void setText(QAccessible::Text, const QString&) override {}
    QAccessible::Role role() const override {
        return isValid() && Item().IsSeparator() ? QAccessible::Separator : QAccessible::MenuItem;
    }

    QString text(QAccessible::Text kind) const override {
        if (!isValid() || Item().IsSeparator()) return {};
        if (kind == QAccessible::Name) return Item().PlainCaption();
        // A hit of a search is read with the group that it comes from.
        const bool isHit = Item().Parent() != &menu->Items();
        return kind == QAccessible::Description && isHit ? Item().Parent()->PlainCaption()
                                                         : QString();
    }

    QRect rect() const override {
        if (!isValid() || !menu->isVisible()) return {};
        const QRect place = menu->RowRect(row);
        return {menu->mapToGlobal(place.topLeft()), place.size()};
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const bool current = menu->CurrentRow() == row;
        state.focusable = state.selectable = !Item().IsSeparator();
        state.focused = state.selected = current;
        state.disabled = !Item().Enabled;
        state.checkable = Item().Checked || Item().RadioItem;
        state.checked = Item().Checked;
        state.hasPopup = Item().HasSubMenu();
        state.invisible = !menu->isVisible();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override {
        const bool works = isValid() && Item().Enabled && !Item().IsSeparator();
        return works ? QStringList{pressAction()} : QStringList();
    }
    void doAction(const QString& name) override {
        if (!actionNames().contains(name)) return;
        const int pressed = row; // the menu, and this with it, may be gone behind the call
        TKPopupMenu* owner = menu;
        Guarded(owner, [owner, pressed] { owner->Activate(pressed); });
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    TMenuItem& Item() const { return *menu->Row(row); }

    QPointer<TKPopupMenu> menu;
    int row;
};

class TAccessibleMenu : public QAccessibleWidget {
public:
    explicit TAccessibleMenu(TKPopupMenu* menu) : QAccessibleWidget(menu, QAccessible::PopupMenu) {}
    ~TAccessibleMenu() override {
        for (const QAccessible::Id id : std::as_const(rows))
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return Menu().RowCount() + (Menu().SearchField() ? 1 : 0); }

    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount()) return nullptr;
        if (index == Menu().RowCount())
            return QAccessible::queryAccessibleInterface(Menu().SearchField());
        if (!rows.contains(index))
            rows.insert(index, QAccessible::registerAccessibleInterface(
                                   new TAccessibleRow(&Menu(), index)));
        return QAccessible::accessibleInterface(rows.value(index));
    }

    int indexOfChild(const QAccessibleInterface* wanted) const override {
        if (Menu().SearchField() && wanted->object() == Menu().SearchField())
            return Menu().RowCount();
        const auto* row = dynamic_cast<const TAccessibleRow*>(wanted);
        return row && row->Menu() == &Menu() ? row->Row() : -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        const QPoint at = Menu().mapFromGlobal(QPoint(x, y));
        if (const int row = Menu().RowAt(at); row >= 0) return child(row);
        const QLineEdit* search = Menu().SearchField();
        return search && search->geometry().contains(at) ? child(Menu().RowCount()) : nullptr;
    }

    QAccessibleInterface* focusChild() const override { return child(Menu().CurrentRow()); }

private:
    TKPopupMenu& Menu() const { return *static_cast<TKPopupMenu*>(widget()); }

    mutable QHash<int, QAccessible::Id> rows; // those that were asked for
};

} // namespace

QAccessibleInterface* MakeAccessibleMenu(TKPopupMenu* menu) {
    return new TAccessibleMenu(menu);
}

} // namespace tern7
