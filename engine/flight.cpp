#include "engine/flight.h"

#include "engine/flight_step.h"
#include "engine/landing.h"
#include "engine/vector_state.h"

namespace parabolt {
namespace {

/// How a flight went on as far as it went.
struct Flown {
    FlightState ball;    ///< behind the last step
    bool landed = false; ///< false if that step had no result, or `onStep` ended the flight
};

/// Flies the ball down to the first step below the ground and hands each completed step to
/// `onStep`, which says whether the flight may go on. Both kinds of flight are this one loop. The
/// ball is passed by value: nobody else can see it, so it stays in registers.
template <class OnStep>
inline Flown fly(FlightState ball, const FlightAir& air, OnStep onStep) {
    releaseVectorState();
    while (!(ball.y < 0)) {
        advance(ball, air);
        if (!hasResult(ball) || !onStep(ball))
            return {ball, false};
        ball.t += kTimeStep;
    }
    return {ball, true};
}

/// Tells why a flight came to its end in mid-air. Off the path of a sound flight: the faulty step
/// is found again from the launch, this time under watch.
Fault diagnose(const ShotState& shot) {
    const FaultWatch watch;
    FlightState ball = launchState(shot);
    const FlightAir air = flightAir(shot);
    do // the first step always runs, however the launch stands
        advance(ball, air);
    while (!watch.fault(sumOf(ball)) && hasResult(ball));
    // Nothing reads the angle of the last step, so that its division may never have run.
    const Fault silent = ball.vx == 0 ? Fault::DivisionByZero : Fault::InvalidArgument;
    return watch.fault(sumOf(ball)).value_or(silent);
}

} // namespace

Outcome<void, Fault> SimulateFlight(const ShotState& shot, const RunTags& tags, RunRecord& record) {
    constexpr std::size_t kUsualSteps = 1024; // about ten seconds, longer than nearly all shots
    record.Path.clear();
    record.Path.reserve(kUsualSteps);
    record.Path.push_back({});

    int steps = 0;
    const auto [ball, landed] =
        fly(launchState(shot), flightAir(shot), [&](const FlightState& now) {
            if (steps == kMostSteps)
                return false;
            ++steps;
            record.Path.push_back(
                {store32(double{now.x} * kYardsPerMetre), store32(double{now.y} * kYardsPerMetre)});
            return true;
        });
    if (!landed)
        return because(steps == kMostSteps ? Fault::TooManySteps : diagnose(shot));
    return recordLanding(ball, shot, tags, record);
}

float SimulateCarry(const ShotState& shot) {
    int steps = 0;
    const auto [ball, landed] = fly(launchState(shot), flightAir(shot),
                                    [&](const FlightState&) { return ++steps != kMostCarrySteps; });
    return landed ? store32(double{ball.x} * kYardsPerMetre) : 0;
}

} // namespace parabolt
