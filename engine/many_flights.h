#pragma once

#include "engine/flight.h"

#include <optional>
#include <span>
#include <stop_token>

namespace parabolt {

struct LaneWay;

/// What came of a flight, without its path. Lengths in yards but for the roll.
struct FlightOutcome {
    std::optional<Fault> fault; ///< if set, nothing else counts
    float carry = 0;
    float roll = 0;                ///< feet; negative when the ball spins back
    float time = 0;                ///< seconds
    TrajectoryPoint top;           ///< the first of the highest points of the path
    TrajectoryPoint beforeLanding; ///< the last point but one of the path
    TrajectoryPoint landing;       ///< the last point of the path
};

/// The outcome of a recorded flight that came down.
FlightOutcome outcomeOf(const RunRecord& record);

/// By what many flights are computed: changes how long they take, and no bit of what they give.
struct FlightMeans {
    const LaneWay* lanes; ///< null to fly one by one
    unsigned threads;
};

/// The best that this machine has.
FlightMeans bestFlightMeans();

/// Flies all shots and gives their outcomes in the same order, each equal to the last bit to that
/// of `SimulateFlight` for the same shot, its fault included; where there is none, the carry is
/// that of `SimulateCarry` too. Expects the derived quantities of the shots to be up to date.
///
/// Returns when all is done, so a window calls it from a thread of its own. Once a stop is
/// requested it returns as soon as a ball lands in each thread, without any outcome.
std::vector<FlightOutcome> SimulateFlights(std::span<const ShotState> shots, std::stop_token stop,
                                           const FlightMeans& means = bestFlightMeans());

} // namespace parabolt
