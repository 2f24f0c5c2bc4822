#pragma once

#include <memory>
#include <vector>

#include <QObject>
#include <QTimer>

#include <tern7/core/query/bound_value.h>
#include <tern7/sql/database_url.h>
#include <tern7/sql/executor.h>

namespace tern7 {

using TResultRow = std::vector<TBoundValue>;
using TResultRows = std::vector<TResultRow>;

/// A statement to run, and what to try one by one when the database refuses it: the first of the
/// trials that is refused as well is named with the error.
struct TRunRequest {
    TBoundSQL statement;
    long long rowLimit = 0; ///< 0 for all rows
    struct TTrial {
        int row; ///< the number that is told; -1 names none
        TBoundSQL statement;
    };
    std::vector<TTrial> trials;
};

/// Runs statements in the background on a connection of its own, read-only. One runs at a time:
/// another `Run` cancels the one before. All signals come in the thread of this object.
///
/// A cancelled SQLite statement is interrupted. Elsewhere the result is abandoned: its connection
/// is closed in the background when the server has answered, and the next run opens a new one. So
/// it does after a connection was lost.
class TQueryRunner : public QObject {
    Q_OBJECT

public:
    explicit TQueryRunner(QObject* parent = nullptr);
    ~TQueryRunner() override;

    /// The database of the runs to come; what runs is cancelled.
    void SetDatabase(const TKDatabaseURL& url);
    void Run(TRunRequest request);
    /// `cancelled` follows at once or as soon as the statement has stopped, at the latest after a
    /// fraction of a second.
    void Cancel();
    bool IsRunning() const { return running; }

signals:
    void started();
    void columnsRead(const std::vector<TKResultColumn>& columns);
    void rowsRead(const std::shared_ptr<TResultRows>& rows);
    /// All rows are there, or as many as the limit allows.
    void finished(bool truncated);
    /// `row` is that of the trial which is refused too; -1 when none is.
    void failed(const QString& message, int row);
    void cancelled();

private:
    class TWorker;
    friend class TWorker;

    void Abandon();
    void StopRunning();

    TKDatabaseURL url;
    bool hasDatabase = false;
    std::shared_ptr<TWorker> worker; // shared with its thread
    QTimer interruptTimer;
    int interruptsLeft = 0;
    bool running = false;
};

} // namespace tern7
