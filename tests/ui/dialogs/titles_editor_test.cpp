#include <QAction>
#include <QFile>
#include <QMessageBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>

#include <tern7/core/query/query.h>
#include <tern7/core/titles/default_titles.h>
#include <tern7/core/titles/titles_text.h>
#include <tern7/ui/dialogs/titles_editor.h>
#include <ui/panels/result_fields_form.h>

namespace tern7 {

namespace {

std::string Joined(const TStrings& lines) {
    return JoinStrings(lines, "\n");
}

std::string Edited(const T_dlgTitlesEdit& editor) {
    TStrings titles;
    editor.SaveToTitlesSections(titles);
    return Joined(titles);
}

} // namespace

TEST(TitlesEditor, PagePerSectionAndTwoColumns) {
    T_dlgTitlesEdit editor;
    editor.SetDefTitles(DefaultQueryTitles());
    TStrings titles;
    LoadTitlesFromStrings(DefaultQueryTitles(), titles, {"[PanelTitles]", "ttlAll=alle"});
    editor.Init(titles);
    ASSERT_TRUE(editor.Pages());
    EXPECT_EQ(editor.Pages()->count(), 2);
    EXPECT_EQ(editor.Pages()->tabText(1), "Result Fields Editor");
    TKTitlesGrid& grid = *editor.Grid(0);
    EXPECT_EQ(grid.horizontalHeaderItem(0)->text(), "English");
    EXPECT_EQ(grid.horizontalHeaderItem(1)->text(), "Translated");
    EXPECT_EQ(grid.rowCount(), 17);
    EXPECT_EQ(grid.currentColumn(), TKTitlesGrid::Translated);
    EXPECT_EQ(grid.item(2, 0)->text(), "all");
    EXPECT_EQ(grid.item(2, 1)->text(), "alle");
    EXPECT_FALSE(grid.item(2, 0)->flags() & Qt::ItemIsEditable);
    EXPECT_EQ(Edited(editor), Joined(titles));
    EXPECT_FALSE(editor.IsChanged());
}

TEST(TitlesEditor, TypedTranslationTakesEffectAtOnce) {
    TResultFieldsForm form;
    ASSERT_TRUE(form.Open());
    QTimer::singleShot(0, [] {
        auto* editor = qobject_cast<T_dlgTitlesEdit*>(QApplication::activeModalWidget());
        ASSERT_TRUE(editor && QTest::qWaitForWindowActive(editor));
        EXPECT_FALSE(editor->Pages());
        TKTitlesGrid& grid = *editor->Grid(0);
        EXPECT_EQ(grid.rowCount(), 7);
        ASSERT_TRUE(QTest::qWaitFor([&] { return grid.hasFocus(); }));
        Press({Qt::Key_F2, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return}); // on to the next ones
        QCoreApplication::processEvents();
        EXPECT_EQ(grid.currentIndex(), grid.model()->index(3, TKTitlesGrid::Translated));
        Press(Qt::Key_End, Qt::ControlModifier);
        Type("Neu");
        Press(Qt::Key_Return); // not OK
        QCoreApplication::processEvents();
        EXPECT_TRUE(editor->IsChanged() && editor->isVisible());
        grid.setCurrentCell(0, TKTitlesGrid::English);
        Type("x"); // the default texts stay
        EXPECT_EQ(grid.item(0, 0)->text(), "Delete current field");
        editor->accept();
    });
    EXPECT_TRUE(form.panel->EditTitles());
    QCoreApplication::processEvents();
    EXPECT_EQ(form.panel->AddLabel()->Caption(), "< Neu >");
}

TEST(TitlesEditor, FilesAreMergedAndSaved) {
    const QTemporaryDir folder;
    const auto write = [&](const char* name, const QByteArray& text) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName();
    };
    T_dlgTitlesEdit editor;
    editor.SetDefTitles(DefaultQueryTitles());
    editor.Init(DefaultQueryTitles());
    int changes = 0;
    editor.OnChange = [&](T_dlgTitlesEdit*) { ++changes; };
    const std::string defaults = Edited(editor);
    editor.LoadFile(write("empty.ttl", ""));
    EXPECT_EQ(Edited(editor), defaults);
    editor.LoadFile(write("old.ttl", "[RFETitles]\nttlOkBtnCaption=Gut\nttlAsIs=\nttlNew=x\n"));
    EXPECT_EQ(editor.Grid(1)->item(19, 1)->text(), "Gut");
    EXPECT_EQ(editor.Grid(1)->item(21, 1)->text(), "as is"); // an empty text is none
    EXPECT_EQ(changes, 2);
    // a query file: only its titles are used
    TKCustomDBStructure structure;
    MakeShop(structure);
    TKQuery query(&structure);
    LoadTitlesFromStrings(DefaultQueryTitles(), query.Titles, {"[Query Panel]", "ttlAnd=und"});
    editor.LoadFile(write("query.qry", QByteArray::fromStdString(query.GetQueryString())));
    EXPECT_EQ(editor.Grid(0)->item(13, 1)->text(), "und");
    const std::string before = Edited(editor);
    EXPECT_THROW(editor.LoadFile(folder.filePath("missing.ttl")), EKTernError);
    // the titles of another component, and no text at all
    EXPECT_THROW(editor.LoadFile(write("flat.ttl", "ttlMoveUp=auf\n")), EKTernError);
    EXPECT_THROW(editor.LoadFile(write("picture.ttl", QByteArray("\x89PNG\0\n[Query Panel]", 19))),
                 EKTernError);
    EXPECT_EQ(Edited(editor), before);
    editor.LoadFile(write("ansi.ttl", "[RFETitles]\nttlAscending=gr\xF6\xDF"
                                      "er\n"));
    EXPECT_EQ(editor.Grid(1)->item(12, 1)->text(), QString::fromUtf8("größer"));
    EXPECT_TRUE(editor.Notice().contains("Windows-1252"));
    const QString saved = folder.filePath("saved.ttl");
    editor.Grid(0)->item(0, 1)->setText("two\nlines");
    editor.SaveFile(saved);
    T_dlgTitlesEdit other;
    other.SetDefTitles(DefaultQueryTitles());
    other.Init(DefaultQueryTitles());
    other.LoadFile(saved);
    EXPECT_EQ(other.Grid(0)->item(0, 1)->text(), "two lines");
    EXPECT_EQ(Edited(other), Edited(editor));
    EXPECT_THROW(editor.SaveFile(folder.filePath("no/such/folder.ttl")), EKTernError);
}

TEST(TitlesEditor, MenuShortcutsAndDiscarding) {
    T_dlgTitlesEdit editor;
    editor.SetDefTitles(DefaultResultFieldsPanelTitles());
    editor.Init({});
    EXPECT_EQ(editor.Grid(0)->item(1, 1)->text(), "");
    QStringList items;
    for (const QAction* action : editor.Grid(0)->actions())
        items << action->text() + ' ' + action->shortcut().toString();
    EXPECT_EQ(items, (QStringList{"&Load From File... Ctrl+L", "&Save To File Ctrl+S"}));
    editor.show();
    editor.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&editor));
    Press(Qt::Key_Down);
    Type("au"); // is being edited while a file is asked for
    QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
    Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(editor.Grid(0)->item(1, 1)->text(), "au");
    EXPECT_EQ(editor.focusWidget(), editor.Grid(0));
    editor.Grid(0)->item(1, 1)->setText("auf");
    for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
        QTimer::singleShot(0, [answer] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            box->button(answer)->click();
        });
        editor.reject();
        EXPECT_EQ(editor.isVisible(), answer == QMessageBox::No);
    }
}

} // namespace tern7
