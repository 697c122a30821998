#pragma once

#include "cli/shot_options.h"
#include "maps/map_inputs.h"

namespace parabolt::cli {

struct MapOptions {
    ShotOptions shot;
    std::optional<Format> format;
    MapKind kind = MapKind::Launch;
    std::optional<std::string> across; ///< "first:last:step"
    std::optional<std::string> up;
};

/// Computes a carry map and writes it: in CSV every node, in a table what the map tells in words
/// and what one step of each input brings, in JSON both.
ExitStatus mapCommand(const MapOptions& options, const Console& console);

} // namespace parabolt::cli
