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

/// Draws a map onto a canvas that has its size: the figures of an outcome as colours, with contours
/// at round steps, the bar that explains them, the axes, the best point with the region that is as
/// good, the reach of the swing, the present setting and the data sets. Erases it first; its fore
/// colour is that of axes and labels.
void drawMap(PictureBox& canvas, const MapResult& result, MapOutcome shown,
             std::span<const DataMark> marks);

} // namespace parabolt
