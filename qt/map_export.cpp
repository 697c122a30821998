#include "qt/map_export.h"

#include "controls/units.h"
#include "qt/map_view.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace parabolt {
namespace {

constexpr int kDensity = 2;         ///< of a picture of pixels
constexpr double kDotsPerInch = 96; ///< of the sizes on a screen
constexpr auto kTitle = "Carry map";

void paintSvg(const MapPicture& picture, QIODevice& file) {
    QSvgGenerator svg;
    svg.setOutputDevice(&file);
    svg.setResolution(static_cast<int>(kDotsPerInch));
    svg.setSize(picture.size().toSize());
    svg.setViewBox(QRectF({}, picture.size()));
    svg.setTitle(kTitle);
    QPainter painter(&svg);
    picture.paint(painter, QRectF({}, picture.size()));
}

void paintPdf(const MapPicture& picture, QIODevice& file) {
    QPdfWriter pdf(&file);
    pdf.setTitle(kTitle);
    pdf.setPageSize(QPageSize(picture.size() * (kPointsPerInch / kDotsPerInch), QPageSize::Point));
    pdf.setPageMargins({});
    QPainter painter(&pdf);
    picture.paint(painter, QRectF(0, 0, pdf.width(), pdf.height()));
}

} // namespace

QImage mapImage(const MapPicture& picture) {
    QImage image((picture.size() * kDensity).toSize(), QImage::Format_RGB32);
    QPainter painter(&image);
    picture.paint(painter, image.rect());
    return image;
}

QByteArray mapFile(const MapPicture& picture, std::string_view ending) {
    QByteArray bytes;
    QBuffer file(&bytes);
    file.open(QIODevice::WriteOnly);
    if (ending == "svg")
        paintSvg(picture, file);
    else if (ending == "pdf")
        paintPdf(picture, file);
    else
        mapImage(picture).save(&file, "PNG");
    return bytes;
}

} // namespace parabolt
