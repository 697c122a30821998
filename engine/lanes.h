#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace parabolt {

inline constexpr std::size_t kMostLanes = 24; ///< of any processor: three vectors of eight

template <class Number>
using PerLane = std::array<Number, kMostLanes>;

/// Balls in flight beside each other; members as in `FlightState`.
struct alignas(64) LaneBalls {
    PerLane<float> x;
    PerLane<float> y;
    PerLane<float> vx;
    PerLane<float> vy;
    PerLane<float> w;
    PerLane<float> theta;
};

/// All that the lanes compute with. The air is that of `FlightAir`.
struct alignas(64) Lanes {
    PerLane<double> liftExponent; ///< above 0, at most `kMostLaneExponent`
    PerLane<float> density;
    PerLane<float> viscosity;
    PerLane<float> headWind;
    PerLane<float> t;    ///< seconds since the launch
    PerLane<float> topX; ///< yards, of the first of the highest points before the last step
    PerLane<float> topY;
    std::array<LaneBalls, 2> balls; ///< behind the last step and before it, by turns
    std::size_t turn;
    /// A bit for each lane whose last step has to be done again, by `advance`.
    std::uint32_t unsure;

    LaneBalls& now() { return balls[turn]; }
    LaneBalls& before() { return balls[1 - turn]; }
};

/// A launch outside of these isn't for the lanes: their error bound holds only inside.
inline constexpr double kMostLaneExponent = 1;
inline constexpr float kMostLaneAngle = 1.6F; ///< radians, up and down

/// One kind of vectors that this processor has. Measured in one run on an AMD EPYC: AVX2 takes 0.23
/// to 0.27 of the plain loop over the same flights; eight flights side by side in arrays, left to
/// the compiler, took 0.82 to 0.99. That is why the lanes are written by hand.
struct LaneWay {
    const char* name;  ///< of the instruction set
    std::size_t lanes; ///< those that it computes, from 0 on
    /// Takes all lanes on by the same number of steps, at most `most`, and gives that number. Ends
    /// early behind a step after which a lane is unsure, below the ground or perhaps without a
    /// result.
    int (*flyOn)(Lanes& lanes, int most);
};

/// The fastest one first; none on a processor without vectors.
const std::vector<LaneWay>& laneWays();

} // namespace parabolt
