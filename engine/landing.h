#pragma once

#include "engine/flight.h"
#include "numbers/outcome.h"

namespace parabolt {

/// Roll on the green in yards for the state at the landing; negative when the ball spins back. A
/// closed formula: the run-out of the horizontal speed, less what the spin takes back with the
/// speed of descent. The ground has no slope and no kind.
float greenRoll(const FlightState& landing);

/// What a landing leaves to the outcome of a flight.
struct LandingFigures {
    float carry; ///< yards
    float roll;  ///< feet; negative when the ball spins back
    float spin;  ///< rpm
    float speed; ///< horizontal, mph
};

/// The figures of a landing, or the overflow of one of them.
Outcome<LandingFigures, Fault> landingFigures(const FlightState& landing);

/// Ends a recording flight: the outcome and the copies of the inputs into the record. `Path` and
/// `CurveColor` stay. If one overflows, the record has none of them.
Outcome<void, Fault> recordLanding(const FlightState& landing, const ShotState& shot,
                                   const RunTags& tags, RunRecord& record);

} // namespace parabolt
