#include "shots/run_book.h"

#include <array>

namespace parabolt {

Rgb curveColour(int number) {
    // By the number modulo 12: the first data set is red.
    constexpr std::array<Rgb, 12> kColours = {{
        {160, 82, 45},
        {255, 0, 0},
        {0, 255, 0},
        {0, 0, 255},
        {255, 127, 80},
        {0, 255, 255},
        {218, 112, 147},
        {255, 0, 255},
        {255, 20, 147},
        {218, 165, 32},
        {0, 191, 255},
        {175, 175, 175},
    }};
    return kColours.at(static_cast<std::size_t>(number) % kColours.size());
}

} // namespace parabolt
