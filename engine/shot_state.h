#pragma once

#include "numbers/rgb.h"

#include <cstdint>
#include <vector>

namespace parabolt {

/// What goes into a shot, in the units in which users know it. A new one is the shot with which the
/// form starts: a driver in mild weather at sea level. The widths are part of the model: a 32-bit
/// quantity is rounded each time it is stored. The ranges are those that the form accepts.
struct ShotInputs {
    // Launch of the ball: typed in, or computed by the impact model. Unit, range, meaning.
    float LaunchAngle = 9.5F; ///< degrees, 0 to 55
    float RPM = 3200;         ///< rpm, 0 to 22000: back spin
    float LaunchSpeed = 144;  ///< mph, 30 to 250

    // Swing and club.
    float HeadSpeed = 100;    ///< mph, 50 to 165: club-head speed at impact
    std::int16_t ClubNo = 1;  ///< the club's own number in its table
    float SpeedIncrement = 1; ///< mph, 1 to 3: fall of HeadSpeed from club to club in the batch
    float COR = 0.83F;        ///< 0.7 to 0.9: coefficient of restitution between head and ball
    float HeadWeight = 198;   ///< grams, 180 to 320: club-head mass
    float AttackAngle = 0;    ///< degrees, -5 to 20, positive upward
    float LoftAngle = 10;     ///< degrees, 0 to 65
    float Bending = 0;        ///< degrees, -10 to 10: shaft bend at impact; adds to the loft

    // Weather and course.
    double WindSpeed = 0;        ///< mph, -35 to 35, along the line; above 0 against the ball
    float Temperature = 70;      ///< degrees Fahrenheit, 20 to 120
    float BaroPressure = 29.92F; ///< inches of mercury, 25 to 34, as read at sea level
    float RH = 50;               ///< percent, 0 to 100: relative humidity
    float h = 0;                 ///< feet, 0 to 15000: altitude of the course

    // Ball option.
    float Slope1 = 0;          ///< rpm per degree and mph, added to the impact model's spin factor
    float CD1 = 0;             ///< added to the exponent of the lift law
    std::int16_t BallType = 4; ///< selected option, 1 to 4

    friend bool operator==(const ShotInputs&, const ShotInputs&) = default;
};

/// The one set of numbers from which the engine computes a shot: its inputs, and what is derived
/// from them before each flight and holds for it alone.
struct ShotState : ShotInputs {
    float StationPressure = 0; ///< BaroPressure carried to altitude h, inches of mercury
    float WindSpeedMs = 0;     ///< m/s
    float AirViscosity = 0;    ///< dynamic viscosity, Pa s
    float AirDensity = 0;      ///< kg/m3
    float LaunchSpeedMs = 0;   ///< m/s
};

/// One point of a path, in yards.
struct TrajectoryPoint {
    float x = 0; ///< downrange
    float y = 0; ///< above the ground; negative in the last point of a path
    friend bool operator==(const TrajectoryPoint&, const TrajectoryPoint&) = default;
};

/// Outcome and inputs of one data set. Written once, by its flight.
struct RunRecord {
    std::vector<TrajectoryPoint> Path; ///< one point for each 0.01 s; element 0 is (0, 0)

    float CarryTime = 0;   ///< seconds
    float CarryDist = 0;   ///< yards, without the roll
    float GreenRoll = 0;   ///< feet; negative when the ball spins back
    float ImpactSpin = 0;  ///< spin at the landing, rpm
    float ImpactSpeed = 0; ///< horizontal speed at the landing, mph

    Rgb CurveColor; ///< of the curve, its legend and its table row; set before the flight

    // The inputs as the flight used them; units as in ShotState.
    float LaunchAngle = 0;
    float RPM = 0;
    float LaunchSpeed = 0;
    float HeadSpeed = 0;
    std::int16_t ClubNo = 0;
    float SpeedIncrement = 0;
    float WindSpeed = 0;
    float Temperature = 0;
    float BaroPressure = 0;
    float RH = 0;
    float h = 0;
    float COR = 0;
    float HeadWeight = 0;
    float AttackAngle = 0;
    float LoftAngle = 0;
    float CD1 = 0;
    float Bending = 0;
    std::int16_t Mode = 0; ///< operating mode at the run, 0 to 4
    bool IsWood = false;

    friend bool operator==(const RunRecord&, const RunRecord&) = default;
};

} // namespace parabolt
