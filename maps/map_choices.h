#pragma once

#include "maps/map_grid.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace parabolt {

/// What the user has chosen of the map: as long as it isn't chosen, a range suits the shot.
struct MapChoices {
    MapKind kind = MapKind::Launch;
    MapOutcome shown = MapOutcome::Carry;
    std::array<std::optional<MapRanges>, 2> ranges; ///< of the launch, and of the swing

    friend bool operator==(const MapChoices&, const MapChoices&) = default;
};

/// The choices as a text, a JSON object, from which they read back; ranges to the same bits.
std::string composeMapChoices(const MapChoices& choices);

/// The choices of such a text. What it doesn't tell, or tells of values that no map has, is as if
/// it had never been chosen.
MapChoices readMapChoices(std::string_view text);

} // namespace parabolt
