#include <tern7/core/global/messages.h>
#include <tern7/ui/controls/drop_down_list_box.h>
#include <tern7/ui/dialogs/result_fields_draft.h>
#include <tern7/ui/panels/column_drag.h>
#include <tern7/ui/panels/db_structure.h>
#include <tern7/ui/panels/query_editor.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/support/text_size.h>
#include <ui/panels/result_fields_form.h>

#include <functional>
#include <random>

#include <gmock/gmock.h>

#include <QAccessible>
#include <QLineEdit>
#include <QMetaProperty>
#include <QScrollBar>
#include <QTextDocumentFragment>

namespace tern7 {

namespace {

/// Something that can be done in the result fields editor.
void EditAtRandom(TResultFieldsDraft& draft, const TKCustomDBStructure& structure,
                  const std::function<int(int)>& below) {
    const int count = draft.Count(), row = below(count);
    TDSField& field = *structure.GetField(below(structure.GetFieldCount()));
    const int action = count > 0 ? below(8) : 0;
    const char* const texts[] = {"{Price} * 2", "SUM({Price}) / COUNT({City})", "{Nam", "1"};
    const std::function<void()> edits[] = {
        [&] {
            draft.AddField(below(count + 1), field, static_cast<TAggregate>(below(AggregateCount)));
        },
        [&] { draft.Join(row, "+-*/"[below(4)], field); },
        [&] { draft.SetExpression(row, texts[below(4)]); },
        [&] { draft.SetAggregate(row, static_cast<TAggregate>(below(AggregateCount))); },
        [&] { draft.Delete(row); },
        [&] { draft.Move(row, below(count)); },
        [&] { draft.SetSorting(row, static_cast<TSortingType>(below(3))); },
        [&] {
            draft.SetCaption(row, "Column " + std::to_string(below(9)));
            draft.SetJustSorting(below(2) == 1);
            if (const int sorted = static_cast<int>(draft.Sorted().size()); sorted > 0)
                draft.MoveSorted(below(sorted), below(sorted));
        },
    };
    edits[action]();
}

} // namespace

TEST(ResultFieldsPanel, BuiltByMouse) {
    TResultFieldsForm form;
    TKQueryEditor editor(form.query);
    ASSERT_TRUE(form.Open());
    int changes = 0;
    form.panel->OnChange = [&](TKResultFieldsPanel*) { ++changes; };
    Click(form.panel->AddLabel()); // the new row asks for its field
    EXPECT_EQ(form.Texts(), QStringList{"1 City Not Sorted"});
    ASSERT_TRUE(form.Row(0).FieldLabel()->Dropped());
    Press(Qt::Key_Escape);
    ASSERT_TRUE(form.Open());
    EXPECT_EQ(form.Texts(), QStringList{"1 City Not Sorted"});
    Click(form.panel->AddLabel());
    Press({Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Return}); // Orders, Quantity
    Click(form.Row(1).SortLabel());
    Press({Qt::Key_End, Qt::Key_Return});
    EXPECT_EQ(form.Texts(), (QStringList{"1 City Not Sorted", "2 Quantity Descending"}));
    EXPECT_EQ(form.Model(), (QStringList{"City=C.city", "Quantity=O.quantity 2#1"}));
    EXPECT_EQ(changes, 4);
    editor.Undo();
    editor.Undo(); // added and chosen is one step
    EXPECT_EQ(form.Texts(), QStringList{"1 City Not Sorted"});
    editor.Redo();
    editor.Redo();
    form.query.BuildQuery();
    EXPECT_EQ(form.query.QResult().GetSQL().Text(),
              "SELECT DISTINCT C.city as City, O.quantity as Quantity\n"
              "FROM customers C\n"
              "     INNER JOIN orders O ON (O.customer_id=C.id)\n"
              "ORDER BY 2 DESC");
}

TEST(ResultFieldsPanel, BuiltByKeys) {
    TResultFieldsForm form;
    ASSERT_TRUE(form.Open());
    form.panel->AddLabel()->setFocus();
    Press({Qt::Key_Return, Qt::Key_Escape}); // the first field stays
    ASSERT_TRUE(form.Open()); // no window manager gives it back what a closed menu had
    QCoreApplication::processEvents();
    EXPECT_TRUE(form.Row(0).FieldLabel()->hasFocus());
    Press({Qt::Key_Tab, Qt::Key_Space, Qt::Key_Down, Qt::Key_Return});   // ascending
    Press({Qt::Key_Insert, Qt::Key_Return, Qt::Key_Up, Qt::Key_Return}); // the last: Note
    EXPECT_EQ(form.Texts(), (QStringList{"1 City Ascending", "2 Note Not Sorted"}));
    Press(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(form.Texts(), (QStringList{"1 Note Not Sorted", "2 City Ascending"}));
    EXPECT_EQ(form.panel->CurrentRow(), 0);
    Press(Qt::Key_Up, Qt::ControlModifier); // nowhere to go
    Press(Qt::Key_Left);
    EXPECT_TRUE(form.Row(0).Button()->hasFocus());
    Press(Qt::Key_Down, Qt::ControlModifier);
    Press(Qt::Key_Delete);
    EXPECT_EQ(form.Model(), QStringList{"City=C.city 1#1"});
    Press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(form.Model(), (QStringList{"City=C.city 1#1", "City=C.city"}));
    EXPECT_EQ(form.Columns()[1]->Alias(), "City1");
    EXPECT_TRUE(form.Row(1).Button()->hasFocus());
    Press(Qt::Key_Delete);
    EXPECT_TRUE(form.Row(0).Button()->hasFocus());
    Press(Qt::Key_Delete);
    EXPECT_TRUE(form.panel->AddLabel()->hasFocus());
    Press(Qt::Key_Delete);
    EXPECT_TRUE(form.Columns().IsEmpty());
}

TEST(ResultFieldsPanel, RowsAreDraggedByTheirNumbers) {
    TResultFieldsForm form;
    for (const char* field : {"City", "Price", "Note"})
        form.Add(field, ("{" + std::string(field) + "}").c_str());
    TKQueryEditor editor(form.query);
    ASSERT_TRUE(form.Open());
    const QString first = form.Model().join(' ');
    const int height = form.Row(1).Button()->y() - form.Row(0).Button()->y();
    const struct {
        int row;
        double gap;
        int key; // while it is dragged
        const char* columns;
    } cases[] = {
        {0, 1.9, 0, "Price City Note"},
        {0, 9, 0, "Price Note City"},
        {2, 0.2, 0, "Note City Price"},
        {2, -4, 0, "Note City Price"},
        {1, 2, 0, "City Price Note"},
        {1, 0, Qt::Key_Escape, "City Price Note"},
        {2, 0, Qt::Key_Alt, "Note City Price Note"},
        {0, 3, Qt::Key_Alt, "City Price Note City"},
    };
    for (const bool fromRight : {false, true})
        for (const auto& c : cases) {
            SCOPED_TRACE(std::to_string(c.row) + " to " + std::to_string(c.gap));
            form.setLayoutDirection(fromRight ? Qt::RightToLeft : Qt::LeftToRight);
            QCoreApplication::processEvents();
            const QPoint from = form.Row(c.row).Button()->mapTo(&form, QPoint(5, 5));
            const QPoint to(from.x() + 20, form.Row(0).Button()->mapTo(&form, QPoint()).y() +
                                               static_cast<int>(c.gap * height));
            QWindow* window = form.windowHandle();
            QTest::mousePress(window, Qt::LeftButton, {}, from);
            QTest::mouseMove(window, from + QPoint(20, 0));
            QTest::mouseMove(window, to);
            EXPECT_EQ(form.panel->Drag().Row(), &form.Row(c.row));
            EXPECT_TRUE(form.panel->Drag().Indicator()->isVisible());
            if (c.key) QTest::keyPress(&form, Qt::Key(c.key));
            QTest::mouseRelease(window, Qt::LeftButton,
                                c.key == Qt::Key_Alt ? Qt::AltModifier : Qt::NoModifier, to);
            if (c.key) QTest::keyRelease(&form, Qt::Key(c.key));
            QStringList names;
            for (const auto& column : form.Columns())
                names << ToQt(column->Caption());
            EXPECT_EQ(names.join(' '), c.columns);
            EXPECT_FALSE(form.panel->Drag().Indicator()->isVisible());
            EXPECT_EQ(QApplication::overrideCursor(), nullptr);
            EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
            editor.Undo();
            EXPECT_EQ(form.Model().join(' '), first);
            EXPECT_FALSE(editor.CanUndo());
        }
}

TEST(ResultFieldsPanel, RowMenu) {
    TResultFieldsForm form;
    form.panel->SetTitles({"ttlDelField=L\xC3\xB6schen"});
    for (const char* field : {"{C.city}", "{O.price}", "{O.note}"})
        form.Add(field + 3, field);
    ASSERT_TRUE(form.Open());
    const struct {
        int row;
        const char* enabled; // delete, up, down
        Qt::Key key;
        QStringList after;
    } cases[] = {
        {0, "101", Qt::Key_End, {"price}", "city}", "note}"}},
        {2, "110", Qt::Key_End, {"price}", "note}", "city}"}}, // up is the last that can be chosen
        {1, "111", Qt::Key_Home, {"price}", "city}"}},
    };
    for (const auto& c : cases) {
        Click(form.Row(c.row).Button());
        TMenuItem& items = form.panel->RowMenu()->Items();
        EXPECT_EQ(items.Items(0).Caption, QString::fromUtf8("L\xC3\xB6schen"));
        EXPECT_EQ(items.Items(1).Caption, "Move Up");
        QString enabled;
        for (int i = 0; i < 3; ++i)
            enabled += items.Items(i).Enabled ? '1' : '0';
        EXPECT_EQ(enabled, c.enabled);
        Press({c.key, Qt::Key_Return});
        QStringList captions;
        for (const auto& column : form.Columns())
            captions << ToQt(column->Caption());
        EXPECT_EQ(captions, c.after);
    }
    // the right button opens it on the labels too
    QTest::mouseClick(form.Row(1).SortLabel(), Qt::RightButton);
    Press({Qt::Key_Escape});
    EXPECT_EQ(form.Columns().GetCount(), 2);
}

TEST(ResultFieldsPanel, ChangesOnlyWhatTheUserChanges) {
    TResultFieldsForm form;
    TResultField* sum = form.Add("Turnover", "SUM({Price} * {Quantity})");
    TResultField* city = form.Add("Where", "{City}");
    sum->SetAlias("my_alias");
    ASSERT_TRUE(form.Open());
    EXPECT_EQ(form.Texts(), (QStringList{"1 Turnover Not Sorted", "2 City Not Sorted"}));
    EXPECT_TRUE(form.Row(0).FieldLabel()->toolTip().startsWith("SUM({Price} * {Quantity})\n"));
    EXPECT_TRUE(form.Row(1).FieldLabel()->toolTip().startsWith("Where\n"));
    sum->ProcessExpression("SUM({Price} & \"<b>\")"); // shown as it stands
    EXPECT_TRUE(QTextDocumentFragment::fromHtml(form.Row(0).FieldLabel()->toolTip())
                    .toPlainText()
                    .startsWith("SUM({Price} & \"<b>\")\n"));
    sum->ProcessExpression("SUM({Price} & {Quantity} > 2)");
    EXPECT_TRUE(form.Row(0).FieldLabel()->toolTip().startsWith("SUM({Price} & {Quantity} > 2)\n"));
    sum->ProcessExpression("SUM({Price} * {Quantity})");
    Click(form.Row(0).SortLabel());
    Press({Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(form.Model()[0], "Turnover=SUM(O.price * O.quantity) 1#1");
    EXPECT_EQ(sum->Alias(), "my_alias");
    // looking at the menu, or choosing what is there already, is no change
    Click(form.Row(0).FieldLabel());
    Press(Qt::Key_Escape);
    Click(form.Row(1).FieldLabel());
    Press({Qt::Key_Return, Qt::Key_Return}); // Customers, City
    EXPECT_EQ(city->Caption(), "Where");
    EXPECT_EQ(sum->Formula(), "SUM(@1 * @2)");
    Click(form.Row(0).FieldLabel());
    Press({Qt::Key_Home, Qt::Key_Right, Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(form.Model()[0], "Customer Name=C.name 1#1");
    EXPECT_EQ(sum->Alias(), "CustomerName");
    EXPECT_EQ(form.Row(0).FieldLabel()->Value(), QString::number(form.Field("C.name")->ID()));
}

TEST(ResultFieldsPanel, SortRanksFollowRowsUntilSomebodyElseSetsThem) {
    TResultFieldsForm form;
    for (const char* field : {"{C.city}", "{O.price}", "{O.note}"})
        form.Add(field, field)->SetSorting(TSortingType::stAscending);
    const auto ranks = [&] {
        QList<int> all;
        for (const auto& column : form.Columns())
            all << column->SortOrder();
        return all;
    };
    form.panel->MoveRowDown(0);
    EXPECT_EQ(ranks(), (QList<int>{1, 2, 3}));
    form.Columns()[0]->SetSortOrder(7);
    form.panel->MoveRow(2, 1);
    EXPECT_EQ(ranks(), (QList<int>{7, 3, 2}));
    form.panel->RefreshSortOrder();
    EXPECT_EQ(ranks(), (QList<int>{1, 2, 3}));
}

TEST(ResultFieldsPanel, PlacesRows) {
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        TResultFieldsForm form;
        form.setLayoutDirection(direction);
        const int width = form.panel->viewport()->width();
        // distance from the side where reading starts
        const auto start = [&](const QWidget* w) {
            return direction == Qt::LeftToRight ? w->x() : width - w->x() - w->width();
        };
        form.show();
        EXPECT_EQ(start(form.panel->AddLabel()), 5);
        EXPECT_EQ(form.panel->AddLabel()->y(), 5);
        form.Add("City", "{City}");
        form.Add("Price", "{Price}");
        const int height = ternTextHeight("1", form.panel->font()) + 1;
        for (int i = 0; i < 2; ++i) {
            const TResultFieldRow& row = form.Row(i);
            const int top = 5 + i * (3 + height);
            EXPECT_EQ(row.Button()->y(), top);
            EXPECT_EQ(row.Button()->height(), height);
            EXPECT_EQ(row.FieldLabel()->y(), top);
            EXPECT_EQ(start(row.Button()), 5);
            EXPECT_EQ(start(row.FieldLabel()), 5 + row.Button()->width() + 5);
            EXPECT_EQ(start(row.SortLabel()),
                      start(row.FieldLabel()) + row.FieldLabel()->width() + 5);
        }
        EXPECT_EQ(form.panel->AddLabel()->y(), 5 + 3 + 2 * height + 3 + 2);
        form.panel->Appearance().SetTopMargin(20);
        EXPECT_EQ(form.Row(0).Button()->y(), 5);
        form.panel->Refresh();
        EXPECT_EQ(form.Row(0).Button()->y(), 20);
    }
}

TEST(ResultFieldsPanel, Scrolls) {
    TResultFieldsForm form;
    for (int i = 0; i < 60; ++i)
        form.Add("City", "{City}");
    ASSERT_TRUE(form.Open());
    const auto top = [&] {
        return form.Row(0).Button()->mapTo(form.panel->viewport(), QPoint()).y();
    };
    EXPECT_EQ(top(), 5);
    form.panel->verticalScrollBar()->setValue(30);
    EXPECT_EQ(top(), 5 - 30);
    form.panel->AddRow();
    EXPECT_FALSE(form.panel->AddLabel()->visibleRegion().isEmpty() &&
                 form.Row(60).FieldLabel()->visibleRegion().isEmpty());
}

TEST(ResultFieldsPanel, Appearance) {

    TResultFieldsForm form;
    form.Add("City", "{City}");
    form.Add("Note", "{Note}");
    ASSERT_TRUE(form.Open());
    TRFPAppearance& look = form.panel->Appearance();
    EXPECT_TRUE(form.Row(0).Button()->Flat() && form.Row(0).Button()->RoundCorners());
    EXPECT_EQ(form.Row(0).FieldLabel()->FontColor(), QColor(Qt::blue));
    look.SetOptions(TRFPAppearance::aoShowGroupName);
    look.SetSortColor(Qt::darkGreen);
    EXPECT_EQ(form.Texts(), (QStringList{"1 Customers City Not Sorted", "2 Note Not Sorted"}));
    EXPECT_FALSE(form.Row(0).Button()->Flat() || form.Row(0).Button()->RoundCorners());
    EXPECT_EQ(form.Row(0).SortLabel()->FontColor(), QColor(Qt::darkGreen));
    Click(form.Row(0).FieldLabel());
    ASSERT_TRUE(qobject_cast<TDropDownListBox*>(form.Row(0).FieldLabel()));
    Press({Qt::Key_End, Qt::Key_Return});
    EXPECT_EQ(form.Texts()[0], "1 Note Not Sorted");
    QPalette dark(QColor(50, 50, 50), QColor(30, 30, 30));
    dark.setColor(QPalette::Link, Qt::cyan);
    form.panel->setPalette(dark);
    EXPECT_EQ(form.Row(0).FieldLabel()->FontColor(), QColor(Qt::cyan));
    EXPECT_EQ(form.Row(0).SortLabel()->FontColor(), QColor(Qt::darkGreen));
    // as form editors set it
    const QMetaObject& meta = *form.panel->metaObject();
    EXPECT_TRUE(meta.property(meta.indexOfProperty("AppearanceSortColor")).reset(form.panel));
    const QMetaProperty options = meta.property(meta.indexOfProperty("AppearanceOptions"));
    EXPECT_TRUE(options.isFlagType());
    EXPECT_TRUE(options.write(form.panel, int(TRFPAppearance::aoRoundButtons)));
    EXPECT_TRUE(form.panel->setProperty("AppearanceLeftMargin", 30));
    EXPECT_EQ(form.Row(0).Button()->x(), 30);
    EXPECT_EQ(form.Row(0).SortLabel()->FontColor(), QColor(Qt::cyan));
    EXPECT_TRUE(form.Row(0).Button()->RoundCorners() && !form.Row(0).Button()->Flat());
}

TEST(ResultFieldsPanel, OffersFieldsOfTheResultByGroup) {
    TResultFieldsForm form;
    form.Add("City", "{City}");
    ASSERT_TRUE(form.Open());
    const auto offered = [&] {
        Click(form.Row(0).FieldLabel());
        QStringList texts;
        const TDropDownList& label = *form.Row(0).FieldLabel();
        for (int g = 0; g < label.Groups().Count(); ++g)
            for (const int i : label.Groups().Items(g).Indices())
                texts << label.Groups().Items(g).Name() + ':' + label.Items()[i];
        Press(Qt::Key_Escape);
        return texts.join(' ');
    };
    EXPECT_EQ(offered(), "Customers:City Customers:Name Orders:Price Orders:Quantity "
                         "Orders:Name :Note");
    form.structure.SetRootFieldsFirst(true);
    form.Field("O.price")->SetUseInResult(false);
    form.Field("C.name")->SetGroup(form.structure.FieldGroups()[1]);
    EXPECT_EQ(offered(), ":Note Customers:City Orders:Quantity Orders:Order Name "
                         "Orders:Customer Name");
}

TEST(ResultFieldsPanel, WithoutStructure) {
    TKResultFieldsPanel panel;
    EXPECT_THAT([&] { panel.AddRow(); },
                testing::ThrowsMessage<ERFPanelError>("Database structure is not specified"));
    TKCustomDBStructure structure;
    panel.SetDBStruct(&structure);
    panel.AddRow(); // nothing to offer
    EXPECT_EQ(panel.Rows().GetCount(), 0);
    MakeShop(structure);
    panel.AddRow();
    EXPECT_EQ(panel.ResultFields().GetCaption(), "City");
    EXPECT_THROW(panel.DeleteRow(1), std::out_of_range);
    EXPECT_THROW(panel.MoveRowUp(-1), std::out_of_range);
    panel.ClearAll();
    EXPECT_EQ(panel.Rows().GetCount(), 0);
}

TEST(ResultFieldsPanel, FindsItsFormsComponentsByName) {
    QWidget form;
    auto* panel = new TKResultFieldsPanel(new QWidget(&form));
    panel->setProperty("DBStructName", "structure");
    form.show();
    EXPECT_THROW(panel->AddRow(), ERFPanelError);
    auto* component = new TKDBStructure(&form); // forms make them in any order
    component->setObjectName("structure");
    MakeShop(component->Structure());
    panel->AddRow();
    EXPECT_EQ(panel->Rows().GetCount(), 1);
    auto* query = new TKQueryPanel(&form);
    query->setObjectName("query");
    query->SetDbStructName("structure");
    panel->setProperty("QueryPanelName", "query");
    panel->AddRow();
    EXPECT_EQ(query->QResult().ResultFields().GetCaption(), "City");
    EXPECT_EQ(&panel->ResultFields(), &query->QResult().ResultFields());
    delete query;
    EXPECT_EQ(panel->ResultFields().GetCount(), 1); // its own
    delete component;
    EXPECT_EQ(panel->DBStruct(), nullptr);
    EXPECT_EQ(panel->Rows().GetCount(), 0);
}

TEST(ResultFieldsPanel, FollowsTheList) {
    TResultFieldsForm form;
    form.Add("City", "{City}");
    ASSERT_TRUE(form.Open());
    form.Row(0).SortLabel()->setFocus();
    const QPointer<QWidget> focused = form.Row(0).SortLabel();
    form.Columns().Insert(0, "Price", {form.Field("O.price")});
    form.Columns().Move(0, 1);
    EXPECT_EQ(form.Texts(), (QStringList{"1 City Not Sorted", "2 Price Not Sorted"}));
    EXPECT_TRUE(focused && focused->hasFocus());
    form.Field("O.price")->SetDisplayName("Cost");
    EXPECT_EQ(form.Texts()[1], "2 Cost Not Sorted");
    form.panel->SetTitles({"ttlNotSorted=unsortiert", "ttlClickToAdd=&Neu"});
    EXPECT_EQ(form.Texts()[1], "2 Cost unsortiert");
    EXPECT_EQ(form.panel->AddLabel()->Caption(), "< Neu >");
    form.query.SetActive(false);
    form.query.ClearAll();
    Click(form.Row(0).Button()); // the row's column is gone
    Press({Qt::Key_Home, Qt::Key_Return});
    form.query.SetActive(true);
    EXPECT_TRUE(form.Texts().isEmpty());
    form.Add("City", "{City}"); // what is to be shown while the query sleeps is shown later
    form.query.SetActive(false);
    QCoreApplication::processEvents();
    form.query.SetActive(true);
    QCoreApplication::processEvents();
    EXPECT_GT(form.panel->AddLabel()->y(), 5);
    TKQuery other(&form.structure);
    other.QResult().ResultFields().AddByExpression("A", TSortingType::stDescending, "{Note}");
    form.panel->SetResultFields(&other.QResult().ResultFields());
    EXPECT_EQ(form.Texts(), QStringList{"1 Note Descending"});
    form.panel->SetResultFields(nullptr);
    EXPECT_TRUE(form.Texts().isEmpty());
}

TEST(ResultFieldsPanel, WhatItShowsIsDestroyedWhileOpen) {
    for (const QString what : {"field", "structure fields", "structure", "query", "panel"}) {
        SCOPED_TRACE(what.toStdString());
        for (const bool menu : {false, true}) {
            auto form = std::make_unique<TResultFieldsForm>();
            auto structure = std::make_unique<TKCustomDBStructure>();
            MakeShop(*structure);
            auto query = std::make_unique<TKQuery>(structure.get());
            TRFieldList& columns = query->QResult().ResultFields();
            columns.AddByExpression("A", TSortingType::stNoSort, "{Note}");
            form->panel->SetResultFields(&columns);
            ASSERT_TRUE(form->Open());
            Click(menu ? static_cast<QWidget*>(form->Row(0).Button()) : form->Row(0).FieldLabel());
            if (what == "field") columns.Clear();
            if (what == "structure fields") structure->ClearStructure();
            if (what == "structure") structure.reset();
            if (what == "query") query.reset();
            if (what == "panel") delete form->panel;
            if (QApplication::activePopupWidget()) Press({Qt::Key_Home, Qt::Key_Return});
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCoreApplication::processEvents();
            form.reset();
        }
    }
}

TEST(ResultFieldsPanel, RandomEditingIsTakenBackToTheFirstText) {
    TResultFieldsForm form;
    TKQueryEditor editor(form.query);
    form.Add("Sum", "SUM({Price} * {Quantity})")->SetSorting(TSortingType::stDescending);
    ASSERT_TRUE(form.Open());
    const std::string first = form.query.GetQueryString();
    std::mt19937 random(7);
    const auto below = [&](int n) {
        return n > 0 ? std::uniform_int_distribution<int>(0, n - 1)(random) : 0;
    };
    form.panel->Dialogs.editResultFields = [&](QWidget*, const TRFieldList& columns,
                                               const TStrings&, const std::function<void()>&) {
        const auto draft = std::make_shared<TResultFieldsDraft>(columns);
        for (int i = below(6); i >= 0; --i)
            EditAtRandom(*draft, form.structure, below);
        return [draft](TRFieldList& target) { draft->Apply(target); };
    };
    for (int step = 0; step < 60; ++step) {
        form.panel->EditResultFields();
        ASSERT_EQ(form.Texts().size(), form.Columns().GetCount());
    }
    const std::string last = form.query.GetQueryString();
    const QStringList shown = form.Texts();
    EXPECT_NE(first, last);
    int steps = 0;
    form.panel->AddLabel()->setFocus();
    for (; editor.CanUndo() && steps < 1000; ++steps)
        Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_GT(steps, 40);
    EXPECT_EQ(form.query.GetQueryString(), first);
    EXPECT_EQ(form.Texts(), QStringList{"1 Sum Descending"});
    for (; editor.CanRedo() && steps > 0; --steps)
        Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(form.query.GetQueryString(), last);
    EXPECT_EQ(form.Texts(), shown);
}

TEST(ResultFieldsPanel, OwnListHasItsOwnSteps) {
    TKCustomDBStructure structure;
    MakeShop(structure);
    TKResultFieldsPanel panel;
    panel.SetDBStruct(&structure);
    panel.AddRow();
    panel.Undo();
    EXPECT_TRUE(panel.ResultFields().IsEmpty());
    panel.Redo();
    EXPECT_EQ(panel.ResultFields().GetCount(), 1);
    TKQuery other(&structure);
    panel.SetResultFields(&other.QResult().ResultFields());
    panel.AddRow();
    panel.Undo(); // nobody keeps the steps of that query
    EXPECT_EQ(panel.ResultFields().GetCount(), 1);
}

TEST(ResultFieldsPanel, RowsLeadToTheEditor) {
    TResultFieldsForm form;
    form.Add("City", "{City}");
    form.Add("Sum", "SUM({Price})");
    form.query.Titles = {"[Result Fields Editor]", "ttlRFETitle=Spalten"};
    ASSERT_TRUE(form.Open());
    std::vector<int> begun;
    form.panel->Dialogs.editResultField = [&](QWidget*, const TRFieldList&, int first,
                                              const TStrings& titles,
                                              const std::function<void()>&) {
        EXPECT_EQ(titles, form.query.Titles);
        begun.push_back(first);
        // the row that was asked for goes
        return first == 1 ? [](TRFieldList& columns) { columns.Delete(1); } : TResultFieldsChange();
    };
    form.Row(0).FieldLabel()->setFocus();
    Press(Qt::Key_Return, Qt::ControlModifier);
    QCoreApplication::processEvents();
    form.Row(1).FieldLabel()->setFocus();
    Press(Qt::Key_Return); // a formula
    QCoreApplication::processEvents();
    EXPECT_EQ(form.Texts(), QStringList{"1 City Not Sorted"});
    ClickAt(form.Row(0).FieldLabel(), {3, 3}, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(begun, (std::vector<int>{0, 1, 0}));
}

TEST(ResultFieldsPanel, OrderOfReading) {
    TResultFieldsForm form;
    auto* window = new QWidget;
    auto* before = new QLineEdit(window);
    form.panel->setParent(window);
    auto* behind = new QLineEdit(window);
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    form.Add("City", "{City}");
    form.Add("Note", "{Note}");
    form.Columns().Move(1, 0);
    QList<QWidget*> wanted = {before};
    for (int i = 0; i < 2; ++i)
        wanted << form.Row(i).Button() << form.Row(i).FieldLabel() << form.Row(i).SortLabel();
    wanted << form.panel->AddLabel() << behind;
    before->setFocus();
    for (QWidget* next : wanted) {
        EXPECT_EQ(QApplication::focusWidget(), next) << wanted.indexOf(next);
        Press(Qt::Key_Tab);
    }
    const QAccessibleInterface* canvas =
        QAccessible::queryAccessibleInterface(form.panel->widget());
    for (int i = 0; i < canvas->childCount(); ++i)
        EXPECT_EQ(canvas->child(i)->object(), wanted[i + 1]);
    delete window;
    form.panel = nullptr;
}

TEST(ResultFieldsPanel, ReadAloud) {
    TResultFieldsForm form;
    form.Add("City", "{City}")->SetSorting(TSortingType::stAscending);
    ASSERT_TRUE(form.Open());
    const auto said = [](QWidget* widget, QAccessible::Text kind) {
        return QAccessible::queryAccessibleInterface(widget)->text(kind);
    };
    EXPECT_EQ(said(form.Row(0).Button(), QAccessible::Name), "Column 1: City, Ascending");
    EXPECT_EQ(said(form.Row(0).Button(), QAccessible::Description), "1 of 1");
    EXPECT_EQ(said(form.Row(0).FieldLabel(), QAccessible::Name), "Column 1");
    EXPECT_EQ(said(form.Row(0).FieldLabel(), QAccessible::Value), "City");
    EXPECT_EQ(said(form.Row(0).SortLabel(), QAccessible::Name), "Sorting of City");
    EXPECT_EQ(said(form.panel->AddLabel(), QAccessible::Name), "Click to add new field");
}

} // namespace tern7
