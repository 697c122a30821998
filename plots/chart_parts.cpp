#include "plots/chart_parts.h"

#include "controls/units.h"

#include <algorithm>
#include <cmath>

namespace parabolt {
namespace {

constexpr double kRim = 15; ///< twips

/// A ring whose pen closes it.
void drawFilled(PictureBox& canvas, Place at, double radius, Rgb colour) {
    const double pixels = std::ceil(radius / kTwipsPerPixel);
    canvas.setForeColor(colour);
    canvas.setDrawWidth(static_cast<int>(pixels));
    canvas.circle(at, radius - pixels * kTwipsPerPixel / 2);
}

} // namespace

double roundStep(double range, int most) {
    if (!(range > 0))
        return 1;
    const double least = range / most;
    const double power = std::pow(10, std::floor(std::log10(least)));
    for (const double factor : {1, 2, 5})
        if (factor * power >= least)
            return factor * power;
    return 10 * power;
}

std::vector<double> roundValues(double low, double high, double step) {
    constexpr double kSlack = 1e-9;
    const double first = std::ceil(low / step - kSlack);
    const auto count = static_cast<int>(std::floor(high / step + kSlack) - first) + 1;
    std::vector<double> values;
    values.reserve(static_cast<std::size_t>(std::max(0, count)));
    for (int i = 0; i < count; ++i)
        values.push_back((first + i) * step);
    return values;
}

Rgb inkOn(Rgb ground) {
    // Luma by the weights of ITU-R BT.601.
    const double luma = 0.299 * ground.red + 0.587 * ground.green + 0.114 * ground.blue;
    return luma < 128 ? kWhite : kBlack;
}

Rgb mixed(Rgb one, Rgb other, double share) {
    const auto mix = [share](std::uint8_t from, std::uint8_t to) {
        return static_cast<std::uint8_t>(from + share * (to - from));
    };
    return {mix(one.red, other.red), mix(one.green, other.green), mix(one.blue, other.blue)};
}

void drawDisc(PictureBox& canvas, Place at, double radius, Rgb colour, Rgb rim) {
    drawFilled(canvas, at, radius + kRim, rim);
    drawFilled(canvas, at, radius, colour);
}

} // namespace parabolt
