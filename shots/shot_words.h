#pragma once

#include <string_view>

namespace parabolt {

/// How people know an operating mode: "Launch". Empty for a number that is none.
std::string_view modeName(int mode);
/// How people know a ball option, 1 to 4: "Soft ball". Empty for 0, an unknown one.
std::string_view ballName(int ball);

} // namespace parabolt
