#pragma once

#include "maps/map_grid.h"

#include <stop_token>

namespace parabolt {

/// How much a set-up may lose and still count as good as the best: less than a golfer can tell.
inline constexpr double kTopLoss = 1; ///< yards

/// Where an outcome is greatest.
struct MapBest {
    MapPoint point; ///< in whole grains of the inputs
    MapFlight flight;
    bool atEdge = false; ///< at the edge of the map: there may be a better one beyond
};

/// The best point of a map: the best of the grid's nodes, and from there uphill in ever smaller
/// steps. Nothing if no node has a value, or a stop was requested.
std::optional<MapBest> findBest(const MapGrid& grid, MapKind kind, const Shot& base,
                                MapOutcome outcome, const std::stop_token& stop);

/// A swing with one of the lofts that it could have.
struct ReachNode {
    double loft = 0; ///< degrees
    Shot shot;       ///< with the launch that comes of it
    MapCell cell;    ///< of its flight
};

/// A loft, and what it brings.
struct LoftBest {
    double loft;
    double ballSpeed; ///< mph
    MapFlight flight;
};

/// What a swing reaches as the loft of the club changes and all else stays.
struct Reach {
    std::vector<ReachNode> nodes; ///< by ascending loft, in half degrees
    std::optional<LoftBest> carry;
    std::optional<LoftBest> total;
    /// The lofts around the best one for carry that lose less than `kTopLoss`, on half degrees.
    double lowestGood = 0;
    double highestGood = 0;
};

/// The reach of a swing that the impact model turns into launches.
Reach reachOf(const Shot& swing, const std::stop_token& stop);

/// What one step of an input does to the carry.
struct StepEffect {
    const MapInput* input = nullptr;
    double value = 0;           ///< of the input now
    std::optional<double> less; ///< yards that one step down gains; none where it can't be flown
    std::optional<double> more; ///< yards that one step up gains

    double greatest() const; ///< of both, without sign
};

/// The effects of all inputs that a kind of map has, the greatest first. A step that leaves the
/// limits of its input has none.
std::vector<StepEffect> stepEffects(MapKind kind, const Shot& base, const std::stop_token& stop);

} // namespace parabolt
