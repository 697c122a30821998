#pragma once

#include <QByteArray>
#include <QImage>
#include <string_view>

namespace parabolt {

class MapPicture;

/// A map in pixels, at twice its size.
QImage mapImage(const MapPicture& picture);

/// A map as the bytes of a picture file: "png", "svg" or "pdf". Empty if it couldn't be made.
QByteArray mapFile(const MapPicture& picture, std::string_view ending);

} // namespace parabolt
