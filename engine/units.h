#pragma once

namespace parabolt {

inline constexpr double kMetresPerSecondPerMph = 0.44704; ///< by the definition of the mile

} // namespace parabolt
