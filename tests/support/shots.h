#pragma once

#include "engine/air.h"
#include "engine/flight.h"
#include "numbers/rounding.h"

namespace parabolt::support {

/// A launch in mild weather at sea level without wind: 70 F, 29.92 inches, 50 percent.
inline ShotState mildShot(float launchSpeed, float launchAngle, float spin) {
    ShotState shot;
    shot.LaunchSpeed = launchSpeed;
    shot.LaunchAngle = launchAngle;
    shot.RPM = spin;
    shot.Temperature = 70;
    shot.BaroPressure = 29.92F;
    shot.RH = 50;
    return shot;
}

/// The shot that most tests start from: 144 mph, 9.5 degrees, 3200 rpm.
inline ShotState workedShot() {
    return mildShot(144, 9.5F, 3200);
}

/// Derives what a flight needs besides the launch, with the length of the mile and not with the
/// product's own factor.
inline std::optional<Fault> prepare(ShotState& shot) {
    shot.LaunchSpeedMs = store32(shot.LaunchSpeed * 1609.344 / 3600);
    return ComputeEnvironment(shot);
}

/// How a flight ended, with its record.
struct Flown {
    std::optional<Fault> fault;
    RunRecord record;
};

/// Flies a shot whose derived quantities are set.
inline Flown flyPrepared(const ShotState& shot) {
    Flown flown;
    flown.fault = SimulateFlight(shot, {}, flown.record);
    return flown;
}

inline Flown fly(ShotState shot) {
    const auto fault = prepare(shot);
    return fault ? Flown{fault, {}} : flyPrepared(shot);
}

} // namespace parabolt::support
