#pragma once

#include "shots/fly.h"

namespace parabolt::support {

/// A launch in mild weather at sea level without wind: 70 F, 29.92 inches, 50 percent.
inline Shot mildShot(float launchSpeed, float launchAngle, float spin) {
    Shot shot;
    shot.LaunchSpeed = launchSpeed;
    shot.LaunchAngle = launchAngle;
    shot.RPM = spin;
    shot.Temperature = 70;
    shot.BaroPressure = 29.92F;
    shot.RH = 50;
    return shot;
}

/// The shot that most tests start from: 144 mph, 9.5 degrees, 3200 rpm.
inline Shot workedShot() {
    return mildShot(144, 9.5F, 3200);
}

/// Why an operation gave nothing; nothing if all went well.
template <class Value, class Why>
std::optional<Why> whyNot(const Outcome<Value, Why>& outcome) {
    return outcome ? std::nullopt : std::optional(outcome.why());
}

/// How a flight ended, with its record as far as it came.
struct Flight {
    std::optional<Fault> fault;
    RunRecord record;
};

inline Flight flightOf(const Shot& shot) {
    const auto flown = fly(shot);
    if (flown)
        return {std::nullopt, flown->record};
    return {flown.why().fault, flown.why().flight ? flown.why().flight->record : RunRecord()};
}

/// Flies a state whose derived quantities are set.
inline Flight flightOf(const ShotState& state) {
    Flight flight;
    flight.fault = whyNot(SimulateFlight(state, {}, flight.record));
    return flight;
}

} // namespace parabolt::support
