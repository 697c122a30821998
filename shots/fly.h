#pragma once

#include "engine/many_flights.h"
#include "shots/shot.h"

#include <optional>
#include <span>
#include <stop_token>
#include <vector>

namespace parabolt {

/// A shot that has come down.
struct FlownShot {
    Shot shot;        ///< as flown: with the launch, and the club's values, that were computed
    RunRecord record; ///< path, outcome and copies of the inputs; its colour is still black
};

/// Why a shot has not come down.
struct NotFlown {
    Fault fault{};
    /// The flight as far as it came, the record's outcome at zero; nothing if the shot has no air
    /// or no launch.
    std::optional<FlownShot> flight;
};

/// Flies a shot: derives the air from the weather, computes the launch where the mode asks for it,
/// and integrates the flight to the first step below the ground.
Outcome<FlownShot, NotFlown> fly(const Shot& shot);

/// Flies many shots at once, without their paths; outcomes in their order, the fault also of those
/// that have no air or no launch. Once a stop is requested it returns soon, with none.
std::vector<FlightOutcome> flyMany(std::span<const Shot> shots, const std::stop_token& stop = {});

// The same in steps, for callers with many shots.

/// The inputs with the quantities of the air derived from them. The fault if there is no such air.
Outcome<ShotState, Fault> deriveAir(const ShotInputs& inputs);

/// Brings the launch up to date: in all modes but Launch the impact model computes it. A fault, of
/// a swing that has no launch, leaves the state as it was.
Outcome<void, Fault> PrepareLaunch(ShotState& state, const Shot& shot);

/// Both: a state that the engine can fly.
Outcome<ShotState, Fault> prepare(const Shot& shot);

} // namespace parabolt
