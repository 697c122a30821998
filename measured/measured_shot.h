#pragma once

#include "measured/quantities.h"
#include "shots/input_limits.h"
#include "shots/shot.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace parabolt {

/// What a device says of a flight, as far as it does.
///
///     member        unit     meaning
struct DeviceFigures {
    std::optional<double> carry;        ///< yards    to the landing
    std::optional<double> total;        ///< yards    with the roll
    std::optional<double> height;       ///< yards    greatest height
    std::optional<double> landingAngle; ///< degrees  of the path against the ground, above 0
    std::optional<double> time;         ///< seconds  in the air
    friend bool operator==(const DeviceFigures&, const DeviceFigures&) = default;
};

/// The air of a shot, as far as its file tells it.
struct MeasuredAir {
    std::optional<double> wind;             ///< mph, along the line; above 0 against the ball
    std::optional<double> altitude;         ///< feet
    std::optional<double> density;          ///< kg/m3
    std::optional<double> temperature;      ///< degrees Fahrenheit
    std::optional<double> pressure;         ///< inches of mercury, at the place, not at sea level
    std::optional<double> seaLevelPressure; ///< inches of mercury, reduced to sea level
    std::optional<double> humidity;         ///< percent
    friend bool operator==(const MeasuredAir&, const MeasuredAir&) = default;
};

/// A shot that a launch monitor has measured.
struct MeasuredShot {
    std::size_t line = 0;  ///< of the file, from 1
    std::string club;      ///< as printed; empty if the file tells none
    float ballSpeed = 0;   ///< mph
    float launchAngle = 0; ///< degrees
    float backSpin = 0;    ///< rpm
    DeviceFigures device;
    MeasuredAir air;
    friend bool operator==(const MeasuredShot&, const MeasuredShot&) = default;
};

/// What a shot needs so that it can be flown, with the limits of the main form's fields.
struct LaunchLimit : InputLimits {
    std::string_view name; ///< "ball speed"
    std::string_view unit;
    float MeasuredShot::*measured;
    float ShotInputs::*input;
};
std::span<const LaunchLimit> launchLimits();

/// What air a file may bring, in the program's units: what the main form's fields take, and what
/// they can be made of. Anything else is a cell that was never filled, or one in another unit.
struct AirLimit {
    Quantity quantity;
    std::optional<double> MeasuredAir::*member;
    double lowest;
    double highest;

    constexpr bool hold(double value) const { return value >= lowest && value <= highest; }
};
std::span<const AirLimit> airLimits();

/// Takes out of the air what lies beyond its limits; tells what: "humidity 5000 % left out". Empty
/// if nothing does.
std::string dropImpossible(MeasuredAir& air);

/// Why a shot can't be flown, for the user: "ball speed 12 mph is below 30"; empty if it can.
std::string whyNotFlown(const MeasuredShot& shot);

} // namespace parabolt
