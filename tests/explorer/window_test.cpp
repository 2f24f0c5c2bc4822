#include "window_form.h"

#include <map>
#include <set>

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTableView>

#include <explorer/data/error_text.h>
#include <explorer/windows/parameter_dialog.h>
#include <explorer/windows/report_dialog.h>
#include <tern7/core/corekit/files.h>
#include <tern7/core/corekit/strings.h>
#include <tern7/core/global/messages.h>
#include <tern7/core/query/read_sql/report_reasons.h>
#include <tern7/ui/support/language_titles.h>

namespace tern7 {

namespace {

TEST_F(TWindowTest, SavedQueryRuns) {
    ASSERT_TRUE(window->LoadQuery(Queries("turnover.qry")));
    EXPECT_FALSE(window->IsModified());
    EXPECT_TRUE(window->ShownSQL().contains("GROUP BY"));
    Run();
    EXPECT_EQ(RowCount(), 44);
    EXPECT_EQ(Cell(0, 0), "Austria");

    // A click on a header sorts by that column, another one the other way round.
    QSignalSpy ended(window.get(), &TMainWindow::runEnded);
    const auto clickTurnover = [&] {
        const QHeaderView* header = window->Results().Table().horizontalHeader();
        const QPoint place(header->sectionViewportPosition(3) + 10, 10);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
        return ended.wait();
    };
    ASSERT_TRUE(clickTurnover());
    EXPECT_LT(Cell(0, 3).toDouble(), Cell(43, 3).toDouble());
    ASSERT_TRUE(clickTurnover());
    EXPECT_GT(Cell(0, 3).toDouble(), Cell(43, 3).toDouble());
    EXPECT_TRUE(window->IsModified());
}

TEST_F(TWindowTest, HeadersTellFieldsOfOneNameApart) {
    const struct {
        const char *caption, *expression;
    } columns[] = {{"Name", "{Countries.Name}"},
                   {"Name1", "{Customers.Name}"},
                   {"Name2", "{Customers.Name}"},
                   {"Mine", "{Cities.Name}"}};
    for (const auto& column : columns)
        window->Columns().ResultFields().AddByExpression(column.caption, TSortingType::stNoSort,
                                                         column.expression);
    Run();
    QStringList headers;
    for (int i = 0; i < window->Results().Model().columnCount(); ++i)
        headers
            << window->Results().Model().headerData(i, Qt::Horizontal, Qt::DisplayRole).toString();
    EXPECT_EQ(headers,
              (QStringList{"Countries Name", "Customers Name", "Customers Name2", "Mine"}));
}

TEST_F(TWindowTest, SavedAndOpenedAgain) {
    AddColumn("list price");
    const QString file = folder.filePath("mine.qry");
    EXPECT_TRUE(window->IsModified());
    ASSERT_TRUE(window->SaveQuery(file));
    EXPECT_FALSE(window->IsModified());
    AddColumn("Price");
    ASSERT_TRUE(window->LoadQuery(file));
    EXPECT_EQ(window->Columns().ResultFields().GetCount(), 1);
    TAnswer answer(QDialog::Accepted);
    EXPECT_FALSE(window->SaveQuery("/no such folder/x.qry"));
    EXPECT_TRUE(answer.text.contains("No such file or directory")) << FromQt(answer.text);
}

TEST_F(TWindowTest, DamagedQueryChangesNothing) {
    AddColumn("Price");
    const QString file = folder.filePath("cut.qry");
    const std::string whole = ReadWholeFile(FromQt(Queries("turnover.qry")));
    WriteWholeFile(FromQt(file), whole.substr(0, whole.size() / 2));
    TAnswer answer(QDialog::Accepted);
    EXPECT_FALSE(window->LoadQuery(file));
    EXPECT_TRUE(answer.seen);
    EXPECT_EQ(window->Columns().ResultFields().GetCount(), 1);
    Run();
    EXPECT_GT(RowCount(), 10);
}

TEST_F(TWindowTest, ReadingSQLIsOneStep) {
    AddColumn("Price");
    TKQueryPanel& panel = window->Conditions();
    panel.Editor().AddCondition(panel.Root(), 0); // without a field
    const auto texts = [&] {
        return std::pair(panel.Query().GetQueryString(), panel.Root().GetRowCount());
    };
    const auto before = texts();
    const QString sql = "select quantity from order_lines where unit_price > 50 and 1 = 1";
    for (const bool keep : {true, false}) {
        SCOPED_TRACE(keep);
        const TAnswer report(keep ? QDialog::Accepted : TReportDialog::TakenBack);
        ASSERT_TRUE(window->ReadSQL(sql));
        EXPECT_TRUE(report.seen);
        const auto read = texts();
        if (keep) {
            EXPECT_NE(read, before);
            panel.Undo();
        }
        EXPECT_EQ(texts(), before);
        panel.Redo();
        EXPECT_NE(texts(), before);
        panel.Undo();
        EXPECT_EQ(texts(), before);
    }
    ASSERT_TRUE(window->SaveQuery(folder.filePath("one.qry")));
    ASSERT_TRUE(window->LoadQuery(folder.filePath("one.qry")));
    EXPECT_FALSE(panel.Editor().CanRedo()) << "a query that is opened begins anew";
}

TEST_F(TWindowTest, StatementThatCanNotBeReadSaysWhere) {
    AddColumn("Price");
    const struct {
        const char *sql, *message;
    } cases[] = {
        {"selec nonsense", "line 1, column 1 on"},
        {"select quantity\nfrom order_lines\nwhere (unit_price > 1", "line 3, column 22"},
        {"select quantity, 'abc from order_lines", "string that begins at line 1, column 18"},
    };
    for (const auto& each : cases) {
        const TAnswer answer(QDialog::Accepted);
        EXPECT_FALSE(window->ReadSQL(each.sql));
        EXPECT_TRUE(answer.text.contains(each.message)) << FromQt(answer.text);
        EXPECT_EQ(window->Columns().ResultFields().GetCount(), 1);
    }
}

TEST_F(TWindowTest, RowsOfAnotherQueryAreMarked) {
    ASSERT_TRUE(window->LoadQuery(Queries("turnover.qry")));
    Run();
    const QString summary = window->Results().Summary();
    TKQueryEditor& editor = window->Conditions().Editor();
    editor.SetSQLOption(TSQLOption::soSelectDistinct, true);
    ASSERT_TRUE(QTest::qWaitFor([&] { return window->Results().IsOutdated(); }));
    EXPECT_TRUE(window->Results().Summary().startsWith("Rows of the query before"));
    editor.Undo();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !window->Results().IsOutdated(); }));
    EXPECT_EQ(window->Results().Summary(), summary);
    editor.Redo();
    Run();
    EXPECT_FALSE(window->Results().IsOutdated());
}

