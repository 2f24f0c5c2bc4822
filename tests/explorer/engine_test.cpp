// The program on the sample in each database: SQLite, and the servers of TERN7_TEST_POSTGRESQL and
// TERN7_TEST_MARIADB where these addresses are given.

#include "window_form.h"

#include <algorithm>
#include <array>

#include <QElapsedTimer>
#include <QProcess>
#include <QtSql/QSqlQuery>

#include <tern7/sql/connection.h>
#include <tern7/sql/driver_call.h>

namespace tern7 {

namespace {

struct TEngineOfTest {
    const char* name;
    const char* variable;
    const char* slowExpression; // takes much longer than a test waits
    const char* endings;        // of a server: the statements that end the connections of others
};

void PrintTo(const TEngineOfTest& engine, std::ostream* out) {
    *out << engine.name;
}

constexpr TEngineOfTest engines[] = {
    {"SQLite", nullptr,
     "{Freight} + (WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
     "SELECT count(*) FROM n)",
     nullptr},
    {"PostgreSQL", "TERN7_TEST_POSTGRESQL", "{Freight} + (SELECT count(*) FROM pg_sleep(20))",
     "SELECT 'SELECT pg_terminate_backend(' || pid || ')' FROM pg_stat_activity "
     "WHERE datname = current_database() AND pid <> pg_backend_pid()"},
    {"MariaDB", "TERN7_TEST_MARIADB", "{Freight} + SLEEP(20)",
     "SELECT CONCAT('KILL ', id) FROM information_schema.processlist "
     "WHERE db = DATABASE() AND id <> CONNECTION_ID()"},
};

/// A database of the server with the sample in it, made once; empty where there is no server.
std::string LoadedServer(const char* variable) {
    const std::string server = qgetenv(variable).toStdString();
    if (server.empty()) return {};
    {
        const TKConnection connection(ParseDatabaseURL(server), TKConnection::TMode::ReadWrite);
        Execute(connection.Database(), "DROP DATABASE IF EXISTS tern7_explorer");
        Execute(connection.Database(), "CREATE DATABASE tern7_explorer");
    }
    const std::string address = server.substr(0, server.rfind('/')) + "/tern7_explorer";
    QProcess load;
    load.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    load.start(samples + "load_server", {ToQt(address)});
    const bool loaded = load.waitForFinished(120'000) && load.exitCode() == 0;
    return loaded ? address : std::string();
}

class TProgramTest : public TWindowTest, public testing::WithParamInterface<TEngineOfTest> {
protected:
    void OpenSample() override {
        if (!GetParam().variable) {
            url.database = FromQt(SampleDatabase());
        } else {
            static std::map<std::string, std::string> loaded;
            if (qEnvironmentVariableIsEmpty(GetParam().variable))
                GTEST_SKIP() << GetParam().variable << " is not set";
            const auto [at, isNew] = loaded.try_emplace(GetParam().name);
            if (isNew) at->second = LoadedServer(GetParam().variable);
            ASSERT_NE(at->second, "") << "the sample could not be loaded";
            url = ParseDatabaseURL(at->second);
        }
        ASSERT_TRUE(window->OpenDatabase(url)); // imported
    }

    /// Freight, highest first, of the orders that are paid.
    void Build() {
        AddColumn("Orders.Order id");
        AddColumn("Freight");
        window->Conditions().Editor().SetSorting(*window->Columns().ResultFields().GetItem(1),
                                                 TSortingType::stDescending);
        AddCondition("Paid", "1");
    }

    TKDatabaseURL url;
};

TEST_P(TProgramTest, BuildRunSaveReopenAndPaste) {
    Build();
    Run();
    const int paid = RowCount();
    ASSERT_GT(paid, 10) << FromQt(window->Results().Messages().Text());
    EXPECT_GE(Cell(0, 1).toDouble(), Cell(1, 1).toDouble());
    const QString first = Cell(0, 0);
    EXPECT_EQ(window->Results().Model().headerData(1, Qt::Horizontal, Qt::DisplayRole), "Freight");
    EXPECT_EQ(window->Results().Model().headerData(0, Qt::Horizontal, Qt::DisplayRole),
              "Orders.Order id"); // as it was called, not the plain alias

    const QString file = folder.filePath("paid.qry");
    ASSERT_TRUE(window->SaveQuery(file));
    const QString sql = window->ShownSQL();
    window->Conditions().ClearAll();
    ASSERT_TRUE(window->LoadQuery(file));
    Run();
    EXPECT_EQ(RowCount(), paid);

    window->Conditions().ClearAll();
    ASSERT_TRUE(window->ReadSQL(sql));
    Run();
    EXPECT_EQ(RowCount(), paid);
    EXPECT_EQ(Cell(0, 0), first);

    // What the database refuses names the condition, and changes nothing.
    TKQueryPanel& panel = window->Conditions();
    panel.SetCheckValues(false);
    panel.DbStruct()->OperatorByName("Equal")->SetSQLName("@f = nonsense('@1')");
    AddCondition("Freight", "1");
    Run();
    const QString message = window->Results().Messages().Text();
    EXPECT_TRUE(message.contains("nonsense", Qt::CaseInsensitive)) << FromQt(message);
    EXPECT_TRUE(message.startsWith(u'“')) << FromQt(message);
}

TEST_P(TProgramTest, SlowQueryIsCancelledWhileTheWindowLives) {
    Build();
    window->Columns().ResultFields().AddByExpression("Slow", TSortingType::stNoSort,
                                                     GetParam().slowExpression);
    std::array<qint64, 3> times{}; // other work on the machine may disturb one
    for (qint64& time : times) {
        QSignalSpy ended(window.get(), &TMainWindow::runEnded);
        int ticks = 0;
        QTimer alive;
        QObject::connect(&alive, &QTimer::timeout, &alive, [&ticks] { ++ticks; });
        alive.start(10);
        window->RunQuery();
        QTest::qWait(300);
        ASSERT_TRUE(window->IsRunning()) << FromQt(window->Results().Messages().Text());
        EXPECT_GT(ticks, 5);
        EXPECT_TRUE(window->Results().Summary().startsWith("Running"));
        QElapsedTimer clock;
        clock.start();
        window->CancelRun();
        ASSERT_TRUE(ended.count() == 1 || ended.wait());
        time = clock.elapsed();
        EXPECT_FALSE(window->IsRunning());
    }
    std::sort(times.begin(), times.end());
    EXPECT_LT(times[1], 200);

    // The next one runs as if nothing had been.
    window->Conditions().Undo();
    window->Columns().ResultFields().Delete(2);
    Run();
    EXPECT_GT(RowCount(), 10) << FromQt(window->Results().Messages().Text());
}

TEST_P(TProgramTest, LostConnectionIsOpenedAgain) {
    if (!GetParam().endings) GTEST_SKIP() << "no server, no connection to lose";
    Build();
    Run();
    const int paid = RowCount();
    ASSERT_GT(paid, 10);
    {
        const TKConnection other(url, TKConnection::TMode::ReadWrite);
        QSqlQuery endings(other.Database());
        ASSERT_TRUE(endings.exec(GetParam().endings));
        QStringList statements;
        while (endings.next())
            statements << endings.value(0).toString();
        ASSERT_FALSE(statements.isEmpty());
        for (const QString& statement : statements)
            Execute(other.Database(), statement);
    }
    Run();
    EXPECT_EQ(RowCount(), paid) << FromQt(window->Results().Messages().Text());
    EXPECT_EQ(window->Results().Messages().Text(), "");
}

INSTANTIATE_TEST_SUITE_P(Engines, TProgramTest, testing::ValuesIn(engines),
                         [](const auto& given) { return std::string(given.param.name); });

} // namespace

} // namespace tern7
