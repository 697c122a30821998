#pragma once

#include "shots/figures.h"
#include "shots/shot.h"

#include <span>
#include <stop_token>
#include <string_view>
#include <vector>

namespace parabolt {

/// What can be shown of a flight.
enum class MapOutcome { Carry, Total, Height, LandingAngle, Time };

struct OutcomeText {
    std::string_view name;
    std::string_view unit;
};
OutcomeText textOf(MapOutcome outcome);
std::span<const MapOutcome> mapOutcomes();

/// What a map keeps of a flight.
struct MapFlight {
    Figures figures;
    /// Yards of the carry that lie below the ground: a flight ends with a whole step of 0.01 s.
    double overshoot = 0;
};

/// A flight, or why there is none.
using MapCell = Outcome<MapFlight, Fault>;

/// The figure of an outcome, as the rest of the program has it.
double figureOf(const Figures& figures, MapOutcome outcome);

/// True for the figures that are 32-bit values of the flight, not computed from them.
bool isNarrow(MapOutcome outcome);

/// The figure as a map draws and compares it: carry and total end where the path meets the ground.
/// They change smoothly from shot to shot, where the figures go by the length of a step.
double smoothFigure(const MapFlight& flight, MapOutcome outcome);

/// Flies all shots; cells in their order. Once a stop is requested it returns soon, with none.
std::vector<MapCell> flyAll(std::span<const Shot> shots, const std::stop_token& stop);

} // namespace parabolt
