#include "maps/map_picture.h"

#include "maps/colour_scale.h"
#include "maps/contours.h"
#include "maps/map_frame.h"
#include "maps/map_scale.h"
#include "maps/map_words.h"
#include "numbers/rounding.h"
#include "numbers/text_number.h"
#include "plots/chart_parts.h"

#include <algorithm>
#include <cmath>

namespace parabolt {
namespace {

// In twips: a line of text is some 200 high.
constexpr double kTick = 80;
constexpr double kTextGap = 60;
constexpr double kBarGap = 300;
constexpr double kBarWidth = 240;
constexpr double kImagePixel = 30; ///< of the coloured ground
constexpr double kMarkRadius = 130;
constexpr double kDotRadius = 45;
constexpr double kRingRadius = 200; ///< around the present setting
constexpr int kBarPixels = 128;

/// A round value with as many decimals as it needs.
std::string label(double value) {
    return shortestText(store32(value));
}

double distance(Place one, Place other) {
    return std::hypot(one.x - other.x, one.y - other.y);
}

/// Puts a map on its canvas, from the ground up.
class Drawer {
public:
    Drawer(PictureBox& canvas, const MapResult& result, MapOutcome shown)
        : canvas_(canvas),
          result_(result),
          shown_(shown),
          ink_(canvas.foreColor()),
          frame_(canvas.geometry().width, canvas.geometry().height, result.request.ranges),
          field_(fieldOf(result.grid, result.stride, shown)),
          scale_(scaleOf(field_)) {}

    void draw(std::span<const DataMark> marks) {
        ground();
        if (scale_) {
            contours();
            bar();
        }
        top();
        reach();
        axes();
        present();
        for (const DataMark& mark : marks)
            dataSet(mark);
        best();
        pen(kBlack);
        for (const DrawnText& text : names_)
            canvas_.label(text.place, text.text, text.anchor, kWhite);
        canvas_.setForeColor(ink_);
        canvas_.setDrawWidth(1);
    }

private:
    void pen(Rgb colour, int width = 1) {
        canvas_.setForeColor(colour);
        canvas_.setDrawWidth(width);
    }

    void name(Place place, std::string text, Place anchor) {
        names_.push_back({place, std::move(text), kBlack, anchor, kWhite});
    }

    void ground() {
        // The values of an axis at the middles of its pixels.
        const auto middles = [](const MapAxis& axis, double twips) {
            const auto pixels = static_cast<std::size_t>(std::max(1.0, twips / kImagePixel));
            std::vector<double> values(pixels);
            for (std::size_t i = 0; i < pixels; ++i)
                values[i] = std::lerp(axis.first, axis.end(),
                                      (static_cast<double>(i) + 0.5) / static_cast<double>(pixels));
            return values;
        };
        const auto across = middles(result_.request.ranges.across, frame_.size().x);
        auto up = middles(result_.request.ranges.up, frame_.size().y);
        std::reverse(up.begin(), up.end());
        std::vector<Rgb> image;
        image.reserve(across.size() * up.size());
        for (const double value : field_.between(across, up))
            image.push_back(scale_ && !std::isnan(value) ? scale_->colour(value) : kNoValue);
        canvas_.image(frame_.corner(), frame_.size(), static_cast<int>(across.size()),
                      std::move(image));
    }

    void curve(const Contour& contour) {
        std::vector<TrajectoryPoint> points;
        for (const MapPoint& point : contour) {
            const Place place = frame_.place(point);
            points.push_back({store32(place.x), store32(place.y)});
        }
        canvas_.curve(points);
    }

    std::vector<double> levels() const {
        return roundValues(scale_->low, scale_->high, scale_->step);
    }

    /// Puts the number on the longest of the lines, at a point that is free of others.
    void labelContour(const std::vector<Contour>& lines, std::string text, Rgb ink, Rgb halo) {
        constexpr double kApart = 550; // twips
        const auto longest =
            std::max_element(lines.begin(), lines.end(), [](const auto& one, const auto& other) {
                return one.size() < other.size();
            });
        if (longest == lines.end() || longest->size() < 4)
            return;
        for (const std::size_t eighths : {4U, 3U, 5U, 2U, 6U}) {
            const Place at = frame_.place((*longest)[longest->size() * eighths / 8]);
            if (std::all_of(labels_.begin(), labels_.end(), [&](const DrawnText& other) {
                    return distance(other.place, at) >= kApart;
                })) {
                labels_.push_back({at, std::move(text), ink, kMiddle, halo});
                return;
            }
        }
    }

