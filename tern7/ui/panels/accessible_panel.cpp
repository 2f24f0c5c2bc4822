#include <tern7/ui/panels/accessible_panel.h>

#include <algorithm>
#include <unordered_set>

#include <QAccessibleWidget>
#include <QApplication>
#include <QHash>
#include <QScrollBar>

#include <tern7/ui/controls/drop_down_label.h>
#include <tern7/ui/panels/filter_row_view.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/panels/row_problem.h>
#include <tern7/ui/support/guarded.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

/// A row of the panel, which has no widget while it is out of sight. It goes before its row does.
class TAccessibleLine : public QAccessibleInterface, public QAccessibleActionInterface {
    Q_DECLARE_TR_FUNCTIONS(tern7::TKQueryPanel)

public:
    TAccessibleLine(TKQueryPanel* owner, TFilterRow* shownRow) : panel(owner), row(shownRow) {}

    /// -1 when it has none, as a bracket in the and/or style.
    int Line() const { return panel->Lines().LineOf(*row); }

    bool isValid() const override { return panel && Line() >= 0; }
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
            return ToQt(panel->RowTexts().Sentence(*row, panel->Query().Style()));
        return kind == QAccessible::Description ? Place() : QString();
    }

    QRect rect() const override {
        if (!isValid() || !panel->isVisible()) return {};
        const QRect place = panel->LineRect(Line());
        return {panel->viewport()->mapToGlobal(place.topLeft()), place.size()};
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.focusable = state.selectable = true;
        state.selected = &panel->CurrentRow() == row;
        state.checkable = row->Parent() != nullptr;
        state.checked = state.checkable && row->GetEnabled();
        state.expandable = state.expanded = row->IsBracket();
        state.invisible = !panel->isVisible();
        state.offscreen = !panel->viewport()->rect().intersects(panel->LineRect(Line()));
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override {
        QStringList names;
        if (isValid()) names << setFocusAction() << showMenuAction();
        if (isValid() && row->Parent()) names << toggleAction();
        return names;
    }
    void doAction(const QString& name) override {
        if (!actionNames().contains(name)) return;
        TKQueryPanel* owner = panel; // this may be gone behind the call
        TFilterRow& meant = *row;
        const bool toggle = name == toggleAction(), menu = name == showMenuAction();
        const QRect place = rect();
        Guarded(owner, [&, owner] {
            if (toggle)
                owner->Do([&](TKQueryEditor& e) { e.SetEnabled(meant, !meant.GetEnabled()); });
            else if (menu)
                owner->PopupRowMenu(meant, place);
            else
                owner->FocusRow(meant);
        });
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    std::vector<QWidget*> Controls() const {
        const TFilterRowView* view = isValid() ? panel->ExistingView(*row) : nullptr;
        return view ? view->Controls() : std::vector<QWidget*>();
    }

    /// "level 2, 3 of 7, switched off, left out: enter a value"
    QString Place() const {
        const TRowLines::TLine& at = panel->Lines().At(Line());
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
    TFilterRow* row;
};

/// Screen readers hear of rows that they asked for, and of those that come into sight: what is out
/// of sight costs nothing until it is read.
class TAccessiblePanel : public QAccessibleWidget, private TAccessibleRows {
public:
    explicit TAccessiblePanel(TKQueryPanel* panel) : QAccessibleWidget(panel, QAccessible::Tree) {
        panel->SetAccessibleRows(this);
    }
    ~TAccessiblePanel() override {
        if (auto* panel = qobject_cast<TKQueryPanel*>(object())) panel->SetAccessibleRows(nullptr);
        for (const QAccessible::Id id : std::as_const(rows))
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return LineCount() + (HasAddRow() ? 1 : 0); }

    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount()) return nullptr;
        if (index == LineCount())
            return QAccessible::queryAccessibleInterface(Panel().AddRowLabel());
        return RowInterface(*Panel().Lines().At(index).row);
    }

    int indexOfChild(const QAccessibleInterface* wanted) const override {
        if (wanted->object() == Panel().AddRowLabel()) return LineCount();
        const auto* line = dynamic_cast<const TAccessibleLine*>(wanted);
        return line && line->isValid() ? line->Line() : -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        const QPoint inside = Panel().viewport()->mapFromGlobal(QPoint(x, y));
        const QRect addRow = Panel().AddRowLabel()->geometry();
        if (HasAddRow() && addRow.contains(inside)) return child(LineCount());
        TFilterRow* row = Panel().RowAt(inside);
        return row ? RowInterface(*row) : nullptr;
    }

    QAccessibleInterface* focusChild() const override {
        const QWidget* focused = QApplication::focusWidget();
        const TFilterRowView* view = focused ? Panel().ViewOf(focused) : nullptr;
        return view ? QAccessible::queryAccessibleInterface(const_cast<QWidget*>(focused))
                    : QAccessibleWidget::focusChild();
    }

private:
    void RowsCome(const TFilterBracket& parent, int index, int count) override {
        for (int i = index; i < index + count && QAccessible::isActive(); ++i)
            fresh.insert(parent.GetRow(i));
    }
    void AllRowsCome() override { allFresh = true; }

    bool IsFresh(const TFilterRow* row) const {
        if (allFresh) return !rows.contains(row);
        while (row && !fresh.contains(row))
            row = row->Parent();
        return row;
    }

    void RowsGo(const TFilterBracket& parent, int index, int count) override {
        std::unordered_set<const TFilterRow*> going;
        for (int i = index; i < index + count; ++i)
            going.insert(parent.GetRow(i));
        const auto goes = [&](const TFilterRow* row) {
            while (row && row->Parent() != &parent)
                row = row->Parent();
            return row && going.contains(row);
        };
        std::erase_if(fresh, goes);
        QList<QAccessible::Id> told;
        for (auto known = rows.cbegin(); known != rows.cend(); ++known)
            if (goes(known.key())) told << known.value();
        for (const QAccessible::Id id : std::as_const(told))
            Tell(id, QAccessible::ObjectDestroyed);
        // who was told may have asked for more of them
        for (auto known = rows.begin(); known != rows.end();) {
            if (!goes(known.key())) {
                ++known;
                continue;
            }
            QAccessible::deleteAccessibleInterface(known.value());
            known = rows.erase(known);
        }
    }

    void RowChanged(const TFilterRow& row) override {
        if (const QAccessible::Id id = rows.value(&row)) Tell(id, QAccessible::NameChanged);
    }

    void LinesPlaced() override {
        if (!QAccessible::isActive()) return;
        const int top = Panel().verticalScrollBar()->value();
        const auto lineAt = [&](int y) { return Panel().Geometry().LineAt(y); };
        const int last = lineAt(top + Panel().viewport()->height());
        for (int line = std::max(lineAt(top), 0); line <= std::min(last, LineCount() - 1); ++line) {
            TFilterRow& row = *Panel().Lines().At(line).row;
            if (IsFresh(&row))
                Tell(QAccessible::uniqueId(RowInterface(row)), QAccessible::ObjectCreated);
        }
        // no ObjectReorder: for that Qt reads every child, out of sight or not
        fresh.clear();
        allFresh = false;
    }

    static void Tell(QAccessible::Id id, QAccessible::Event what) {
        QAccessibleInterface* row = QAccessible::accessibleInterface(id);
        if (!row) return;
        QAccessibleEvent event(row, what);
        QAccessible::updateAccessibility(&event);
    }

    QAccessibleInterface* RowInterface(TFilterRow& row) const {
        QAccessible::Id& id = rows[&row];
        if (!id) id = QAccessible::registerAccessibleInterface(new TAccessibleLine(&Panel(), &row));
        return QAccessible::accessibleInterface(id);
    }

    TKQueryPanel& Panel() const { return *static_cast<TKQueryPanel*>(widget()); }
    int LineCount() const { return Panel().Lines().Count(); }
    bool HasAddRow() const { return Panel().Appearance().Has(TQPAppearance::aoShowAddRow); }

    mutable QHash<const TFilterRow*, QAccessible::Id> rows; // those that were asked for or told of
    std::unordered_set<const TFilterRow*> fresh; // came since they were told, with all below them
    bool allFresh = false;
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
