#include "query_runner.h"

#include <atomic>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <optional>

#include <QElapsedTimer>

#include <tern7/sql/connection.h>
#include <tern7/ui/support/text.h>

#include "background.h"
#include "interrupt.h"

namespace tern7 {

namespace {

constexpr size_t rowsAtOnce = 500;
constexpr int showAfter = 100;     // milliseconds after which rows are shown, however few
constexpr int interruptEvery = 20; // an interrupt before the statement has begun is lost
constexpr int interruptTries = 7;  // then the statement is abandoned

} // namespace

/// One thread with one connection. Shared by the runner and the thread, because the thread outlives
/// a runner that has abandoned it.
class TQueryRunner::TWorker : public std::enable_shared_from_this<TWorker> {
public:
    TWorker(TQueryRunner& owner, TKDatabaseURL itsUrl) : url(std::move(itsUrl)), runner(&owner) {}

    void Start() {
        RunInBackground([self = shared_from_this()] { self->Work(); });
    }

    // --- called by the runner

    void Run(TRunRequest request) {
        const std::lock_guard guard(lock);
        cancelled = false;
        next = std::move(request);
        wake.notify_one();
    }

    /// False when nothing can stop the statement.
    bool Interrupt() {
        cancelled = true;
        const std::lock_guard guard(lock);
        if (next) return true; // not begun; it will see that it is cancelled
        if (!interrupt) return false;
        interrupt();
        return true;
    }

    /// Nothing is told any more; the thread ends as soon as it can.
    void Leave(bool busy) {
        cancelled = true;
        const std::lock_guard guard(lock);
        runner = nullptr;
        stopped = true;
        if (busy && interrupt) interrupt();
        wake.notify_one();
    }

private:
    // --- in the thread

    void Work() {
        std::unique_ptr<TKConnection> connection;
        for (;;) {
            std::optional<TRunRequest> request;
            {
                std::unique_lock guard(lock);
                wake.wait(guard, [this] { return stopped || next; });
                if (stopped) break;
                request = std::move(next);
                next.reset();
            }
            Serve(connection, *request);
        }
        Drop(connection);
    }

    void Serve(std::unique_ptr<TKConnection>& connection, const TRunRequest& request) {
        const bool wasOpen = connection != nullptr;
        try {
            try {
                if (!connection) connection = Connect();
                Execute(*connection, request);
            } catch (const std::exception&) {
                // one that was open before may have been lost meanwhile
                if (cancelled || !wasOpen || Answers(*connection)) throw;
                Drop(connection);
                connection = Connect();
                Execute(*connection, request);
            }
        } catch (const std::exception& error) {
            // A statement that was interrupted fails, which is no error then.
            if (cancelled)
                TellCancelled();
            else
                TellError(connection.get(), request, error.what());
        }
    }

    std::unique_ptr<TKConnection> Connect() {
        auto connection = std::make_unique<TKConnection>(url);
        const std::lock_guard guard(lock);
        interrupt = MakeInterrupt(connection->Database());
        return connection;
    }

    void Drop(std::unique_ptr<TKConnection>& connection) {
        {
            const std::lock_guard guard(lock);
            interrupt = nullptr;
        }
        connection.reset();
    }

    static bool Answers(const TKConnection& connection) {
        return !IsRefused(connection, {"SELECT 1", {}});
    }

    void Execute(const TKConnection& connection, const TRunRequest& request) {
        if (cancelled) return TellCancelled();
        TKExecutor executor(connection);
        executor.Open(request.statement, request.rowLimit);
        Tell([columns = executor.Columns()](TQueryRunner& to) { emit to.columnsRead(columns); });
        auto rows = std::make_shared<TResultRows>();
        QElapsedTimer sinceShown;
        sinceShown.start();
        while (!cancelled && executor.Next()) {
            rows->push_back(executor.Row());
            if (rows->size() < rowsAtOnce && sinceShown.elapsed() < showAfter) continue;
            TellRows(std::move(rows));
            rows = std::make_shared<TResultRows>();
            sinceShown.restart();
        }
        if (cancelled) return TellCancelled();
        if (!rows->empty()) TellRows(std::move(rows));
        const bool truncated = executor.IsTruncated();
        Tell([truncated](TQueryRunner& to) {
            to.StopRunning();
            emit to.finished(truncated);
        });
    }

    void TellRows(std::shared_ptr<TResultRows> rows) {
        Tell([rows = std::move(rows)](TQueryRunner& to) { emit to.rowsRead(rows); });
    }

    void TellCancelled() {
        Tell([](TQueryRunner& to) {
            to.StopRunning();
            emit to.cancelled();
        });
    }

    void TellError(const TKConnection* connection, const TRunRequest& request,
                   const std::string& message) {
        int row = -1;
        for (const TRunRequest::TTrial& trial : request.trials) {
            if (!connection || cancelled) break;
            if (!IsRefused(*connection, trial.statement)) continue;
            row = trial.row;
            break;
        }
        if (cancelled) return TellCancelled();
        Tell([row, text = ToQt(message)](TQueryRunner& to) {
            to.StopRunning();
            emit to.failed(text, row);
        });
    }

    static bool IsRefused(const TKConnection& connection, const TBoundSQL& statement) {
        try {
            TKExecutor executor(connection);
            executor.Open(statement, 1);
            executor.Next();
            return false;
        } catch (const std::exception&) {
            return true;
        }
    }

    /// The runner is alive while the lock is held; what is posted to it dies with it, or is
    /// dropped when it has left this worker in between.
    template <class Call>
    void Tell(Call call) {
        const std::lock_guard guard(lock);
        if (!runner) return;
        QMetaObject::invokeMethod(
            runner,
            [to = runner, self = shared_from_this(), call] {
                if (to->worker == self) call(*to);
            },
            Qt::QueuedConnection);
    }

    const TKDatabaseURL url;
    std::mutex lock; // of everything below but the flag
    std::condition_variable wake;
    TQueryRunner* runner;
    std::optional<TRunRequest> next;
    std::function<void()> interrupt;
    bool stopped = false;
    std::atomic<bool> cancelled = false;
};

TQueryRunner::TQueryRunner(QObject* parent) : QObject(parent) {
    interruptTimer.setInterval(interruptEvery);
    connect(&interruptTimer, &QTimer::timeout, this, [this] {
        if (--interruptsLeft <= 0 || !worker->Interrupt()) Abandon();
    });
}

TQueryRunner::~TQueryRunner() {
    if (worker) worker->Leave(running);
}

void TQueryRunner::SetDatabase(const TKDatabaseURL& newUrl) {
    const bool wasRunning = running;
    if (worker) worker->Leave(running);
    worker.reset();
    StopRunning();
    url = newUrl;
    hasDatabase = true;
    if (wasRunning) emit cancelled();
}

void TQueryRunner::Run(TRunRequest request) {
    if (running) Abandon();
    if (!hasDatabase) {
        emit failed(tr("No database is open"), -1);
        return;
    }
    if (!worker) {
        worker = std::make_shared<TWorker>(*this, url);
        worker->Start();
    }
    running = true;
    emit started();
    worker->Run(std::move(request));
}

void TQueryRunner::Cancel() {
    if (!running || interruptTimer.isActive()) return;
    if (!worker->Interrupt()) return Abandon();
    interruptsLeft = interruptTries;
    interruptTimer.start();
}

void TQueryRunner::Abandon() {
    worker->Leave(true);
    worker.reset();
    StopRunning();
    emit cancelled();
}

void TQueryRunner::StopRunning() {
    interruptTimer.stop();
    running = false;
}

} // namespace tern7
