#include "shots/shot_words.h"

#include <array>
#include <cstddef>

namespace parabolt {
namespace {

template <std::size_t Count>
std::string_view wordAt(const std::array<std::string_view, Count>& names, int index) {
    return index >= 0 && static_cast<std::size_t>(index) < Count
               ? names.at(static_cast<std::size_t>(index))
               : std::string_view();
}

} // namespace

std::string_view modeName(int mode) {
    static constexpr std::array<std::string_view, 5> kNames = {"Launch", "Default", "Manual",
                                                               "Auto", "Actual"};
    return wordAt(kNames, mode);
}

std::string_view ballName(int ball) {
    static constexpr std::array<std::string_view, 5> kNames = {"", "Soft ball", "Different dimple",
                                                               "Larger MOI", "Default"};
    return wordAt(kNames, ball);
}

} // namespace parabolt
