#pragma once

#include <memory>

namespace tern7 {

/// A member that tells others whether its owner still lives. A copy of the owner has a life of its
/// own.
class TKLife {
public:
    TKLife() = default;
    TKLife(const TKLife&) {}
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): nothing is copied
    TKLife& operator=(const TKLife&) { return *this; }
    /// Expires with the owner.
    std::weak_ptr<const void> Watch() const { return token; }

private:
    std::shared_ptr<const void> token = std::make_shared<char>();
};

} // namespace tern7
