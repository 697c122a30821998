// Flies the public tour averages in still air at sea level and prints how the computed carry
// compares with the measured one: the rows of the table in docs/physics.md.

#include "engine/air.h"
#include "engine/flight.h"
#include "engine/units.h"
#include "numbers/rounding.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace {

struct TourAverage {
    const char* club;
    float ballSpeed;   ///< mph
    float launchAngle; ///< degrees
    float spin;        ///< rpm
    double carry;      ///< measured, yards
};

constexpr std::array<TourAverage, 8> kTourAverages = {{
    {"Driver", 171, 10.4F, 2545, 282},
    {"5-wood", 156, 9.7F, 4322, 236},
    {"5-iron", 135, 11.9F, 5280, 199},
    {"7-iron", 123, 16.1F, 7124, 176},
    {"9-iron", 112, 20.0F, 8793, 152},
    {"Wedge", 104, 23.7F, 9316, 142},
    {"LPGA driver", 143, 12.6F, 2506, 223},
    {"LPGA 7-iron", 106, 18.5F, 6630, 143},
}};

} // namespace

int main() {
    for (const TourAverage& average : kTourAverages) {
        parabolt::ShotState shot;
        shot.Temperature = 70;
        shot.BaroPressure = 29.92F;
        shot.RH = 50;
        shot.LaunchAngle = average.launchAngle;
        shot.RPM = average.spin;
        shot.LaunchSpeedMs =
            parabolt::store32(average.ballSpeed * parabolt::kMetresPerSecondPerMph);
        if (parabolt::ComputeEnvironment(shot))
            return 1;
        parabolt::RunRecord record;
        if (parabolt::SimulateFlight(shot, {}, record))
            return 1;
        double top = 0;
        for (const parabolt::TrajectoryPoint& point : record.Path)
            top = std::fmax(top, double{point.y});
        const double off = double{record.CarryDist} - average.carry;
        std::printf("| %s | %.0f | %.1f | %.0f | %.0f | %.0f | %+.0f (%+.1f %%) | %.0f | %.1f |\n",
                    average.club, double{average.ballSpeed}, double{average.launchAngle},
                    double{average.spin}, average.carry, double{record.CarryDist}, off,
                    100 * off / average.carry, top, double{record.CarryTime});
    }
}
