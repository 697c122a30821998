#pragma once

#include <QImage>
#include <QRectF>
#include <QString>
#include <functional>
#include <string>
#include <string_view>

class QPainter;

namespace parabolt {

/// A picture for a file or the clipboard.
struct FilePicture {
    QString title;
    QSizeF size;                                         ///< pixels of 96 to the inch
    std::function<void(QPainter&, const QRectF&)> paint; ///< over a rectangle of that shape
};

inline constexpr double kUsualDensity = 2; ///< pixels of a picture for each pixel of its size

/// A picture in pixels.
QImage pictureImage(const FilePicture& picture, double density = kUsualDensity);

/// A picture as the bytes of a file: "png", "svg" or "pdf"; the density is that of the first. Empty
/// if it couldn't be made.
std::string pictureFile(const FilePicture& picture, std::string_view ending,
                        double density = kUsualDensity);

} // namespace parabolt
