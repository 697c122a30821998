#include "measured/measured_shot.h"

#include "numbers/characters.h"
#include "numbers/rounding.h"
#include "numbers/text_number.h"

#include <array>

namespace parabolt {
namespace {

constexpr std::array<LaunchLimit, 3> kLaunchLimits = {{
    {limits::kLaunchSpeed, "ball speed", "mph", &MeasuredShot::ballSpeed, &ShotInputs::LaunchSpeed},
    {limits::kLaunchAngle, "launch angle", "deg", &MeasuredShot::launchAngle,
     &ShotInputs::LaunchAngle},
    {limits::kSpin, "spin", "rpm", &MeasuredShot::backSpin, &ShotInputs::RPM},
}};

constexpr AirLimit airLimitOf(Quantity quantity, std::optional<double> MeasuredAir::*member,
                              const InputLimits& field) {
    return {quantity, member, field.lowest, field.highest};
}

// A barometer at the highest place that the form takes, 15,000 ft, reads 16.9 inHg in the
// International Standard Atmosphere and somewhat less in a low. By the gas law, air at that least
// pressure, saturated and at the highest temperature of the form, has 0.50 kg/m3; dry air at the
// highest pressure and lowest temperature 1.505.
constexpr double kLeastPressureAtPlace = 15;
constexpr double kLeastDensity = 0.5;
constexpr double kGreatestDensity = 1.51;

constexpr std::array<AirLimit, 7> kAirLimits = {{
    airLimitOf(Quantity::Wind, &MeasuredAir::wind, limits::kWind),
    airLimitOf(Quantity::Altitude, &MeasuredAir::altitude, limits::kAltitude),
    airLimitOf(Quantity::Temperature, &MeasuredAir::temperature, limits::kTemperature),
    airLimitOf(Quantity::Humidity, &MeasuredAir::humidity, limits::kHumidity),
    airLimitOf(Quantity::SeaLevelPressure, &MeasuredAir::seaLevelPressure, limits::kPressure),
    {Quantity::Pressure, &MeasuredAir::pressure, kLeastPressureAtPlace, limits::kPressure.highest},
    {Quantity::AirDensity, &MeasuredAir::density, kLeastDensity, kGreatestDensity},
}};

} // namespace

std::span<const LaunchLimit> launchLimits() {
    return kLaunchLimits;
}

std::span<const AirLimit> airLimits() {
    return kAirLimits;
}

std::string dropImpossible(MeasuredAir& air) {
    std::string dropped;
    for (const AirLimit& limit : kAirLimits) {
        auto& value = air.*limit.member;
        if (!value || limit.hold(*value))
            continue;
        const QuantityText& text = textOf(limit.quantity);
        dropped += (dropped.empty() ? "" : ", ") + lowerCase(text.name) + " " +
                   shortestText(store32(*value)) + " " + std::string(nameOf(text.unit));
        value.reset();
    }
    return dropped.empty() ? dropped : dropped + " left out";
}

std::string whyNotFlown(const MeasuredShot& shot) {
    for (const LaunchLimit& limit : kLaunchLimits) {
        const float value = shot.*limit.measured;
        if (limit.hold(value))
            continue;
        return std::string(limit.name) + " " + shortestText(value) + " " + std::string(limit.unit) +
               (value > limit.highest ? " is above " + shortestText(limit.highest)
                                      : " is below " + shortestText(limit.lowest));
    }
    return {};
}

} // namespace parabolt
