#pragma once

#include <string_view>

namespace parabolt {

/// What an input may be, and what the user is told otherwise.
struct InputLimits {
    double lowest;                  ///< accepted itself
    double highest;                 ///< accepted itself
    std::string_view rangeMessage;  ///< for a value out of range
    std::string_view numberMessage; ///< for a text that is no number; empty for the same message

    /// Whether a value is accepted.
    constexpr bool hold(double value) const { return value >= lowest && value <= highest; }
    /// What is told of a text that is no number.
    constexpr std::string_view noNumber() const {
        return numberMessage.empty() ? rangeMessage : numberMessage;
    }
};

/// The limits of the inputs of a shot, in the units of `ShotInputs`. The users know the messages;
/// where one disagrees with its limits, the limits hold.
namespace limits {

/// The limits of one input.
/// @{
inline constexpr InputLimits kLaunchAngle{
    0,
    55,
    "The combined launch angle resulting from head loft plus attack angle must be "
    "greater than 0 and less than 50 degrees. Note the launch angle upper right. "
    "Defaults to 9.5 degrees or try again.",
    {}};
inline constexpr InputLimits kSpin{
    0,
    22000,
    "Enter a value between 0 and 22000 RPM for ball spin. Defaults to 3200 RPM or try "
    "again!",
    {}};
inline constexpr InputLimits kLaunchSpeed{
    30,
    250,
    "Enter a value between 30 and 250 MPH for launch speed.Defaults to 144 MPH or try "
    "again.",
    {}};
inline constexpr InputLimits kHeadSpeed{
    50, 165, "Enter a head speed between 50 and 165 mph. Defaults to 100mph.Try Again.", {}};
inline constexpr InputLimits kSpeedIncrement{
    1, 3, "Enter a value between 1 and 3 mph. Defaults to 1 mph or try again.", {}};
inline constexpr InputLimits kCor{
    0.7, 0.9, "Enter values between 0.7 and 0.9! Try again!",
    "Enter a value between 0.7 and 0.9! Defaults to 0.8 or try again."};
inline constexpr InputLimits kHeadWeight{
    180, 320, "Enter values between 180 and 320 grams, try again.", {}};
inline constexpr InputLimits kAttackAngle{
    -5, 20, "Enter a value between -5 and +20 degrees. Try again.", {}};
inline constexpr InputLimits kBending{
    -10, 10, "Enter a value between -10 and 10 degrees. Try again.", {}};
inline constexpr InputLimits kLoftAngle{
    0, 65, "Enter values between 0 and 65 degrees, try again.", {}};
inline constexpr InputLimits kAltitude{
    0,
    15000,
    "Enter a value between 0 and 15000 feet for elevation. Defaults to 0 or try again.",
    {}};
inline constexpr InputLimits kPressure{
    25,
    34,
    "Enter a value between 25 and 34 inches mercury (Hg) for barometric pressure. "
    "Defaults to 29.92 or try again.",
    {}};
inline constexpr InputLimits kHumidity{
    0, 100,
    "Enter a value between 0 and 100 % for relative humidity. Defaults to 50% or try "
    "again.",
    "Enter a value between 0 and 100 % for Relative Humidity. Defaults to 50% or try "
    "again."};
inline constexpr InputLimits kTemperature{
    20,
    120,
    "Enter a value between 20 and 120 degrees F for temperature. Defaults to 70 degrees "
    "or try again.",
    {}};
inline constexpr InputLimits kWind{
    -35, 35, "Enter a value between -35 and 35 mph for wind speed. Defaults to 0 MPH or try again.",
    "Enter a value between 0 and 35 mph for wind speed. Defaults to 0 MPH or try again."};
/// @}

} // namespace limits

} // namespace parabolt
