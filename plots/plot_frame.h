#pragma once

#include "plots/picture_box.h"

namespace parabolt {

/// The two nested canvases of a plot: the outer one carries axes, ticks, labels and the legend in
/// twips, the inner one the grid and the curves in yards, y upward, both axes on one scale.
struct PlotCanvases {
    PictureBox& outer;
    PictureBox& inner;
};

/// Outer size of the main form and height of its status bar, in twips.
struct FormSize {
    double width = 0;
    double height = 0;
    double statusBar = 0;
};

/// Sizes and places the canvases on a form. A form too low for a plot leaves them as they are.
void LayoutPlots(const FormSize& form, const PlotCanvases& screen);

/// Erases both canvases, sets the scale to `range` yards across and draws axes, ticks, labels and
/// grid. Curves that are to stay must be drawn again afterwards.
void DrawPlotFrame(const PlotCanvases& screen, float range);

/// The same on the print twin: in its own colours, without the grid.
void DrawPrintFrame(const PlotCanvases& twin, float range);

} // namespace parabolt
