#include <tern7/ui/panels/accessible_panel.h>

#include <QAccessibleWidget>
#include <QApplication>
#include <QHash>

#include <tern7/ui/controls/drop_down_label.h>
#include <tern7/ui/panels/filter_row_view.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/panels/row_problem.h>
#include <tern7/ui/support/guarded.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

/// A line of the panel; there is none behind it while it is out of sight.
class TAccessibleLine : public QAccessibleInterface, public QAccessibleActionInterface {
    Q_DECLARE_TR_FUNCTIONS(tern7::TKQueryPanel)

public:
    TAccessibleLine(TKQueryPanel* owner, int lineNumber) : panel(owner), line(lineNumber) {}

    bool isValid() const override { return panel && line < panel->Lines().Count(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(panel);
    }
    QAccessible::Role role() const override { return QAccessible::TreeItem; }
    void setText(QAccessible::Text, const QString&) override {}

    // the controls of a row that is in sight
    int childCount() const override { return static_cast<int>(Controls().size()); }
    QAccessibleInterface* child(int index) const override {
        const std::vector<QWidget*> controls = Controls();
        const bool exists = index >= 0 && index < static_cast<int>(controls.size());
        return exists ? QAccessible::queryAccessibleInterface(controls[static_cast<size_t>(index)])
                      : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* wanted) const override {
        const std::vector<QWidget*> controls = Controls();
        for (size_t i = 0; i < controls.size(); ++i)
            if (controls[i] == wanted->object()) return static_cast<int>(i);
        return -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        for (int i = 0; i < childCount(); ++i)
            if (child(i)->rect().contains(x, y)) return child(i);
        return nullptr;
    }

    QString text(QAccessible::Text kind) const override {
        if (!isValid()) return {};
        if (kind == QAccessible::Name)
            return ToQt(panel->RowTexts().Sentence(Row(), panel->Query().Style()));
        return kind == QAccessible::Description ? Place() : QString();
    }

    QRect rect() const override {
        if (!isValid() || !panel->isVisible()) return {};
        const QRect place = panel->LineRect(line);
        return {panel->viewport()->mapToGlobal(place.topLeft()), place.size()};
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.focusable = state.selectable = true;
        state.selected = &panel->CurrentRow() == &Row();
        state.checkable = Row().Parent() != nullptr;
        state.checked = state.checkable && Row().GetEnabled();
        state.expandable = state.expanded = Row().IsBracket();
        state.invisible = !panel->isVisible();
        state.offscreen = !panel->viewport()->rect().intersects(panel->LineRect(line));
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override {
        QStringList names;
        if (isValid()) names << setFocusAction() << showMenuAction();
        if (isValid() && Row().Parent()) names << toggleAction();
        return names;
    }
    void doAction(const QString& name) override {
        if (!actionNames().contains(name)) return;
        TKQueryPanel* owner = panel; // this may be gone behind the call
        TFilterRow& row = Row();
        const bool toggle = name == toggleAction(), menu = name == showMenuAction();
        const QRect place = rect();
        Guarded(owner, [&, owner] {
            if (toggle)
                owner->Do([&](TKQueryEditor& e) { e.SetEnabled(row, !row.GetEnabled()); });
            else if (menu)
                owner->PopupRowMenu(row, place);
            else
                owner->FocusRow(row);
        });
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    TFilterRow& Row() const { return *panel->Lines().At(line).row; }

    std::vector<QWidget*> Controls() const {
        const TFilterRowView* view = isValid() ? panel->ExistingView(Row()) : nullptr;
        return view ? view->Controls() : std::vector<QWidget*>();
    }

    /// "level 2, 3 of 7, switched off, left out: enter a value"
    QString Place() const {
        const TRowLines::TLine& at = panel->Lines().At(line);
        QStringList pieces;
        if (const TFilterBracket* around = at.row->Parent())
            pieces << tr("level %1").arg(at.row->Level())
                   << tr("%1 of %2").arg(at.position + 1).arg(around->GetRowCount());
        if (!at.row->EffectivelyEnabled()) pieces << tr("switched off");
        const QString problem = RowProblem(*at.row);
        if (!problem.isEmpty())
            pieces << (IsLeftOut(*at.row) ? tr("left out: %1").arg(problem) : problem);
        return pieces.join(QStringLiteral(", "));
    }

    QPointer<TKQueryPanel> panel;
    int line;
};

class TAccessiblePanel : public QAccessibleWidget {
public:
    explicit TAccessiblePanel(TKQueryPanel* panel) : QAccessibleWidget(panel, QAccessible::Tree) {}
    ~TAccessiblePanel() override {
        for (const QAccessible::Id id : std::as_const(lines))
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return LineCount() + (HasAddRow() ? 1 : 0); }

    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount()) return nullptr;
        if (index == LineCount())
            return QAccessible::queryAccessibleInterface(Panel().AddRowLabel());
        if (!lines.contains(index))
            lines.insert(index, QAccessible::registerAccessibleInterface(
                                    new TAccessibleLine(&Panel(), index)));
        return QAccessible::accessibleInterface(lines.value(index));
    }

    int indexOfChild(const QAccessibleInterface* wanted) const override {
        if (wanted->object() == Panel().AddRowLabel()) return LineCount();
        for (auto line = lines.cbegin(); line != lines.cend(); ++line)
            if (QAccessible::accessibleInterface(line.value()) == wanted) return line.key();
        return -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        const QPoint inside = Panel().viewport()->mapFromGlobal(QPoint(x, y));
        const QRect addRow = Panel().AddRowLabel()->geometry();
        if (HasAddRow() && addRow.contains(inside)) return child(LineCount());
        const TFilterRow* row = Panel().RowAt(inside);
        return row ? child(Panel().Lines().LineOf(*row)) : nullptr;
    }

    QAccessibleInterface* focusChild() const override {
        const QWidget* focused = QApplication::focusWidget();
        const TFilterRowView* view = focused ? Panel().ViewOf(focused) : nullptr;
        return view ? QAccessible::queryAccessibleInterface(const_cast<QWidget*>(focused))
                    : QAccessibleWidget::focusChild();
    }

private:
    TKQueryPanel& Panel() const { return *static_cast<TKQueryPanel*>(widget()); }
    int LineCount() const { return Panel().Lines().Count(); }
    bool HasAddRow() const { return Panel().Appearance().Has(TQPAppearance::aoShowAddRow); }

    mutable QHash<int, QAccessible::Id> lines; // those that were asked for
};

QAccessibleInterface* MakeAccessiblePanel(const QString& className, QObject* object) {
    if (className != QLatin1String("tern7::TKQueryPanel")) return nullptr;
    auto* panel = qobject_cast<TKQueryPanel*>(object);
    return panel ? new TAccessiblePanel(panel) : nullptr;
}

} // namespace

void InstallAccessiblePanel() {
    static const bool installed = [] {
        QAccessible::installFactory(MakeAccessiblePanel);
        return true;
    }();
    static_cast<void>(installed);
}

} // namespace tern7
