#pragma once

#include "engine/flight.h"
#include "engine/impact.h"

namespace parabolt {

/// What is given of a shot, and what the impact model computes.
struct OperatingMode {
    /// The numbers of the modes, as files and records hold them.
    enum Number : std::int16_t {
        Launch,  ///< the launch is given and flown as it stands
        Default, ///< loft and head mass come from the club of the set, the rest is given
        Manual,  ///< all values of swing and club are given
        Auto,    ///< a whole club set; with fill-in all values come from each club
        Actual,  ///< like Manual, but with a measured launch angle
    };
};

/// A shot as a value: all that decides its flight. A new one is a driver's launch in mild weather
/// at sea level, in the mode Launch.
///
///     type         member                       unit     range  meaning
///     ShotInputs   (its members)                         (its)  launch, swing, club, air, ball
///     int16_t      Mode                                  0..4   an `OperatingMode`
///     bool         IsWood                                       a wood, not an iron
///     optional     sources.club                                 club of the set: loft and mass
///     bool         sources.wholeRecord                          ... and all its other values
///     optional     sources.measuredLaunchAngle  degrees  0..55  the attack angle follows from it
///
/// In the modes above Launch the impact model turns the swing into the launch.
struct Shot : ShotInputs, RunTags {
    ImpactSources sources; ///< where the impact model takes its inputs from, besides this shot
    /// Equal in all that decides the flight.
    friend bool operator==(const Shot&, const Shot&) = default;
};

} // namespace parabolt
