#pragma once

#include "maps/map_grid.h"
#include "plots/picture_box.h"

namespace parabolt {

/// Where the axes of a map stand on a canvas.
class MapFrame {
public:
    /// A canvas of this outer size in twips.
    MapFrame(double width, double height, const MapRanges& ranges);

    Place corner() const { return corner_; } ///< upper left, twips
    Place size() const { return size_; }
    Place place(MapPoint point) const;
    /// The point at a place; nothing outside the axes.
    std::optional<MapPoint> point(Place place) const;
    bool holds(MapPoint point) const {
        return ranges_.across.holds(point.across) && ranges_.up.holds(point.up);
    }

private:
    MapRanges ranges_;
    Place corner_;
    Place size_;
};

} // namespace parabolt
