#pragma once

#include "plots/plot_frame.h"

class QPainter;
class QRectF;

namespace parabolt {

/// Width of a text on a canvas as it is painted, twips.
double canvasTextWidth(std::string_view text);

/// Paints what stands on a canvas into a rectangle of the painter, cut off at its edges. The
/// canvas's outer size fills the rectangle; pens and text scale with it, and straight lines fall on
/// whole device pixels, so the picture is sharp at any size and density and vector work on paper.
void paintPicture(QPainter& painter, const PictureBox& picture, const QRectF& target);

/// Paints both canvases of a plot as one picture, the inner one at its place in the outer one.
/// Axes and labels lie on top.
void paintPlot(QPainter& painter, const PlotCanvases& plot, const QRectF& target);

/// Paints the outline of a rectangle in black, as a pen of this width in the painter's units would,
/// but with the same whole device pixels, at least one, on all four sides.
void paintFrame(QPainter& painter, const QRectF& rect, double pen);

} // namespace parabolt
