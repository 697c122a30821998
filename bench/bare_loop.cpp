#include "bench/bare_loop.h"

#include <cmath>

namespace parabolt::bench {

float bareCarry(const BareShot& shot) {
    const auto f = [](double value) { return static_cast<float>(value); };
    const double pi = 3.14159F;
    const double d = 0.042672F;
    const double mass = 0.04679476F;
    const double weight = -0.45891622F;
    const double inertia = 8.4e-06F;
    const double dt = 0.01F;
    const double density = shot.density;
    const double exponent = shot.liftOffset + 0.3;

    float w = f(((double{shot.spin} + shot.spin) * pi) / 60);
    float theta = f((pi / 180) * shot.angle);
    float vx = f(shot.speed * std::cos(double{theta}));
    float vy = f(shot.speed * std::sin(double{theta}));
    float x = 0;
    float y = 0;
    float t = 0;
    do {
        const double along = double{vx} + shot.wind;
        const float a = f(double{vy} * vy + along * along);
        const double s = std::sqrt(double{a});
        const float re = f(((density * d) * s) / shot.viscosity);
        const float sp = f(((w * d) * 0.5) / s);
        const float cl = f(std::pow(double{sp}, exponent) * 0.54);
        const float cd = f((sp * 0.18 + 0.243) + 0.06 * std::sin(((re - 90000.0) * pi) / 200000));
        const float cm = f(sp * 0.032);
        const float fd = f(((((cd * density) * a) * pi) * (d * d)) / 8);
        const float fl = f(((((cl * density) * a) * pi) * (d * d)) / 8);
        const float q = f(((((cm * density) * a) * pi) * (d * d * d)) / 16);
        const double c = std::cos(double{theta});
        const double n = std::sin(double{theta});
        const float ax = f((-double{fd} * c - fl * n) / mass);
        const float ay = f(((fl * c + weight) - fd * n) / mass);
        const float aw = f(-double{q} / inertia);
        vx = f(ax * dt + vx);
        vy = f(ay * dt + vy);
        w = f(aw * dt + w);
        x = f(vx * dt + x);
        y = f(vy * dt + y);
        theta = f(std::atan(double{vy} / vx));
        t = f(t + dt);
    } while (!(y < 0));
    return f(double{x} * 1.0936133F);
}

BareShot bareShot(const ShotState& state) {
    return {state.LaunchSpeedMs, state.LaunchAngle,  state.RPM, state.WindSpeedMs,
            state.AirDensity,    state.AirViscosity, state.CD1};
}

} // namespace parabolt::bench
