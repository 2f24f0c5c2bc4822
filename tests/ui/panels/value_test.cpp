// The right editor for each field and operator, and what it does to the condition.
#include <ui/panels/panel_form.h>

#include <QLabel>
#include <QSemaphore>
#include <QThreadPool>
#include <QTimer>

#include <tern7/ui/controls/drop_down_date_time_edit.h>
#include <tern7/ui/controls/drop_down_list_box.h>
#include <tern7/ui/controls/drop_down_mask_edit.h>
#include <tern7/ui/dialogs/sub_query_dialog.h>
#include <tern7/ui/panels/sql_list_reader.h>
#include <tern7/ui/support/local_dates.h>

namespace tern7 {

/// A database that answers in another thread, when it is told to.
class TSlowInfo : public TKDBInfo {
public:
    ~TSlowInfo() override {
        go.release(100);
        QThreadPool::globalInstance()->waitForDone();
    }
    void GetDatabaseNames(TStrings&) override {}
    void TablesByDatabase(TStrings&) override {}
    void FieldsByTable(const std::string&, TDBFieldList&) override {}
    void GetSQLValues(const std::string&, TStrings& values, TStrings& captions) override {
        values = {"1"};
        captions = {"here"};
    }
    std::function<void(TStrings&, TStrings&)> SQLValuesJob(const std::string& sql) override {
        if (hereOnly) return {};
        return [this, sql](TStrings& values, TStrings& captions) {
            go.acquire();
            if (!error.empty()) throw EKDBInfoError(error);
            values = {"B", "R"};
            captions = {"Berlin", "Rome"};
        };
    }
    void LoadInfo(const TStrings&) override {}
    void SaveInfo(TStrings&) override {}

