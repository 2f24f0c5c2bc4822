#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include <tern7/core/titles/default_titles.h>
#include <tern7/ui/dialogs/result_fields_editor.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/support/plain_line.h>
#include <ui/panels/result_fields_form.h>

namespace tern7 {

namespace {

/// The dialog over the columns of a shop, driven by mouse and keys.
class TEditorForm {
public:
    using TColumns = std::vector<std::pair<const char*, const char*>>;
    explicit TEditorForm(const TColumns& columns = {}, const TStrings& titles = {}) {
        for (const auto& [caption, expression] : columns)
            form.Add(caption, expression);
        dialog = std::make_unique<T_dlgRFieldsEdit>(form.Columns(), titles);
        dialog->show();
        dialog->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    }

    /// Chooses the fields with these names by a search each.
    void Choose(const QString& name) {
        dialog->Fields()->SearchField()->setFocus();
        dialog->Fields()->SearchField()->clear();
        Type(name);
    }
    void Tool(const QString& hint) {
        for (QToolButton* button : dialog->findChildren<QToolButton*>())
            if (button->accessibleName() == hint) return Click(button);
        ADD_FAILURE() << "no button: " << hint.toStdString();
    }
    void EnterExpression(int row, const QString& text) {
        dialog->ColumnsView()->setFocus();
        dialog->ColumnsView()->setCurrentIndex(
            dialog->ColumnsView()->model()->index(row, TResultColumnsModel::Expression));
        Press(Qt::Key_Return);
        Press(Qt::Key_A, Qt::ControlModifier);
        Type(text);
        Press(Qt::Key_Return);
        QTest::qWait(1);
    }
    QStringList Shown(const QTableView* view) const {
        QStringList lines;
        for (int i = 0; i < view->model()->rowCount(); ++i)
            lines << view->model()->index(i, 0).data().toString() + '|' +
                         view->model()->index(i, 1).data().toString();
        return lines;
    }
    QStringList Columns() const { return Shown(dialog->ColumnsView()); }
    QStringList Sorted() const { return Shown(dialog->SortedView()); }
    /// OK, and the change put into the query.
    bool Accept() {
        Click(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok));
        if (dialog->isVisible()) return false;
        dialog->Draft()->Apply(form.Columns());
        return true;
    }

    TResultFieldsForm form;
    std::unique_ptr<T_dlgRFieldsEdit> dialog;
};

QString WithoutMark(QString caption) {
    return caption.remove('&');
}

/// Answers the next message box.
void Answer(QMessageBox::StandardButton button, QString* question = nullptr) {
    QTimer::singleShot(0, [=] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        if (question) *question = box->text();
        Click(box->button(button));
    });
}

} // namespace

TEST(ResultFieldsEditor, FormulaByButtons) {
    TEditorForm t;
    t.Choose("price");
    Press(Qt::Key_Return);
    t.Choose("quant");
    t.Tool("Multiply by result field");
    t.dialog->Function()->setFocus();
    Press(Qt::Key_Down); // SUM
    Press(Qt::Key_Return);
    t.Choose("price");
    t.Tool("Subtract from result field");
    t.Choose("quant");
    t.Tool("Divide by result field");
    EXPECT_EQ(t.Columns()[0], "Price|SUM(({Price} * {Quantity} - {Price}) / {Quantity})");
    t.Choose("city");
    t.Tool("Create result field");
    t.Tool("Sort result field");
    EXPECT_TRUE(t.dialog->ColumnsView()->hasFocus()) << "the button can do no more";
    ASSERT_TRUE(t.Accept());
    EXPECT_EQ(t.form.Model(),
              (QStringList{"Price=SUM((O.price * O.quantity - O.price) / O.quantity)",
                           "City=C.city 1#1"}));
}

