#pragma once

#include "numbers/rgb.h"

namespace parabolt {

/// Stands where there is no value: a grey, which the scale doesn't have.
inline constexpr Rgb kNoValue{160, 160, 160};

/// The colour of a share from 0, dark, to 1, bright. Its lightness rises evenly, so that the order
/// shows in any kind of colour vision and on grey paper: "viridis" by Stefan van der Walt and
/// Nathaniel Smith (CC0), by ten of its points.
Rgb scaleColour(double share);

} // namespace parabolt
