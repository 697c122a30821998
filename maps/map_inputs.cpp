#include "maps/map_inputs.h"

#include "numbers/rounding.h"

#include <algorithm>
#include <array>

namespace parabolt {
namespace {

constexpr std::string_view kDegrees = "\u00b0";

enum Row : std::size_t { SpinRow, LaunchAngleRow, AttackRow, LoftRow };

// limits; name, unit, member; step, grain; the one kind of map that has it
constexpr std::array<MapInput, 14> kMapInputs = {{
    {limits::kSpin, "Spin", "rpm", &ShotInputs::RPM, 200, 10, MapKind::Launch},
    {limits::kLaunchAngle, "Launch angle", kDegrees, &ShotInputs::LaunchAngle, 1, 0.1,
     MapKind::Launch},
    {limits::kAttackAngle, "Attack angle", kDegrees, &ShotInputs::AttackAngle, 1, 0.1,
     MapKind::Swing},
    {limits::kLoftAngle, "Loft", kDegrees, &ShotInputs::LoftAngle, 1, 0.1, MapKind::Swing},
    {limits::kLaunchSpeed, "Ball speed", "mph", &ShotInputs::LaunchSpeed, 1, 0.1, MapKind::Launch},
    {limits::kHeadSpeed, "Head speed", "mph", &ShotInputs::HeadSpeed, 1, 0.1, MapKind::Swing},
    {limits::kCor, "COR", "", &ShotInputs::COR, 0.01, 0.01, MapKind::Swing},
    {limits::kHeadWeight, "Head weight", "g", &ShotInputs::HeadWeight, 5, 1, MapKind::Swing},
    {limits::kBending, "Bend", kDegrees, &ShotInputs::Bending, 1, 0.1, MapKind::Swing},
    {limits::kWind, "Wind", "mph", &ShotInputs::WindSpeed, 5, 0.1, std::nullopt},
    {limits::kTemperature, "Temperature", "F", &ShotInputs::Temperature, 10, 1, std::nullopt},
    {limits::kAltitude, "Altitude", "ft", &ShotInputs::h, 1000, 10, std::nullopt},
    {limits::kPressure, "Pressure", "inHg", &ShotInputs::BaroPressure, 0.5, 0.01, std::nullopt},
    {limits::kHumidity, "Humidity", "%", &ShotInputs::RH, 10, 1, std::nullopt},
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
    return kMapInputs;
}

const MapInput& acrossInput(MapKind kind) {
    return kMapInputs[kind == MapKind::Launch ? SpinRow : AttackRow];
}

const MapInput& upInput(MapKind kind) {
    return kMapInputs[kind == MapKind::Launch ? LaunchAngleRow : LoftRow];
}

const MapInput& loftInput() {
    return kMapInputs[LoftRow];
}

} // namespace parabolt
