#pragma once

#include <cfloat>
#include <cmath>
#include <limits>
#include <optional>

// The same bits on every machine ask for formulas that are computed as written, in their own width.
#ifdef __FAST_MATH__
#error "Fast-math options change the numbers of a flight: build without them."
#endif
static_assert(FLT_EVAL_METHOD == 0, "intermediate results must not be wider than their type");

namespace parabolt {

/// Rounds a formula's 64-bit result to the 32-bit quantity that holds it. Every rounding of the
/// model stands in the code as one call.
inline float store32(double value) {
    return static_cast<float>(value);
}

/// Nearest whole number, ties to the even one.
inline double roundHalfEven(double value) {
    return std::nearbyint(value);
}

/// Nearest whole number as an integer of the given width; nothing if it doesn't fit.
template <class Integer>
std::optional<Integer> roundTo(double value) {
    static_assert(sizeof(Integer) <= 4, "a double must hold its limits");
    const double whole = roundHalfEven(value);
    if (!(whole >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
          whole <= static_cast<double>(std::numeric_limits<Integer>::max())))
        return std::nullopt;
    return static_cast<Integer>(whole);
}

} // namespace parabolt