TEST_F(TWindowTest, RunningAfterEveryChangeLeavesMenusAlone) {
    ASSERT_TRUE(window->LoadQuery(Queries("turnover.qry")));
    Choose("Run after every c&hange");
    TKQueryPanel& panel = window->Conditions();
    QTest::mouseClick(panel.AddRowLabel(), Qt::LeftButton);
    QTest::qWait(1000);
    QWidget* menu = QApplication::activePopupWidget();
    ASSERT_TRUE(menu);
    EXPECT_TRUE(menu->isVisible());
    QSignalSpy ended(window.get(), &TMainWindow::runEnded);
    menu->close();
    ASSERT_TRUE(ended.wait());
    const auto* bar = window->findChild<TMessageBar*>("queryMessages");
    EXPECT_EQ(bar->Text(), "") << "the row says so itself";
    Run();
    EXPECT_TRUE(bar->Text().contains("not finished"));
    panel.Editor().Undo();
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar->Text().isEmpty(); }));
}

TEST_F(TWindowTest, OpenedQueryRunsWithEveryChange) {
    Choose("Run after every c&hange");
    QSignalSpy ended(window.get(), &TMainWindow::runEnded);
    ASSERT_TRUE(window->LoadQuery(Queries("turnover.qry")));
    ASSERT_TRUE(ended.count() == 1 || ended.wait());
    EXPECT_EQ(RowCount(), 44);
}

