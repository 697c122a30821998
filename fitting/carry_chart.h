#pragma once

#include "measured/bag.h"
#include "plots/picture_box.h"

namespace parabolt {

/// A line of a chart of carries.
struct CarryLine {
    std::string name;
    std::optional<double> computed; ///< carry, yards
    std::optional<Spread> measured;
};

/// "good", "narrow" or "wide", and the colour that marks a gap of the latter kinds.
std::string_view gapWord(BagGap::Kind kind);
std::optional<Rgb> gapColour(BagGap::Kind kind);

/// Draws carries along the yards, a line for each club from the top down: the computed one as a
/// disc, the mean of the measured ones as a bar that reaches one standard deviation to both sides,
/// on a line from the least to the greatest. The gaps, whose elements are those of the lines, stand
/// between: one that is too narrow or too wide in a colour and with its word. A line without
/// figures is left out. `whose` says whose figures the measured ones are: "Device" or "Measured".
/// Says `none` where there is nothing to draw.
void drawCarries(PictureBox& canvas, std::span<const CarryLine> lines, std::span<const BagGap> gaps,
                 std::string_view whose, std::string_view none);

/// The same in words, for those who can't see it.
std::string carriesInWords(std::span<const CarryLine> lines, std::string_view whose);

} // namespace parabolt
