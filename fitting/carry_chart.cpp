#include "fitting/carry_chart.h"

#include "numbers/characters.h"
#include "numbers/rounding.h"
#include "numbers/text_number.h"
#include "plots/chart_parts.h"

#include <algorithm>
#include <cmath>

namespace parabolt {
namespace {

// In twips: a line of text is some 200 high, a letter some 110 wide.
constexpr double kAbove = 420;
constexpr double kBelow = 640;
constexpr double kRight = 500;
constexpr double kLetter = 110;
constexpr double kMeanLetter = 85; ///< in a sentence
constexpr double kGapToText = 80;
constexpr double kTickLength = 70;
constexpr double kAxisApart = 900; ///< between two numbers of the axis
constexpr double kTallestLine = 640;
constexpr double kLeastHalf = 10;    ///< yards to both sides, so that one carry alone has an axis
constexpr double kRoomForText = 240; ///< of a line, so that all gaps can be written
constexpr std::size_t kLongestName = 14;

// Colours that all kinds of colour vision tell apart (M. Okabe, K. Ito), on light and dark.
constexpr Rgb kMeasuredColour{86, 180, 233};
constexpr Rgb kNarrowColour{230, 159, 0};
constexpr Rgb kWideColour{213, 94, 0};
constexpr Rgb kQuiet{128, 128, 128};

/// A colour near the ground, for lines that only guide the eye.
Rgb faint(Rgb ground, Rgb ink) {
    constexpr double kShare = 0.2;
    const auto mix = [](std::uint8_t from, std::uint8_t to) {
        return static_cast<std::uint8_t>(std::lround(std::lerp(from, to, kShare)));
    };
    return {mix(ground.red, ink.red), mix(ground.green, ink.green), mix(ground.blue, ink.blue)};
}

double placeOfLine(const CarryLine& line) {
    return line.computed ? *line.computed : line.measured ? line.measured->mean : 0;
}

std::string shortName(const std::string& name) {
    if (characterCount(name) <= kLongestName)
        return name;
    return name.substr(0, characterStart(name, kLongestName - 1)) + "\u2026";
}

/// All yards that a chart must show.
std::vector<double> yardsOf(std::span<const CarryLine> lines) {
    std::vector<double> yards;
    for (const CarryLine& line : lines) {
        if (line.computed)
            yards.push_back(*line.computed);
        if (line.measured)
            for (const double end : {line.measured->least, line.measured->greatest,
                                     line.measured->mean - line.measured->deviation.value_or(0),
                                     line.measured->mean + line.measured->deviation.value_or(0)})
                yards.push_back(end);
    }
    return yards;
}

class CarryDrawer {
public:
    CarryDrawer(PictureBox& canvas, std::span<const CarryLine> lines,
                const std::vector<double>& yards)
        : canvas_(canvas),
          lines_(lines),
          ink_(canvas.foreColor()) {
        for (std::size_t i = 0; i < lines.size(); ++i)
            if (lines[i].computed || lines[i].measured)
                order_.push_back(i);
        std::stable_sort(order_.begin(), order_.end(), [&](std::size_t a, std::size_t b) {
            return placeOfLine(lines[a]) > placeOfLine(lines[b]);
        });
        std::size_t longest = 4;
        for (const std::size_t line : order_)
            longest = std::max(longest, characterCount(shortName(lines[line].name)));
        left_ = static_cast<double>(longest) * kLetter + 2 * kGapToText;
        width_ = std::max(canvas.geometry().width - left_ - kRight, kAxisApart);
        height_ = std::max(canvas.geometry().height - kAbove - kBelow, kAxisApart);
        lineHeight_ = std::min(height_ / static_cast<double>(order_.size()), kTallestLine);
        const auto [least, greatest] = std::minmax_element(yards.begin(), yards.end());
        const int most = std::max(2, static_cast<int>(width_ / kAxisApart));
        const double middle = (*least + *greatest) / 2;
        const double half = std::max((*greatest - *least) / 2, kLeastHalf);
        step_ = roundStep(2 * half, most);
        low_ = std::floor((middle - half) / step_) * step_;
        high_ = std::ceil((middle + half) / step_) * step_;
    }

    void draw(std::span<const BagGap> gaps, const std::string& whose) {
        axis();
        for (std::size_t place = 0; place < order_.size(); ++place)
            club(place);
        for (const BagGap& gap : gaps)
            between(gap);
        legend(whose);
        pen(ink_);
    }

private:
    void pen(Rgb colour, int width = 1) {
        canvas_.setForeColor(colour);
        canvas_.setDrawWidth(width);
    }
    double across(double yards) const { return left_ + (yards - low_) / (high_ - low_) * width_; }
    double down(std::size_t place) const {
        return kAbove + (static_cast<double>(place) + 0.5) * lineHeight_;
    }
    /// Every line has its name where lines are high enough; else one of so many.
    std::size_t linesPerName() const {
        return static_cast<std::size_t>(std::ceil(kRoomForText / std::max(lineHeight_, 1.0)));
    }
    std::size_t placeOf(std::size_t line) const {
        return static_cast<std::size_t>(std::find(order_.begin(), order_.end(), line) -
                                        order_.begin());
    }

    void axis() {
        const double foot = kAbove + lineHeight_ * static_cast<double>(order_.size());
        for (const double value : roundValues(low_, high_, step_)) {
            pen(faint(canvas_.background(), ink_));
            canvas_.line({across(value), kAbove}, {across(value), foot + kTickLength});
            pen(ink_);
            canvas_.label({across(value), foot + kTickLength + kGapToText / 2},
                          shortestText(store32(value)), {0.5, 0});
        }
        pen(ink_);
        canvas_.line({left_, foot}, {left_ + width_, foot});
        canvas_.label({left_ + width_ + kRight - kGapToText, foot + kTickLength + kGapToText / 2},
                      "yd", {1, 0});
    }

