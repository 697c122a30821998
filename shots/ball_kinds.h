#pragma once

#include "engine/shot_state.h"

#include <array>

namespace parabolt {

/// A kind of ball: what it writes into a shot.
struct BallKind {
    float Slope1;          ///< rpm per degree and mph, added to the spin factor of the impact
    float CD1;             ///< added to the exponent of the lift law
    std::int16_t BallType; ///< its number

    /// Gives a shot this ball.
    constexpr void applyTo(ShotInputs& shot) const {
        shot.BallType = BallType;
        shot.Slope1 = Slope1;
        shot.CD1 = CD1;
    }
};

/// Soft ball, different dimple, larger MOI, default: numbers 1 to 4 in this order.
inline constexpr std::array<BallKind, 4> kBallKinds = {{
    {0.5F, 0.0F, 1},
    {0.0F, -0.1F, 2},
    {-0.5F, 0.0F, 3},
    {0.0F, 0.0F, 4},
}};

} // namespace parabolt
