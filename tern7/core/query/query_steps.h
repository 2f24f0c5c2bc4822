#pragma once

#include <functional>
#include <string>

namespace tern7 {

/// Whoever keeps the steps of a query so that they can be taken back; a query has one at most. All
/// screens of a query find it through the query, so that they share one history.
class TKQuerySteps {
public:
    virtual ~TKQuerySteps() = default;
    /// One step under a name out of all that the call changes.
    virtual void RunStep(const std::string& name, const std::function<void()>& change) = 0;
    /// The same as part of the last step, when that has the name `last`; else a step of its own.
    virtual void ContinueStep(const std::string& /*last*/, const std::string& name,
                              const std::function<void()>& change) {
        RunStep(name, change);
    }
    /// Nothing happens when there is nothing to take back, or to do again.
    virtual void UndoStep() = 0;
    virtual void RedoStep() = 0;
    /// Rows or columns are about to change, or were added or taken out, and no TKQueryRecording
    /// lives: no earlier step can be taken back any more. Told at once, also while the query is
    /// inactive.
    virtual void ForgetSteps() = 0;
    virtual void QueryDestroyed() = 0;
};

} // namespace tern7
