#pragma once

#include "maps/map_grid.h"
#include "numbers/rgb.h"

#include <optional>

namespace parabolt {

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

} // namespace parabolt
