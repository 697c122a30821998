#pragma once

#include "numbers/rgb.h"

#include <cstdint>
#include <vector>

namespace parabolt {

/// The one set of numbers from which a shot is computed. The widths are part of the model: a 32-bit
/// quantity is rounded each time it is stored.
struct ShotState {
    // Launch of the ball: typed in, or computed by the impact model.
    float LaunchAngle = 0; ///< degrees
    float RPM = 0;         ///< back spin, rpm
    float LaunchSpeed = 0; ///< mph

    // Swing and club.
    float HeadSpeed = 0;      ///< club-head speed at impact, mph
    std::int16_t ClubNo = 0;  ///< the club's own number in its table
    float SpeedIncrement = 0; ///< fall of HeadSpeed from club to club in the fill-in batch, mph
    float COR = 0;            ///< coefficient of restitution between head and ball
    float HeadWeight = 0;     ///< club-head mass, grams
    float AttackAngle = 0;    ///< degrees, positive upward
    float LoftAngle = 0;      ///< degrees
    float Bending = 0;        ///< shaft bend at impact, degrees; adds to the loft

    // Weather and course.
    double WindSpeed = 0;   ///< along the line of play, mph; positive against the ball
    float Temperature = 0;  ///< degrees Fahrenheit
    float BaroPressure = 0; ///< inches of mercury, as read at sea level
    float RH = 0;           ///< relative humidity, percent
    float h = 0;            ///< altitude of the course, feet

    // Ball option.
    float Slope1 = 0;          ///< added to the spin factor of the impact model
    float CD1 = 0;             ///< added to the exponent of the lift law
    std::int16_t BallType = 0; ///< selected option, 1 to 4

    float sRange = 0; ///< width of the plot, yards; no part of the flight

    // Derived before each shot and valid for it alone.
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
};

} // namespace parabolt