TEST_F(TWindowTest, NewQueryStartsFromNoTable) {
    window->Conditions().SetMainTableName("customers");
    ASSERT_TRUE(window->SaveQuery(folder.filePath("customers.qry")));
    Choose("&New query");
    EXPECT_EQ(window->Conditions().MainTableName(), "");
}

TEST_F(TWindowTest, TablesAreJoinedAnotherWay) {
    AddColumn("Countries.Name");
    AddColumn("Order year");
    const auto shows = [this](const char* text) {
        return QTest::qWaitFor([&] { return window->ShownSQL().contains(QLatin1String(text)); });
    };
    ASSERT_TRUE(shows("currency")) << "the shortest way";
    Choose("&Join another way...");
    auto* menu = qobject_cast<TKPopupMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
        QTest::keyClick(menu, key);
    EXPECT_TRUE(shows("cities")) << "by the address";
    ASSERT_TRUE(window->SaveQuery(folder.filePath("way.qry")));
    window->Conditions().Editor().Undo();
    EXPECT_TRUE(shows("currency"));
    ASSERT_TRUE(window->LoadQuery(folder.filePath("way.qry")));
    EXPECT_TRUE(shows("cities"));
}

TEST_F(TWindowTest, EverySwitchSwitches) {
    for (QAction* action : window->findChildren<QAction*>()) {
        if (!action->isCheckable()) continue;
        const bool before = action->isChecked();
        action->trigger();
        EXPECT_TRUE(action->isChecked() != before || action->actionGroup())
            << FromQt(action->text());
        action->trigger();
    }
    EXPECT_TRUE(window->findChild<QPlainTextEdit*>()->isVisible()) << "SQL is shown again";
    window->SetLanguage("en");
    window->SetLook(TMainWindow::TLook::System);
}

TEST_F(TWindowTest, ColumnsInAnotherOrderSayThatRowsMayBeOthers) {
    AddColumn("Tracking no");
    AddColumn("Products.Name");
    const auto bar = window->findChild<TMessageBar*>("queryMessages");
    const auto says = [&](const char* text) {
        return QTest::qWaitFor([&] { return bar->Text().contains(QLatin1String(text)); });
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->ShownSQL().contains("FROM shipments"); }));
    window->Conditions().Editor().MoveResultField(1, 0);
    ASSERT_TRUE(says("start from Products now"));
    bar->findChild<QPushButton*>()->click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->ShownSQL().contains("FROM shipments"); }));
    EXPECT_EQ(bar->Text(), "");
}

TEST_F(TWindowTest, TextsThatAreNoDatesAreRefused) {
    AddColumn("Order year");
    TKQueryPanel& panel = window->Conditions();
    TFilterCond* row = panel.Editor().AddCondition(panel.Root(), 0);
    panel.Editor().SetField(*row, *panel.DbStruct()->FieldByName(true, "Ordered at"));
    panel.Editor().SetOperator(*row, *panel.DbStruct()->OperatorByName("LessThan"));
    panel.Editor().SetValue(*row, 1, "31/12/22 noon");
    window->RunQuery();
    EXPECT_FALSE(window->IsRunning());
    EXPECT_TRUE(window->findChild<TMessageBar*>("queryMessages")->Text().contains("noon"));
    panel.Editor().SetValue(*row, 1, "2022-12-31");
    Run();
    EXPECT_EQ(window->Results().Messages().Text(), "");

    // a parameter is held to the same
    panel.Editor().SetParameter(*row, 1, true);
    TParameterDialog dialog(panel.Query());
    dialog.show();
    auto* edit = dialog.findChild<QLineEdit*>();
    EXPECT_EQ(dialog.focusWidget(), edit);
    for (const char* wrong : {"", "soon"}) {
        edit->setText(wrong);
        dialog.accept();
        EXPECT_TRUE(dialog.isVisible()) << wrong;
    }
    edit->setText("2021-01-01");
    dialog.accept();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(TWindowTest, OldStyleJoinsBecomeJoinsAndGoWithTheirQuery) {
    ASSERT_TRUE(window->ReadSQL("select t.name, n.name as country from cities t, countries n "
                                "where t.country_code = n.country_code"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->ShownSQL().contains("INNER JOIN"); }))
        << FromQt(window->ShownSQL());
    ASSERT_TRUE(window->LoadQuery(Queries("turnover.qry")));
    EXPECT_EQ(window->Conditions().Query().SQLSyntax(), TSQLSyntax::ssSQL2);
}

