#include "engine/air.h"

#include "engine/units.h"
#include "numbers/rounding.h"

#include <cmath>
#include <cstdint>
#include <limits>

namespace parabolt {
namespace {

// Pressure law of the standard atmosphere.
constexpr double kSeaLevelKelvin = 288;
constexpr double kLapsePerFoot = 0.0019812;  ///< kelvin
constexpr double kPressureExponent = 5.2561; ///< g M / (R L)

// Sutherland's law in slugs, feet and Rankine; the last constant brings slug/(ft s) to Pa s.
constexpr double kSutherlandFactor = 0.0226968;
constexpr double kSutherlandRankine = 198.72;
constexpr double kSutherlandToPascalSeconds = 20885.52343;
constexpr double kRankineAtZeroFahrenheit = 460;

constexpr double kKelvinAtZeroCelsius = 273; ///< the model's zero, not 273.15
constexpr double kInchesPerHectopascal = 0.02953;
constexpr double kVapourShare =
    0.378; ///< 1 less the ratio of the molar masses of water and dry air
constexpr double kGasConstantDryAir = 287; ///< J/(kg K)

/// Saturation vapour pressure over water in hectopascals, temperature in Celsius.
double saturationPressure(double celsius) {
    constexpr double kAtZero = 6.11; // hectopascals; and the two parameters of Magnus' formula
    constexpr double kMagnusFactor = 7.5;
    constexpr double kMagnusCelsius = 237.7;
    return kAtZero * std::pow(10.0, (kMagnusFactor * celsius) / (celsius + kMagnusCelsius));
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
