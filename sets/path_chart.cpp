#include "sets/path_chart.h"

#include "numbers/rounding.h"
#include "numbers/text_number.h"
#include "plots/chart_parts.h"

#include <algorithm>
#include <cmath>

namespace parabolt {
namespace {

// In twips: a line of text is some 200 high.
constexpr double kLeftOfPaths = 480;
constexpr double kRightOfPaths = 240;
constexpr double kAbovePaths = 330;
constexpr double kBelowPaths = 560;
constexpr double kPathTick = 80;
constexpr double kAcrossApart = 900; ///< between the numbers of an axis, at least
constexpr double kUpApart = 400;
constexpr double kPathMark = 50; ///< radius of the disc at the landing
constexpr std::size_t kFew = 8;  ///< paths, of which each is drawn broad
// Where the numbers stand, in shares of their paths: where these have parted, but before they land.
constexpr double kFirstNumber = 0.55;
constexpr double kLastNumber = 0.93;

class PathDrawer {
public:
    PathDrawer(PictureBox& canvas, const RunBook& book, std::span<const int> numbers)
        : canvas_(canvas),
          book_(book),
          ink_(canvas.foreColor()),
          size_{canvas.geometry().width - kLeftOfPaths - kRightOfPaths,
                canvas.geometry().height - kAbovePaths - kBelowPaths} {
        for (const int number : numbers) {
            if (book[number].Path.empty())
                continue;
            numbers_.push_back(number);
            for (const TrajectoryPoint& point : book[number].Path) {
                far_ = std::max(far_, double{point.x});
                high_ = std::max(high_, double{point.y});
            }
        }
    }

    void draw() {
        across();
        up();
        for (const int number : numbers_)
            path(book_[number]);
        pen(ink_);
        for (std::size_t i = 0; i < numbers_.size(); ++i)
            number(i);
    }

private:
    void pen(Rgb colour, int width = 1) {
        canvas_.setForeColor(colour);
        canvas_.setDrawWidth(width);
    }
    /// A point below the ground, as the last of a path, stands on it.
    Place place(double x, double y) const {
        return {kLeftOfPaths + x / far_ * size_.x,
                kAbovePaths + (1 - std::max(y, 0.0) / high_) * size_.y};
    }
    /// Round values up to the end of an axis, which becomes the last of them.
    static std::vector<double> ticks(double& end, double twips, double apart) {
        const double step = roundStep(end, std::max(2, static_cast<int>(twips / apart)));
        end = std::ceil(end / step) * step;
        return roundValues(0, end, step);
    }

    void across() {
        for (const double yards : ticks(far_, size_.x, kAcrossApart)) {
            const Place foot = place(yards, 0);
            pen(mixed(canvas_.background(), ink_, 0.2));
            canvas_.line({foot.x, kAbovePaths}, foot);
            pen(ink_);
            canvas_.line(foot, {foot.x, foot.y + kPathTick});
            canvas_.label({foot.x, foot.y + kPathTick + 20}, shortestText(store32(yards)),
                          kTopMiddle);
        }
        canvas_.label({kLeftOfPaths + size_.x / 2, canvas_.geometry().height - 20},
                      "Yards from the tee", kBottomMiddle);
    }

    void up() {
        for (const double yards : ticks(high_, size_.y, kUpApart)) {
            const Place left = place(0, yards);
            pen(yards > 0 ? mixed(canvas_.background(), ink_, 0.2) : ink_);
            canvas_.line(left, {left.x + size_.x, left.y});
            pen(ink_);
            canvas_.line(left, {left.x - kPathTick, left.y});
            canvas_.label({left.x - kPathTick - 60, left.y}, shortestText(store32(yards)),
                          kRightMiddle);
        }
        canvas_.line(place(0, 0), place(0, high_));
        canvas_.label({60, kAbovePaths - 90}, "Height in yards", {0, 1});
    }

    void path(const RunRecord& run) {
        std::vector<TrajectoryPoint> points;
        for (const TrajectoryPoint& point : run.Path) {
            const Place at = place(point.x, point.y);
            points.push_back({store32(at.x), store32(at.y)});
        }
        // Bright colours need some of the ink on a bright ground, dark ones on a dark.
        const bool fades = inkOn(run.CurveColor) == inkOn(canvas_.background());
        const Rgb colour = fades ? mixed(run.CurveColor, ink_, 0.3) : run.CurveColor;
        pen(colour, numbers_.size() <= kFew ? 2 : 1);
        canvas_.curve(points);
        drawDisc(canvas_, {points.back().x, points.back().y}, kPathMark, colour, colour);
    }

    /// One after the other from left to right, so that they stand apart where the paths don't.
    void number(std::size_t i) {
        const auto& path = book_[numbers_[i]].Path;
        const auto gaps = static_cast<double>(std::max<std::size_t>(numbers_.size() - 1, 1));
        const double x = std::lerp(kFirstNumber, kLastNumber, static_cast<double>(i) / gaps) *
                         double{path.back().x};
        const auto at = std::find_if(path.begin(), path.end(),
                                     [x](const TrajectoryPoint& point) { return point.x >= x; });
        const TrajectoryPoint& point = at == path.end() ? path[path.size() / 2] : *at;
        canvas_.label(place(point.x, point.y), std::to_string(numbers_[i]), kMiddle,
                      canvas_.background());
    }

    PictureBox& canvas_;
    const RunBook& book_;
    Rgb ink_;
    Place size_; ///< of what lies between the axes
    std::vector<int> numbers_;
    double far_ = 1; ///< ends of the axes, yards
    double high_ = 1;
};

} // namespace

void drawPaths(PictureBox& canvas, const RunBook& book, std::span<const int> numbers) {
    PathDrawer(canvas, book, numbers).draw();
}

} // namespace parabolt
