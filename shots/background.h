#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>

namespace parabolt {

/// Works on a thread of its own, one task at a time: a new task ends the work on the one before.
/// With nothing to do the thread sleeps.
class Background {
public:
    /// Looks at the token now and then, and returns soon once a stop is requested.
    using Task = std::function<void(const std::stop_token&)>;

    Background();
    /// Ends the work and waits until the task in hand has noticed.
    ~Background();
    Background(const Background&) = delete;
    Background& operator=(const Background&) = delete;

    /// Never waits.
    void begin(Task task);
    /// Ends the work in hand, without waiting.
    void cancel();

private:
    struct Job {
        Task task;
        std::stop_token stop;
    };
    void work(const std::stop_token& end);

    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::optional<Job> next_;
    std::stop_source current_{std::nostopstate}; ///< of the newest job
    std::jthread thread_;                        ///< last: it works on all of the above
};

} // namespace parabolt
