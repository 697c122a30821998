#include "engine/air.h"

#include "engine/units.h"
#include "numbers/rounding.h"

#include <cmath>
#include <cstdint>
#include <limits>

namespace parabolt {
namespace {

// Pressure over the altitude: the law of the standard atmosphere (U.S. Standard Atmosphere, 1976),
// whose own digits are 288.15 K and 5.2559.
constexpr double kSeaLevelKelvin = 288;      ///< K, temperature at sea level whatever the weather
constexpr double kLapsePerFoot = 0.0019812;  ///< K/ft, fall of the temperature: 6.5 K per kilometre
constexpr double kPressureExponent = 5.2561; ///< no unit, g M / (R L): how fast the pressure falls

// Viscosity: W. Sutherland's law (Philosophical Magazine 36, 1893) with the factor and the
// temperature of the U.S. Standard Atmosphere, 1976, in 1e-6 slug/(ft s) and Rankine.
constexpr double kSutherlandFactor = 0.0226968; ///< 1e-6 slug/(ft s R^0.5), scales the viscosity
constexpr double kSutherlandRankine = 198.72;   ///< R, how the viscosity bends with temperature
constexpr double kSutherlandToPascalSeconds = 20885.52343; ///< 1e-6 slug/(ft s) in one Pa s
constexpr double kRankineAtZeroFahrenheit = 460;           ///< R, by definition 459.67

// Density: the gas law with the virtual temperature, as in any textbook of meteorology.
constexpr double kKelvinAtZeroCelsius = 273;      ///< K, by definition 273.15
constexpr double kInchesPerHectopascal = 0.02953; ///< inHg/hPa, of mercury at 0 C
constexpr double kVapourShare = 0.378; ///< no unit, 1 less the molar mass of water over dry air's
constexpr double kGasConstantDryAir = 287; ///< J/(kg K), in tables 287.05

// Saturation over water: Magnus' formula after O. Tetens (Zeitschrift fuer Geophysik 6, 1930), who
// has 237.3; 237.7 is in wide use, and where it comes from isn't known here.
constexpr double kSaturationAtZero = 6.11; ///< hPa, at 0 C
constexpr double kMagnusFactor = 7.5;      ///< no unit, how the saturation grows
constexpr double kMagnusCelsius = 237.7;   ///< C, how the growth bends

/// Saturation vapour pressure over water in hectopascals, temperature in Celsius.
double saturationPressure(double celsius) {
    return kSaturationAtZero *
           std::pow(10.0, (kMagnusFactor * celsius) / (celsius + kMagnusCelsius));
}

} // namespace

Outcome<void, Fault> ComputeEnvironment(ShotState& shot) {
    const FaultWatch watch;
    shot.StationPressure = store32(
        std::pow((kSeaLevelKelvin - shot.h * kLapsePerFoot) / kSeaLevelKelvin, kPressureExponent) *
        shot.BaroPressure);
    shot.WindSpeedMs = store32(shot.WindSpeed * kMetresPerSecondPerMph);
    shot.AirViscosity = ComputeAirViscosity(shot.Temperature);
    shot.AirDensity = ComputeAirDensity(shot, shot.RH);
    return watch.judge(double{shot.StationPressure} + shot.WindSpeedMs + shot.AirViscosity +
                       shot.AirDensity);
}

float ComputeAirViscosity(float temperature) {
    const float rankine = store32(temperature + kRankineAtZeroFahrenheit);
    return store32(
        ((kSutherlandFactor * std::pow(double{rankine}, 1.5)) / (rankine + kSutherlandRankine)) /
        kSutherlandToPascalSeconds);
}

float ComputeAirDensity(const ShotState& shot, float relativeHumidity) {
    const float celsius = store32((double{shot.Temperature} * 5 - 160) / 9);
    const float kelvin = store32(celsius + kKelvinAtZeroCelsius);
    const double hectopascals = roundHalfEven(shot.StationPressure / kInchesPerHectopascal);
    const auto pascals = roundTo<std::int32_t>(hectopascals * 100);
    if (!pascals)
        return std::numeric_limits<float>::infinity();
    const double vapour = (relativeHumidity * saturationPressure(celsius)) / 100;
    // The vapour pressure stays in hectopascals beside the air's pascals: humidity hardly counts.
    const double virtualKelvin = kelvin / (1 - (vapour / *pascals) * kVapourShare);
    return store32(*pascals / (virtualKelvin * kGasConstantDryAir));
}

} // namespace parabolt