TEST(ResultFieldsEditor, WorksByKeysAlone) {
    TEditorForm t;
    Type("price");
    Press(Qt::Key_Return);
    Type("quant"); // over what was searched for
    Press(Qt::Key_Asterisk, Qt::ControlModifier | Qt::ShiftModifier);
    Press(Qt::Key_F, Qt::AltModifier);
    Type("s");
    Press(Qt::Key_Return);
    EXPECT_TRUE(t.dialog->ColumnsView()->hasFocus());
    EXPECT_EQ(t.Columns(), QStringList{"Price|SUM({Price} * {Quantity})"});

    Press(Qt::Key_A, Qt::AltModifier);
    QTreeWidget* tree = t.dialog->Fields()->Tree();
    ASSERT_TRUE(tree->hasFocus());
    tree->setCurrentItem(tree->topLevelItem(1));
    tree->collapseAll();
    Press(Qt::Key_Plus); // of a group: opens it
    EXPECT_TRUE(tree->topLevelItem(1)->isExpanded());
    Press(Qt::Key_Down);
    Press(Qt::Key_Minus);
    EXPECT_EQ(t.Columns(), QStringList{"Price|SUM({Price} * {Quantity} - {Quantity})"});
    Press(Qt::Key_Return);

    Press(Qt::Key_S, Qt::ControlModifier);
    Press(Qt::Key_Return); // where the sorted columns are
    QCoreApplication::processEvents();
    Press({Qt::Key_Down, Qt::Key_Return});
    QCoreApplication::processEvents();
    Press(Qt::Key_R, Qt::AltModifier);
    Press(Qt::Key_Up, Qt::ControlModifier);
    Press(Qt::Key_Return); // edits, and the sign counts for what is typed
    Type("Turnover");
    Press(Qt::Key_Slash, Qt::ControlModifier);
    EXPECT_EQ(t.Columns(), (QStringList{"Turnover|{Quantity} / {Quantity}",
                                        "Price|SUM({Price} * {Quantity} - {Quantity})"}));
    Press(Qt::Key_Down);
    Answer(QMessageBox::Yes);
    Press(Qt::Key_Delete);
    EXPECT_EQ(t.Sorted(), QStringList{"Turnover|Descending"});
    t.dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(t.dialog.get()));
    Press(Qt::Key_O, Qt::AltModifier);
    QTest::qWait(150); // the button is seen going down
    EXPECT_EQ(t.dialog->result(), QDialog::Accepted);
}

TEST(ResultFieldsEditor, AddWithFunctionAddsAllChosenFields) {
    TEditorForm t(TEditorForm::TColumns{{"City", "{City}"}});
    QTreeWidget* tree = t.dialog->Fields()->Tree();
    QTreeWidgetItem* orders = tree->topLevelItem(1);
    orders->setExpanded(true);
    orders->child(0)->setSelected(true);
    orders->child(1)->setSelected(true);
    QList<QAction*> actions;
    for (const auto* button : t.dialog->findChildren<QPushButton*>())
        if (button->menu()) actions = button->menu()->actions();
    ASSERT_EQ(actions.size(), 6);
    QStringList names;
    for (const QAction* action : actions)
        names << action->text();
    EXPECT_EQ(names.join(' '), "as is SUM COUNT MIN MAX AVERAGE");
    actions[5]->trigger();
    EXPECT_EQ(t.Columns(),
              (QStringList{"City|{City}", "Price|AVG({Price})", "Quantity|AVG({Quantity})"}));
    EXPECT_EQ(t.dialog->Function()->currentText(), "AVERAGE");
    t.dialog->Function()->setFocus();
    Press(Qt::Key_Home); // as is
    EXPECT_EQ(t.Columns()[2], "Quantity|{Quantity}");
}

