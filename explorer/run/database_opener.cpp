#include "database_opener.h"

#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>

#include <tern7/core/global/errors.h>
#include <tern7/sql/bde_info.h>
#include <tern7/sql/connection.h>

#include "background.h"

namespace tern7 {

namespace {

constexpr std::chrono::milliseconds tellEvery{50};

/// A database info that tells how far the import is.
class TToldInfo : public TKBDEInfo {
public:
    /// Called with the tables whose columns were read and with the number of all; it may throw.
    std::function<void(int count, int all)> tell;

    void TablesByDatabase(TStrings& list) override {
        TKBDEInfo::TablesByDatabase(list);
        all = static_cast<int>(list.size());
        tell(0, all);
    }
    void FieldsByTable(const std::string& table, TDBFieldList& list) override {
        TKBDEInfo::FieldsByTable(table, list);
        tell(++count, all);
    }

private:
    int count = 0, all = 0;
};

struct TGivenUp {};

} // namespace

class TDatabaseOpener::TWork : public std::enable_shared_from_this<TWork> {
public:
    TWork(TDatabaseOpener& itsOwner, TKDatabaseURL itsUrl, std::string file)
        : url(std::move(itsUrl)), structureFile(std::move(file)), owner(&itsOwner) {}

    void Start() {
        RunInBackground([self = shared_from_this()] { self->Work(); });
    }

    bool WaitFor(int milliseconds) {
        std::unique_lock guard(lock);
        return ended.wait_for(guard, std::chrono::milliseconds(milliseconds),
                              [this] { return isEnded; });
    }

    void Leave() {
        const std::lock_guard guard(lock);
        owner = nullptr;
    }

    std::unique_ptr<TKCustomDBStructure> Take() {
        const std::lock_guard guard(lock);
        if (error) std::rethrow_exception(error);
        return std::move(structure);
    }

private:
    void Work() {
        std::unique_ptr<TKCustomDBStructure> made;
        std::exception_ptr failure;
        try {
            made = Open();
        } catch (const TGivenUp&) {
            // nobody is there to hear of it
        } catch (...) {
            failure = std::current_exception();
        }
        const std::lock_guard guard(lock);
        structure = std::move(made);
        error = failure;
        isEnded = true;
        ended.notify_all();
        if (owner)
            QMetaObject::invokeMethod(owner, &TDatabaseOpener::finished, Qt::QueuedConnection);
    }

    std::unique_ptr<TKCustomDBStructure> Open() {
        const TKConnection connection(url);
        auto made = std::make_unique<TKCustomDBStructure>();
        if (structureFile.empty()) {
            TToldInfo info;
            info.tell = [this](int count, int all) { Tell(count, all); };
            info.SetDatabaseName(connection.Name());
            made->SetDatabaseInfo(&info);
            ImportDatabase(*made);
            made->SetDatabaseInfo(nullptr);
        } else {
            made->LoadFromFile(structureFile);
            made->SetDatabaseInfo(nullptr);
        }
        if (made->GetTableCount() == 0) throw EKDBInfoError("The database has no tables");
        return made;
    }

    /// Not for every table: the window would do nothing else. Throws when nobody listens.
    void Tell(int count, int all) {
        const std::lock_guard guard(lock);
        if (!owner) throw TGivenUp();
        const auto now = std::chrono::steady_clock::now();
        if (now - told < tellEvery) return;
        told = now;
        QMetaObject::invokeMethod(
            owner, [to = owner, count, all] { emit to->tablesRead(count, all); },
            Qt::QueuedConnection);
    }

    const TKDatabaseURL url;
    const std::string structureFile;
    std::mutex lock; // of everything below
    std::condition_variable ended;
    TDatabaseOpener* owner;
    std::unique_ptr<TKCustomDBStructure> structure;
    std::exception_ptr error;
    std::chrono::steady_clock::time_point told;
    bool isEnded = false;
};

TDatabaseOpener::TDatabaseOpener(const TKDatabaseURL& url, const std::string& structureFile)
    : work(std::make_shared<TWork>(*this, url, structureFile)) {
    work->Start();
}

TDatabaseOpener::~TDatabaseOpener() {
    work->Leave();
}

bool TDatabaseOpener::WaitFor(int milliseconds) {
    return work->WaitFor(milliseconds);
}

bool TDatabaseOpener::IsFinished() const {
    return work->WaitFor(0);
}

std::unique_ptr<TKCustomDBStructure> TDatabaseOpener::Take() {
    return work->Take();
}

} // namespace tern7
