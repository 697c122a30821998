#include "shots/run_shot.h"

namespace parabolt {

Shot shotOf(const RunRecord& run, std::int16_t ball) {
    Shot shot;
    shot.Mode = run.Mode;
    shot.IsWood = run.IsWood;
    shot.LaunchAngle = run.LaunchAngle;
    shot.RPM = run.RPM;
    shot.LaunchSpeed = run.LaunchSpeed;
    shot.HeadSpeed = run.HeadSpeed;
    shot.ClubNo = run.ClubNo;
    shot.SpeedIncrement = run.SpeedIncrement;
    shot.COR = run.COR;
    shot.HeadWeight = run.HeadWeight;
    shot.AttackAngle = run.AttackAngle;
    shot.LoftAngle = run.LoftAngle;
    shot.Bending = run.Bending;
    shot.WindSpeed = run.WindSpeed;
    shot.Temperature = run.Temperature;
    shot.BaroPressure = run.BaroPressure;
    shot.RH = run.RH;
    shot.h = run.h;
    shot.CD1 = run.CD1;
    shot.BallType = ball;
    return shot;
}

} // namespace parabolt
