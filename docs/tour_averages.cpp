// Flies the public tour averages in still air at sea level and prints how the computed carry
// compares with the measured one: the rows of the table in docs/physics.md.

#include "shots/figures.h"
#include "shots/fly.h"

#include <array>
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
        parabolt::Shot shot;
        shot.LaunchSpeed = average.ballSpeed;
        shot.LaunchAngle = average.launchAngle;
        shot.RPM = average.spin;
        const auto flown = parabolt::fly(shot);
        if (!flown)
            return 1;
        const parabolt::Figures figures = parabolt::figuresOf(flown->record);
        const double off = figures.carry - average.carry;
        std::printf("| %s | %.0f | %.1f | %.0f | %.0f | %.0f | %+.0f (%+.1f %%) | %.0f | %.1f |\n",
                    average.club, double{average.ballSpeed}, double{average.launchAngle},
                    double{average.spin}, average.carry, figures.carry, off,
                    100 * off / average.carry, figures.height, figures.time);
    }
}
