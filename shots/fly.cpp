#include "shots/fly.h"

#include "engine/air.h"
#include "engine/units.h"
#include "numbers/rounding.h"

#include <utility>

namespace parabolt {

Outcome<FlownShot, NotFlown> fly(const Shot& shot) {
    const auto state = prepare(shot);
    if (!state)
        return because(NotFlown{state.why(), std::nullopt});
    FlownShot flown{shot, {}};
    static_cast<ShotInputs&>(flown.shot) = static_cast<const ShotInputs&>(*state);
    if (const auto landed = SimulateFlight(*state, shot, flown.record); !landed)
        return because(NotFlown{landed.why(), std::move(flown)});
    return flown;
}

std::vector<FlightOutcome> flyMany(std::span<const Shot> shots, const std::stop_token& stop) {
    std::vector<FlightOutcome> outcomes(shots.size());
    std::vector<ShotState> states;    // of those that have air and launch
    std::vector<std::size_t> numbers; // of their shots
    for (std::size_t number = 0; number < shots.size(); ++number) {
        const auto state = prepare(shots[number]);
        if (state) {
            states.push_back(*state);
            numbers.push_back(number);
        } else {
            outcomes[number].fault = state.why();
        }
    }
    const auto flights = SimulateFlights(states, stop);
    if (flights.size() != states.size())
        return {};
    for (std::size_t flown = 0; flown < flights.size(); ++flown)
        outcomes[numbers[flown]] = flights[flown];
    return outcomes;
}

Outcome<ShotState, Fault> deriveAir(const ShotInputs& inputs) {
    ShotState state{inputs};
    if (const auto air = ComputeEnvironment(state); !air)
        return because(air.why());
    return state;
}

Outcome<void, Fault> PrepareLaunch(ShotState& state, const Shot& shot) {
    if (shot.Mode > OperatingMode::Launch) {
        ShotState launched = state;
        if (auto launch = GetLoftAngle(launched, shot.sources); !launch)
            return launch;
        state = launched;
    }
    state.LaunchSpeedMs = store32(state.LaunchSpeed * kMetresPerSecondPerMph);
    return {};
}

Outcome<ShotState, Fault> prepare(const Shot& shot) {
    auto state = deriveAir(shot);
    if (state)
        if (const auto launch = PrepareLaunch(*state, shot); !launch)
            return because(launch.why());
    return state;
}

} // namespace parabolt
