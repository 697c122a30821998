#include "measured/measured_shot.h"

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

} // namespace

std::span<const LaunchLimit> launchLimits() {
    return kLaunchLimits;
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
