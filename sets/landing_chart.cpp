#include "sets/landing_chart.h"

#include "numbers/characters.h"
#include "numbers/rounding.h"
#include "numbers/text_number.h"
#include "plots/chart_parts.h"
#include "sets/data_set_words.h"
#include "shots/figures.h"

#include <algorithm>
#include <cmath>

namespace parabolt {
namespace {

// In twips: a line of text is some 200 high, a figure of it 92 wide.
constexpr double kLandingMargin = 120;
constexpr double kFigure = 92;
constexpr double kAboveRows = 330;
constexpr double kBelowRows = 560;
constexpr double kTallestRow = 420;
constexpr double kLandingMark = 75; ///< half the height of a mark
constexpr double kLandingTick = 80;
constexpr double kNarrowestScale = 2200; ///< else the names give way
constexpr double kLeastRange = 4;        ///< yards
constexpr int kMostTicks = 10;
constexpr double kDashes = 120; ///< from one to the next

/// A data set that has landed.
struct Landing {
    int number;
    Figures figures;
    std::string name;
    std::string words; ///< carry and total
};

/// A colour between two.
Rgb mixed(Rgb one, Rgb other, double share) {
    const auto mix = [share](std::uint8_t from, std::uint8_t to) {
        return static_cast<std::uint8_t>(from + share * (to - from));
    };
    return {mix(one.red, other.red), mix(one.green, other.green), mix(one.blue, other.blue)};
}

class LandingDrawer {
public:
    LandingDrawer(PictureBox& canvas, const RunBook& book, std::span<const int> numbers)
        : canvas_(canvas),
          book_(book),
          ink_(canvas.foreColor()),
          faint_(mixed(canvas.background(), ink_, 0.2)) {
        for (const int number : numbers) {
            const Figures figures = figuresOf(book[number]);
            if (figures.time > 0)
                landings_.push_back({number, figures, dataSetName(book, number),
                                     formatPattern(figures.carry, "0.0") + " / " +
                                         formatPattern(figures.total, "0.0")});
        }
    }

    void draw() {
        const double width = canvas_.geometry().width;
        const double height = canvas_.geometry().height;
        if (landings_.empty()) {
            canvas_.label({width / 2, height / 2}, "No data set is shown.", kMiddle);
            return;
        }
        layOut(width, height);
        scale();
        base();
        double y = kAboveRows + row_ / 2;
        for (const Landing& landing : landings_) {
            mark(landing, y);
            y += row_;
        }
        pen(ink_);
    }

private:
    void pen(Rgb colour, int width = 1) {
        canvas_.setForeColor(colour);
        canvas_.setDrawWidth(width);
    }

    static double widthOf(const std::string& text) {
        return static_cast<double>(characterCount(text)) * kFigure;
    }

    /// As much of a name as there is room for.
    std::string fitting(const std::string& name) const {
        const auto most = static_cast<std::size_t>((left_ - 2 * kLandingMargin) / kFigure);
        if (characterCount(name) <= most)
            return name;
        return name.substr(0, characterStart(name, most - 1)) + "\u2026";
    }

    void layOut(double width, double height) {
        double names = 0;
        double figures = 0;
        low_ = landings_.front().figures.carry;
        high_ = low_;
        for (const Landing& landing : landings_) {
            names = std::max(names, widthOf(landing.name));
            figures = std::max(figures, widthOf(landing.words));
            for (const double yards : {landing.figures.carry, landing.figures.total}) {
                low_ = std::min(low_, yards);
                high_ = std::max(high_, yards);
            }
        }
        right_ = width - 2 * kLandingMargin - figures;
        left_ = std::max(kLandingMargin * 2 + kFigure * 2,
                         std::min(2 * kLandingMargin + names, right_ - kNarrowestScale));
        const double room = std::max(kLeastRange - (high_ - low_), (high_ - low_) * 0.1) / 2;
        low_ -= room;
        high_ += room;
        const auto rows = static_cast<double>(landings_.size());
        row_ = std::min(kTallestRow, (height - kAboveRows - kBelowRows) / rows);
        foot_ = kAboveRows + row_ * rows;
    }

    double x(double yards) const {
        return left_ + (yards - low_) / (high_ - low_) * (right_ - left_);
    }

    void scale() {
        const int most =
            std::max(2, std::min(kMostTicks, static_cast<int>((right_ - left_) / 700)));
        for (const double yards : roundValues(low_, high_, roundStep(high_ - low_, most))) {
            pen(faint_);
            canvas_.line({x(yards), kAboveRows}, {x(yards), foot_});
            pen(ink_);
            canvas_.line({x(yards), foot_}, {x(yards), foot_ + kLandingTick});
            canvas_.label({x(yards), foot_ + kLandingTick + 20}, shortestText(store32(yards)),
                          kTopMiddle);
        }
        canvas_.line({left_, foot_}, {right_, foot_});
        canvas_.label({(left_ + right_) / 2, foot_ + kBelowRows - 20}, "Yards from the tee",
                      kBottomMiddle);
        canvas_.label({right_ + kLandingMargin, kAboveRows - 90}, "Carry / total", {0, 1});
    }

    /// Where the base set landed and came to rest, through all rows.
    void base() {
        const auto of =
            std::find_if(landings_.begin(), landings_.end(),
                         [this](const Landing& landing) { return landing.number == book_.base(); });
        if (of == landings_.end() || landings_.size() < 2)
            return;
        pen(mixed(canvas_.background(), ink_, 0.55));
        const auto dashes = static_cast<int>(std::ceil((foot_ - kAboveRows) / kDashes));
        for (const double yards : {of->figures.carry, of->figures.total})
            for (int dash = 0; dash < dashes; ++dash) {
                const double y = kAboveRows + dash * kDashes;
                canvas_.line({x(yards), y}, {x(yards), std::min(y + kDashes / 2, foot_)});
            }
        canvas_.label({x((of->figures.carry + of->figures.total) / 2), kAboveRows - 90},
                      "base: " + std::to_string(of->number), kBottomMiddle);
    }

    /// A disc in the colour of the curve where the ball lands, a bar to where it comes to rest.
    void mark(const Landing& landing, double y) {
        const double half = std::min(kLandingMark, row_ * 0.4);
        const Place carry{x(landing.figures.carry), y};
        const Place total{x(landing.figures.total), y};
        pen(ink_, 2);
        canvas_.line(carry, total);
        canvas_.line({total.x, y - half}, {total.x, y + half});
        drawDisc(canvas_, carry, half, book_[landing.number].CurveColor, ink_);
        pen(ink_);
        canvas_.label({left_ - kLandingMargin, y}, fitting(landing.name), kRightMiddle);
        canvas_.label({right_ + kLandingMargin, y}, landing.words, kLeftMiddle);
    }

    PictureBox& canvas_;
    const RunBook& book_;
    Rgb ink_;
    Rgb faint_;
    std::vector<Landing> landings_;
    double left_ = 0; ///< of the scale, twips
    double right_ = 0;
    double foot_ = 0;
    double row_ = 0;
    double low_ = 0; ///< of the scale, yards
    double high_ = 0;
};

} // namespace

void drawLandings(PictureBox& canvas, const RunBook& book, std::span<const int> numbers) {
    LandingDrawer(canvas, book, numbers).draw();
}

} // namespace parabolt
