#pragma once

#include "printing/report.h"

#include <QFont>

class QPainter;

namespace parabolt {

/// A page of the report on a painter: the printer's, or its picture on the screen. Both are laid
/// out in the same fine units and only scaled, so that the preview shows each line where the paper
/// has it. Changes the painter's transformation.
class PagePainter : public Page {
public:
    /// The painter of a printer whose origin is the corner of the paper.
    static PagePainter onPaper(QPainter& painter, const PageSize& paper);
    /// The painter of a widget of the given shape.
    static PagePainter onScreen(QPainter& painter, const PreviewScale& scale);

    bool isPrinter() const override { return isPrinter_; }
    double Width() const override { return widthTwips_; }
    double ScaleWidth() const override { return area_.x; }
    double ScaleHeight() const override { return area_.y; }

    double TextWidth(std::string_view text) const override;
    double TextHeight(std::string_view text) const override;
    void Print(std::string_view text) override;
    void Box(Place corner, Place opposite) override;
    void PaintPlot(const PlotCanvases& plot, Place corner, Place size) override;
    void paintPicture(const PictureBox& picture, Place corner, Place size) override;

private:
    PagePainter(QPainter& painter, bool isPrinter, double widthTwips, Place area, double Ratio);
    QFont font() const;

    QPainter& painter_;
    bool isPrinter_;
    double widthTwips_;
    Place area_;   ///< in inches of the layout
    double ratio_; ///< of the font sizes to those on a whole page
};

} // namespace parabolt