    void contours() {
        for (const double level : levels()) {
            const Rgb colour = scale_->colour(level);
            const Rgb ink = inkOn(colour);
            const auto lines = contoursOf(field_, level);
            pen(ink);
            for (const Contour& line : lines)
                curve(line);
            labelContour(lines, label(level), ink, colour);
        }
        for (const DrawnText& text : labels_) {
            pen(text.colour);
            canvas_.label(text.place, text.text, text.anchor, text.halo);
        }
    }

    void bar() {
        const double left = frame_.corner().x + frame_.size().x + kBarGap;
        const double top = frame_.corner().y;
        std::vector<Rgb> pixels;
        for (int i = kBarPixels; i-- > 0;)
            pixels.push_back(scaleColour((i + 0.5) / kBarPixels));
        canvas_.image({left, top}, {kBarWidth, frame_.size().y}, 1, std::move(pixels));
        pen(ink_);
        const double right = left + kBarWidth;
        for (const double level : levels()) {
            const double y =
                top + (scale_->high - level) / (scale_->high - scale_->low) * frame_.size().y;
            canvas_.line({right, y}, {right + kTick, y});
            const bool orLess = scale_->cut && level == levels().front();
            canvas_.label({right + kTick + kTextGap, y}, (orLess ? "\u2264 " : "") + label(level),
                          kLeftMiddle);
        }
        canvas_.label({canvas_.geometry().width - kTextGap, top - 2 * kTextGap}, heading(shown_),
                      {1, 1});
    }

    void axes() {
        const MapRanges& ranges = result_.request.ranges;
        const MapKind kind = result_.request.kind;
        const Place corner = frame_.corner();
        const Place foot{corner.x, corner.y + frame_.size().y};
        pen(ink_);
        canvas_.line(corner, foot);
        canvas_.line(foot, {foot.x + frame_.size().x, foot.y});
        const auto ticks = [](const MapAxis& axis, double twips, double apart) {
            const double range = axis.end() - axis.first;
            const int most = std::clamp(static_cast<int>(twips / apart), 2, 12);
            return roundValues(axis.first, axis.end(), roundStep(range, most));
        };
        for (const double value : ticks(ranges.across, frame_.size().x, 1000)) {
            const Place at{frame_.place({value, 0}).x, foot.y};
            canvas_.line(at, {at.x, at.y + kTick});
            canvas_.label({at.x, at.y + kTick + kTextGap}, label(value), kTopMiddle);
        }
        for (const double value : ticks(ranges.up, frame_.size().y, 500)) {
            const Place at{foot.x, frame_.place({0, value}).y};
            canvas_.line(at, {at.x - kTick, at.y});
            canvas_.label({at.x - kTick - kTextGap, at.y}, label(value), kRightMiddle);
        }
        canvas_.label({foot.x + frame_.size().x / 2, canvas_.geometry().height - kTextGap},
                      heading(acrossInput(kind)), kBottomMiddle);
        canvas_.label({kTextGap, corner.y - 2 * kTextGap}, heading(upInput(kind)), {0, 1});
    }

    /// The region that is as good as the best.
    void top() {
        const auto& best = result_.best(shown_);
        if (!best)
            return;
        const MapOutcome by = shown_ == MapOutcome::Total ? MapOutcome::Total : MapOutcome::Carry;
        const double level = smoothFigure(best->flight, by) - kTopLoss;
        for (const Contour& line : contoursOf(fieldOf(result_.grid, result_.stride, by), level)) {
            pen(kWhite, 4);
            curve(line);
            pen(kBlack, 2);
            curve(line);
        }
    }

    void reach() {
        const MapKind kind = result_.request.kind;
        Contour run;
        const auto finish = [&] {
            if (run.size() > 1)
                for (const auto& [colour, width] : {std::pair(kBlack, 4), std::pair(kWhite, 2)}) {
                    pen(colour, width);
                    curve(run);
                }
            run.clear();
        };
        for (const ReachNode& node : result_.reach.nodes) {
            const MapPoint point = pointOf(kind, node.shot);
            if (frame_.holds(point))
                run.push_back(point);
            else
                finish();
        }
        finish();
        loftMarks(kind);
    }

