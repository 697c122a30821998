#pragma once

#include "shots/input_limits.h"
#include "shots/shot.h"

#include <optional>
#include <span>
#include <string_view>
#include <variant>

namespace parabolt {

/// What a map varies: the launch of the ball, or the swing that makes it.
enum class MapKind { Launch, Swing };

/// An input of a shot, as maps show and vary it.
struct MapInput : InputLimits {
    std::string_view name;
    std::string_view unit; ///< "°" stands at its number, all others after a blank
    std::variant<float ShotInputs::*, double ShotInputs::*> member;
    double step;                 ///< what one step of the input is
    double grain;                ///< the finest difference that a map tells or takes over
    std::optional<MapKind> only; ///< the one kind of map to which it belongs; all if not set

    double of(const ShotInputs& shot) const;
    void set(ShotInputs& shot, double value) const;
    /// The value nearest to one in whole grains, within the limits.
    double settled(double value) const;
};

/// All inputs.
std::span<const MapInput> mapInputs();

/// What a kind of map has on its axes.
const MapInput& acrossInput(MapKind kind); ///< spin, or the attack angle
const MapInput& upInput(MapKind kind);     ///< the launch angle, or the loft
const MapInput& loftInput();

} // namespace parabolt
