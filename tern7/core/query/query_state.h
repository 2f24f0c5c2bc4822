#pragma once

#include <tern7/core/query/query.h>

namespace tern7 {

/// A builder state while it lives; idle again afterwards, whatever happened.
class TBuilderStateScope {
public:
    TBuilderStateScope(TKQuery& owner, TKBuilderState state)
        : query(owner),
          after(owner.BuilderState() == TKBuilderState::stBuilding ? TKBuilderState::stBuilding
                                                                   : TKBuilderState::stIdle) {
        query.SetBuilderState(state);
    }
    ~TBuilderStateScope() { query.SetBuilderState(after); }
    TBuilderStateScope(const TBuilderStateScope&) = delete;
    TBuilderStateScope& operator=(const TBuilderStateScope&) = delete;

private:
    TKQuery& query;
    TKBuilderState after; // a text written by a handler does not end the building around it
};

} // namespace tern7
