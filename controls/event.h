#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace parabolt {

/// A named happening of a control. Handlers run in the order in which they were connected, inside
/// the statement that raises the event.
template <class... Args>
class Event {
public:
    /// Not from a handler of the same event.
    void connect(std::function<void(Args...)> handler) { handlers_.push_back(std::move(handler)); }
    void operator()(Args... args) const {
        for (const auto& handler : handlers_)
            handler(args...);
    }
    bool connected() const { return !handlers_.empty(); }

private:
    std::vector<std::function<void(Args...)>> handlers_;
};

} // namespace parabolt
