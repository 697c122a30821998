#include "maps/colour_scale.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace parabolt {
namespace {

constexpr std::array<Rgb, 10> kViridis = {{{0x44, 0x01, 0x54},
                                           {0x48, 0x28, 0x78},
                                           {0x3e, 0x49, 0x89},
                                           {0x31, 0x68, 0x8e},
                                           {0x26, 0x82, 0x8e},
                                           {0x1f, 0x9e, 0x89},
                                           {0x35, 0xb7, 0x79},
                                           {0x6e, 0xce, 0x58},
                                           {0xb5, 0xde, 0x2b},
                                           {0xfd, 0xe7, 0x25}}};

} // namespace

Rgb scaleColour(double share) {
    const double place = std::clamp(share, 0.0, 1.0) * (kViridis.size() - 1);
    const auto below = std::min(static_cast<std::size_t>(place), kViridis.size() - 2);
    const double rest = place - static_cast<double>(below);
    const auto mix = [&](std::uint8_t from, std::uint8_t to) {
        return static_cast<std::uint8_t>(std::lround(from + rest * (to - from)));
    };
    const Rgb& from = kViridis[below];
    const Rgb& to = kViridis[below + 1];
    return {mix(from.red, to.red), mix(from.green, to.green), mix(from.blue, to.blue)};
}

} // namespace parabolt
