#pragma once

namespace tern7 {

/// Counts a thread that nobody waits for any more while it still waits for its server.
class TAbandoned {
public:
    TAbandoned();
    ~TAbandoned();
    TAbandoned(const TAbandoned&) = delete;
    TAbandoned& operator=(const TAbandoned&) = delete;

    static bool Any();
};

} // namespace tern7
