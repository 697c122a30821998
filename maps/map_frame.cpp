#include "maps/map_frame.h"

#include <algorithm>
#include <cmath>

namespace parabolt {
namespace {

// In twips.
constexpr double kLeftOfAxes = 750;
constexpr double kRightOfAxes = 1500;
constexpr double kAboveAxes = 480;
constexpr double kBelowAxes = 660;

} // namespace

MapFrame::MapFrame(double width, double height, const MapRanges& ranges)
    : ranges_(ranges),
      corner_{kLeftOfAxes, kAboveAxes},
      size_{std::max(width - kLeftOfAxes - kRightOfAxes, 1.0),
            std::max(height - kAboveAxes - kBelowAxes, 1.0)} {}

Place MapFrame::place(MapPoint point) const {
    const auto share = [](const MapAxis& axis, double value) {
        return (value - axis.first) / (axis.end() - axis.first);
    };
    return {corner_.x + share(ranges_.across, point.across) * size_.x,
            corner_.y + (1 - share(ranges_.up, point.up)) * size_.y};
}

std::optional<MapPoint> MapFrame::point(Place place) const {
    const double right = (place.x - corner_.x) / size_.x;
    const double down = (place.y - corner_.y) / size_.y;
    if (!(right >= 0 && right <= 1 && down >= 0 && down <= 1))
        return std::nullopt;
    return MapPoint{std::lerp(ranges_.across.first, ranges_.across.end(), right),
                    std::lerp(ranges_.up.end(), ranges_.up.first, down)};
}

} // namespace parabolt