TEST(ResultFieldsEditor, TypedExpressionIsRefusedAtItsPositionAndKept) {
    TEditorForm t(TEditorForm::TColumns{{"Sum", "{Price}"}, {"City", "{City}"}});
    const struct {
        const char *typed, *message, *selected;
    } cases[] = {
        {"{Price} + {Prise}", "Field not found: Prise\nPerhaps it is meant: {Price}", "{Prise}"},
        {"{Customer.Nte}", "Field not found: Customer.Nte\nPerhaps it is meant: {Note}",
         "{Customer.Nte}"},
        {"{Weight}", "Field not found: Weight", "{Weight}"},
        {"{Price} * ({Quantity} + 1", "A bracket or quote has no counterpart", "({Quantity}"},
        {"{Name}",
         "Field not found: Name\nMore than one field has this name: {Customer.Name}, {Order.Name}",
         "{Name}"},
        {"{Price", "A bracket or quote has no counterpart", "{Price"},
        {"{Price} -- 1", "A comment or semicolon can not stand in an expression", "-- 1"},
        {"{Price} || '@1'",
         "An expression with fields can not hold \"@\" and a digit in a text: {Price} || '@1'",
         "'@1'"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        t.EnterExpression(0, c.typed);
        QLineEdit* line = nullptr; // the editor opens again
        ASSERT_TRUE(QTest::qWaitFor([&] {
            line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
            return line && line->selectedText() == c.selected;
        }));
        EXPECT_EQ(line->text(), c.typed);
        EXPECT_EQ(PlainLine(t.dialog->ProblemLabel()->text()), PlainLine(c.message));
        Press(Qt::Key_Escape);
        EXPECT_EQ(t.Columns()[0], QString("Sum|") + c.typed);
        EXPECT_FALSE(t.Accept());
        EXPECT_EQ(t.form.Model()[0], "Sum=O.price");
        Press(Qt::Key_Escape);
    }
    t.EnterExpression(0, "ROUND({o.name} + {price}, 2)");
    EXPECT_EQ(t.Columns()[0], "Sum|ROUND({Order.Name} + {Price}, 2)");
    EXPECT_TRUE(t.dialog->ProblemLabel()->isHidden());
    t.EnterExpression(1, "City"); // a hint, no more: it may be a name that the database knows
    EXPECT_TRUE(t.dialog->ProblemLabel()->text().contains("braces"));
    t.EnterExpression(1, "COUNT(*)");
    EXPECT_TRUE(t.dialog->ProblemLabel()->isHidden());
    ASSERT_TRUE(t.Accept());
    EXPECT_EQ(t.form.Model(), (QStringList{"Sum=ROUND(O.name + O.price, 2)", "City=COUNT(*)"}));
    ASSERT_FALSE(t.dialog->Draft()->SetExpression(0, "{Price} || '\xE2\x80\xAEx'"));
    EXPECT_EQ(t.dialog->Draft()->Problem(0)->position, 12u); // it would turn the statement round
}

TEST(ResultFieldsEditor, NewColumnNeedsAnExpression) {
    TEditorForm t;
    t.Tool("New result field");
    EXPECT_EQ(t.Columns(), QStringList{"New result field|"});
    EXPECT_FALSE(t.Accept());
    Type("{Note}");
    ASSERT_TRUE(t.Accept()); // what is being typed counts
    EXPECT_EQ(t.form.Model(), QStringList{"New result field=O.note"});
}

TEST(ResultFieldsEditor, DeletesAfterAQuestion) {
    TEditorForm t(TEditorForm::TColumns{{"A", "{City}"}, {"B", "{Note}"}},
                  {"[Result Fields Editor]", "ttlMgsDeleteField=Weg mit \"%s\"?"});
    t.dialog->ColumnsView()->setFocus();
    QString question;
    Answer(QMessageBox::No, &question);
    Press(Qt::Key_Delete);
    EXPECT_EQ(question, "Weg mit \"A\"?");
    EXPECT_EQ(t.Columns().size(), 2);
    t.dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(t.dialog.get()));
    Answer(QMessageBox::Yes);
    Press(Qt::Key_Delete);
    ASSERT_TRUE(t.Accept());
    EXPECT_EQ(t.form.Model(), QStringList{"B=O.note"});
}

