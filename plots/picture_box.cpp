#include "plots/picture_box.h"

#include "numbers/characters.h"

#include <algorithm>
#include <utility>

namespace parabolt {
namespace {

bool contains(const DrawnBox& box, Place place) {
    return place.x >= box.corner.x && place.x <= box.corner.x + box.size.x &&
           place.y >= box.corner.y && place.y <= box.corner.y + box.size.y;
}

bool hides(const DrawnBox& box, const Drawing& earlier) {
    if (const auto* text = std::get_if<DrawnText>(&earlier))
        return contains(box, text->place);
    const auto* other = std::get_if<DrawnBox>(&earlier);
    return other != nullptr && contains(box, other->corner) &&
           contains(box, {other->corner.x + other->size.x, other->corner.y + other->size.y});
}

} // namespace

PictureBox::PictureBox(ControlSet& form, std::string_view name, Rgb background, Rgb foreground)
    : Control(form, name),
      background_(background),
      foreColor_(foreground) {}

void PictureBox::setGeometry(const Geometry& geometry) {
    if (geometry_ == geometry)
        return;
    geometry_ = geometry;
    setScale({0, 0, geometry.width, geometry.height});
}

void PictureBox::setScale(const CanvasScale& scale) {
    scale_ = scale;
    viewChanged();
}

bool PictureBox::setDrawWidth(int pixels) {
    if (pixels < 1)
        return false;
    drawWidth_ = pixels;
    return true;
}

void PictureBox::cls() {
    drawings_.clear();
    viewChanged();
}

void PictureBox::line(Place from, Place to) {
    add(DrawnLine{from, to, foreColor_, drawWidth_});
}

void PictureBox::curve(std::span<const TrajectoryPoint> points) {
    add(DrawnCurve{{points.begin(), points.end()}, foreColor_, drawWidth_});
}

void PictureBox::box(Place corner, Place size, Rgb colour) {
    const DrawnBox box{corner, size, colour};
    std::erase_if(drawings_, [&box](const Drawing& earlier) { return hides(box, earlier); });
    add(box);
}

void PictureBox::circle(Place centre, double radius) {
    add(DrawnCircle{centre, radius, foreColor_, drawWidth_});
}

void PictureBox::print(Place place, std::string text) {
    add(DrawnText{place, std::move(text), foreColor_});
}

void PictureBox::label(Place place, std::string text, Place anchor, std::optional<Rgb> halo) {
    add(DrawnText{place, std::move(text), foreColor_, anchor, halo});
}

void PictureBox::image(Place corner, Place size, int columns, std::vector<Rgb> pixels) {
    add(DrawnImage{corner, size, columns, std::move(pixels)});
}

double PictureBox::textWidth(std::string_view text) const {
    constexpr double kWideLetter = 0.7 * kCanvasText;
    return measureText_ ? measureText_(text)
                        : kWideLetter * static_cast<double>(characterCount(text));
}

void PictureBox::add(Drawing drawing) {
    const auto earlier = std::find(drawings_.begin(), drawings_.end(), drawing);
    if (earlier != drawings_.end())
        drawings_.erase(earlier);
    drawings_.push_back(std::move(drawing));
    viewChanged();
}

} // namespace parabolt
