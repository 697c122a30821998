#pragma once

#include "controls/grid.h"

#include <string_view>

namespace parabolt {

/// Puts rows of numbers, as a spreadsheet copies them, into a grid, from the current cell on to the
/// right and down; what would stand beyond its edges is left away. A text in front of a row's
/// numbers counts as its label. False, and nothing has happened, where anything else is no number.
[[nodiscard]] bool pasteCells(Grid& grid, std::string_view text);

} // namespace parabolt
