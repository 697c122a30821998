#pragma once

#include "maps/map_grid.h"

#include <vector>

namespace parabolt {

/// A line along which a field has one value. A closed one ends where it begins.
using Contour = std::vector<MapPoint>;

/// All lines of a level, by marching squares: a point on each edge that the level crosses, at its
/// share of the way. Where a corner has no value there is no line.
std::vector<Contour> contoursOf(const ValueField& field, double level);

} // namespace parabolt