    void club(std::size_t place) {
        const CarryLine& line = lines_[order_[place]];
        const double y = down(place);
        const double half = lineHeight_ / 4;
        pen(ink_);
        if (place % linesPerName() == 0)
            canvas_.label({left_ - kGapToText, y}, shortName(line.name), {1, 0.5});
        if (line.measured) {
            const Spread& spread = *line.measured;
            const double deviation = spread.deviation.value_or(0);
            pen(kMeasuredColour);
            canvas_.line({across(spread.least), y}, {across(spread.greatest), y});
            const double from = across(spread.mean - deviation);
            const double to = across(spread.mean + deviation);
            canvas_.box({from, y - half / 2}, {std::max(to - from, 1.0), half}, kMeasuredColour);
            pen(kMeasuredColour, 3);
            canvas_.line({across(spread.mean), y - half}, {across(spread.mean), y + half});
        }
        if (line.computed) {
            pen(ink_, 3);
            canvas_.line({across(*line.computed), y - half}, {across(*line.computed), y + half});
        }
    }

    void between(const BagGap& gap) {
        const std::size_t upper = placeOf(gap.longer);
        const std::size_t lower = placeOf(gap.shorter);
        const double y = (down(upper) + down(lower)) / 2;
        const double from = across(placeOfLine(lines_[gap.shorter]));
        const double to = across(placeOfLine(lines_[gap.longer]));
        const bool good = gap.kind == BagGap::Kind::Good;
        pen(gapColour(gap.kind).value_or(kQuiet), good ? 1 : 3);
        canvas_.line({from, y}, {to, y});
        if (good && lineHeight_ < kRoomForText)
            return;
        pen(ink_);
        const std::string text =
            formatPattern(gap.yards, "0.0") + (good ? "" : " " + std::string(gapWord(gap.kind)));
        // Beside the line: at its right where that leaves room, else at its left.
        const double room = static_cast<double>(text.size()) * kLetter;
        if (to + kGapToText + room < left_ + width_ + kRight)
            canvas_.label({to + kGapToText, y}, text, {0, 0.5});
        else
            canvas_.label({from - kGapToText, y}, text, {1, 0.5});
    }

    /// Explains what is on the chart.
    void legend(const std::string& whose) {
        const bool measured = std::any_of(lines_.begin(), lines_.end(),
                                          [](const auto& line) { return line.measured; });
        const bool computed = std::any_of(lines_.begin(), lines_.end(),
                                          [](const auto& line) { return line.computed; });
        constexpr double kMiddle = kAbove / 2;
        double x = left_;
        if (computed) {
            pen(ink_, 3);
            canvas_.line({x, kMiddle - kTickLength}, {x, kMiddle + kTickLength});
            x += kGapToText;
            canvas_.label({x, kMiddle}, "computed", {0, 0.5});
            x += 10 * kLetter;
        }
        if (measured) {
            canvas_.box({x, kMiddle - kTickLength / 2}, {4 * kGapToText, kTickLength},
                        kMeasuredColour);
            x += 5 * kGapToText;
            pen(ink_);
            const std::string meaning = ": mean \u00b1 SD, least to greatest";
            const double room = left_ + width_ + kRight - x;
            const bool fits =
                static_cast<double>(characterCount(whose + meaning)) * kMeanLetter < room;
            canvas_.label({x, kMiddle}, fits ? whose + meaning : whose, {0, 0.5});
        }
    }

    PictureBox& canvas_;
    std::span<const CarryLine> lines_;
    Rgb ink_;
    std::vector<std::size_t> order_; ///< of the lines with figures, the longest carry first
    double left_ = 0;
    double width_ = 0;
    double height_ = 0;
    double lineHeight_ = 0;
    double step_ = 0;
    double low_ = 0;
    double high_ = 0;
};

} // namespace

std::string_view gapWord(BagGap::Kind kind) {
    switch (kind) {
    case BagGap::Kind::TooNarrow:
        return "narrow";
    case BagGap::Kind::TooWide:
        return "wide";
    default:
        return "good";
    }
}

std::optional<Rgb> gapColour(BagGap::Kind kind) {
    switch (kind) {
    case BagGap::Kind::TooNarrow:
        return kNarrowColour;
    case BagGap::Kind::TooWide:
        return kWideColour;
    default:
        return std::nullopt;
    }
}

void drawCarries(PictureBox& canvas, std::span<const CarryLine> lines, std::span<const BagGap> gaps,
                 std::string_view whose, std::string_view none) {
    canvas.cls();
    const auto yards = yardsOf(lines);
    if (yards.empty())
        canvas.label({canvas.geometry().width / 2, canvas.geometry().height / 2}, std::string(none),
                     {0.5, 0.5});
    else
        CarryDrawer(canvas, lines, yards).draw(gaps, lowerCase(whose));
}

std::string carriesInWords(std::span<const CarryLine> lines, std::string_view whose) {
    std::string words;
    for (const CarryLine& line : lines) {
        if (!line.computed && !line.measured)
            continue;
        words += (words.empty() ? "" : "; ") + line.name + ":";
        if (line.computed)
            words += " computed " + formatPattern(*line.computed, "0.0") + " yd";
        if (line.measured)
            words += std::string(line.computed ? ", " : " ") + lowerCase(whose) + " " +
                     formatPattern(line.measured->mean, "0.0") + " yd" +
                     (line.measured->deviation
                          ? " \u00b1 " + formatPattern(*line.measured->deviation, "0.0")
                          : "");
    }
    return words;
}

} // namespace parabolt
