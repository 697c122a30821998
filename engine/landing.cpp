#include "engine/landing.h"

#include "engine/flight_step.h"
#include "engine/units.h"

#include <cmath>

namespace parabolt {
namespace {

constexpr double kSecondsPerMinute = 60;

// Two divisors that differ in the seventh digit: the shown spin and the roll keep their own.
constexpr float kRadiansPerTurnShown = 6.28318F;
constexpr double kRadiansPerTurnRoll = 6.28318;

// Fit of the roll in yards: what the horizontal speed in mph brings, and what the spin in rpm takes
// for each mph of descent.
constexpr double kRollPerSpeedSquared = 0.0013;
constexpr double kRollPerSpeed = 0.144;
constexpr double kRollPerSpinAndDescent = 2.17e-05;

} // namespace

float greenRoll(const FlightState& landing) {
    const double horizontal = landing.vx / kMetresPerSecondPerMph;
    const double descent = -double{landing.vy} / kMetresPerSecondPerMph;
    const double spin = (landing.w * kSecondsPerMinute) / kRadiansPerTurnRoll;
    return store32((horizontal * horizontal * kRollPerSpeedSquared +
                    (landing.vx * kRollPerSpeed) / kMetresPerSecondPerMph) -
                   (spin * kRollPerSpinAndDescent) * descent);
}

Outcome<LandingFigures, Fault> landingFigures(const FlightState& landing) {
    constexpr float kFeetPerYard = 3;
    const LandingFigures figures{
        .carry = store32(double{landing.x} * kYardsPerMetre),
        .roll = store32(double{greenRoll(landing)} * kFeetPerYard),
        .spin = store32((landing.w * kSecondsPerMinute) / kRadiansPerTurnShown),
        .speed = store32(landing.vx / kMetresPerSecondPerMph),
    };
    for (const float value : {figures.carry, figures.roll, figures.spin, figures.speed})
        if (!std::isfinite(value)) // the landing was finite: it is too large for its width
            return because(Fault::Overflow);
    return figures;
}

Outcome<void, Fault> recordLanding(const FlightState& landing, const ShotState& shot,
                                   const RunTags& tags, RunRecord& record) {
    const auto figures = landingFigures(landing);
    if (!figures)
        return because(figures.why());

    record.CarryTime = landing.t;
    record.ImpactSpin = figures->spin;
    record.ImpactSpeed = figures->speed;
    record.GreenRoll = figures->roll;
    record.CarryDist = figures->carry;
    record.LaunchAngle = shot.LaunchAngle;
    record.RPM = shot.RPM;
    record.LaunchSpeed = shot.LaunchSpeed;
    record.HeadSpeed = shot.HeadSpeed;
    record.ClubNo = shot.ClubNo;
    record.SpeedIncrement = shot.SpeedIncrement;
    record.WindSpeed = store32(shot.WindSpeed);
    record.Temperature = shot.Temperature;
    record.BaroPressure = shot.BaroPressure;
    record.RH = shot.RH;
    record.h = shot.h;
    record.COR = shot.COR;
    record.HeadWeight = shot.HeadWeight;
    record.AttackAngle = shot.AttackAngle;
    record.LoftAngle = shot.LoftAngle;
    record.CD1 = shot.CD1;
    record.Bending = shot.Bending;
    record.Mode = tags.Mode;
    record.IsWood = tags.IsWood;
    return {};
}

} // namespace parabolt
