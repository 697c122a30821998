#pragma once

#include "plots/picture_box.h"

namespace parabolt {

// What charts have in common.

// Anchors of labels.
inline constexpr Place kLeftMiddle{0, 0.5};
inline constexpr Place kRightMiddle{1, 0.5};
inline constexpr Place kMiddle{0.5, 0.5};
inline constexpr Place kTopMiddle{0.5, 0};
inline constexpr Place kBottomMiddle{0.5, 1};

/// The round step, 1, 2 or 5 times a power of ten, that divides a range into at most `most` parts.
double roundStep(double range, int most);
/// The whole multiples of a step from `low` to `high`.
std::vector<double> roundValues(double low, double high, double step);

/// Black or white, whichever can be read on a colour.
Rgb inkOn(Rgb ground);

/// A colour between two, of which the other has this share.
Rgb mixed(Rgb one, Rgb other, double share);

/// A disc with a rim, which shows on any ground. Changes the canvas's pen; lengths in twips.
void drawDisc(PictureBox& canvas, Place at, double radius, Rgb colour, Rgb rim);

} // namespace parabolt
