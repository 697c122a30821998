#pragma once

#include "shots/run_book.h"

#include <optional>
#include <span>
#include <string>

namespace parabolt {

/// Seconds from the launch to a point of a path.
double timeAt(std::size_t index);

/// A point of the path of a data set.
struct PathPoint {
    int number = 0;
    std::size_t index = 0;
    friend bool operator==(const PathPoint&, const PathPoint&) = default;
};

/// The point nearest to a place, both in yards, among the paths of these data sets; nothing if none
/// is within the reach. Of several as near, that of the last data set, whose curve lies on top.
std::optional<PathPoint> nearestPoint(const RunBook& book, std::span<const int> numbers,
                                      TrajectoryPoint place, double reach);

/// Moves along a path by so many points, and stays on it.
PathPoint along(const RunBook& book, PathPoint point, int points);
/// Goes on to the next of these data sets, or back with `steps` below 0, to the point above the
/// same distance.
PathPoint toNeighbour(const RunBook& book, std::span<const int> numbers, PathPoint point,
                      int steps);

/// Speed over the ground at a point, mph; 0 for a path of one point.
double speedAt(const RunRecord& run, std::size_t index);

/// The data set of a point, and what the ball does there, in three lines: number and name, x and
/// height, time and speed.
std::string readoutOf(const RunBook& book, PathPoint point);

} // namespace parabolt
