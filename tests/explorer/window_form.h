#pragma once

#include <memory>

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLocale>
#include <QMessageBox>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <explorer/data/language.h>
#include <explorer/data/sample_database.h>
#include <explorer/windows/main_window.h>
#include <explorer/windows/result_view.h>
#include <tern7/ui/panels/query_panel.h>
#include <tern7/ui/panels/result_fields_panel.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

inline const QString samples = QStringLiteral(TERN7_TESTS_DIR "/../examples/sample/");

/// Answers the next modal dialog as soon as it is there.
struct TAnswer {
    explicit TAnswer(int code) {
        QObject::connect(&timer, &QTimer::timeout, &timer, [this, code] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog) return;
            timer.stop();
            seen = true;
            if (const auto* box = qobject_cast<QMessageBox*>(dialog)) text = box->text();
            dialog->done(code);
        });
        timer.start(20);
    }
    QTimer timer;
    bool seen = false;
    QString text; // of a message
};

/// The window over the sample database with the example's structure.
class TWindowTest : public testing::Test {
protected:
    void SetUp() override {
        QStandardPaths::setTestModeEnabled(true);
        QCoreApplication::setOrganizationName("tern7");
        QCoreApplication::setApplicationName("tern7-test");
        QSettings().clear();
        QLocale::setDefault(QLocale::c());
        window = std::make_unique<TMainWindow>();
        window->show();
        OpenSample();
    }
    virtual void OpenSample() {
        TKDatabaseURL url;
        url.database = FromQt(SampleDatabase());
        ASSERT_TRUE(window->OpenDatabase(url, samples + "sample.str"));
    }

    void Run() {
        QSignalSpy ended(window.get(), &TMainWindow::runEnded);
        window->RunQuery();
        ASSERT_TRUE(ended.count() == 1 || ended.wait());
    }
    void AddColumn(const char* display) {
        TRFieldList& list = window->Columns().ResultFields();
        list.AddByExpression(display, TSortingType::stNoSort, std::string("{") + display + "}");
    }
    /// A condition that compares a field with a value.
    TFilterCond& AddCondition(const char* field, const char* value) {
        TKQueryPanel& panel = window->Conditions();
        TFilterCond& row = *panel.Editor().AddCondition(panel.Root(), 0);
        panel.Editor().SetField(row, *panel.DbStruct()->FieldByName(true, field));
        panel.Editor().SetOperator(row, *panel.DbStruct()->OperatorByName("Equal"));
        panel.Editor().SetValue(row, 1, value);
        return row;
    }
    /// What a menu item does.
    void Choose(const char* text) {
        for (QAction* action : window->findChildren<QAction*>())
            if (action->text() == QLatin1String(text)) return action->trigger();
        FAIL() << text;
    }
    QString Cell(int row, int column) {
        return window->Results().Model().index(row, column).data().toString();
    }
    int RowCount() { return window->Results().Model().rowCount(); }
    static QString Queries(const char* file) { return samples + "queries/" + file; }

    void TearDown() override {
        window.reset();
        InstallLanguage("en"); // of the application, for the next test
    }

    std::unique_ptr<TMainWindow> window;
    QTemporaryDir folder;
};

} // namespace tern7
