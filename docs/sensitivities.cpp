// Prints the rows of the two tables of sensitivities in docs/physics.md. The first comes from the
// model as it is. The second flies the same shots with a step of its own, written once more in
// plain 64-bit arithmetic, in which one part of the model can be changed at a time.

#include "engine/flight_step.h"
#include "shots/figures.h"
#include "shots/fly.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace {

using namespace parabolt;

struct Change {
    const char* name;
    float ShotInputs::*input;
    float by;
    const char* publicFigure;
};

/// What one flight is judged by, in yards.
struct CarryAndHeight {
    double carry;
    double height;
};

Shot launched(float ballSpeed, float angle, float spin) {
    Shot shot;
    shot.LaunchSpeed = ballSpeed;
    shot.LaunchAngle = angle;
    shot.RPM = spin;
    return shot;
}

Shot inWind(Shot shot, double headWind) {
    shot.WindSpeed = headWind;
    return shot;
}

Shot changed(Shot shot, float ShotInputs::*input, float by) {
    shot.*input += by;
    return shot;
}

const Shot kDrive = launched(155, 12, 2700);
const Shot kTourDriver = launched(171, 10.4F, 2545);
const Shot kTourSevenIron = launched(123, 16.1F, 7124);

/// By the model itself. No launch here fails.
CarryAndHeight byModel(const Shot& shot) {
    const Figures figures = figuresOf(fly(shot)->record);
    return {figures.carry, figures.height};
}

/// What the second table changes.
struct Variant {
    const char* name;
    bool alongAir;   ///< drag and lift follow the path through the air, not that over the ground
    double lift;     ///< factor of the lift coefficient
    double drag;     ///< factor of the drag coefficient
    double reynolds; ///< factor of the part of the drag that goes with the Reynolds number
};

CarryAndHeight byVariant(const Shot& shot, const Variant& variant) {
    const ShotState state = *prepare(shot);
    const FlightAir air = flightAir(state);
    const FlightState launch = launchState(state);
    double x = 0;
    double y = 0;
    double vx = launch.vx;
    double vy = launch.vy;
    double spin = launch.w;
    double top = 0;
    while (y >= 0) {
        const double along = vx + air.headWind;
        const double speed = std::hypot(along, vy);
        const double reynolds = air.density * kBallDiameter * speed / air.viscosity;
        const double spinParameter = spin * kBallDiameter / (2 * speed);
        const double swing =
            kDragSwing * std::sin(kFlightPi * (reynolds - kDragMiddle) / kDragHalfWave);
        const double lift = variant.lift * kLiftFactor * std::pow(spinParameter, air.liftExponent);
        const double drag =
            variant.drag * (kDragAtRest + kDragPerSpin * spinParameter + variant.reynolds * swing);
        const double push =
            air.density * speed * speed * kFlightPi * kBallDiameter * kBallDiameter / 8;
        const double path = std::atan2(vy, variant.alongAir ? along : vx);
        const double forceAlong = -drag * std::cos(path) - lift * std::sin(path);
        const double forceUp = lift * std::cos(path) - drag * std::sin(path);
        vx += push * forceAlong / kBallMass * kTimeStep;
        vy += (push * forceUp + kBallWeight) / kBallMass * kTimeStep;
        spin -=
            kDecayPerSpin * spinParameter * push * kBallDiameter / (2 * kBallInertia) * kTimeStep;
        x += vx * kTimeStep;
        y += vy * kTimeStep;
        top = std::max(top, y);
    }
    return {x * kYardsPerMetre, top * kYardsPerMetre};
}

void printChanges() {
    constexpr std::array<Change, 4> kChanges = {{
        {"1,000 ft of altitude", &ShotInputs::h, 1000, "+2.5"},
        {"10 °F warmer", &ShotInputs::Temperature, 10, "–"},
        {"1° higher", &ShotInputs::LaunchAngle, 1, "–"},
        {"300 rpm more", &ShotInputs::RPM, 300, "–"},
    }};
    const double calm = byModel(kDrive).carry;
    std::printf("| The drive itself: carry | %.1f | – |\n", calm);
    const auto row = [calm](const char* name, const Shot& shot, const char* publicFigure) {
        std::printf("| %s | %+.1f | %s |\n", name, byModel(shot).carry - calm, publicFigure);
    };
    row("10 mph of head wind", inWind(kDrive, 10), "-12 to -14");
    row("10 mph of tail wind", inWind(kDrive, -10), "+9 to +10");
    for (const Change& change : kChanges)
        row(change.name, changed(kDrive, change.input, change.by), change.publicFigure);
    std::printf("| The tour driver: greatest height | %.1f | 35 |\n", byModel(kTourDriver).height);
}

/// False if the step written here isn't the model's.
bool printVariants() {
    constexpr std::array<Variant, 6> kVariants = {{
        {"as the model", false, 1, 1, 1},
        {"forces along the path through the air", true, 1, 1, 1},
        {"drag without its part in Re", false, 1, 1, 0},
        {"lift 10 % less", false, 0.9, 1, 1},
        {"lift 20 % less", false, 0.8, 1, 1},
        {"along the air, lift 30 % and drag 20 % less", true, 0.7, 0.8, 1},
    }};
    for (const Variant& variant : kVariants) {
        const CarryAndHeight drive = byVariant(kDrive, variant);
        const CarryAndHeight driver = byVariant(kTourDriver, variant);
        const double head = byVariant(inWind(kDrive, 10), variant).carry;
        const double tail = byVariant(inWind(kDrive, -10), variant).carry;
        const double high = byVariant(changed(kDrive, &ShotInputs::h, 1000), variant).carry;
        const double iron = byVariant(kTourSevenIron, variant).carry;
        constexpr double kSame = 0.05; // yards
        if (&variant == &kVariants.front() &&
            (std::abs(drive.carry - byModel(kDrive).carry) > kSame ||
             std::abs(head - byModel(inWind(kDrive, 10)).carry) > kSame ||
             std::abs(tail - byModel(inWind(kDrive, -10)).carry) > kSame ||
             std::abs(driver.height - byModel(kTourDriver).height) > kSame))
            return false;
        std::printf("| %s | %.0f | %+.1f | %+.1f | %+.1f | %.0f | %.0f | %.0f |\n", variant.name,
                    drive.carry, head - drive.carry, tail - drive.carry, high - drive.carry,
                    driver.carry, driver.height, iron);
    }
    return true;
}

} // namespace

int main() {
    printChanges();
    return printVariants() ? 0 : 1;
}
