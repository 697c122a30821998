#include "engine/impact.h"

#include "numbers/rounding.h"
#include "numbers/text_number.h"

#include <cmath>

namespace parabolt {
namespace {

constexpr double kDegreesPerRadian = 57.3;
constexpr double kSpinFactor = 2.6; ///< rpm per degree of loft and mph of head speed
/// Mass of the ball at impact in grams, a 32-bit value; the flight has a mass of its own.
constexpr double kBallGrams = 45.926998138427734;
/// Share of the shaft and the hands that moves with the head.
constexpr double kHeadMassFactor = 1.05;

/// Fit of the launch angle to the dynamic loft, both in degrees.
constexpr double kAnglePerLoft = 0.94275742;
constexpr double kAnglePerLoftSquared = 0.0065321932;

double cosDegrees(double angle) {
    return std::cos(angle / kDegreesPerRadian);
}

void takeClub(ShotState& shot, const ImpactSources& sources) {
    if (!sources.club)
        return;
    shot.LoftAngle = sources.club->LoftAngle;
    shot.HeadWeight = sources.club->HeadWeight;
    if (!sources.wholeRecord)
        return;
    shot.COR = sources.club->COR;
    shot.HeadSpeed = sources.club->HeadSpeed;
    shot.AttackAngle = sources.club->AttackAngle;
    shot.Bending = sources.club->Bending;
}

} // namespace

Outcome<void, Fault> GetLoftAngle(ShotState& shot, const ImpactSources& sources) {
    takeClub(shot, sources);

    // Spin and angle come from the dynamic loft by a linear and a quadratic fit; the speed from the
    // conservation of momentum along the line of impact with the coefficient of restitution.
    const FaultWatch watch;
    const float loft = store32(double{shot.Bending} + shot.LoftAngle);
    const float spinPerDegree = store32((shot.Slope1 + kSpinFactor) * shot.HeadSpeed);
    shot.RPM = store32(double{loft} * spinPerDegree);
    shot.RPM = store32(roundHalfEven(shot.RPM));
    shot.LaunchAngle = store32(loft * kAnglePerLoft - (double{loft} * loft) * kAnglePerLoftSquared);
    const float numerator = store32(((shot.COR + 1.0) * shot.HeadSpeed) * cosDegrees(loft));
    const float cosine = store32(cosDegrees(double{loft} - shot.LaunchAngle));
    const float massTerm =
        store32(((kBallGrams / (shot.HeadWeight * kHeadMassFactor)) * cosDegrees(loft)) *
                cosDegrees(shot.LaunchAngle));
    shot.LaunchSpeed = store32(numerator / (double{massTerm} + cosine));

    if (sources.measuredLaunchAngle) {
        const double attack = *sources.measuredLaunchAngle - shot.LaunchAngle;
        shot.AttackAngle = store32(leadingNumber(formatPattern(attack, ".0")));
        shot.LaunchAngle = store32(*sources.measuredLaunchAngle);
    } else {
        shot.LaunchAngle = store32(double{shot.AttackAngle} + shot.LaunchAngle);
    }
    return watch.judge(double{shot.RPM} + shot.LaunchAngle + shot.LaunchSpeed);
}

} // namespace parabolt
