#pragma once

#include "numbers/rgb.h"

#include <string>
#include <vector>

namespace parabolt {

/// A stretch of text in one colour.
struct ColouredText {
    std::string text;
    Rgb colour;
    friend bool operator==(const ColouredText&, const ColouredText&) = default;
};

/// A text in several colours: its stretches in their order.
using ColouredTexts = std::vector<ColouredText>;

} // namespace parabolt
