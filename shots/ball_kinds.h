#pragma once

#include "engine/shot_state.h"

#include <array>

namespace parabolt {

/// A kind of ball: what it writes into a shot.
struct BallKind {
    float Slope1;
    float CD1;
    std::int16_t BallType; ///< its number

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
