#pragma once

#include "maps/map_search.h"

#include <functional>
#include <memory>

namespace parabolt {

/// What a map is computed of.
struct MapRequest {
    Shot shot; ///< of the main form
    MapKind kind = MapKind::Launch;
    MapRanges ranges;
    friend bool operator==(const MapRequest&, const MapRequest&) = default;
};

/// What has been computed of a map so far.
struct MapResult {
    MapRequest request;
    std::uint64_t generation = 0; ///< of the request
    /// The shot as it would be flown now: its launch, or its swing, is what the map varies.
    Outcome<Shot, Fault> base{Shot()};
    MapGrid grid;
    int stride = MapGrid::kCoarsest; ///< of the last complete pass
    bool complete = false;

    // From the second delivery on.
    std::optional<MapCell> present; ///< flight of the present setting
    Reach reach;
    std::vector<StepEffect> steps;
    // With the coarse nodes first, and in the end with all.
    std::optional<MapBest> bestCarry;
    std::optional<MapBest> bestTotal;

    /// The best point for what is shown: total for itself, carry for all else.
    const std::optional<MapBest>& best(MapOutcome shown) const {
        return shown == MapOutcome::Total ? bestTotal : bestCarry;
    }
};

/// The shot that a kind of map varies, as it would be flown now: with the club of the set, and with
/// the launch that the impact model gives. The fault if it has no air or no launch.
Outcome<Shot, Fault> baseOf(const Shot& shot, MapKind kind);

using DeliverMap = std::function<void(std::shared_ptr<const MapResult>)>;

/// Computes a whole map, on the caller's thread.
MapResult completeMap(const MapRequest& request);

/// Computes a map in passes, from coarse to fine, and delivers after each what there is by then.
/// Returns early once a stop is requested.
void computeMap(const MapRequest& request, std::uint64_t generation, const std::stop_token& stop,
                const DeliverMap& deliver);

} // namespace parabolt
