#pragma once

#include "maps/map_result.h"
#include "plots/picture_box.h"

namespace parabolt {

/// A data set on a map.
struct DataMark {
    int number;
    Rgb colour;
    MapPoint point;
    friend bool operator==(const DataMark&, const DataMark&) = default;
};

/// The data sets of a book, elements 1 to the last, that have a place on a kind of map: a typed
/// launch was made by no swing.
std::vector<DataMark> dataMarks(MapKind kind, std::span<const RunRecord> runs);

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

/// A range of figures with the colours that stand for them.
struct MapScale {
    double low = 0;
    double high = 1;
    double step = 1;  ///< between its round values
    bool cut = false; ///< what lies below `low` has its colour
    Rgb colour(double value) const;
};

/// The range of a field's values, but for the lowest: a far corner of a map, where shots barely
/// fly, would take most colours for itself. Nothing if there is no value.
std::optional<MapScale> scaleOf(const ValueField& field);

/// Draws a map onto a canvas that has its size: the figures of an outcome as colours, with contours
/// at round steps, the bar that explains them, the axes, the best point with the region that is as
/// good, the reach of the swing, the present setting and the data sets. Erases it first; its fore
/// colour is that of axes and labels.
void drawMap(PictureBox& canvas, const MapResult& result, MapOutcome shown,
             std::span<const DataMark> marks);

} // namespace parabolt
