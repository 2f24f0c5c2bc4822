#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include <explorer/data/sample_database.h>
#include <explorer/run/background.h>
#include <explorer/run/query_runner.h>
#include <tern7/ui/support/text.h>

namespace tern7 {

namespace {

const char* const endless = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
                            "SELECT count(*) FROM n";

/// A runner on the sample database that remembers what it was told.
class TRunnerTest : public testing::Test {
protected:
    void SetUp() override {
        QStandardPaths::setTestModeEnabled(true);
        QFile::remove(SampleDatabase()); // made anew
        url.database = FromQt(SampleDatabase());
        runner.SetDatabase(url);
        QObject::connect(&runner, &TQueryRunner::rowsRead, &runner,
                         [this](const std::shared_ptr<TResultRows>& rows) {
                             rowCount += static_cast<int>(rows->size());
                         });
        QObject::connect(&runner, &TQueryRunner::failed, &runner,
                         [this](const QString& message, int row) {
                             error = message;
                             errorRow = row;
                         });
    }

    static TRunRequest Statement(const std::string& sql, long long limit = 0) {
        return {{sql, {}}, limit, {}};
    }

    TKDatabaseURL url;
    TQueryRunner runner;
    QSignalSpy finished{&runner, &TQueryRunner::finished};
    QSignalSpy cancelled{&runner, &TQueryRunner::cancelled};
    QSignalSpy failed{&runner, &TQueryRunner::failed};
    QString error;
    int errorRow = -2;
    int rowCount = 0;
};

TEST_F(TRunnerTest, RowsUpToTheLimit) {
    runner.Run(Statement("SELECT * FROM cities", 20));
    ASSERT_TRUE(finished.wait());
    EXPECT_EQ(rowCount, 20);
    EXPECT_TRUE(finished[0][0].toBool());
    EXPECT_FALSE(runner.IsRunning());
}

TEST_F(TRunnerTest, CancelledBeforeItBegan) {
    runner.Run(Statement(endless));
    runner.Cancel();
    ASSERT_TRUE(cancelled.count() == 1 || cancelled.wait());
    EXPECT_FALSE(runner.IsRunning());
}

TEST_F(TRunnerTest, AnotherRunTakesOver) {
    runner.Run(Statement(endless));
    QTest::qWait(50);
    runner.Run(Statement("SELECT 1"));
    ASSERT_TRUE(finished.wait());
    EXPECT_EQ(rowCount, 1);
    EXPECT_EQ(cancelled.count(), 1);
    // The thread of the first ends by itself.
    EXPECT_TRUE(QTest::qWaitFor([] { return BackgroundCount() == 1; }));
}

TEST_F(TRunnerTest, RefusedStatementNamesItsTrial) {
    TRunRequest request = Statement("SELECT * FROM cities WHERE nonsense = 1");
    request.trials = {{3, {"SELECT * FROM cities", {}}},
                      {4, {"SELECT * FROM cities WHERE nonsense = 1", {}}}};
    runner.Run(std::move(request));
    ASSERT_TRUE(failed.wait());
    EXPECT_TRUE(error.contains("nonsense")) << FromQt(error);
    EXPECT_EQ(errorRow, 4);
    request = Statement("SELECT nonsense FROM cities");
    request.trials = {{-1, {"SELECT nonsense FROM cities", {}}}, {3, request.statement}};
    runner.Run(std::move(request));
    ASSERT_TRUE(failed.wait());
    EXPECT_EQ(errorRow, -1) << "it is refused without the rows too";
    runner.Run(Statement("DELETE FROM cities"));
    ASSERT_TRUE(failed.wait());
    EXPECT_EQ(errorRow, -1);
}

} // namespace

} // namespace tern7
