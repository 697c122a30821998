#include "shots/shown_figures.h"

#include <array>

namespace parabolt {

std::string_view modeCode(std::int16_t mode) {
    constexpr std::array<std::string_view, 5> kModeCodes = {"LM", "DM", "MM", "Auto", "AM"};
    const auto index = static_cast<std::size_t>(mode);
    return mode >= 0 && index < kModeCodes.size() ? kModeCodes.at(index) : std::string_view();
}

} // namespace parabolt
