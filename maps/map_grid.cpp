#include "maps/map_grid.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace parabolt {
namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

/// Where a value stands among ascending lines: at a share of the way from one line to the next.
struct Standing {
    std::size_t below;
    double share; ///< not a number outside
};

std::vector<Standing> standings(const std::vector<double>& lines, std::span<const double> values) {
    std::vector<Standing> found;
    found.reserve(values.size());
    for (const double value : values) {
        const auto above = std::upper_bound(lines.begin() + 1, lines.end() - 1, value);
        const bool inside = value >= lines.front() && value <= lines.back();
        const double low = *(above - 1);
        found.push_back({static_cast<std::size_t>(above - lines.begin()) - 1,
                         inside ? (value - low) / (*above - low) : kNone});
    }
    return found;
}

} // namespace

int MapAxis::count() const {
    constexpr double kSlack = 1e-6; // of a step, for steps like 0.1
    const double steps = std::floor((last - first) / step + kSlack);
    return static_cast<int>(std::clamp(steps, 1.0, kMost - 1.0)) + 1;
}

double MapAxis::at(int index) const {
    constexpr double kPlaces = 1e9; // sums of steps like 0.1 then have no tail of digits
    return std::round((first + index * step) * kPlaces) / kPlaces;
}

MapAxis MapAxis::within(const MapInput& input) const {
    MapAxis axis;
    axis.first = std::clamp(first, input.lowest, input.highest - input.grain);
    axis.last = std::clamp(last, axis.first + input.grain, input.highest);
    const double range = axis.last - axis.first;
    axis.step = std::clamp(step, std::min(input.grain, range), range);
    axis.step = std::max(axis.step, range / (kMost - 1));
    return axis;
}

MapRanges usualRanges(MapKind kind, const ShotInputs& shot) {
    // The narrowest axis that holds the shot with room around it.
    const auto choose = [](double value, double reach, MapAxis narrow, MapAxis wide) {
        return value <= reach ? narrow : wide;
    };
    if (kind == MapKind::Launch)
        return {choose(shot.RPM, 5000, {0, 6000, 100}, {0, 15000, 250}),
                choose(shot.LaunchAngle, 25, {0, 30, 0.5}, {0, 55, 1})};
    return {choose(shot.AttackAngle, 8, {-5, 10, 0.2}, {-5, 20, 0.5}),
            choose(shot.LoftAngle, 25, {0, 30, 0.5}, {0, 65, 1})};
}

MapPoint pointOf(MapKind kind, const ShotInputs& shot) {
    return {acrossInput(kind).of(shot), upInput(kind).of(shot)};
}

Shot shotAt(MapKind kind, Shot shot, MapPoint point) {
    acrossInput(kind).set(shot, point.across);
    upInput(kind).set(shot, point.up);
    return shot;
}

MapGrid::MapGrid(const MapRanges& ranges)
    : ranges_(ranges),
      columns_(ranges.across.count()),
      rows_(ranges.up.count()),
      nodes_(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_)) {}

std::vector<int> visited(int count, int stride) {
    std::vector<int> indices;
    for (int i = 0; i < count; i += stride)
        indices.push_back(i);
    if (indices.back() != count - 1)
        indices.push_back(count - 1);
    return indices;
}

std::vector<double> ValueField::between(std::span<const double> acrossAt,
                                        std::span<const double> upAt) const {
    const auto columns = standings(across, acrossAt);
    std::vector<double> found;
    found.reserve(acrossAt.size() * upAt.size());
    for (const auto& [y, above] : standings(up, upAt))
        for (const auto& [x, right] : columns)
            found.push_back((at(x, y) * (1 - right) + at(x + 1, y) * right) * (1 - above) +
                            (at(x, y + 1) * (1 - right) + at(x + 1, y + 1) * right) * above);
    return found;
}

ValueField fieldOf(const MapGrid& grid, int stride, MapOutcome outcome) {
    ValueField field;
    const auto columns = visited(grid.columns(), stride);
    const auto rows = visited(grid.rows(), stride);
    for (const int column : columns)
        field.across.push_back(grid.ranges().across.at(column));
    for (const int row : rows) {
        field.up.push_back(grid.ranges().up.at(row));
        for (const int column : columns) {
            const MapGrid::Node& node = grid.at(column, row);
            field.values.push_back(node && *node ? smoothFigure(**node, outcome) : kNone);
        }
    }
    return field;
}

} // namespace parabolt
