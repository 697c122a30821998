#pragma once

#include "engine/flight.h"
#include "numbers/rounding.h"

#include <cmath>

namespace parabolt {

// Each constant in the width in which the model holds it: the 32-bit ones widen in the formulas.
// Near duplicates elsewhere in the model (the other pi, the other turns per minute, the impact
// model's ball) are different constants and stay apart.

// The ball. The rules of golf ask for at least 42.67 mm and at most 45.93 g; the model's own is
// heavier. Its moment of inertia is nearly that of a solid ball of one density, 2/5 m r^2.
inline constexpr float kFlightPi = 3.14159F;
inline constexpr float kBallDiameter = 0.042672F;  ///< m
inline constexpr float kBallMass = 0.04679476F;    ///< kg
inline constexpr float kBallWeight = -0.45891622F; ///< N; stored, not computed from the mass
inline constexpr float kBallInertia = 8.4e-06F;    ///< kg m2
inline constexpr float kTimeStep = 0.01F;          ///< s
inline constexpr float kYardsPerMetre = 1.0936133F;

// Aerodynamic coefficients, all without unit, over the spin parameter S (speed of the ball's
// surface over that of the air) and the Reynolds number Re. Their forms are those of wind-tunnel
// tests of spinning dimpled balls (P. W. Bearman and J. K. Harvey, Aeronautical Quarterly 27,
// 1976); the numbers are the model's own fit, for which there is no publication.
inline constexpr double kLiftFactor = 0.54;     ///< lift at S = 1
inline constexpr double kLiftExponent = 0.3;    ///< how lift grows with S; a ball option adds to it
inline constexpr double kDragAtRest = 0.243;    ///< drag without spin, at the middle of the sine
inline constexpr double kDragPerSpin = 0.18;    ///< drag that each unit of S adds
inline constexpr double kDragSwing = 0.06;      ///< most that the Reynolds number adds or takes
inline constexpr double kDragMiddle = 90000;    ///< Re at which it adds nothing, going up
inline constexpr double kDragHalfWave = 200000; ///< in Re, from there to the next such point
inline constexpr double kDecayPerSpin = 0.032;  ///< moment against the spin, per unit of S

/// The air of a flight, the same along its whole path.
struct FlightAir {
    float density;       ///< kg/m3
    float viscosity;     ///< Pa s
    float headWind;      ///< m/s
    double liftExponent; ///< of the spin parameter in the lift law
};

inline FlightAir flightAir(const ShotState& shot) {
    return {shot.AirDensity, shot.AirViscosity, shot.WindSpeedMs, shot.CD1 + kLiftExponent};
}

/// The ball on the ground at the moment of its launch.
inline FlightState launchState(const ShotState& shot) {
    constexpr float kSecondsPerMinute = 60;
    constexpr float kDegreesPerPi = 180;
    FlightState ball;
    ball.w = store32(((double{shot.RPM} + shot.RPM) * kFlightPi) / kSecondsPerMinute);
    ball.theta = store32((double{kFlightPi} / kDegreesPerPi) * shot.LaunchAngle);
    ball.vx = store32(shot.LaunchSpeedMs * std::cos(double{ball.theta}));
    ball.vy = store32(shot.LaunchSpeedMs * std::sin(double{ball.theta}));
    return ball;
}

/// One step of 0.01 s, without the clock: drag against the path, lift at right angles to it, weight
/// and a moment that slows the spin. Semi-implicit Euler: the velocities advance from the forces of
/// the present state, the position from the new velocities. The wind changes the air speed alone;
/// the forces are resolved along the path over the ground.
///
/// Each line is one formula in 64-bit arithmetic, rounded to 32 bits where it is stored; results
/// depend on that.
inline void advance(FlightState& ball, const FlightAir& air) {
    const double along = double{ball.vx} + air.headWind;
    const float speedSquared = store32(double{ball.vy} * ball.vy + along * along);
    const double speed = std::sqrt(double{speedSquared});
    const float reynolds = store32(((double{air.density} * kBallDiameter) * speed) / air.viscosity);
    const float spin = store32(((double{ball.w} * kBallDiameter) * 0.5) / speed);

    const float lift = store32(std::pow(double{spin}, air.liftExponent) * kLiftFactor);
    const float drag =
        store32((spin * kDragPerSpin + kDragAtRest) +
                kDragSwing * std::sin(((reynolds - kDragMiddle) * kFlightPi) / kDragHalfWave));
    const float decay = store32(spin * kDecayPerSpin);

    constexpr double kDiameter = kBallDiameter;
    constexpr double kDiameterSquared = kDiameter * kDiameter;
    constexpr double kDiameterCubed = kDiameterSquared * kDiameter;
    const float dragForce = store32(
        ((((double{drag} * air.density) * speedSquared) * kFlightPi) * kDiameterSquared) / 8);
    const float liftForce = store32(
        ((((double{lift} * air.density) * speedSquared) * kFlightPi) * kDiameterSquared) / 8);
    const float moment = store32(
        ((((double{decay} * air.density) * speedSquared) * kFlightPi) * kDiameterCubed) / 16);

    // Widened here and not above: gcc computes both of these where their argument comes into being,
    // and up there they would wait for the step before and hold up the power and the sine.
    const double theta = ball.theta;
    const double cosTheta = std::cos(theta);
    const double sinTheta = std::sin(theta);
    const float ax = store32((-double{dragForce} * cosTheta - liftForce * sinTheta) / kBallMass);
    const float ay =
        store32(((liftForce * cosTheta + kBallWeight) - dragForce * sinTheta) / kBallMass);
    const float aw = store32(-double{moment} / kBallInertia);

    ball.vx = store32(double{ax} * kTimeStep + ball.vx);
    ball.vy = store32(double{ay} * kTimeStep + ball.vy);
    ball.w = store32(double{aw} * kTimeStep + ball.w);
    ball.x = store32(double{ball.vx} * kTimeStep + ball.x);
    ball.y = store32(double{ball.vy} * kTimeStep + ball.y);
    ball.theta = store32(std::atan(double{ball.vy} / ball.vx));
}

/// A sum in which each failing operation of a step leaves its infinity or NaN, but for one: the
/// arctangent swallows a division by a horizontal speed of exactly 0.
inline double sumOf(const FlightState& ball) {
    return double{ball.x} + ball.y + ball.vx + ball.vy + ball.w;
}

/// True while every formula of the step had a result.
inline bool hasResult(const FlightState& ball) {
    return std::isfinite(sumOf(ball)) && ball.vx != 0;
}

} // namespace parabolt