    QSemaphore go;
    std::string error;
    bool hereOnly = false;
};

class TPanelValueTest : public TPanelTest {
protected:
    TFilterCond& AddRow(std::string_view field, std::string_view op, std::string value = {}) {
        TFilterCond* added = TShop::Add(panel->Root(), field, op, std::move(value));
        Settle();
        return *added;
    }
    template <class Editor>
    Editor& Edit(std::string_view field, TDSEditType type) {
        Field(field)->SetEditType(type);
        return *Field(field)->ValueEditorAs<Editor>();
    }
    TDropDownLabel* Value(int line, int n = 1) { return View(line).ValueLabel(n); }
    void SQLList(TSlowInfo& info) {
        structure.SetDatabaseInfo(&info);
        Edit<TDSSQLEditor>("C.city", TDSEditType::etSQL).SQL = {"select code, name from city"};
        Field("C.city")->ValueEditorChanged();
    }
    static QString MenuText() {
        const auto* menu = qobject_cast<TKPopupMenu*>(QApplication::activePopupWidget());
        return menu && menu->RowCount() > 0 ? menu->Row(0)->PlainCaption() : QString();
    }
};

TEST_F(TPanelValueTest, TextMaskDateAndTime) {
    auto& text = Edit<TDSTextEditor>("C.name", TDSEditType::etEdit);
    text.SetOption(TDSTextEditor::UpperCaseOption, true);
    AddRow("C.name", "Equal");
    EnterValue(1, "ann");
    EXPECT_EQ(Cond(1).Value(1), "ANN");

    auto& mask = Edit<TDSTextEditor>("C.city", TDSEditType::etEdit);
    mask.EditKind = TTextEditorKind::tekMask;
    mask.EditMask = "00-00";
    AddRow("C.city", "Equal");
    ASSERT_TRUE(qobject_cast<TDropDownMaskEdit*>(Value(2)));
    EnterValue(2, "1234");
    EXPECT_EQ(Cond(2).Value(1), "1234");

    AddRow("O.placed", "Equal", "2024-05-06");
    auto* date = qobject_cast<TDropDownDateTimeEdit*>(Value(3));
    ASSERT_TRUE(date);
    Click(date);
    Press(Qt::Key_Up);
    Press(Qt::Key_Return);
    EXPECT_NE(Cond(3).Value(1), "2024-05-06");

    AddRow("O.sent", "Equal");
    EnterValue(4, "2024-05-06 7:08");
    EXPECT_EQ(Condition().find("07:08:00") != std::string::npos, true) << Condition();
    EnterValue(4, "soon");
    EXPECT_NE(Shown(4).find("soon"), std::string::npos);
    const TDateExample example = ExampleOf(true, true);
    for (const QString& written : {example.local, example.everywhere}) {
        ASSERT_TRUE(View(4).Mark()) << "marked and explained";
        EXPECT_TRUE(View(4).Mark()->text().contains(written)) << written.toStdString();
        EXPECT_TRUE(View(4).Mark()->toolTip().startsWith("\u201Csoon")) << "it is not left out";
        EnterValue(4, written);
        EXPECT_FALSE(View(4).Mark()) << written.toStdString();
        EnterValue(4, "soon");
    }
}

TEST_F(TPanelValueTest, FixedListsAndCheckLists) {
    auto& list = Edit<TDSListEditor>("C.city", TDSEditType::etList);
    list.Values = {"B", "R", "a, b"};
    list.Items = {"Berlin", "Rome", "Both"};
    Field("C.city")->ValueEditorChanged();
    AddRow("C.city", "Equal", "R");
    EXPECT_EQ(Shown(1), "City is equal to Rome");
    Click(Value(1));
    Pick("Berlin");
    EXPECT_EQ(Shown(1), "City is equal to Berlin");
    PickOperator(1, "is in list");
    EXPECT_EQ(Shown(1), "City is in list Berlin");
    ASSERT_TRUE(qobject_cast<TDropDownCheckListBox*>(Value(1)));
    Click(Value(1));
    Press({Qt::Key_Down, Qt::Key_Down, Qt::Key_Space, Qt::Key_Return});
    Settle();
    EXPECT_EQ(Shown(1), "City is in list Berlin, Both");
    EXPECT_EQ(Condition(), "C.city in ('B','a, b')");
    panel->Appearance().SetOptions(panel->Appearance().Options() & ~TQPAppearance::aoPopupValue);
    PickOperator(1, "is equal to");
    EXPECT_TRUE(qobject_cast<TDropDownListBox*>(Value(1)));
}

TEST_F(TPanelValueTest, WrongNumbersAreAcceptedAndMarked) {
    AddRow("O.amount", "Equal");
    EXPECT_TRUE(View(1).Mark()) << "a value is missing";
    EnterValue(1, "-2.5");
    EXPECT_FALSE(View(1).Mark());
    EnterValue(1, "about 2");
    EXPECT_EQ(Shown(1), "Amount is equal to about 2");
    ASSERT_TRUE(View(1).Mark());
    EXPECT_TRUE(View(1).Mark()->text().contains("about 2"));
    EXPECT_THROW(panel->BuildQuery(), EKWrongValueError);
    Cond(1).SetValue(1, "\u0628 2");
    Settle();
    EXPECT_TRUE(View(1).Mark()->text().contains(QString::fromUtf8("\u2068\u0628 2\u2069")))
        << "another direction of reading stays within the value";
    View(1).CheckBox()->click();
    EXPECT_FALSE(View(1).Mark()) << "a row that is off is left out on purpose";
}

TEST_F(TPanelValueTest, ParametersThroughTheValueMenu) {
    AddRow("O.amount", "Between", "1").SetValue(2, "9");
    AddRow("C.city", "Equal", "Rome");
    panel->Root().GetRow(1)->SetEnabled(false);
    RightClick(Value(1, 2));
    Pick("Parameter");
    EXPECT_EQ(Shown(1), "Amount is between 1 and Parameter");
    EXPECT_EQ(QApplication::focusWidget(), Value(1, 2)) << "not in the next row";
    EXPECT_EQ(&panel->CurrentRow(), &Row(1));
    EXPECT_EQ(Condition(), "O.amount between 1 and :Param1");
    Click(Value(1, 2)); // opens the value menu too
    Pick("Constant value");
    EXPECT_EQ(Shown(1), "Amount is between 1 and 9");
    panel->Appearance().SetOptions(panel->Appearance().Options() & ~TQPAppearance::aoAllowParams);
    EXPECT_EQ(panel->ValueMenu().Items().Count(), 1);
}

TEST_F(TPanelValueTest, EventsOfTheApplication) {
    Field("C.city")->SetEditType(TDSEditType::etCustom);
    AddRow("C.city", "Equal", "Berlin");
    panel->OnCustomEdit = [](TDSField&, std::string& value) { value = "by field " + value; };
    Click(Value(1));
    EXPECT_EQ(Cond(1).Value(1), "by field Berlin");
    panel->OnCustomValue = [](TFilterCond&, std::string& value) { value.clear(); };
    Click(Value(1));
    EXPECT_EQ(Cond(1).Value(1), "by field Berlin") << "an empty answer changes nothing";
    panel->OnCustomValue = [](TFilterCond&, std::string& value) { value = "Rome"; };
    panel->OnChangeValue = [](TDSField&, const std::string& value, std::string& caption) {
        caption = "<" + value + ">";
    };
    Click(Value(1));
    EXPECT_EQ(Shown(1), "City is equal to <Rome>");
    QList<int> altClicks;
    panel->OnValueAltClick = [&](TFilterCond&, int n) { altClicks << n; };
    Click(Value(1), Qt::ControlModifier);
    EXPECT_EQ(altClicks, QList<int>{1});
    panel->OnCustomValue = [this](TFilterCond&, std::string& value) {
        panel->Root().ClearRows();
        value = "too late";
    };
    Click(Value(1));
    EXPECT_EQ(panel->Root().GetRowCount(), 0);
}

TEST_F(TPanelValueTest, DoubleClickInAnOpenEditor) {
    AddRow("C.name", "Equal", "Ann");
    panel->OnValueDblClick = [](TFilterCond&, std::string& value) { value += "!"; };
    Click(Value(1));
    QTest::mouseDClick(QApplication::focusWidget(), Qt::LeftButton);
    Press(Qt::Key_Return);
    EXPECT_EQ(Cond(1).Value(1), "Ann!");
}

TEST_F(TPanelValueTest, ListFromTheDatabaseIsReadInTheBackground) {
    TSlowInfo info;
    SQLList(info);
    AddRow("C.city", "Equal", "R");
    EXPECT_EQ(Shown(1), "City is equal to R") << "until the list is there";
    Click(Value(1));
    EXPECT_EQ(MenuText(), "The list is being read...");
    EXPECT_EQ(Value(1)->cursor().shape(), Qt::BusyCursor);
    info.go.release();
    ASSERT_TRUE(QTest::qWaitFor([&] { return MenuText() == "Berlin"; })) << "the list opens";
    Pick("Berlin");
    EXPECT_EQ(Shown(1), "City is equal to Berlin");
    EXPECT_EQ(Cond(1).Value(1), "B");
    structure.SetDatabaseInfo(nullptr);
}

TEST_F(TPanelValueTest, ErrorOfTheDatabaseAndAnotherTry) {
    TSlowInfo info;
    info.error = "no such table: city";
    SQLList(info);
    AddRow("C.city", "InList");
    info.go.release();
    ASSERT_TRUE(QTest::qWaitFor([&] { return Value(1)->toolTip().contains("no such table"); }));
    Click(Value(1));
    EXPECT_TRUE(MenuText().contains("no such table: city"));
    info.error.clear();
    Pick("Read it again");
    info.go.release();
    EXPECT_TRUE(QTest::qWaitFor([&] { return View(1).HasEditor(); }));
    panel->CloseEdit(false);
    structure.SetDatabaseInfo(nullptr);
    Settle();
}

TEST_F(TPanelValueTest, DatabaseThatCanOnlyBeAskedHereIsAskedWhenTheUserWants) {
    TSlowInfo info;
    info.hereOnly = true;
    SQLList(info);
    AddRow("C.city", "Equal");
    Settle();
    EXPECT_FALSE(Field("C.city")->ValueEditorAs<TDSSQLEditor>()->Opened());
    Click(Value(1));
    ASSERT_TRUE(QTest::qWaitFor([&] { return MenuText() == "here"; }));
    Pick("here");
    EXPECT_EQ(Cond(1).Value(1), "1");
    structure.SetDatabaseInfo(nullptr);
}

TEST_F(TPanelValueTest, ListsThatComeTooLateHarmNobody) {
    TSlowInfo info;
    SQLList(info);
    AddRow("C.city", "Equal");
    Click(Value(1));
    structure.SetStructString(structure.GetStructString());
    info.go.release(2);
    QTest::qWait(30);
    Click(Value(1));
    panel->ClearAll();
    delete panel;
    info.go.release();
    QTest::qWait(30);
    structure.SetDatabaseInfo(nullptr);
    EXPECT_FALSE(QApplication::activePopupWidget());
}

TEST_F(TPanelValueTest, DatabaseGoesWhileItsListIsRead) {
    for (const bool here : {false, true}) {
        auto info = std::make_unique<TSlowInfo>();
        info->hereOnly = here;
        SQLList(*info);
        AddRow("C.city", "Equal", "R");
        panel->ListReader().Demand(*Field("C.city"));
        if (!here) Click(Value(1)); // the menu that says so stays open
        info.reset();
        QTest::qWait(30);
        EXPECT_EQ(structure.DatabaseInfo(), nullptr);
        panel->CloseEdit(false);
        if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
        Settle();
        Field("C.city")->ValueEditorChanged();
        panel->RefreshPanel();
        Settle();
        Click(Value(1));
        EXPECT_TRUE(MenuText() != "The list is being read...") << here;
        if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
        Settle();
        EXPECT_EQ(Cond(1).Value(1), "R");
        panel->ClearAll();
    }
}

TEST_F(TPanelValueTest, SubQueryDialog) {
    TDSOperator* among = AddSubQueryOperator("Among");
    among->SetDisplayName("is among");
    Field("C.id")->AddOperator(among);
    AddRow("C.id", "Among");
    panel->Appearance().SetOptions(panel->Appearance().Options() & ~TQPAppearance::aoAllowParams);
    panel->OnCustomEdit = [](TDSField&, std::string&) {};
    int setRows = 0;
    panel->OnSetValue = [&](TFilterCond& row, std::string&, std::string&) {
        if (row.Query() == &panel->Query()) setRows += row.Parent() ? 1 : 100;
    };
    EXPECT_EQ(Cond(1).Unfinished(), TUnfinished::NoSubQuery);
    bool refused = false;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<T_dlgSubQuery*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        dialog->accept();
        refused = dialog->isVisible();
        dialog->FieldLabel().DropDown();
        Pick("Order number");
        TFilterCond* inner = TShop::Add(dialog->Panel().Root(), "O.amount", "GreaterThan", "100");
        inner->SetValueIsParam(1, true);
        EXPECT_EQ(dialog->Panel().ValueMenu().Items().Count(), 1) << "looks of the outer panel";
        EXPECT_TRUE(dialog->Panel().OnCustomEdit) << "events too";
        dialog->accept();
    });
    Click(Value(1));
    EXPECT_TRUE(refused) << "a sub-query needs a field";
    EXPECT_EQ(setRows, 1) << "not for the dialog's copy";
    EXPECT_EQ(Shown(1), "Customer number is among Sub-query");
    EXPECT_EQ(Cond(1).Unfinished(), TUnfinished::No);
    EXPECT_EQ(Condition(), "C.id in (SELECT O.id as Order_number FROM Orders O"
                           " WHERE ( O.amount >:Param1 ))");

    const std::string before = Cond(1).SubQuery();
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<T_dlgSubQuery*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        EXPECT_EQ(dialog->FieldLabel().Caption(), "Order number");
        EXPECT_EQ(dialog->Panel().Root().GetRowCount(), 1);
        dialog->Panel().ClearAll();
        dialog->reject();
    });
    Click(Value(1));
    EXPECT_EQ(Cond(1).SubQuery(), before);
    EXPECT_FALSE(View(1).Mark());
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<T_dlgSubQuery*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        TShop::Add(dialog->Panel().Root(), "O.amount", "Equal", "");
        dialog->accept();
    });
    Click(Value(1));
    ASSERT_TRUE(View(1).Mark()) << "what is left out inside is not left out in silence";
    EXPECT_TRUE(View(1).Mark()->text().contains("sub-query"));
    QTimer::singleShot(0, [&] { panel->Root().ClearRows(); });
    QTimer::singleShot(1, [&] { QApplication::activeModalWidget()->close(); });
    Click(Value(1));
    EXPECT_EQ(panel->Root().GetRowCount(), 0);
}

TEST_F(TPanelValueTest, WhatWasLeftOutOfSQLIsSaidUntilItIsTakenBack) {
    const auto marks = [this] {
        QApplication::processEvents();
        QStringList texts;
        for (const QLabel* label : panel->findChildren<QLabel*>())
            if (label->isVisible()) texts << label->text();
        return texts.join(u'|');
    };
    panel->Editor().Run("Read", [this] {
        panel->ImportSQL("select name from Customer where city = 'Rome' limit 5");
    });
    EXPECT_TRUE(marks().contains("limit 5")) << FromQt(marks());
    panel->Undo();
    EXPECT_FALSE(marks().contains("limit 5")) << FromQt(marks());
    panel->Redo();
    EXPECT_TRUE(marks().contains("limit 5")) << FromQt(marks());
    panel->ClearAll();
    EXPECT_FALSE(marks().contains("limit 5")) << FromQt(marks());
}

} // namespace tern7
