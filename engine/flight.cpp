#include "engine/flight.h"

#include "engine/flight_step.h"
#include "engine/landing.h"

#include <limits>

namespace parabolt {
namespace {

/// Flies the ball down to the first step below the ground and hands each completed step to
/// `onStep`, which says whether the flight may go on. False if it was ended by that or by a step
/// without a result; the state is then that of the step. Both kinds of flight are this one loop.
template <class OnStep>
inline bool fly(FlightState& ball, const FlightAir& air, OnStep onStep) {
    while (!(ball.y < 0)) {
        advance(ball, air);
        if (!hasResult(ball) || !onStep(ball))
            return false;
        ball.t += kTimeStep;
    }
    return true;
}

/// Tells why a flight came to its end in mid-air. Off the path of a sound flight: the faulty step
/// is found again from the launch, this time under watch.
Fault diagnose(const ShotState& shot) {
    const FaultWatch watch;
    FlightState ball = launchState(shot);
    const FlightAir air = flightAir(shot);
    do // the first step always runs, however the launch stands
        advance(ball, air);
    while (!watch.fault() && hasResult(ball));
    // Nothing reads the angle of the last step, so that its division may never have run.
    const Fault silent = ball.vx == 0 ? Fault::DivisionByZero : Fault::InvalidArgument;
    return watch.fault().value_or(silent);
}

} // namespace

std::optional<Fault> SimulateFlight(const ShotState& shot, const RunTags& tags, RunRecord& record) {
    constexpr int kMostSteps = std::numeric_limits<std::int16_t>::max();
    constexpr std::size_t kUsualSteps = 1024; // about ten seconds, longer than nearly all shots
    record.Path.clear();
    record.Path.reserve(kUsualSteps);
    record.Path.push_back({});

    FlightState ball = launchState(shot);
    int steps = 0;
    const bool landed = fly(ball, flightAir(shot), [&](const FlightState& now) {
        if (steps == kMostSteps)
            return false;
        ++steps;
        record.Path.push_back(
            {store32(double{now.x} * kYardsPerMetre), store32(double{now.y} * kYardsPerMetre)});
        return true;
    });
    if (!landed)
        return steps == kMostSteps ? Fault::TooManySteps : diagnose(shot);
    return recordLanding(ball, shot, tags, record);
}

float SimulateCarry(const ShotState& shot) {
    // A ball so high and fast that its weight is lost in the rounding never comes down: its states
    // repeat themselves. Each is compared with one that is kept for a while.
    constexpr unsigned kStepsKept = 1U << 15;
    FlightState kept;
    unsigned steps = 0;
    const auto goesOn = [&](const FlightState& now) {
        if (++steps % kStepsKept == 0) {
            kept = now;
            return true;
        }
        return now.x != kept.x || now.y != kept.y || now.vx != kept.vx || now.vy != kept.vy ||
               now.w != kept.w;
    };
    FlightState ball = launchState(shot);
    if (!fly(ball, flightAir(shot), goesOn))
        return 0;
    return store32(double{ball.x} * kYardsPerMetre);
}

} // namespace parabolt
