#pragma once

#include <memory>
#include <string>

#include <QObject>

#include <tern7/core/structure/structure.h>
#include <tern7/sql/database_url.h>

namespace tern7 {

/// Opens a database and imports its structure, or loads it from a file, in the background. Whoever
/// destroys this object before it has finished does not wait: the thread ends as soon as its server
/// answers.
class TDatabaseOpener : public QObject {
    Q_OBJECT

public:
    /// Begins at once. The structure is loaded from a file when one is given.
    TDatabaseOpener(const TKDatabaseURL& url, const std::string& structureFile);
    ~TDatabaseOpener() override;

    /// Waits for the end, but not longer; whether it came.
    bool WaitFor(int milliseconds);
    bool IsFinished() const;
    /// The structure, once it has finished. Its database info is not set. EKTernError as opening
    /// failed.
    std::unique_ptr<TKCustomDBStructure> Take();

signals:
    /// Of how many tables the columns were read.
    void tablesRead(int count, int all);
    void finished();

private:
    class TWork;
    std::shared_ptr<TWork> work; // shared with its thread
};

} // namespace tern7
