// What the program keeps: the structure that a database is used with, captions of a query file,
// what is being typed; and what it does with a query that the database has outgrown.

#include "window_form.h"

#include <QHeaderView>
#include <QTableView>

#include <explorer/windows/message_bar.h>
#include <tern7/core/corekit/files.h>
#include <tern7/ui/controls/drop_down_label.h>
#include <tern7/ui/panels/filter_row_view.h>

namespace tern7 {

namespace {

class TKeptTest : public TWindowTest {
protected:
    std::string Text(const QString& file) { return ReadWholeFile(FromQt(file)); }
    std::string Text(const char* file) { return Text(folder.filePath(file)); }
    void Replace(std::string& text, std::string_view what, std::string_view by) {
        const size_t at = text.find(what);
        ASSERT_NE(at, std::string::npos) << what;
        text.replace(at, what.size(), by);
    }
};

TEST_F(TKeptTest, StructureOfADatabaseComesBackWithIt) {
    window->SetLanguage("de");
    std::string text = Text(samples + "sample.str");
    Replace(text, "DisplayName=Price\n", "DisplayName=Worth\n");
    const QString file = folder.filePath("own.str");
    WriteWholeFile(FromQt(file), text);
    const TKDatabaseURL url = [] {
        TKDatabaseURL sample;
        sample.database = FromQt(SampleDatabase());
        return sample;
    }();
    ASSERT_TRUE(window->OpenDatabase(url, file));
    window = std::make_unique<TMainWindow>();
    ASSERT_TRUE(window->OpenLast());
    EXPECT_TRUE(window->Conditions().DbStruct()->FieldByName(true, "Worth"));
}

TEST_F(TKeptTest, WhatIsTypedIsSaved) {
    AddColumn("Price");
    TKQueryPanel& panel = window->Conditions();
    TFilterCond& row = AddCondition("Tracking no", "a");
    QTest::qWait(50);
    TDropDownLabel* value = panel.RowView(row)->ValueLabel(1);
    value->DropDown();
    QTest::keyClicks(value->EditControl(), "Weber");
    ASSERT_TRUE(window->SaveQuery(folder.filePath("typed.qry")));
    EXPECT_NE(Text("typed.qry").find("Weber"), std::string::npos);
    EXPECT_FALSE(window->IsModified());
}

TEST_F(TKeptTest, CaptionsOfAFileStayInIt) {
    std::string text = Text(Queries("turnover.qry"));
    text.insert(0, "[Query Panel]\nttlAll=alle zusammen\n\n");
    const QString file = folder.filePath("titles.qry");
    WriteWholeFile(FromQt(file), text);
    ASSERT_TRUE(window->LoadQuery(file));
    window->Conditions().SetQueryName("renamed");
    ASSERT_TRUE(window->SaveQuery(file));
    EXPECT_NE(Text(file).find("ttlAll=alle zusammen"), std::string::npos);
    EXPECT_NE(Text(file).find("renamed"), std::string::npos);
}

TEST_F(TKeptTest, LostColumnsCanBeRemoved) {
    AddColumn("Price");
    AddColumn("Company");
    ASSERT_TRUE(window->SaveQuery(folder.filePath("lost.qry")));
    std::string text = Text("lost.qry");
    const int id = window->Conditions().DbStruct()->FieldByName(true, "Price")->ID();
    Replace(text, "Fields=" + std::to_string(id) + "\n", "Fields=999\n");
    WriteWholeFile(FromQt(folder.filePath("lost.qry")), text);
    ASSERT_TRUE(window->LoadQuery(folder.filePath("lost.qry")));
    auto* bar = window->findChild<TMessageBar*>("queryMessages");
    ASSERT_TRUE(bar->Text().startsWith("1 column")) << FromQt(bar->Text());
    bar->findChild<QPushButton*>()->click();
    EXPECT_EQ(window->Columns().ResultFields().GetCount(), 1);
    Run();
    EXPECT_EQ(RowCount(), 2);
    window->Conditions().Editor().Undo();
    EXPECT_EQ(window->Columns().ResultFields().GetCount(), 2);
}

TEST_F(TKeptTest, HeaderSortsByTheColumnThatItShows) {
    AddColumn("Company");
    AddColumn("Credit limit");
    Run();
    TRFieldList& list = window->Columns().ResultFields();
    list.Move(1, 0);
    const auto click = [this](int column) {
        const QHeaderView* header = window->Results().Table().horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          {header->sectionViewportPosition(column) + 10, 10});
    };
    QSignalSpy ended(window.get(), &TMainWindow::runEnded);
    click(0); // still the company
    ASSERT_TRUE(ended.wait());
    EXPECT_EQ(list.GetItem(1)->Sorting(), TSortingType::stAscending);
    EXPECT_EQ(list.GetItem(0)->Sorting(), TSortingType::stNoSort);
    list.Delete(0);
    click(0); // what it shows has gone
    EXPECT_EQ(list.GetItem(0)->Sorting(), TSortingType::stAscending);
}

TEST_F(TKeptTest, NobodyIsAskedWhereNobodyAnswers) {
    QStringList said;
    window->OnTrouble = [&said](const QString& message) { said << message; };
    TKDatabaseURL url;
    url.database = "/no such file";
    EXPECT_FALSE(window->OpenDatabase(url));
    EXPECT_FALSE(window->LoadQuery("/no such file"));
    AddColumn("Price");
    window->Conditions().Editor().SetParameter(AddCondition("Company", ""), 1, true);
    window->RunQuery();
    EXPECT_FALSE(window->IsRunning());
    EXPECT_EQ(said.size(), 3);
    EXPECT_FALSE(QApplication::activeModalWidget());
}

} // namespace

} // namespace tern7