TEST(ResultFieldsEditor, SortGrid) {
    TEditorForm t(TEditorForm::TColumns{{"A", "{City}"}, {"B", "{Note}"}, {"C", "{Price}"}});
    QTableView* columns = t.dialog->ColumnsView();
    QTableView* sorted = t.dialog->SortedView();
    for (const int row : {2, 0, 1}) {
        columns->setCurrentIndex(columns->model()->index(row, 0));
        t.Tool("Sort result field");
    }
    EXPECT_EQ(t.Sorted(), (QStringList{"C|Ascending", "A|Ascending", "B|Ascending"}));
    sorted->setFocus();
    Press(Qt::Key_Up, Qt::ControlModifier); // B before A
    Press(Qt::Key_Return);
    QCoreApplication::processEvents();
    Press({Qt::Key_Down, Qt::Key_Return}); // descending
    QCoreApplication::processEvents();
    EXPECT_EQ(t.Sorted(), (QStringList{"C|Ascending", "B|Descending", "A|Ascending"}));
    sorted->setCurrentIndex(sorted->model()->index(0, 1));
    sorted->setFocus();
    Press(Qt::Key_Delete);
    columns->setFocus();
    columns->setCurrentIndex(columns->model()->index(2, 0));
    Press(Qt::Key_Up, Qt::ControlModifier); // the order of columns is another thing
    ASSERT_TRUE(t.Accept());
    EXPECT_EQ(t.form.Model(), (QStringList{"A=C.city 1#3", "C=O.price", "B=O.note 2#2"}));
}

TEST(ResultFieldsEditor, WhatWasNotChangedStays) {
    TEditorForm t(TEditorForm::TColumns{{"A", "SUM({Price})"}, {"B", "{City}"}});
    TResultField* a = t.form.Columns()[0];
    a->SetAlias("kept");
    a->OleObject = 42;
    TEditorForm* self = &t;
    // the dialog was made before: only what it changed is written back
    self->dialog->ColumnsView()->setFocus();
    Press(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_TRUE(t.dialog->ColumnsView()->currentIndex().row() == 1);
    QAbstractItemModel& model = *t.dialog->ColumnsView()->model();
    model.setData(model.index(0, 0), QString("City\u202E of\tbirth"), Qt::EditRole);
    ASSERT_TRUE(t.Accept());
    EXPECT_EQ(t.form.Model(), (QStringList{"City of birth=C.city", "A=SUM(O.price)"}));
    EXPECT_EQ(t.form.Columns()[1], a);
    EXPECT_EQ(a->Alias(), "kept");
    EXPECT_EQ(std::any_cast<int>(a->OleObject), 42);
}

TEST(ResultFieldsEditor, JustSortingHelpAndCancel) {
    TEditorForm t(TEditorForm::TColumns{{"A", "{City}"}});
    const auto press = [&](const QString& text) {
        for (auto* button : t.dialog->findChildren<QAbstractButton*>())
            if (WithoutMark(button->text()) == text) return Click(button), true;
        return false;
    };
    EXPECT_FALSE(t.dialog->findChild<QDialogButtonBox*>()->buttons().last()->isVisible());
    int asked = 0;
    t.dialog->SetHelp([&] { ++asked; });
    EXPECT_TRUE(press("Help"));
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(press("just sorting"));
    EXPECT_FALSE(t.form.Columns().JustSorting());
    ASSERT_TRUE(t.Accept());
    EXPECT_TRUE(t.form.Columns().JustSorting());
    TEditorForm other;
    Press(Qt::Key_Return); // in the search field: nothing to take, and not OK
    EXPECT_TRUE(other.dialog->isVisible());
    Press(Qt::Key_Escape);
    EXPECT_EQ(other.dialog->result(), QDialog::Rejected);
}

TEST(ResultFieldsEditor, ColumnsGoWhileItIsOpen) {
    TEditorForm t(TEditorForm::TColumns{{"A", "{City}"}, {"B", "{Note}"}, {"C", "{Price}"}});
    t.dialog->GoToColumn(0);
    Press(Qt::Key_Down, Qt::ControlModifier);
    t.form.Columns().Delete(1);
    t.form.Add("D", "{Quantity}");
    ASSERT_TRUE(t.Accept());
    EXPECT_EQ(t.form.Model(), (QStringList{"B=O.note", "A=C.city", "C=O.price"}));
}

TEST(ResultFieldsEditor, OpenedByTheQueryPanel) {
    TKCustomDBStructure structure;
    MakeShop(structure);
    TKQueryPanel panel;
    EXPECT_THROW(panel.EditResultFields(), EKQueryPanelError);
    panel.SetDbStruct(&structure);
    panel.SetTitles({"[Result Fields Editor]", "ttlRFETitle=Spalten", "ttlHelpBtnCaption=Hilfe"});
    int helped = 0, changed = 0;
    panel.OnRFEHelpClick = [&](TKQueryPanel&) { ++helped; };
    panel.OnChange = [&](TKQueryPanel&) { ++changed; };
    panel.show();
    const TRFieldList& columns = panel.QResult().ResultFields();
    for (const bool accept : {false, true}) {
        QTimer::singleShot(0, [accept] {
            auto* dialog = qobject_cast<T_dlgRFieldsEdit*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog && QTest::qWaitForWindowActive(dialog));
            EXPECT_EQ(dialog->windowTitle(), "Spalten");
            dialog->Fields()->SearchField()->setFocus();
            Type("price");
            Press(Qt::Key_Return);
            for (auto* button : dialog->findChildren<QPushButton*>())
                if (WithoutMark(button->text()) == "Hilfe") Click(button);
            dialog->ColumnsView()->setFocus();
            accept ? Press(Qt::Key_Return, Qt::ControlModifier) : Press(Qt::Key_Escape);
        });
        EXPECT_EQ(panel.EditResultFields(), accept);
        EXPECT_EQ(columns.GetCaption(), accept ? "Price" : "*");
        EXPECT_EQ(changed, accept ? 1 : 0);
    }
    EXPECT_EQ(helped, 2);
    panel.Undo();
    EXPECT_TRUE(columns.IsEmpty());
    panel.Redo();
    EXPECT_EQ(columns.GetCaption(), "Price");
}

