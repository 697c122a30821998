#pragma once

namespace parabolt {

inline constexpr double kTwipsPerInch = 1440;
inline constexpr int kTwipsPerPixel = 15; ///< of the forms as they were first drawn
inline constexpr double kPointsPerInch = 72;

} // namespace parabolt
