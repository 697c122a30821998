#pragma once

#include "numbers/outcome.h"
#include "plots/plot_frame.h"

#include <span>
#include <string_view>

namespace parabolt {

/// Draws data sets over the frame, those elements of `runs` whose numbers are given: each path in
/// its colour from the tee to a thick ring at the landing, which closes to a disc on a wide scale,
/// and its entry in the legend. Nothing is erased. A failure ends the drawing at once and gives its
/// description; what was drawn stays.
Outcome<void, std::string_view> DrawCurves(const PlotCanvases& screen,
                                           std::span<const RunRecord> runs,
                                           std::span<const int> numbers);

/// The same on the print twin, whose inner canvas is erased first. A failure ends the drawing and
/// is not told.
void DrawPrintCurves(const PlotCanvases& twin, std::span<const RunRecord> runs,
                     std::span<const int> numbers);

} // namespace parabolt
