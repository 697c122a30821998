#include "measured/measured_flights.h"

#include "numbers/rounding.h"
#include "shots/fly.h"

#include <array>

namespace parabolt {
namespace {

constexpr std::array<ComparedFigure, 5> kComparedFigures = {{
    {"Carry", "yd", &DeviceFigures::carry, &Figures::carry},
    {"Total", "yd", &DeviceFigures::total, &Figures::total},
    {"Height", "yd", &DeviceFigures::height, &Figures::height},
    {"Landing angle", "deg", &DeviceFigures::landingAngle, &Figures::landingAngle},
    {"Time", "s", &DeviceFigures::time, &Figures::time},
}};

/// Gives a shot the pressure of its place: at no altitude as the reading itself, or, where that
/// lies below what weather services report, at the altitude to which it belongs.
void setPressureAtPlace(Shot& shot, double pressure) {
    shot.h = 0;
    if (pressure >= limits::kPressure.lowest) {
        shot.BaroPressure = store32(pressure);
        return;
    }
    shot.BaroPressure = ShotInputs().BaroPressure;
    float low = 0;
    float high = store32(limits::kAltitude.highest);
    while (high - low > 1) {
        shot.h = (low + high) / 2;
        const auto state = deriveAir(shot);
        const bool tooLow = state && state->StationPressure > pressure;
        (tooLow ? low : high) = shot.h;
    }
}

/// The pressure at which the air of the shot has a density, with its temperature and humidity;
/// nothing if no weather has it.
std::optional<double> pressureOf(double density, Shot shot) {
    shot.h = 0;
    const auto state = deriveAir(shot);
    if (!state)
        return std::nullopt;
    const double pressure = state->StationPressure * (density / state->AirDensity);
    return pressure <= limits::kPressure.highest ? std::optional(pressure) : std::nullopt;
}

/// A session may be older than the limits of the import, or written by others.
void takeAir(Shot& shot, MeasuredAir air) {
    dropImpossible(air);
    if (air.wind)
        shot.WindSpeed = *air.wind;
    if (air.temperature)
        shot.Temperature = store32(*air.temperature);
    if (air.humidity)
        shot.RH = store32(*air.humidity);
    if (air.altitude)
        shot.h = store32(*air.altitude);
    if (air.seaLevelPressure)
        shot.BaroPressure = store32(*air.seaLevelPressure);
    else if (air.pressure)
        setPressureAtPlace(shot, *air.pressure);
    else if (const auto pressure = air.density ? pressureOf(*air.density, shot) : std::nullopt)
        setPressureAtPlace(shot, *pressure);
}

ModelFlight modelFlight(const FlightOutcome& outcome) {
    return {outcome.fault, figuresOf(outcome)};
}

} // namespace

std::optional<double> ComparedFigure::difference(const MeasuredShot& shot,
                                                 const ModelFlight& flight) const {
    const auto measured = shot.device.*device;
    if (!measured || flight.fault)
        return std::nullopt;
    return flight.figures.*model - *measured;
}

std::span<const ComparedFigure> comparedFigures() {
    return kComparedFigures;
}

Shot shotOf(const MeasuredShot& shot, const Shot& conditions, bool ownAir) {
    Shot flown = conditions;
    flown.Mode = OperatingMode::Launch;
    flown.sources = {};
    for (const LaunchLimit& limit : launchLimits())
        flown.*limit.input = shot.*limit.measured;
    if (ownAir)
        takeAir(flown, shot.air);
    return flown;
}

std::vector<ModelFlight> flyMeasured(std::span<const MeasuredShot> shots, const Shot& conditions,
                                     bool ownAir, const std::stop_token& stop) {
    std::vector<Shot> given;
    given.reserve(shots.size());
    for (const MeasuredShot& shot : shots)
        given.push_back(shotOf(shot, conditions, ownAir));
    std::vector<ModelFlight> flights;
    flights.reserve(shots.size());
    for (const FlightOutcome& outcome : flyMany(given, stop))
        flights.push_back(modelFlight(outcome));
    return flights;
}

std::vector<std::optional<double>> normalisedCarries(std::span<const MeasuredShot> shots,
                                                     std::span<const ModelFlight> flown,
                                                     const Shot& conditions, const CalmAir& air,
                                                     const std::stop_token& stop) {
    Shot calm = conditions;
    calm.WindSpeed = 0;
    calm.h = air.altitude;
    calm.Temperature = air.temperature;
    calm.BaroPressure = air.pressure;
    calm.RH = air.humidity;
    const auto there = flyMeasured(shots, calm, false, stop);
    std::vector<std::optional<double>> carries(there.size());
    for (std::size_t shot = 0; shot < there.size(); ++shot) {
        const ModelFlight& own = flown[shot];
        const auto carry = shots[shot].device.carry;
        if (carry && !own.fault && !there[shot].fault && own.figures.carry > 0)
            carries[shot] = *carry * (there[shot].figures.carry / own.figures.carry);
    }
    return carries;
}

} // namespace parabolt