TEST_F(TWindowTest, EmptyQuerySaysWhatIsMissing) {
    window->RunQuery();
    EXPECT_FALSE(window->IsRunning());
    EXPECT_TRUE(window->findChild<TMessageBar*>("queryMessages")->Text().contains("column"));
}

#ifdef TERN7_WITH_TRANSLATIONS
TEST_F(TWindowTest, LanguageSwitchesEverything) {
    AddColumn("Price");
    TKQueryPanel& conditions = window->Conditions();
    conditions.Editor().AddCondition(conditions.Root(), 0);
    Run(); // the condition is not finished, which is said
    const auto bar = window->findChild<TMessageBar*>("queryMessages");
    const auto menuTitle = [this] { return window->menuBar()->actions().front()->text(); };
    const QString summary = window->Results().Summary();
    ASSERT_TRUE(bar->Text().startsWith("1 condition is")) << FromQt(bar->Text());

    window->SetLanguage("de");
    EXPECT_EQ(menuTitle(), "&Datei");
    for (const std::string_view reason : reasons::All)
        EXPECT_NE(QCoreApplication::translate("tern7::TReportDialog", reason.data()), ToQt(reason))
            << reason;
    EXPECT_EQ(conditions.Editor().Stack().undoText(), QString("Bedingung hinzufügen"));
    EXPECT_TRUE(bar->Text().startsWith("1 Bedingung ist")) << FromQt(bar->Text());
    EXPECT_TRUE(window->Results().Summary().contains("Zeilen"));
    EXPECT_EQ(window->layoutDirection(), Qt::LeftToRight);
    window->SetLanguage("ar");
    EXPECT_EQ(menuTitle(), QString("&ملف"));
    EXPECT_EQ(window->layoutDirection(), Qt::RightToLeft);
    window->SetLanguage("en");
    EXPECT_EQ(menuTitle(), "&File");
    EXPECT_EQ(window->Results().Summary(), summary);
    EXPECT_EQ(window->layoutDirection(), Qt::LeftToRight);
}
#endif

/// The texts that share a key with another one, "&&" aside.
std::string Clashes(const QStringList& texts) {
    std::map<QChar, QStringList> byKey;
    for (QString text : texts) {
        const qsizetype mark = text.replace("&&", " ").indexOf(u'&');
        if (mark >= 0 && mark + 1 < text.size()) byKey[text[mark + 1].toLower()] << text;
    }
    QStringList clashes;
    for (const auto& [key, all] : byKey)
        if (all.size() > 1) clashes << all;
    return FromQt(clashes.join(", "));
}

TEST_F(TWindowTest, NoKeyMeansTwoThings) {
    for (const TTitleLanguage& language : TitleLanguages()) {
        window->SetLanguage(language.code);
        QStringList top;
        for (const QLabel* label : window->findChildren<QLabel*>())
            if (label->buddy()) top << label->text();
        for (QMenu* menu : window->findChildren<QMenu*>()) {
            emit menu->aboutToShow();
            QStringList texts;
            for (const QAction* action : menu->actions())
                texts << action->text();
            EXPECT_EQ(Clashes(texts), "") << FromQt(language.code);
        }
        for (const QAction* action : window->menuBar()->actions())
            top << action->text();
        EXPECT_EQ(Clashes(top), "") << FromQt(language.code);
    }
    std::set<QString> keys;
    for (const QAction* action : window->findChildren<QAction*>()) {
        const QString key = action->shortcut().toString();
        if (key.isEmpty() || action->shortcutContext() != Qt::WindowShortcut) continue;
        EXPECT_TRUE(keys.insert(key).second) << FromQt(key);
    }
}

