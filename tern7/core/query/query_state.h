#pragma once

#include <tern7/core/query/query.h>

namespace tern7 {

/// A builder state while it lives; idle again afterwards, whatever happened.
class TBuilderStateScope {
public:
    TBuilderStateScope(TKQuery& owner, TKBuilderState state) : query(owner) {
        query.SetBuilderState(state);
    }
    ~TBuilderStateScope() { query.SetBuilderState(TKBuilderState::stIdle); }
    TBuilderStateScope(const TBuilderStateScope&) = delete;
    TBuilderStateScope& operator=(const TBuilderStateScope&) = delete;

private:
    TKQuery& query;
};

} // namespace tern7
