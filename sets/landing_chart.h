#pragma once

#include "plots/picture_box.h"
#include "shots/run_book.h"

#include <span>

namespace parabolt {

/// Draws a close-up of where the balls of these data sets land and come to rest: a row for each,
/// named, with its carry and total as figures and as marks on one scale of yards. Of a flight that
/// failed words say so. Lines show carry and total of the base set where it is among them.
void drawLandings(PictureBox& canvas, const RunBook& book, std::span<const int> numbers);

} // namespace parabolt