    /// Dots at whole degrees of loft, with numbers: each, or each second, fifth ... as there is
    /// room.
    void loftMarks(MapKind kind) {
        constexpr double kDotsApart = 110; // twips
        constexpr double kNumbersApart = 360;
        std::vector<std::pair<int, Place>> degrees;
        double closest = kNumbersApart;
        for (const ReachNode& node : result_.reach.nodes) {
            const MapPoint point = pointOf(kind, node.shot);
            if (!frame_.holds(point) || node.loft != std::floor(node.loft))
                continue;
            const Place at = frame_.place(point);
            if (!degrees.empty())
                closest = std::min(closest, distance(at, degrees.back().second));
            degrees.emplace_back(static_cast<int>(node.loft), at);
        }
        const auto every = [closest](double apart) {
            constexpr double kLeast = 1; // lofts that all give one launch stand on one place
            return static_cast<int>(std::max(roundStep(apart / std::max(closest, kLeast), 1), 1.0));
        };
        for (const auto& [degree, at] : degrees) {
            if (degree % every(kDotsApart) == 0)
                drawDisc(canvas_, at, kDotRadius, kWhite, kBlack);
            // A map of lofts has the numbers on its axis.
            if (kind == MapKind::Launch && degree % every(kNumbersApart) == 0)
                name({at.x + 2 * kTextGap, at.y + kTextGap}, std::to_string(degree), {0, 0.2});
        }
        bestLoft(kind);
    }

    void bestLoft(MapKind kind) {
        const auto& best = shown_ == MapOutcome::Total ? result_.reach.total : result_.reach.carry;
        if (!best)
            return;
        const auto node = std::min_element(result_.reach.nodes.begin(), result_.reach.nodes.end(),
                                           [&](const ReachNode& one, const ReachNode& other) {
                                               return std::abs(one.loft - best->loft) <
                                                      std::abs(other.loft - best->loft);
                                           });
        const MapPoint point = pointOf(kind, node->shot);
        if (!frame_.holds(point))
            return;
        const Place at = frame_.place(point);
        drawDisc(canvas_, at, 2 * kDotRadius, kWhite, kBlack);
        name({at.x - 3 * kTextGap, at.y - 2 * kTextGap},
             "best loft " + label(best->loft) + "\u00b0", {1, 1});
    }

    void dataSet(const DataMark& mark) {
        if (!frame_.holds(mark.point))
            return;
        const Place at = frame_.place(mark.point);
        drawDisc(canvas_, at, kMarkRadius, mark.colour, inkOn(mark.colour));
        pen(inkOn(mark.colour));
        canvas_.label(at, std::to_string(mark.number), kMiddle);
    }

    void present() {
        // A launch that was typed in has no place on the map of swings.
        if (!result_.base || (result_.request.kind == MapKind::Swing &&
                              result_.request.shot.Mode == OperatingMode::Launch))
            return;
        const MapPoint point = pointOf(result_.request.kind, *result_.base);
        if (!frame_.holds(point))
            return;
        const Place at = frame_.place(point);
        for (const auto& [colour, width] : {std::pair(kWhite, 5), std::pair(kBlack, 2)}) {
            pen(colour, width);
            canvas_.circle(at, kRingRadius);
        }
        name({at.x + kRingRadius + kTextGap, at.y + kTextGap}, "now", {0, 0});
    }

    void best() {
        const auto& best = result_.best(shown_);
        if (!best)
            return;
        const Place at = frame_.place(best->point);
        for (const auto& [colour, width] : {std::pair(kWhite, 5), std::pair(kBlack, 2)}) {
            pen(colour, width);
            canvas_.line({at.x - kMarkRadius, at.y}, {at.x + kMarkRadius, at.y});
            canvas_.line({at.x, at.y - kMarkRadius}, {at.x, at.y + kMarkRadius});
        }
        const bool ofShown = shown_ == MapOutcome::Carry || shown_ == MapOutcome::Total;
        name({at.x, at.y - kMarkRadius - kTextGap}, ofShown ? "best" : "best carry", kBottomMiddle);
    }

    PictureBox& canvas_;
    const MapResult& result_;
    MapOutcome shown_;
    Rgb ink_;
    MapFrame frame_;
    ValueField field_;
    std::optional<MapScale> scale_;
    std::vector<DrawnText> labels_; ///< of the contours, over all of them
    std::vector<DrawnText> names_;  ///< of the marks, over all that is drawn
};

} // namespace

std::vector<DataMark> dataMarks(MapKind kind, std::span<const RunRecord> runs) {
    std::vector<DataMark> marks;
    for (std::size_t i = 1; i < runs.size(); ++i) {
        const RunRecord& run = runs[i];
        if (kind == MapKind::Launch)
            marks.push_back({static_cast<int>(i), run.CurveColor, {run.RPM, run.LaunchAngle}});
        else if (run.Mode != OperatingMode::Launch)
            marks.push_back(
                {static_cast<int>(i), run.CurveColor, {run.AttackAngle, run.LoftAngle}});
    }
    return marks;
}

void drawMap(PictureBox& canvas, const MapResult& result, MapOutcome shown,
             std::span<const DataMark> marks) {
    canvas.cls();
    if (result.base)
        Drawer(canvas, result, shown).draw(marks);
}

} // namespace parabolt
