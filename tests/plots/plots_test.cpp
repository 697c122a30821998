#include "plots/curves.h"
#include "plots/plot_frame.h"

#include <gtest/gtest.h>

namespace parabolt {
namespace {

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

/// What of one kind stands on a canvas.
template <class Shape>
std::vector<Shape> shapesOf(const PictureBox& box) {
    std::vector<Shape> found;
    for (const Drawing& drawing : box.drawings())
        if (const auto* shape = std::get_if<Shape>(&drawing))
            found.push_back(*shape);
    return found;
}

std::string labelsOf(const PictureBox& box) {
    std::string texts;
    for (const auto& text : shapesOf<DrawnText>(box))
        texts += text.text;
    return texts;
}

TEST(PlotFrame, LaysScaleTicksAndLabels) {
    Plot plot(10000, 2000);
    plot.inner.circle({1, 1}, 1); // drawing erases what stood
    DrawPlotFrame(plot.canvases, 300);
    const CanvasScale& scale = plot.inner.scale();
    EXPECT_EQ(scale, (CanvasScale{0.3F, 60, 300, -60}));
    const auto lines = shapesOf<DrawnLine>(plot.outer);
    ASSERT_EQ(lines.size(), 2U + 10 + 2);
    EXPECT_EQ(lines[2], (DrawnLine{{1400, 2420}, {1400, 2520}, kWhite, 1}));
    EXPECT_EQ(lines[11], (DrawnLine{{10400, 2420}, {10400, 2620}, kWhite, 1}));
    EXPECT_EQ(lines[13], (DrawnLine{{380, 420}, {280, 420}, kWhite, 1}));
    EXPECT_EQ(shapesOf<DrawnText>(plot.outer).at(0).place, (Place{2400, 2470}));
    const auto grid = shapesOf<DrawnLine>(plot.inner);
    ASSERT_EQ(grid.size(), 5U + 2);
    EXPECT_EQ(grid.front().from, (Place{60, 0}));
    EXPECT_EQ(grid.back(), (DrawnLine{{0, 60}, {300, 60}, {80, 80, 80}, 1}));
    EXPECT_TRUE(shapesOf<DrawnCircle>(plot.inner).empty());

    Plot twin(10000, 2000); // of the report: no grid, and ticks a little higher
    DrawPrintFrame(twin.canvases, 300);
    EXPECT_TRUE(twin.inner.drawings().empty());
    EXPECT_EQ(twin.inner.scale(), scale);
    EXPECT_EQ(labelsOf(twin.outer), labelsOf(plot.outer));
    EXPECT_EQ(shapesOf<DrawnLine>(twin.outer).at(12).from.y, lines[12].from.y - 10);
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

TEST(Curves, DrawEachPathWithItsMarkAndLegend) {
    Plot plot;
    const auto runs = hops(2);
    EXPECT_TRUE(DrawCurves(plot.canvases, runs));
    const Rgb colour{20, 0, 0};
    EXPECT_EQ(shapesOf<DrawnCurve>(plot.inner).at(1), (DrawnCurve{runs[2].Path, colour, 1}));
    EXPECT_EQ(shapesOf<DrawnCircle>(plot.inner).at(1), (DrawnCircle{{4, 0.5}, 1, colour, 6}));
    EXPECT_EQ(plot.inner.foreColor(), kWhite);
    EXPECT_EQ(plot.outer.drawings(),
              (std::vector<Drawing>{DrawnBox{{100, 100}, {150, 150}, {10, 0, 0}},
                                    DrawnBox{{250, 100}, {850, 150}, kBlack},
                                    DrawnText{{300, 100}, "Club 1/1", kWhite},
                                    DrawnBox{{1120, 100}, {150, 150}, colour},
                                    DrawnBox{{1270, 100}, {850, 150}, kBlack},
                                    DrawnText{{1320, 100}, "Club 2/2", kWhite}}));
}

TEST(Curves, TheThirteenthTakesTheFirstSlotOfTheLegendAndNothingPilesUp) {
    Plot plot;
    ASSERT_TRUE(DrawCurves(plot.canvases, hops(13)));
    const auto texts = shapesOf<DrawnText>(plot.outer);
    ASSERT_EQ(texts.size(), 12U) << "what is overwritten is nowhere";
    EXPECT_EQ(texts.front().text, "Club 2/2");
    EXPECT_EQ(texts.back(), (DrawnText{{300, 100}, "Club 1/13", kWhite}));
    // What wipes the slot comes after the first entry and before the new text.
    const auto& all = plot.outer.drawings();
    EXPECT_EQ(all.at(all.size() - 2), Drawing(DrawnBox{{250, 100}, {850, 150}, kBlack}));
    for (int count = 14; count <= 24; ++count)
        ASSERT_TRUE(DrawCurves(plot.canvases, hops(count)));
    EXPECT_EQ(plot.inner.drawings().size(), 48U);
    EXPECT_EQ(plot.outer.drawings().size(), 12U * 3);
    EXPECT_EQ(shapesOf<DrawnCircle>(plot.inner).at(23).centre.x, 48) << "on top";
}

TEST(Curves, TheMarkGrowsWithTheCanvasAndAFailureLeavesWhatWasDrawn) {
    for (const auto& [width, pen] : {std::pair{4375, 2}, {6125, 4}}) {
        Plot plot(width);
        auto runs = hops(2);
        runs[2].Path.clear();
        EXPECT_FALSE(DrawCurves(plot.canvases, runs));
        EXPECT_EQ(shapesOf<DrawnCircle>(plot.inner).size(), 1U);
        EXPECT_EQ(shapesOf<DrawnCircle>(plot.inner).at(0).pen, pen) << width;
    }
}

} // namespace
} // namespace parabolt
