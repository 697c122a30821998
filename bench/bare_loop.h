#pragma once

#include "engine/shot_state.h"

namespace parabolt::bench {

/// Launch and air of a flight: SI units, spin in rpm, angle in degrees.
struct BareShot {
    float speed, angle, spin, wind, density, viscosity, liftOffset;
};

/// The yardstick of the engine's speed: the formulas of a flight in one loop over local variables,
/// with no record, no checks and no structure. Gives the carry in yards.
float bareCarry(const BareShot& shot);

/// The same flight as the engine's own.
BareShot bareShot(const ShotState& state);

} // namespace parabolt::bench
