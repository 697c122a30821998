#include "qt/picture_file.h"

#include "controls/units.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace parabolt {
namespace {

constexpr double kDotsPerInch = 96; ///< of the sizes on a screen
constexpr double kInchesPerMetre = 1 / 0.0254;

void paintSvg(const FilePicture& picture, QIODevice& file) {
    QSvgGenerator svg;
    svg.setOutputDevice(&file);
    svg.setResolution(static_cast<int>(kDotsPerInch));
    svg.setSize(picture.size.toSize());
    svg.setViewBox(QRectF({}, picture.size));
    svg.setTitle(picture.title);
    QPainter painter(&svg);
    picture.paint(painter, QRectF({}, picture.size));
}

void paintPdf(const FilePicture& picture, QIODevice& file) {
    QPdfWriter pdf(&file);
    pdf.setTitle(picture.title);
    pdf.setPageSize(QPageSize(picture.size * (kPointsPerInch / kDotsPerInch), QPageSize::Point));
    pdf.setPageMargins({});
    QPainter painter(&pdf);
    picture.paint(painter, QRectF(0, 0, pdf.width(), pdf.height()));
}

} // namespace

QImage pictureImage(const FilePicture& picture, double density) {
    QImage image((picture.size * density).toSize(), QImage::Format_RGB32);
    {
        QPainter painter(&image);
        picture.paint(painter, image.rect());
    }
    // Told last, so that texts take their size from the picture's, not from this.
    const int dots = qRound(kDotsPerInch * density * kInchesPerMetre);
    image.setDotsPerMeterX(dots);
    image.setDotsPerMeterY(dots);
    return image;
}

std::string pictureFile(const FilePicture& picture, std::string_view ending, double density) {
    QByteArray bytes;
    QBuffer file(&bytes);
    file.open(QIODevice::WriteOnly);
    if (ending == "svg")
        paintSvg(picture, file);
    else if (ending == "pdf")
        paintPdf(picture, file);
    else
        pictureImage(picture, density).save(&file, "PNG");
    return bytes.toStdString();
}

} // namespace parabolt