TEST_F(TWindowTest, MessagesOfTheLibraryAreTranslated) {
    const auto bar = window->findChild<TMessageBar*>("queryMessages");
    const struct {
        std::string message;
        const char *english, *german;
    } cases[] = {
        {FormatMessage(messages::WrongValue, {"Price %2", "x%1"}),
         "This can not be a value of “Price %2”: x%1",
         "Das kann kein Wert von „Price %2“ sein: x%1"},
        {std::string(messages::OnlySelect), "Only SELECT statements are executed.",
         "Es werden nur SELECT-Anweisungen ausgeführt."},
        {"no such function: f", "no such function: f", "no such function: f"},
    };
    for (const auto& each : cases) {
        window->SetLanguage("en");
        EXPECT_EQ(MessageText(ToQt(each.message)), QString::fromUtf8(each.english));
        window->SetLanguage("de");
        EXPECT_EQ(MessageText(ToQt(each.message)), QString::fromUtf8(each.german));
    }
    // a message that is shown follows too
    AddColumn("Price");
    AddCondition("Price", "1 or 2");
    window->RunQuery();
    EXPECT_TRUE(bar->Text().startsWith("Das kann kein Wert")) << FromQt(bar->Text());
    window->SetLanguage("en");
    EXPECT_TRUE(bar->Text().startsWith("This can not be")) << FromQt(bar->Text());
}

TEST_F(TWindowTest, DatesFollowTheLanguage) {
    AddColumn("Price");
    TKQueryPanel& panel = window->Conditions();
    TKQueryEditor& editor = panel.Editor();
    window->SetLanguage("de");
    TFilterCond& row = AddCondition("Required on", "");
    const auto bound = [&] {
        panel.BuildQuery();
        return panel.QResult().GetBoundSQL().values.at(0).text;
    };
    for (const char* typed : {"31.12.2023", "2023-12-31"}) {
        editor.SetValue(row, 1, typed);
        EXPECT_EQ(bound(), "2023-12-31") << typed;
    }
    editor.SetValue(row, 1, "01.02.2024");
    const struct {
        const char *language, *shown, *before;
    } cases[] = {{"fr", "01/02/2024", "31/12/2023"}, {"ar", "1/2/2024", "31/12/2023"}};
    for (const auto& each : cases) {
        window->SetLanguage(each.language);
        EXPECT_EQ(row.Value(1), each.shown);
        EXPECT_EQ(bound(), "2024-02-01") << each.language;
        editor.Undo(); // what undo keeps follows too
        editor.Undo();
        EXPECT_EQ(row.Value(1), each.before);
        EXPECT_EQ(bound(), "2023-12-31") << each.language;
        editor.Redo();
        editor.Redo();
    }
}

TEST_F(TWindowTest, OwnCaptionsStayWithTheirLanguage) {
    window->SetLanguage("en");
    window->Columns().Dialogs.editTitles = [](QWidget*, const TStrings&, TStrings& titles) {
        titles = {"ttlAscending=upwards"};
        return true;
    };
    Choose("Of the c&olumns...");
    EXPECT_EQ(window->Columns().Titles(), TStrings{"ttlAscending=upwards"});
    window->SetLanguage("fr");
    EXPECT_NE(window->Columns().Titles(), TStrings{"ttlAscending=upwards"});
    window->SetLanguage("en");
    EXPECT_EQ(window->Columns().Titles(), TStrings{"ttlAscending=upwards"});
    Choose("As &delivered");
    EXPECT_TRUE(window->Columns().Titles().empty());
}

TEST_F(TWindowTest, ColumnsAreEditedInTheDialogAndTakenBack) {
    AddColumn("Price");
    window->Conditions().Dialogs.editResultFields =
        [](QWidget*, const TRFieldList&, const TStrings&, const std::function<void()>&) {
            return [](TRFieldList& list) { list.GetItem(0)->SetCaption("Dear"); };
        };
    for (QAction* action : window->findChildren<QAction*>())
        if (action->shortcut() == QKeySequence("Ctrl+Shift+K")) action->trigger();
    EXPECT_EQ(window->Columns().ResultFields().GetItem(0)->Caption(), "Dear");
    window->Conditions().Undo();
    EXPECT_EQ(window->Columns().ResultFields().GetItem(0)->Caption(), "Price");
}

} // namespace

} // namespace tern7
