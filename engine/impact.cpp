#include "engine/impact.h"

#include "numbers/rounding.h"
#include "numbers/text_number.h"

#include <cmath>

namespace parabolt {
namespace {

constexpr double kDegreesPerRadian = 57.3; ///< degrees/rad, rounded from 180 / pi

// Spin and angle are linear and quadratic fits to the dynamic loft. They are the model's own: no
// publication is known for them.
constexpr double kSpinFactor = 2.6;          ///< rpm per degree of loft and mph of head speed
constexpr double kAnglePerLoft = 0.94275742; ///< no unit, launch angle per degree of loft
constexpr double kAnglePerLoftSquared = 0.0065321932; ///< 1/degree, what steep lofts lose of it

// Speed: the collision of two free bodies, in textbooks such as C. B. Daish, The Physics of Ball
// Games, 1972.
/// g, the ball at impact: 1.62 ounces, the most that the rules of golf allow, in 32 bits. The
/// flight has a mass of its own.
constexpr double kBallGrams = 45.926998138427734;
constexpr double kHeadMassFactor = 1.05; ///< no unit, adds what moves with the head; no publication

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

    // The speed follows from the momentum along the line of play and from the restitution along the
    // normal of the face.
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