TEST(ResultFieldsEditor, StructureGoesWhileItIsOpen) {
    auto structure = std::make_unique<TKCustomDBStructure>();
    MakeShop(*structure);
    TKQuery query(structure.get());
    query.QResult().ResultFields().AddByExpression("A", TSortingType::stNoSort, "{City}");
    T_dlgRFieldsEdit dialog(query.QResult().ResultFields(), {});
    dialog.show();
    dialog.Fields()->Tree()->topLevelItem(0)->setSelected(true);
    structure.reset();
    emit dialog.Fields()->activated();
    EXPECT_FALSE(dialog.Draft()->SetExpression(0, "{City} + 1"));
    dialog.accept();
    EXPECT_TRUE(dialog.isVisible());
}

TEST(ResultFieldsEditor, EveryTextIsATitle) {
    TStrings titles = {"[Result Fields Editor]"};
    for (const std::string& line : DefaultQueryTitles())
        if (line.starts_with("ttl"))
            titles.push_back(line.substr(0, line.find('=')) + "=\xC2\xA7" +
                             line.substr(0, line.find('=')));
    TEditorForm t(TEditorForm::TColumns{{"A", "{City}"}, {"B", "{Note}"}}, titles);
    t.dialog->SetHelp([] {});
    QStringList found = {t.dialog->windowTitle()};
    for (const auto* label : t.dialog->findChildren<QLabel*>())
        found << WithoutMark(label->text());
    for (const auto* button : t.dialog->findChildren<QAbstractButton*>())
        found << WithoutMark(button->text()) << button->toolTip() << button->accessibleName();
    for (const QTableView* view : {t.dialog->ColumnsView(), t.dialog->SortedView()})
        for (const int i : {0, 1})
            found << view->model()->headerData(i, Qt::Horizontal).toString();
    for (int i = 0; i < t.dialog->Function()->count(); ++i)
        found << t.dialog->Function()->itemText(i);
    found << static_cast<TSortedColumnsModel*>(t.dialog->SortedView()->model())->Sortings();
    QStringList missing;
    bool inSection = false;
    for (const std::string& line : DefaultQueryTitles()) {
        if (line.starts_with("[")) inSection = line == "[Result Fields Editor]";
        const QString key = ToQt("\xC2\xA7" + line.substr(0, line.find('=')));
        if (inSection && line.starts_with("ttl") && !found.contains(key)) missing << key;
    }
    // the question is asked in a box of its own
    EXPECT_EQ(missing, QStringList{QString::fromUtf8("\xC2\xA7ttlMgsDeleteField")});
}

} // namespace tern7
