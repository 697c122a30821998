#pragma once

#include <string_view>

namespace parabolt::shot_columns {

// Headings of the program's own tables of shots, in the units of the main form. A table that has
// the first three can be read back as shots.

inline constexpr std::string_view kBallSpeed = "Ball speed [mph]";
inline constexpr std::string_view kLaunchAngle = "Launch angle [deg]";
inline constexpr std::string_view kSpin = "Spin [rpm]";
inline constexpr std::string_view kClub = "Club";
inline constexpr std::string_view kCarry = "Carry [yd]";
inline constexpr std::string_view kTotal = "Total [yd]";
inline constexpr std::string_view kHeight = "Height [yd]";
inline constexpr std::string_view kLandingAngle = "Landing angle [deg]";
inline constexpr std::string_view kTime = "Time [s]";
inline constexpr std::string_view kWind = "Wind [mph]";
inline constexpr std::string_view kAltitude = "Altitude [ft]";
inline constexpr std::string_view kTemperature = "Temperature [deg F]";
inline constexpr std::string_view kPressure = "Pressure [inHg]"; ///< reduced to sea level
inline constexpr std::string_view kHumidity = "Humidity [%]";
inline constexpr std::string_view kPressureAtPlace = "Pressure at the place [inHg]";
inline constexpr std::string_view kAirDensity = "Air density [kg/m3]";

} // namespace parabolt::shot_columns
