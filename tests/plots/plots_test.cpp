#include "plots/chart_parts.h"
#include "plots/curves.h"
#include "plots/plot_frame.h"
#include "tests/support/golden.h"
#include "tests/support/scripted_form.h"

#include <numeric>

namespace parabolt {

std::ostream& operator<<(std::ostream& text, const Place& place) {
    return text << place.x << ',' << place.y;
}
std::ostream& operator<<(std::ostream& text, Rgb colour) {
    return text << " in " << int{colour.red} << ' ' << int{colour.green} << ' ' << int{colour.blue};
}

namespace {

using support::shapesOf;

/// The two canvases of a plot whose inner one has a given size in twips.
struct Plot {
    ControlSet form;
    PictureBox outer{form, "Picture1", kBlack, kWhite};
    PictureBox inner{form, "Picture2", kBlack, kWhite};
    PlotCanvases canvases{outer, inner};

    explicit Plot(double width = 10395, double height = 3000) {
        outer.setGeometry({0, 4000, width + 800, height + 800});
        inner.setGeometry({390, 420, width, height});
    }
};

std::string labelsOf(const PictureBox& box) {
    std::string texts;
    for (const auto& text : shapesOf<DrawnText>(box))
        texts += text.text;
    return texts;
}

/// Data sets 1 to `count` of short hops, each a yard longer than the one before.
std::vector<RunRecord> hops(int count) {
    std::vector<RunRecord> runs(1);
    for (int i = 1; i <= count; ++i) {
        RunRecord run;
        const auto yards = static_cast<float>(i);
        run.Path = {{0, 0}, {yards, 2}, {2 * yards, -0.5F}};
        run.CurveColor = {static_cast<std::uint8_t>(10 * i), 0, 0};
        run.ClubNo = static_cast<std::int16_t>(i % 3);
        runs.push_back(run);
    }
    return runs;
}

std::vector<int> numbersTo(int last) {
    std::vector<int> numbers(static_cast<std::size_t>(last));
    std::iota(numbers.begin(), numbers.end(), 1);
    return numbers;
}

/// A shape as a line of text.
struct Described {
    std::ostream& text;
    void operator()(const DrawnLine& line) const {
        text << "line " << line.from << ' ' << line.to << line.colour << ", " << line.pen
             << " wide";
    }
    void operator()(const DrawnCurve& curve) const {
        const auto& [x, y] = curve.points.back();
        text << "curve of " << curve.points.size() << " to " << Place{x, y} << curve.colour << ", "
             << curve.pen << " wide";
    }
    void operator()(const DrawnBox& box) const {
        text << "box " << box.corner << ' ' << box.size << box.colour;
    }
    void operator()(const DrawnCircle& ring) const {
        text << "ring " << ring.centre << " of " << ring.radius << ring.colour << ", " << ring.pen
             << " wide";
    }
    void operator()(const DrawnImage&) const { text << "image"; }
    void operator()(const DrawnText& label) const {
        text << "text " << label.place << " \"" << label.text << '"' << label.colour;
    }
};

TEST(Plot, HasTheseShapesOnScreenAndOnPaper) {
    Plot screen(10000, 2000);
    Plot twin(10000, 2000);
    twin.outer.setForeColor(kBlack);
    screen.inner.circle({1, 1}, 1); // drawing erases what stood
    DrawPlotFrame(screen.canvases, 300);
    EXPECT_TRUE(DrawCurves(screen.canvases, hops(13), numbersTo(13)));
    DrawPrintFrame(twin.canvases, 300);
    DrawPrintCurves(twin.canvases, hops(13), numbersTo(13));
    std::ostringstream text;
    for (const PictureBox* box : {&screen.outer, &screen.inner, &twin.outer, &twin.inner})
        for (const Drawing& drawing : box->drawings()) {
            std::visit(Described{text}, drawing);
            text << '\n';
        }
    EXPECT_EQ(text.str(), support::goldenText("plot.txt"));
    EXPECT_EQ(screen.inner.scale(), (CanvasScale{0.3F, 60, 300, -60}));
    EXPECT_EQ(twin.inner.scale(), screen.inner.scale());
}

TEST(PlotFrame, LabelsFollowTheRangeAndTicksTheShape) {
    const std::tuple<float, double, double, std::string> table[] = {
        {100, 10000, 2000, " 20 40 60 80 100 10 20"},
        // A tenth of the range is kept in 32 bits for the heights alone.
        {333, 10000, 3000, " 66.6 133.2 199.8 266.4 333 33.3 66.6 99.89999"},
        {300, 10395, 900, " 60 120 180 240 300"},
        {500, 2000, 1000, " 100 200 300 400 500 50 100 150 200 250"},
    };
    for (const auto& [range, width, height, labels] : table) {
        Plot plot(width, height);
        DrawPlotFrame(plot.canvases, range);
        EXPECT_EQ(labelsOf(plot.outer), labels);
    }
}

TEST(PlotLayout, FollowsTheFormUnlessItIsTooLow) {
    Plot plot(3000, 2000);
    const auto before = plot.inner.geometry();
    for (const double height : {5001.0, 5490.0, 5865.0})
        LayoutPlots({15480, height, 375}, plot.canvases);
    EXPECT_EQ(plot.inner.geometry(), before);
    LayoutPlots({15480, 11040, 375}, plot.canvases);
    EXPECT_EQ(plot.outer.geometry(), (PictureBox::Geometry{0, 4000, 15360, 5975}));
    EXPECT_EQ(plot.inner.geometry(), (PictureBox::Geometry{390, 420, 14560, 5175}));
}

TEST(Curves, NothingPilesUp) {
    Plot plot;
    for (int count = 13; count <= 24; ++count)
        ASSERT_TRUE(DrawCurves(plot.canvases, hops(count), numbersTo(count)));
    EXPECT_EQ(plot.inner.drawings().size(), 48U);
    EXPECT_EQ(plot.outer.drawings().size(), 12U * 3);
    EXPECT_EQ(shapesOf<DrawnCircle>(plot.inner).at(23).centre.x, 48) << "on top";
    EXPECT_EQ(plot.inner.foreColor(), kWhite);
}

TEST(Curves, TheMarkGrowsWithTheCanvasAndAFailureLeavesWhatWasDrawn) {
    for (const auto& [width, pen] : {std::pair{4375, 2}, {6125, 4}}) {
        Plot plot(width);
        auto runs = hops(2);
        runs[2].Path.clear();
        EXPECT_FALSE(DrawCurves(plot.canvases, runs, numbersTo(2)));
        EXPECT_EQ(shapesOf<DrawnCircle>(plot.inner).size(), 1U);
        EXPECT_EQ(shapesOf<DrawnCircle>(plot.inner).at(0).pen, pen) << width;
    }
}

TEST(ChartParts, StepsAreRound) {
    EXPECT_EQ(roundStep(0, 5), 1);
    for (const auto& [range, step] :
         {std::pair(120.0, 10.0), {121.0, 20.0}, {250.0, 50.0}, {0.9, 0.1}})
        EXPECT_NEAR(roundStep(range, 12), step, 1e-12) << range;
    EXPECT_EQ(roundValues(-7, 10, 5), (std::vector<double>{-5, 0, 5, 10}));
}

} // namespace
} // namespace parabolt
