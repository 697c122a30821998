#pragma once

#include "shots/shot.h"

namespace parabolt {

/// The shot behind a recorded run: mode, launch, swing and weather as they were flown. The record
/// doesn't hold the ball option, 1 to 4 or 0 for unknown: whoever knows it gives it.
Shot shotOf(const RunRecord& run, std::int16_t ball);

} // namespace parabolt
