#include "sets/landing_chart.h"

#include "numbers/characters.h"
#include "numbers/rounding.h"
#include "numbers/text_number.h"
#include "plots/chart_parts.h"
#include "sets/data_set_words.h"
#include "shots/figures.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace parabolt {
namespace {

// In twips: a line of text is some 200 high.
constexpr double kLandingMargin = 120;
constexpr double kAboveRows = 330;
constexpr double kBelowRows = 560;
constexpr double kTallestRow = 420;
constexpr double kLandingMark = 75; ///< half the height of a mark
constexpr double kLandingTick = 80;
constexpr double kMostForNames = 0.35; ///< of the width
constexpr double kLeastRange = 4;      ///< yards
constexpr int kMostTicks = 10;
constexpr double kDashes = 120; ///< from one to the next
constexpr const char* kHeading = "Carry / total";

/// A row of the chart.
struct LandingRow {
    int number;
    Figures figures;   ///< all zero for a flight that failed
    std::string name;  ///< as there is room for it
    std::string words; ///< carry and total
    bool landed() const { return figures.time > 0; }
};

std::string landingWords(const Figures& figures) {
    return figures.time > 0
               ? formatPattern(figures.carry, "0.0") + " / " + formatPattern(figures.total, "0.0")
               : std::string(kNoLanding);
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
            rows_.push_back({number, figures, dataSetName(book, number), landingWords(figures)});
        }
        if (const int base = book.base(); book.count() > 0 && !isAlone(base))
            base_ = figuresOf(book[base]);
    }

    void draw() {
        const double width = canvas_.geometry().width;
        const double height = canvas_.geometry().height;
        const bool any = std::any_of(rows_.begin(), rows_.end(),
                                     [](const LandingRow& row) { return row.landed(); });
        if (!any) {
            canvas_.label({width / 2, height / 2},
                          rows_.empty() ? "No data set is shown." : "No ball has landed.", kMiddle);
            return;
        }
        layOut(width, height);
        scale();
        base();
        double y = kAboveRows + row_ / 2;
        for (const LandingRow& row : rows_) {
            mark(row, y);
            y += row_;
        }
        pen(ink_);
    }

private:
    bool isAlone(int number) const { return rows_.size() == 1 && rows_.front().number == number; }

    void pen(Rgb colour, int width = 1) {
        canvas_.setForeColor(colour);
        canvas_.setDrawWidth(width);
    }

    void layOut(double width, double height) {
        const auto measure = [this](std::string_view text) { return canvas_.textWidth(text); };
        double names = 0;
        double words = measure(kHeading);
        low_ = std::numeric_limits<double>::infinity();
        high_ = -low_;
        for (LandingRow& row : rows_) {
            row.name = elided(row.name, kMostForNames * width, measure);
            names = std::max(names, measure(row.name));
            words = std::max(words, measure(row.words));
            if (row.landed())
                reach(row.figures);
        }
        if (base_.time > 0)
            reach(base_);
        right_ = width - 2 * kLandingMargin - words;
        left_ = 2 * kLandingMargin + names;
        const double room = std::max(kLeastRange - (high_ - low_), (high_ - low_) * 0.1) / 2;
        low_ -= room;
        high_ += room;
        const auto rows = static_cast<double>(rows_.size());
        row_ = std::min(kTallestRow, (height - kAboveRows - kBelowRows) / rows);
        foot_ = kAboveRows + row_ * rows;
    }

    /// Makes the scale hold a landing and where the ball comes to rest.
    void reach(const Figures& figures) {
        low_ = std::min({low_, figures.carry, figures.total});
        high_ = std::max({high_, figures.carry, figures.total});
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
        canvas_.label({right_ + kLandingMargin, kAboveRows - 90}, kHeading, {0, 1});
    }

    /// Where the base set landed and came to rest, through all rows; it need not have one itself.
    void base() {
        if (!(base_.time > 0))
            return;
        pen(mixed(canvas_.background(), ink_, 0.55));
        const auto dashes = static_cast<int>(std::ceil((foot_ - kAboveRows) / kDashes));
        for (const double yards : {base_.carry, base_.total})
            for (int dash = 0; dash < dashes; ++dash) {
                const double y = kAboveRows + dash * kDashes;
                canvas_.line({x(yards), y}, {x(yards), std::min(y + kDashes / 2, foot_)});
            }
        const std::string name = "base: " + std::to_string(book_.base());
        const double half = canvas_.textWidth(name) / 2; // beside the heading of the words
        canvas_.label(
            {std::min(x((base_.carry + base_.total) / 2), right_ - half), kAboveRows - 90}, name,
            kBottomMiddle);
    }

    /// A disc in the colour of the curve where the ball lands, a bar to where it comes to rest.
    void mark(const LandingRow& row, double y) {
        if (row.landed()) {
            const double half = std::min(kLandingMark, row_ * 0.4);
            const Place carry{x(row.figures.carry), y};
            const Place total{x(row.figures.total), y};
            pen(ink_, 2);
            canvas_.line(carry, total);
            canvas_.line({total.x, y - half}, {total.x, y + half});
            drawDisc(canvas_, carry, half, book_[row.number].CurveColor, ink_);
        }
        pen(ink_);
        canvas_.label({left_ - kLandingMargin, y}, row.name, kRightMiddle);
        canvas_.label({right_ + kLandingMargin, y}, row.words, kLeftMiddle);
    }

    PictureBox& canvas_;
    const RunBook& book_;
    Rgb ink_;
    Rgb faint_;
    std::vector<LandingRow> rows_;
    Figures base_{};  ///< all zero if there is none to compare with
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
