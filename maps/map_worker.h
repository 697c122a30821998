#pragma once

#include "maps/map_result.h"

#include <condition_variable>
#include <mutex>
#include <thread>

namespace parabolt {

/// Computes maps on a thread of its own, one at a time: a new request ends the work on the one
/// before. With nothing to do the thread sleeps.
class MapWorker {
public:
    /// `deliver` is called on the worker's thread, with the passes of a request in their order. One
    /// that is under way when a new request comes may still arrive: its generation tells.
    explicit MapWorker(DeliverMap deliver);
    /// Ends the work and waits for the flight in hand.
    ~MapWorker();
    MapWorker(const MapWorker&) = delete;
    MapWorker& operator=(const MapWorker&) = delete;

    /// Never waits.
    void begin(const MapRequest& request, std::uint64_t generation);
    void cancel();

private:
    struct Job {
        MapRequest request;
        std::uint64_t generation;
        std::stop_token stop;
    };
    void work(const std::stop_token& end);

    DeliverMap deliver_;
    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::optional<Job> next_;
    std::stop_source current_{std::nostopstate}; ///< of the newest job
    std::jthread thread_;                        ///< last: it works on all of the above
};

} // namespace parabolt
