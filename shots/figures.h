#pragma once

#include "engine/many_flights.h"

namespace parabolt {

/// What follows from a flight, for people. All in 64 bits, from the 32-bit values of the flight.
///
///     type    member        unit     range    meaning
struct Figures {
    double carry = 0;        ///< yards,   from 0   to the landing
    double roll = 0;         ///< yards,   any      negative when the ball spins back
    double total = 0;        ///< yards,   any      carry + roll
    double height = 0;       ///< yards,   from 0   greatest height above the ground
    double heightAt = 0;     ///< yards,   from 0   how far downrange that is
    double landingAngle = 0; ///< degrees, 0 to 90  of the path against the ground; beyond 90 for a
                             ///< ball that the wind has blown back
    double time = 0;         ///< seconds, from 0   in the air
};

/// The figures of a flight; all zero for one that failed.
Figures figuresOf(const FlightOutcome& flight);
Figures figuresOf(const RunRecord& record);

} // namespace parabolt
