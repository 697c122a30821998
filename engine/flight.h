#pragma once

#include "engine/fault.h"
#include "engine/shot_state.h"

#include <cstdint>
#include <limits>

namespace parabolt {

/// The most steps that a record counts: 327.67 seconds.
inline constexpr int kMostSteps = std::numeric_limits<std::int16_t>::max();

/// The most steps of a flight of which only the carry is asked: nearly three hours. A ball that
/// stays up longer never comes down: the longest flight seen within the limits of the form's fields
/// took 172,630 steps. No state tells it sooner: such a ball may repeat its states, or swing for
/// ever about a direction without repeating one.
inline constexpr int kMostCarrySteps = 1 << 20;

/// The ball in flight. Lives only while the flight runs.
struct FlightState {
    float x = 0;     ///< metres downrange
    float y = 0;     ///< metres above the ground
    float vx = 0;    ///< m/s over the ground
    float vy = 0;    ///< m/s, positive upward
    float w = 0;     ///< back spin, rad/s
    float theta = 0; ///< flight-path angle over the ground, radians
    float t = 0;     ///< seconds since the launch
};

/// What a record keeps besides the inputs and the outcome of its shot.
struct RunTags {
    std::int16_t Mode = 0; ///< operating mode, 0 to 4
    bool IsWood = true;    ///< the club is a wood, not an iron
    friend bool operator==(const RunTags&, const RunTags&) = default;
};

/// Flies the shot from the launch to the first step below the ground and completes the record of
/// its run: `Path`, the outcome and the copies of the inputs; `CurveColor` stays. Expects the
/// shot's derived quantities to be up to date. A fault ends the flight at once: the record keeps
/// the path up to the last completed step and nothing else. More than `kMostSteps` are such a
/// fault.
Outcome<void, Fault> SimulateFlight(const ShotState& shot, const RunTags& tags, RunRecord& record);

/// The carry in yards of the same flight, equal to the last bit, without a record; 0 after a fault
/// and for a ball that isn't down after `kMostCarrySteps`.
float SimulateCarry(const ShotState& shot);

} // namespace parabolt
