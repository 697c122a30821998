#pragma once

#include "maps/map_flights.h"
#include "maps/map_inputs.h"

#include <optional>
#include <vector>

namespace parabolt {

/// The values of one axis: from the first on in steps, up to the last.
struct MapAxis {
    double first = 0;
    double last = 0;
    double step = 1;

    static constexpr int kMost = 241; ///< values of an axis

    /// Number of values, at least 2 and at most `kMost`.
    int count() const;
    double at(int index) const;
    double end() const { return at(count() - 1); }
    bool holds(double value) const { return value >= first && value <= end(); }
    /// The same brought into the limits of an input, with room for one step at least.
    MapAxis within(const MapInput& input) const;
    friend bool operator==(const MapAxis&, const MapAxis&) = default;
};

struct MapRanges {
    MapAxis across;
    MapAxis up;
    friend bool operator==(const MapRanges&, const MapRanges&) = default;
};

/// Ranges that suit a shot: those of woods, and wider ones where the shot lies beyond them.
MapRanges usualRanges(MapKind kind, const ShotInputs& shot);

/// A place on a map, by the values of its axes.
struct MapPoint {
    double across = 0;
    double up = 0;
    friend bool operator==(const MapPoint&, const MapPoint&) = default;
};

/// The point of a shot.
MapPoint pointOf(MapKind kind, const ShotInputs& shot);
/// The shot with the launch, or the swing, of a point.
Shot shotAt(MapKind kind, Shot shot, MapPoint point);

/// The flights of a map: a node for each pair of the axes' values. They come in passes, each
/// thinning out the nodes less than the one before.
class MapGrid {
public:
    explicit MapGrid(const MapRanges& ranges = {});

    static constexpr int kCoarsest = 8; ///< stride of the first pass

    /// A node of which a pass has flown the shot, or of which none has yet.
    using Node = std::optional<MapCell>;

    const MapRanges& ranges() const { return ranges_; }
    int columns() const { return columns_; }
    int rows() const { return rows_; }
    const Node& at(int column, int row) const { return nodes_[index(column, row)]; }
    void put(int column, int row, MapCell cell) { nodes_[index(column, row)] = cell; }
    MapPoint point(int column, int row) const {
        return {ranges_.across.at(column), ranges_.up.at(row)};
    }

private:
    std::size_t index(int column, int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
               static_cast<std::size_t>(column);
    }

    MapRanges ranges_;
    int columns_;
    int rows_;
    std::vector<Node> nodes_;
};

/// The indices that a pass visits on an axis: each `stride`th, and the last.
std::vector<int> visited(int count, int stride);

/// Figures over a rectangle: at each crossing of its lines a value, or none where a flight failed.
struct ValueField {
    std::vector<double> across; ///< ascending
    std::vector<double> up;     ///< ascending
    std::vector<double> values; ///< row by row; not a number where there is none

    double at(std::size_t column, std::size_t row) const {
        return values[row * across.size() + column];
    }
    /// The values at each pair of places, row by row: between four crossings by both shares. Not a
    /// number where one of the four has no value, or outside.
    std::vector<double> between(std::span<const double> acrossAt,
                                std::span<const double> upAt) const;
};

/// What the nodes of a pass show of an outcome.
ValueField fieldOf(const MapGrid& grid, int stride, MapOutcome outcome);

} // namespace parabolt
