#include "maps/map_flights.h"

#include "shots/fly.h"

#include <array>

namespace parabolt {
namespace {

constexpr std::array kOutcomes = {MapOutcome::Carry, MapOutcome::Total, MapOutcome::Height,
                                  MapOutcome::LandingAngle, MapOutcome::Time};

double overshootOf(const TrajectoryPoint& before, const TrajectoryPoint& landing) {
    return (double{landing.x} - before.x) * landing.y / (double{landing.y} - before.y);
}

MapCell cellOf(const FlightOutcome& flight) {
    if (flight.fault)
        return because(*flight.fault);
    return MapFlight{figuresOf(flight), overshootOf(flight.beforeLanding, flight.landing)};
}

} // namespace

OutcomeText textOf(MapOutcome outcome) {
    switch (outcome) {
    case MapOutcome::Carry:
        return {"Carry", "yd"};
    case MapOutcome::Total:
        return {"Total", "yd"};
    case MapOutcome::Height:
        return {"Height", "yd"};
    case MapOutcome::LandingAngle:
        return {"Landing angle", "\u00b0"};
    case MapOutcome::Time:
        return {"Time", "s"};
    }
    return {};
}

std::span<const MapOutcome> mapOutcomes() {
    return kOutcomes;
}

bool isNarrow(MapOutcome outcome) {
    return outcome != MapOutcome::Total && outcome != MapOutcome::LandingAngle;
}

double figureOf(const Figures& figures, MapOutcome outcome) {
    switch (outcome) {
    case MapOutcome::Carry:
        return figures.carry;
    case MapOutcome::Total:
        return figures.total;
    case MapOutcome::Height:
        return figures.height;
    case MapOutcome::LandingAngle:
        return figures.landingAngle;
    case MapOutcome::Time:
        return figures.time;
    }
    return 0;
}

double smoothFigure(const MapFlight& flight, MapOutcome outcome) {
    const bool alongTheGround = outcome == MapOutcome::Carry || outcome == MapOutcome::Total;
    return figureOf(flight.figures, outcome) - (alongTheGround ? flight.overshoot : 0);
}

std::vector<MapCell> flyAll(std::span<const Shot> shots, const std::stop_token& stop) {
    std::vector<MapCell> cells;
    cells.reserve(shots.size());
    for (const FlightOutcome& flight : flyMany(shots, stop))
        cells.push_back(cellOf(flight));
    return cells;
}

} // namespace parabolt
