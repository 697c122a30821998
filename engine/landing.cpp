#include "engine/landing.h"

#include "engine/flight_step.h"
#include "engine/units.h"

#include <cmath>

namespace parabolt {
namespace {

constexpr double kSecondsPerMinute = 60; ///< s/min, brings the spin to rpm

// Two divisors that differ in the seventh digit: the shown spin and the roll keep their own.
constexpr float kRadiansPerTurnShown = 6.28318F; ///< rad, of the shown spin; 2 pi is 6.283185
constexpr double kRadiansPerTurnRoll = 6.28318;  ///< rad, of the spin in the roll

// Roll in yards: a fit of the model's own for a green, for which no publication is known.
constexpr double kRollPerSpeedSquared = 0.0013;     ///< yd/mph^2, what the horizontal speed brings
constexpr double kRollPerSpeed = 0.144;             ///< yd/mph, the same, in proportion
constexpr double kRollPerSpinAndDescent = 2.17e-05; ///< yd/(rpm mph), what spin takes in descent

constexpr float kFeetPerYard = 3; ///< ft/yd, by definition

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
