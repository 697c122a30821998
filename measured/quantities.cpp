#include "measured/quantities.h"

#include "numbers/characters.h"

#include <algorithm>
#include <array>
#include <string>

namespace parabolt {
namespace {

using enum MeasuredUnit;

/// By factor and offset into the program's unit.
struct UnitRow {
    MeasuredUnit unit;
    std::string_view name;
    double factor;
    double offset;
};
constexpr std::array<UnitRow, 17> kUnitRows = {{
    {None, "", 1, 0},
    {Mph, "mph", 1, 0},
    {KilometresPerHour, "km/h", 1 / 1.609344, 0},
    {MetresPerSecond, "m/s", 1 / 0.44704, 0},
    {Yards, "yd", 1, 0},
    {Feet, "ft", 1 / 3.0, 0},
    {Metres, "m", 1 / 0.9144, 0},
    {Degrees, "deg", 1, 0},
    {Rpm, "rpm", 1, 0},
    {Seconds, "s", 1, 0},
    {Fahrenheit, "deg F", 1, 0},
    {Celsius, "deg C", 1.8, 32},
    {InchesOfMercury, "inHg", 1, 0},
    {Hectopascals, "hPa", 1 / 33.86389, 0},
    {Kilopascals, "kPa", 10 / 33.86389, 0},
    {KilogramsPerCubicMetre, "kg/m3", 1, 0},
    {Percent, "%", 1, 0},
}};

/// Other ways to write a unit, in small letters.
struct Spelling {
    std::string_view text;
    MeasuredUnit unit;
};
constexpr std::array<Spelling, 44> kSpellings = {{
    {"mph", Mph},
    {"mi/h", Mph},
    {"km/h", KilometresPerHour},
    {"kmh", KilometresPerHour},
    {"kph", KilometresPerHour},
    {"m/s", MetresPerSecond},
    {"mps", MetresPerSecond},
    {"yd", Yards},
    {"yds", Yards},
    {"yard", Yards},
    {"yards", Yards},
    {"หลา", Yards},
    {"ft", Feet},
    {"feet", Feet},
    {"m", Metres},
    {"meter", Metres},
    {"meters", Metres},
    {"metres", Metres},
    {"ม", Metres},
    {"deg", Degrees},
    {"degrees", Degrees},
    {"°", Degrees},
    {"º", Degrees},
    {"grad", Degrees},
    {"rpm", Rpm},
    {"u/min", Rpm},
    {"s", Seconds},
    {"sec", Seconds},
    {"seconds", Seconds},
    {"f", Fahrenheit},
    {"°f", Fahrenheit},
    {"deg f", Fahrenheit},
    {"c", Celsius},
    {"°c", Celsius},
    {"deg c", Celsius},
    {"inhg", InchesOfMercury},
    {"hpa", Hectopascals},
    {"mbar", Hectopascals},
    {"kpa", Kilopascals},
    {"g/l", KilogramsPerCubicMetre},
    {"kg/m3", KilogramsPerCubicMetre},
    {"kg/m³", KilogramsPerCubicMetre},
    {"kg/m^3", KilogramsPerCubicMetre},
    {"%", Percent},
}};

constexpr std::array kSpeedUnits = {Mph, KilometresPerHour, MetresPerSecond};
constexpr std::array kAngleUnits = {Degrees};
constexpr std::array kSpinUnits = {Rpm};
constexpr std::array kLengthUnits = {Yards, Feet, Metres};
constexpr std::array kTimeUnits = {Seconds};
constexpr std::array kDensityUnits = {KilogramsPerCubicMetre};
constexpr std::array kTemperatureUnits = {Fahrenheit, Celsius};
constexpr std::array kPressureUnits = {InchesOfMercury, Hectopascals, Kilopascals};
constexpr std::array kShareUnits = {Percent};

constexpr std::array<QuantityText, 20> kQuantities = {{
    {Quantity::Shot, "Shot number", None, {}},
    {Quantity::Club, "Club", None, {}},
    {Quantity::BallSpeed, "Ball speed", Mph, kSpeedUnits},
    {Quantity::LaunchAngle, "Launch angle", Degrees, kAngleUnits},
    {Quantity::BackSpin, "Back spin", Rpm, kSpinUnits},
    {Quantity::TotalSpin, "Total spin", Rpm, kSpinUnits},
    {Quantity::SpinAxis, "Spin axis", Degrees, kAngleUnits},
    {Quantity::Carry, "Carry", Yards, kLengthUnits},
    {Quantity::Total, "Total", Yards, kLengthUnits},
    {Quantity::Height, "Height", Yards, kLengthUnits},
    {Quantity::LandingAngle, "Landing angle", Degrees, kAngleUnits},
    {Quantity::Time, "Time", Seconds, kTimeUnits},
    {Quantity::Wind, "Wind", Mph, kSpeedUnits},
    {Quantity::Altitude, "Altitude", Feet, kLengthUnits},
    {Quantity::AirDensity, "Air density", KilogramsPerCubicMetre, kDensityUnits},
    {Quantity::Temperature, "Temperature", Fahrenheit, kTemperatureUnits},
    {Quantity::Pressure, "Pressure at the place", InchesOfMercury, kPressureUnits},
    {Quantity::SeaLevelPressure, "Pressure at sea level", InchesOfMercury, kPressureUnits},
    {Quantity::Humidity, "Humidity", Percent, kShareUnits},
    {Quantity::LeftOut, "Left out", None, {}},
}};

const UnitRow& unitRow(MeasuredUnit unit) {
    return *std::find_if(kUnitRows.begin(), kUnitRows.end(),
                         [unit](const UnitRow& row) { return row.unit == unit; });
}

std::optional<MeasuredUnit> spelled(std::string_view text) {
    for (const Spelling& spelling : kSpellings)
        if (spelling.text == text)
            return spelling.unit;
    return std::nullopt;
}

} // namespace

std::span<const QuantityText> quantities() {
    return kQuantities;
}

const QuantityText& textOf(Quantity quantity) {
    return *std::find_if(kQuantities.begin(), kQuantities.end(),
                         [quantity](const auto& text) { return text.quantity == quantity; });
}

std::string_view nameOf(MeasuredUnit unit) {
    return unitRow(unit).name;
}

std::optional<MeasuredUnit> unitNamed(std::string_view text) {
    const std::string lower = lowerCase(trimmed(text, "[]() .\t"));
    if (const auto unit = spelled(lower))
        return unit;
    // "deg L-/R+": the sense of the sign stands behind the unit.
    return spelled(trimmed(std::string_view(lower).substr(0, lower.find(' ')), "."));
}

bool suits(MeasuredUnit unit, Quantity quantity) {
    const auto units = textOf(quantity).units;
    return std::find(units.begin(), units.end(), unit) != units.end();
}

double inUnitOf(Quantity quantity, double value, MeasuredUnit unit) {
    const UnitRow& from = unitRow(unit);
    const UnitRow& to = unitRow(textOf(quantity).unit);
    return unit == to.unit ? value : (value * from.factor + from.offset - to.offset) / to.factor;
}

} // namespace parabolt
