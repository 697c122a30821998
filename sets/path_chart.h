#pragma once

#include "plots/picture_box.h"
#include "shots/run_book.h"

#include <span>

namespace parabolt {

/// Draws the paths of these data sets over the whole canvas: yards downrange, and the height on a
/// scale of its own, so that flat paths can be told apart. Each has its number on it.
void drawPaths(PictureBox& canvas, const RunBook& book, std::span<const int> numbers);

} // namespace parabolt
