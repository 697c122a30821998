#pragma once

#include "maps/map_result.h"
#include "shots/background.h"

namespace parabolt {

/// Computes maps on a thread of its own, one at a time: a new request ends the work on the one
/// before. With nothing to do the thread sleeps.
class MapWorker {
public:
    /// `deliver` is called on the worker's thread, with the passes of a request in their order. One
    /// that is under way when a new request comes may still arrive: its generation tells.
    explicit MapWorker(DeliverMap deliver);

    /// Never waits.
    void begin(const MapRequest& request, std::uint64_t generation);
    void cancel() { background_.cancel(); }

private:
    DeliverMap deliver_;
    Background background_; ///< last: it works on the above
};

} // namespace parabolt
