#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace parabolt {

/// A unit in which files give a quantity.
enum class MeasuredUnit {
    None,
    Mph,
    KilometresPerHour,
    MetresPerSecond,
    Yards,
    Feet,
    Metres,
    Degrees,
    Rpm,
    Seconds,
    Fahrenheit,
    Celsius,
    InchesOfMercury,
    Hectopascals,
    Kilopascals,
    KilogramsPerCubicMetre,
    Percent,
};

/// What a column of a file means.
enum class Quantity {
    Shot, ///< number of the shot; a row where it is none is a summary
    Club,
    BallSpeed,
    LaunchAngle,
    BackSpin,
    TotalSpin,
    SpinAxis, ///< tilt of the total spin; its cosine gives the back spin
    Carry,
    Total,
    Height,
    LandingAngle,
    Time,
    Wind,     ///< along the line, above 0 against the ball
    Altitude, ///< of the course
    AirDensity,
    Temperature,
    Pressure,         ///< at the place
    SeaLevelPressure, ///< reduced to sea level
    Humidity,
    LeftOut, ///< 1 for a shot that counts in no mean
};

/// A quantity for people, and the unit that the program uses for it.
struct QuantityText {
    Quantity quantity;
    std::string_view name;               ///< "Ball speed"
    MeasuredUnit unit;                   ///< None for numbers of shots and clubs
    std::span<const MeasuredUnit> units; ///< all that it may be given in
};
std::span<const QuantityText> quantities();
const QuantityText& textOf(Quantity quantity);

/// How the program writes a unit: "mph", "deg F".
std::string_view nameOf(MeasuredUnit unit);
/// The unit of a text such as "yds", "[km/h]", "(deg L-/R+)"; nothing for one that isn't known.
std::optional<MeasuredUnit> unitNamed(std::string_view text);
/// True if the quantity may be given in the unit.
bool suits(MeasuredUnit unit, Quantity quantity);
/// A value of a quantity in the program's unit of it.
double inUnitOf(Quantity quantity, double value, MeasuredUnit unit);

} // namespace parabolt
