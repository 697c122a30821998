#include "maps/map_inputs.h"

#include "numbers/rounding.h"

#include <algorithm>
#include <array>

namespace parabolt {
namespace {

constexpr std::string_view kDegrees = "\u00b0";

enum Row : std::size_t { kSpin, kLaunchAngle, kAttack, kLoft };

// name, unit, member; lowest, highest; step, grain; the one kind of map that has it
constexpr std::array<MapInput, 14> kInputs = {{
    {"Spin", "rpm", &ShotInputs::RPM, 0, 22000, 200, 10, MapKind::Launch},
    {"Launch angle", kDegrees, &ShotInputs::LaunchAngle, 0, 55, 1, 0.1, MapKind::Launch},
    {"Attack angle", kDegrees, &ShotInputs::AttackAngle, -5, 20, 1, 0.1, MapKind::Swing},
    {"Loft", kDegrees, &ShotInputs::LoftAngle, 0, 65, 1, 0.1, MapKind::Swing},
    {"Ball speed", "mph", &ShotInputs::LaunchSpeed, 30, 250, 1, 0.1, MapKind::Launch},
    {"Head speed", "mph", &ShotInputs::HeadSpeed, 50, 165, 1, 0.1, MapKind::Swing},
    {"COR", "", &ShotInputs::COR, 0.7, 0.9, 0.01, 0.01, MapKind::Swing},
    {"Head weight", "g", &ShotInputs::HeadWeight, 180, 320, 5, 1, MapKind::Swing},
    {"Bend", kDegrees, &ShotInputs::Bending, -10, 10, 1, 0.1, MapKind::Swing},
    {"Wind", "mph", &ShotInputs::WindSpeed, -35, 35, 5, 0.1, std::nullopt},
    {"Temperature", "F", &ShotInputs::Temperature, 20, 120, 10, 1, std::nullopt},
    {"Altitude", "ft", &ShotInputs::h, 0, 15000, 1000, 10, std::nullopt},
    {"Pressure", "inHg", &ShotInputs::BaroPressure, 25, 34, 0.5, 0.01, std::nullopt},
    {"Humidity", "%", &ShotInputs::RH, 0, 100, 10, 1, std::nullopt},
}};

} // namespace

double MapInput::of(const ShotInputs& shot) const {
    return std::visit([&](auto value) { return static_cast<double>(shot.*value); }, member);
}

void MapInput::set(ShotInputs& shot, double value) const {
    if (const auto* narrow = std::get_if<float ShotInputs::*>(&member))
        shot.*(*narrow) = store32(value);
    else
        shot.*std::get<double ShotInputs::*>(member) = value;
}

double MapInput::settled(double value) const {
    // Grains below 1 are whole parts of it: dividing by their number gives the nearest double.
    const double within = std::clamp(value, lowest, highest);
    return grain < 1 ? roundHalfEven(within / grain) / roundHalfEven(1 / grain)
                     : roundHalfEven(within / grain) * grain;
}

std::span<const MapInput> mapInputs() {
    return kInputs;
}

const MapInput& acrossInput(MapKind kind) {
    return kInputs[kind == MapKind::Launch ? kSpin : kAttack];
}

const MapInput& upInput(MapKind kind) {
    return kInputs[kind == MapKind::Launch ? kLaunchAngle : kLoft];
}

const MapInput& loftInput() {
    return kInputs[kLoft];
}

} // namespace parabolt
