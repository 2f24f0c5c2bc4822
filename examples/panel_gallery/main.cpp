// panel_gallery STRUCTURE QUERIES FOLDER: saves pictures of the query panel in many states.
#include <QApplication>
#include <QDir>
#include <QLineEdit>

#include <examples/support/pictures.h>
#include <tern7/core/querybase/query_base.h>
#include <tern7/ui/controls/drop_down_edit.h>
#include <tern7/ui/controls/drop_down_popup.h>
#include <tern7/ui/panels/filter_row_view.h>
#include <tern7/ui/panels/query_panel.h>

using namespace tern7;

namespace {

class TTour {
public:
    TTour(TKCustomDBStructure& s, const QDir& q, const QDir& f)
        : structure(s), queries(q), folder(f) {}

    void Run() {
        const QSize usual(720, 300);
        Show("empty", usual, [](TKQueryPanel&) {});
        Show("small", usual, [this](TKQueryPanel& panel) { Load(panel, "late_orders"); });
        Show("nested", usual, [this](TKQueryPanel& panel) { Load(panel, "worth_a_call"); });
        Show("and-or", usual, [this](TKQueryPanel& panel) {
            Load(panel, "worth_a_call");
            panel.Appearance().SetStyle(TQPStyle::psAndOr);
        });
        Show("sub-query", usual, [this](TKQueryPanel& panel) { Load(panel, "no_orders"); });
        Show("parameters", usual, [this](TKQueryPanel& panel) { Load(panel, "orders_of"); });
        Show("unfinished", usual, [this](TKQueryPanel& panel) { Unfinished(panel); });
        Show("switched-off", usual, [this](TKQueryPanel& panel) {
            Load(panel, "worth_a_call");
            panel.Root().GetRow(1)->SwitchEnabled(false);
        });
        Show("editing", usual, [this](TKQueryPanel& panel) {
            Load(panel, "late_orders");
            Drop(panel, TRowLabelKind::rlValue);
        });
        Show("field-menu", {900, 560}, [this](TKQueryPanel& panel) {
            Load(panel, "late_orders");
            Drop(panel, TRowLabelKind::rlField);
        });
        Show("field-search", {900, 560}, [this](TKQueryPanel& panel) {
            Load(panel, "late_orders");
            Drop(panel, TRowLabelKind::rlField);
            auto* menu = qobject_cast<TKPopupMenu*>(QApplication::activePopupWidget());
            if (menu && menu->SearchField()) menu->SearchField()->setText("city");
        });
        Show("row-menu", usual, [this](TKQueryPanel& panel) {
            Load(panel, "worth_a_call");
            Settle();
            panel.FocusRow(*panel.Root().GetRow(1));
            TFilterRowView* view = panel.RowView(*panel.Root().GetRow(1));
            QWidget* button = view->Controls()[0];
            panel.PopupRowMenu(view->Row(), {button->mapToGlobal(QPoint(0, 0)), button->size()});
        });
        Show("huge", usual, [this](TKQueryPanel& panel) {
            Fill(panel, 10000);
            Settle();
            panel.ScrollToLine(7000);
        });
        Show("narrow", {300, 260}, [this](TKQueryPanel& panel) { Load(panel, "worth_a_call"); });
        Show("german", usual, [this](TKQueryPanel& panel) {
            Load(panel, "worth_a_call");
            panel.SetTitles(German());
        });
        ShowRightToLeft(usual);
        ShowDark(usual);
        ShowLarge();
    }

private:
    static void Settle() { QCoreApplication::processEvents(); }

    template <class Prepare>
    void Show(const QString& name, QSize size, Prepare prepare) {
        QWidget window;
        window.resize(size);
        window.move(60, 60); // not below the mouse
        TKQueryPanel panel(&window);
        panel.setGeometry(window.rect());
        panel.SetDbStruct(&structure);
        window.show();
        window.activateWindow();
        prepare(panel);
        Settle();
        Picture(window).save(folder.filePath(name + ".png"));
        panel.CloseEdit(false);
        Settle();
    }

    void ShowRightToLeft(QSize size) {
        QApplication::setLayoutDirection(Qt::RightToLeft);
        Show("rtl", size, [this](TKQueryPanel& panel) { Load(panel, "worth_a_call"); });
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void ShowDark(QSize size) {
        const QPalette light = QApplication::palette();
        QApplication::setPalette(Dark());
        Show("dark", size, [this](TKQueryPanel& panel) {
            Load(panel, "worth_a_call");
            Settle();
            panel.FocusRow(*panel.Root().GetRow(2));
        });
        QApplication::setPalette(light);
    }

    void ShowLarge() {
        const QFont usual = QApplication::font();
        QFont large = usual;
        large.setPointSizeF(large.pointSizeF() * 1.8);
        QApplication::setFont(large);
        Show("large", {1000, 500}, [this](TKQueryPanel& panel) { Load(panel, "worth_a_call"); });
        QApplication::setFont(usual);
    }

    void Load(TKQueryPanel& panel, const QString& name) const {
        panel.LoadFromFile(queries.filePath(name + ".qry"));
        Settle();
    }

    /// Opens the first label of a kind.
    void Drop(TKQueryPanel& panel, TRowLabelKind kind) const {
        for (int line = 0; line < panel.Lines().Count(); ++line) {
            const TFilterRowView* view = panel.RowView(*panel.Lines().At(line).row);
            const int n = kind == TRowLabelKind::rlValue ? 1 : 0;
            if (TDropDownLabel* label = view->Label(kind, n)) return label->DropDown();
        }
    }

    void Unfinished(TKQueryPanel& panel) const {
        TKQueryEditor& editor = panel.Editor();
        editor.AddCondition(panel.Root(), 0);
        TFilterCond* city = editor.AddCondition(panel.Root(), 1);
        editor.SetField(*city, *structure.GetField(7));
        TFilterCond* number = editor.AddCondition(panel.Root(), 2);
        for (const auto& field : structure.Fields())
            if (field->FieldType() == TFieldType::ftInteger) editor.SetField(*number, *field);
        editor.SetValue(*number, 1, "about ten");
    }

    void Fill(TKQueryPanel& panel, int count) const {
        TKQueryUpdate update(panel.Query());
        TFilterBracket* bracket = &panel.Root();
        for (int i = 0; i < count; ++i) {
            if (i % 10 == 0) bracket = panel.Root().AddBracket();
            TFilterCond* condition = bracket->AddCond();
            condition->SetField(structure.GetField(7 + i % 5));
            condition->SetOperator(structure.OperatorByName("Equal"));
            condition->SetValue(1, "value " + std::to_string(i));
        }
    }

    static TStrings German() {
        return {"[Query Panel]",
                "ttlFilter=Datens\u00E4tze suchen, f\u00FCr die @ der folgenden Bedingungen gelten",
                "ttlBracket=@ der folgenden Bedingungen gelten",
                "ttlAll=alle",
                "ttlAny=irgendeine",
                "ttlNone=keine",
                "ttlNotAll=nicht alle",
                "ttlClickToAdd=Hier klicken, um eine Bedingung anzuf\u00FCgen"};
    }

    TKCustomDBStructure& structure;
    QDir queries;
    QDir folder;
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setStyle("Fusion");
    if (argc < 4) {
        qWarning("usage: panel_gallery STRUCTURE QUERIES FOLDER");
        return 2;
    }
    TKCustomDBStructure structure;
    structure.LoadFromFile(argv[1]);
    const QDir folder(argv[3]);
    folder.mkpath(".");
    TTour(structure, QDir(argv[2]), folder).Run();
    return 0;
}
