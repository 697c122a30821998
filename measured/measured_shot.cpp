#include "measured/measured_shot.h"

#include "numbers/text_number.h"

#include <array>

namespace parabolt {
namespace {

constexpr std::array<LaunchLimit, 3> kLaunchLimits = {{
    {"ball speed", "mph", &MeasuredShot::ballSpeed, &ShotInputs::LaunchSpeed, 30, 250},
    {"launch angle", "deg", &MeasuredShot::launchAngle, &ShotInputs::LaunchAngle, 0, 55},
    {"spin", "rpm", &MeasuredShot::backSpin, &ShotInputs::RPM, 0, 22000},
}};

} // namespace

std::span<const LaunchLimit> launchLimits() {
    return kLaunchLimits;
}

std::string whyNotFlown(const MeasuredShot& shot) {
    for (const LaunchLimit& limit : kLaunchLimits) {
        const float value = shot.*limit.measured;
        if (value >= limit.lowest && value <= limit.highest)
            continue;
        return std::string(limit.name) + " " + shortestText(value) + " " + std::string(limit.unit) +
               (value > limit.highest ? " is above " + shortestText(limit.highest)
                                      : " is below " + shortestText(limit.lowest));
    }
    return {};
}

} // namespace parabolt
