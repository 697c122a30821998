#include "qt/page_painter.h"

#include "controls/units.h"
#include "qt/picture_painter.h"
#include "qt/text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

namespace parabolt {
namespace {

constexpr double kScreenPixelsPerInch = 96;
constexpr double kUnitsPerInch = 1200; ///< in which the page is painted
constexpr double kPenUnits = 4;        ///< a pixel of the printer for whose pens the report is made

QPointF units(Place place) {
    return QPointF(place.x, place.y) * kUnitsPerInch;
}

} // namespace

PagePainter PagePainter::onPaper(QPainter& painter, const PageSize& paper) {
    const double scale = painter.device()->logicalDpiX() * layoutScale(paper) / kUnitsPerInch;
    painter.scale(scale, scale);
    const PageSize page = inLayoutInches(paper);
    painter.translate(
        units({(page.width - page.printableWidth) / 2, (page.height - page.printableHeight) / 2}));
    return {
        painter, true, paper.width * kTwipsPerInch, {page.printableWidth, page.printableHeight}, 1};
}

PagePainter PagePainter::onScreen(QPainter& painter, const PreviewScale& preview) {
    const double scale = kScreenPixelsPerInch * preview.Ratio / kUnitsPerInch;
    painter.scale(scale, scale);
    painter.translate(-units({preview.left, preview.top}));
    return {painter,
            false,
            preview.width * kTwipsPerInch,
            {preview.width / preview.Ratio, preview.height / preview.Ratio},
            preview.Ratio};
}

PagePainter::PagePainter(QPainter& painter, bool isPrinter, double widthTwips, Place area,
                         double Ratio)
    : painter_(painter),
      isPrinter_(isPrinter),
      widthTwips_(widthTwips),
      area_(area),
      ratio_(Ratio) {}

QFont PagePainter::font() const {
    QFont font(QStringList{toQt(FontName), "Liberation Mono", "Cousine", "Courier"});
    font.setStyleHint(QFont::Monospace);
    font.setBold(FontBold);
    font.setPixelSize(
        static_cast<int>(std::lround(FontSize / ratio_ * kUnitsPerInch / kPointsPerInch)));
    return font;
}

double PagePainter::TextWidth(std::string_view text) const {
    return QFontMetricsF(font()).horizontalAdvance(toQt(text)) / kUnitsPerInch;
}

double PagePainter::TextHeight(std::string_view) const {
    return QFontMetricsF(font()).height() / kUnitsPerInch;
}

void PagePainter::Print(std::string_view text) {
    painter_.setFont(font());
    painter_.setPen(Qt::black);
    painter_.drawText(units({CurrentX, CurrentY}) + QPointF(0, QFontMetricsF(font()).ascent()),
                      toQt(text));
    CurrentX = 0;
    CurrentY += TextHeight(text);
}

void PagePainter::Box(Place corner, Place opposite) {
    paintFrame(painter_, QRectF(units(corner), units(opposite)), DrawWidth * kPenUnits);
}

void PagePainter::PaintPlot(const PlotCanvases& plot, Place corner, Place size) {
    paintPlot(painter_, plot, {units(corner), QSizeF(size.x, size.y) * kUnitsPerInch});
}

void PagePainter::paintPicture(const PictureBox& picture, Place corner, Place size) {
    parabolt::paintPicture(painter_, picture,
                           {units(corner), QSizeF(size.x, size.y) * kUnitsPerInch});
}

} // namespace parabolt
