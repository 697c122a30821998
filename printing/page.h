#pragma once

#include "plots/plot_frame.h"

#include <string>
#include <string_view>

namespace parabolt {

/// What a report or the page driver draws on: a printer's page, or a picture of one on the screen.
/// Places and lengths are in the page's own units. The fields are the pen and the font of what
/// comes next; drawing changes none of them but the current point.
class Page {
public:
    virtual ~Page() = default;

    virtual bool isPrinter() const = 0;
    virtual double Width() const = 0; ///< outer width, twips
    virtual double ScaleWidth() const = 0;
    virtual double ScaleHeight() const = 0;

    std::string FontName;
    double FontSize = 0; ///< points
    bool FontBold = false;
    double CurrentX = 0;
    double CurrentY = 0;
    int DrawWidth = 1; ///< pixels

    virtual double TextWidth(std::string_view text) const = 0;
    virtual double TextHeight(std::string_view text) const = 0;

    /// Writes a line of text with its top left corner at the current point, which then moves to the
    /// start of the next line.
    virtual void Print(std::string_view text) = 0;
    /// A rectangle between two opposite corners, not filled.
    virtual void Box(Place corner, Place opposite) = 0;
    /// The plot with its inner canvas set into the outer one, stretched over a rectangle.
    virtual void PaintPlot(const PlotCanvases& plot, Place corner, Place size) = 0;
    /// A single canvas, likewise.
    virtual void paintPicture(const PictureBox& picture, Place corner, Place size) = 0;
};

} // namespace parabolt
