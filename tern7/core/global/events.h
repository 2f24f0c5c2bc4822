#pragma once

#include <functional>

namespace tern7 {

/// An event: an assignable callable. Calling an event that nobody handles does nothing. A handler is
/// copied before it is called, so it may replace itself.
template <class... Args>
class TEvent {
public:
    using THandler = std::function<void(Args...)>;

    TEvent& operator=(THandler newHandler) {
        handler = std::move(newHandler);
        return *this;
    }
    explicit operator bool() const { return static_cast<bool>(handler); }
    void operator()(Args... args) const {
        if (!handler) return;
        THandler copy = handler;
        copy(args...);
    }

private:
    THandler handler;
};

} // namespace tern7
