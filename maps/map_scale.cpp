#include "maps/map_scale.h"

#include "maps/colour_scale.h"
#include "plots/chart_parts.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

namespace parabolt {
namespace {

constexpr int kMostLevels = 12; ///< about as many contours

} // namespace

Rgb MapScale::colour(double value) const {
    return scaleColour((value - low) / (high - low));
}

std::optional<MapScale> scaleOf(const ValueField& field) {
    constexpr std::size_t kLowest = 20; // a twentieth of the values
    std::vector<double> values;
    std::copy_if(field.values.begin(), field.values.end(), std::back_inserter(values),
                 [](double value) { return !std::isnan(value); });
    if (values.empty())
        return std::nullopt;
    std::sort(values.begin(), values.end());
    const double most = values.back();
    const double low = values[values.size() / kLowest];
    if (!(low < most)) // all the same: a range around it
        return MapScale{low - 1, most + 1, 1, false};
    const double step = roundStep(most - low, kMostLevels);
    const double start = std::floor(low / step) * step;
    if (start <= values.front())
        return MapScale{values.front(), most, step, false};
    return MapScale{start, most, step, true};
}

} // namespace parabolt
