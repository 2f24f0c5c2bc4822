#include "window_form.h"

#include <QElapsedTimer>
#include <QProgressDialog>
#include <QPushButton>
#include <QtSql/QSqlDatabase>

#ifdef Q_OS_UNIX
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>
#endif

#include <explorer/run/background.h>

namespace tern7 {

namespace {

#ifdef Q_OS_UNIX

/// A server that takes connections and never says a word.
class TSilentServer {
public:
    TSilentServer() : listener(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        auto* const at = reinterpret_cast<sockaddr*>(&address);
        socklen_t size = sizeof address;
        if (bind(listener, at, size) == 0 && listen(listener, 4) == 0 &&
            getsockname(listener, at, &size) == 0)
            Port = ntohs(address.sin_port);
    }
    ~TSilentServer() { Close(); }
    void Close() {
        if (listener >= 0) close(std::exchange(listener, -1));
    }
    int Port = 0;

private:
    int listener;
};

TEST_F(TWindowTest, DatabaseThatDoesNotAnswerIsGivenUp) {
    if (!QSqlDatabase::isDriverAvailable("QPSQL")) GTEST_SKIP() << "no driver for PostgreSQL";
    TSilentServer server;
    ASSERT_GT(server.Port, 0);
    int ticks = 0;
    QTimer alive;
    QObject::connect(&alive, &QTimer::timeout, &alive, [&ticks] { ++ticks; });
    alive.start(10);
    bool cancelled = false;
    QTimer::singleShot(500, window.get(), [this, &cancelled] {
        const auto* progress = window->findChild<QProgressDialog*>();
        if (!progress || !progress->isVisible()) return;
        progress->findChild<QPushButton*>()->click();
        cancelled = true;
    });
    QTimer::singleShot(4000, window.get(), [&server] { server.Close(); }); // ends all waiting
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(window->OpenDatabase(
        ParseDatabaseURL("postgresql://me@127.0.0.1:" + std::to_string(server.Port) + "/none")));
    EXPECT_TRUE(cancelled);
    EXPECT_LT(clock.elapsed(), 3000);
    EXPECT_GT(ticks, 10);

    // The database before is still there.
    EXPECT_GT(BackgroundCount(), 0);
    AddColumn("Price");
    Run();
    EXPECT_GT(RowCount(), 10);
    server.Close();
    EXPECT_TRUE(QTest::qWaitFor([] { return BackgroundCount() == 1; }));
}

#endif

TEST_F(TWindowTest, WhatIsNoDatabaseChangesNothing) {
    TKDatabaseURL url;
    url.database = FromQt(samples + "sample.str");
    AddColumn("Price");
    EXPECT_FALSE(window->OpenDatabase(url));
    auto* dialog = window->findChild<QDialog*>();
    ASSERT_TRUE(dialog && dialog->isVisible()); // says why, and lets another be chosen
    dialog->reject();
    Run();
    EXPECT_GT(RowCount(), 10);
}

} // namespace

} // namespace tern7
