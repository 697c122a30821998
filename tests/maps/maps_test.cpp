#include "mainform/validators.h"
#include "maps/carry_map.h"
#include "maps/colour_scale.h"
#include "maps/contours.h"
#include "maps/map_table.h"
#include "maps/map_words.h"
#include "maps/map_worker.h"
#include "shots/fly.h"
#include "tests/support/shots.h"

#include <cmath>
#include <future>
#include <gtest/gtest.h>

namespace parabolt::support {
namespace {

using Deliveries = std::vector<std::shared_ptr<const MapResult>>;

Deliveries computed(const MapRequest& request) {
    Deliveries passes;
    computeMap(request, 1, {}, [&](auto result) { passes.push_back(std::move(result)); });
    return passes;
}

MapRequest requestOf(const Shot& shot, MapKind kind = MapKind::Launch) {
    return {shot, kind, usualRanges(kind, shot)};
}

/// A driver's swing: 100 mph, 198 g, COR 0.83.
Shot swing() {
    Shot shot = workedShot();
    shot.Mode = OperatingMode::Manual;
    return shot;
}

// The flat top of 150 mph, as scanned flight by flight on a finer grid.
TEST(Maps, FindTheFlatTopOfALaunch) {
    const auto map = computed(requestOf(mildShot(150, 9.5F, 3200))).back();
    ASSERT_TRUE(map->complete && map->bestCarry);
    EXPECT_NEAR(map->bestCarry->point.up, 16.3, 0.3);
    EXPECT_NEAR(map->bestCarry->point.across, 2200, 100);
    EXPECT_FALSE(map->bestCarry->atEdge);
    const ValueField field = fieldOf(map->grid, 1, MapOutcome::Carry);
    const double level = smoothFigure(map->bestCarry->flight, MapOutcome::Carry) - kTopLoss;
    const auto outline = contoursOf(field, level);
    ASSERT_EQ(outline.size(), 1U) << "one region without holes";
    EXPECT_EQ(outline.front().front(), outline.front().back());
    const auto [left, right] = std::minmax_element(
        outline.front().begin(), outline.front().end(),
        [](const MapPoint& one, const MapPoint& other) { return one.across < other.across; });
    const auto [low, high] = std::minmax_element(
        outline.front().begin(), outline.front().end(),
        [](const MapPoint& one, const MapPoint& other) { return one.up < other.up; });
    EXPECT_NEAR(left->across, 1400, 75);
    EXPECT_NEAR(right->across, 3150, 75);
    EXPECT_NEAR(low->up, 12, 0.5);
    EXPECT_NEAR(high->up, 21, 0.5);
}

// A published chart gives 100 mph of head speed 146 mph, 12.1 degrees, 3118 rpm and 235 yards.
TEST(Maps, ReachWhatAChartGivesForTheSwing) {
    const auto map = computed(requestOf(swing())).back();
    const Reach& reach = map->reach;
    ASSERT_TRUE(reach.carry && reach.total);
    Shot best = swing();
    best.LoftAngle = static_cast<float>(reach.carry->loft);
    const auto launch = prepare(best);
    EXPECT_NEAR(launch->LaunchSpeed, 146, 2);
    EXPECT_NEAR(launch->LaunchAngle, 12.1, 1.5);
    EXPECT_NEAR(launch->RPM, 3118, 400);
    EXPECT_NEAR(reach.carry->flight.figures.carry, 235, 1);
    EXPECT_LT(reach.total->loft, reach.carry->loft) << "a lower flight rolls on";
    // The good lofts, judged from outside: they lose less than a yard, their neighbours more.
    const auto lossAt = [&](double loft) {
        best.LoftAngle = static_cast<float>(loft);
        return smoothFigure(reach.carry->flight, MapOutcome::Carry) -
               smoothFigure(*flyAll(std::span(&best, 1), {}).front(), MapOutcome::Carry);
    };
    EXPECT_LT(std::max(lossAt(reach.lowestGood), lossAt(reach.highestGood)), 1);
    EXPECT_GE(std::min(lossAt(reach.lowestGood - 0.5), lossAt(reach.highestGood + 0.5)), 1);
    const std::string said = map->present ? summaryOf(*map, MapOutcome::Carry) : "";
    EXPECT_NE(said.find("11 to 14 degrees lose less than 1 yard"), std::string::npos) << said;
    EXPECT_NE(said.find("234.9 yd, with 12.4 degrees of loft"), std::string::npos) << said;
    // A swing map has the reach on one upright line, the present attack angle.
    const auto swings = computed(requestOf(swing(), MapKind::Swing)).back();
    EXPECT_EQ(swings->reach.carry->loft, reach.carry->loft);
    EXPECT_TRUE(swings->bestCarry->atEdge) << "the higher the attack, the better";
}

// Passes thin out the same grid; each node is the flight of its own inputs, whatever pass flew it.
TEST(Maps, ComeInPassesFromCoarseToFine) {
    const auto passes = computed(requestOf(workedShot()));
    ASSERT_EQ(passes.size(), 5U);
    EXPECT_FALSE(passes.front()->present || passes.front()->complete);
    std::vector<std::size_t> flown;
    for (const auto& pass : passes) {
        flown.push_back(0);
        for (int row = 0; row < pass->grid.rows(); ++row)
            for (int column = 0; column < pass->grid.columns(); ++column)
                flown.back() += pass->grid.at(column, row) ? 1U : 0U;
    }
    EXPECT_EQ(flown, (std::vector<std::size_t>{81, 81, 256, 961, 3721}));
    const Figures single = figuresOf(flightOf(mildShot(144, 12.5F, 3700)).record);
    EXPECT_EQ((*passes.back()->grid.at(37, 25))->figures.carry, single.carry);
    EXPECT_EQ((*passes.back()->grid.at(37, 25))->figures.landingAngle, single.landingAngle);
}

TEST(Maps, LeaveAHoleWithItsReason) {
    Shot shot = workedShot();
    shot.h = 200000;
    const auto passes = computed(requestOf(shot));
    ASSERT_EQ(passes.size(), 1U);
    EXPECT_NE(summaryOf(*passes[0], MapOutcome::Carry).find("Invalid argument"), std::string::npos);
    // Swings whose head has no mass fail where the launch is computed; all others stay.
    shot = swing();
    MapRequest request = requestOf(shot, MapKind::Swing);
    request.ranges.up = {-4, 4, 4}; // below 0 the spin is negative
    const auto map = computed(request).back();
    EXPECT_FALSE(*map->grid.at(0, 0));
    const ValueField field = fieldOf(map->grid, 1, MapOutcome::Carry);
    const double places[] = {-2, 2};
    const auto values = field.between(std::array{0.05}, places);
    EXPECT_TRUE(std::isnan(values[0]) && !std::isnan(values[1]));
    for (const Contour& line : contoursOf(field, values[1]))
        for (const MapPoint& point : line)
            EXPECT_GE(point.up, 0);
    const std::string table = composeMapTable(*map);
    EXPECT_NE(table.find("\r\n-5,-4,,,,,,"), std::string::npos) << table.substr(0, 300);
    EXPECT_EQ(table.substr(0, table.find("\r\n")),
              "Attack angle [deg],Loft [deg],Carry [yd],Total [yd],Height [yd],"
              "Landing angle [deg],Time [s],No value because");
    // The picture is grey there, and nowhere else.
    ControlSet controls;
    PictureBox canvas(controls, "map", kWhite, kBlack);
    canvas.setGeometry({0, 0, 6000, 6000});
    drawMap(canvas, *map, MapOutcome::Carry, {});
    const auto& image = std::get<DrawnImage>(canvas.drawings().front());
    EXPECT_EQ(image.pixels.back(), kNoValue);
    EXPECT_EQ(std::count(image.pixels.begin(), image.pixels.end(), kNoValue) * 2,
              static_cast<std::ptrdiff_t>(image.pixels.size()));
}

TEST(Contours, FollowACircleAndBreakAtHoles) {
    ValueField field;
    for (int i = -10; i <= 10; ++i)
        field.across.push_back(i);
    field.up = field.across;
    for (const double y : field.up)
        for (const double x : field.across)
            field.values.push_back(x * x + y * y);
    const auto circle = contoursOf(field, 49.5);
    ASSERT_EQ(circle.size(), 1U);
    for (const MapPoint& point : circle.front())
        EXPECT_NEAR(std::hypot(point.across, point.up), std::sqrt(49.5), 0.03);
    EXPECT_EQ(circle.front().front(), circle.front().back());
    EXPECT_EQ(contoursOf(field, 150).size(), 4U) << "an arc in each corner";
    field.values[10 * 21 + 17] = std::nan("");
    EXPECT_EQ(contoursOf(field, 49.5).size(), 1U);
    EXPECT_NE(contoursOf(field, 49.5).front().front(), contoursOf(field, 49.5).front().back());
    // A saddle: its middle, 0.5, lies with the corners of 1.
    const ValueField saddle{{0, 1}, {0, 1}, {0, 1, 1, 0}};
    for (const Contour& line : contoursOf(saddle, 0.4))
        EXPECT_NEAR(std::abs(line[0].across - line[1].across), 0.4, 1e-12);
}

// Lightness after CIE 1976, and the same colours as a person without the receptors for green
// sees them (F. Vienot, H. Brettel, J. Mollon, 1999).
TEST(ColourScale, RisesEvenlyInLightnessForAllEyes) {
    const auto linear = [](std::uint8_t part) {
        const double share = part / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    const auto lightness = [](double luminance) { return 116 * std::cbrt(luminance) - 16; };
    double before = 0;
    for (int i = 0; i <= 20; ++i) {
        const Rgb colour = scaleColour(i / 20.0);
        const double r = linear(colour.red), g = linear(colour.green), b = linear(colour.blue);
        const double yellow = 0.29275 * r + 0.70725 * g; // of both red and green
        for (const double light : {lightness(0.2126 * r + 0.7152 * g + 0.0722 * b),
                                   lightness(0.9278 * yellow + 0.0722 * b)})
            EXPECT_NEAR(light, 15 + 76 * i / 20.0, 4) << i;
        EXPECT_GT(r + g + b, before);
        before = r + g + b;
    }
}

TEST(StepEffects, AreSortedAndGoBothWays) {
    const auto effects = stepEffects(MapKind::Launch, workedShot(), {});
    ASSERT_EQ(effects.size(), 8U);
    EXPECT_EQ(effects.front().input->name, "Wind");
    for (std::size_t i = 1; i < effects.size(); ++i)
        EXPECT_GE(effects[i - 1].greatest(), effects[i].greatest());
    Shot faster = workedShot();
    faster.LaunchSpeed += 1;
    const double gain =
        figuresOf(flightOf(faster).record).carry - figuresOf(flightOf(workedShot()).record).carry;
    for (const StepEffect& effect : effects) {
        if (effect.input->name == "Ball speed") {
            EXPECT_NEAR(*effect.more, gain, 0.25) << "but for the last step of both flights";
        }
        if (effect.input->name == "Altitude") {
            EXPECT_FALSE(effect.less) << "below the limit of its field";
        }
    }
}

// The limits of the inputs are those of the fields into which their values go.
TEST(MapInputs, HaveTheLimitsOfTheirFields) {
    int found = 0;
    for (const MapInput& input : mapInputs())
        for (const FieldRule& rule : fieldRules()) {
            const auto* narrow = std::get_if<float ShotInputs::*>(&input.member);
            const auto* wide = std::get_if<double ShotInputs::*>(&input.member);
            const auto* fieldNarrow = std::get_if<float ShotInputs::*>(&rule.variable);
            const auto* fieldWide = std::get_if<double ShotInputs::*>(&rule.variable);
            if ((narrow && fieldNarrow && *narrow == *fieldNarrow) || (wide && fieldWide)) {
                ++found;
                EXPECT_EQ(input.lowest, rule.lowest) << input.name;
                EXPECT_EQ(input.highest, rule.highest) << input.name;
            }
        }
    EXPECT_EQ(found, static_cast<int>(mapInputs().size()));
}

TEST(CarryMap, FollowsTheFormAndDropsWhatIsLate) {
    CarryMap map;
    const Shot first = swing();
    EXPECT_TRUE(map.follow(first, {}));
    const auto generation = map.generation();
    EXPECT_FALSE(map.follow(first, {})) << "nothing has changed";
    auto late = std::make_shared<MapResult>();
    late->generation = generation;
    Shot second = first;
    second.WindSpeed = 10;
    EXPECT_TRUE(map.follow(second, {}));
    EXPECT_FALSE(map.accept(late));
    EXPECT_EQ(map.result(), nullptr);
    // Typed launches have no place on a map of swings.
    std::vector<RunRecord> runs(3);
    runs[1].Mode = OperatingMode::Launch;
    runs[2].Mode = OperatingMode::Manual;
    runs[2].LoftAngle = 9;
    EXPECT_TRUE(map.follow(second, runs));
    EXPECT_EQ(map.marks().size(), 2U);
    map.setKind(MapKind::Swing);
    map.follow(second, runs);
    ASSERT_EQ(map.marks().size(), 1U);
    EXPECT_EQ(map.marks()[0].number, 2);
    EXPECT_EQ(map.marks()[0].point, (MapPoint{0, 9}));
    // The cross hair keeps to whole grains, and to the map.
    map.setCross({3.14159, 99});
    EXPECT_EQ(map.cross(), (MapPoint{3.1, 30}));
    map.moveCross(-1, -2);
    EXPECT_EQ(map.cross(), (MapPoint{2.9, 29}));
    const Figures figures = figuresOf(flightOf(*map.shotAtCross()).record);
    EXPECT_NE(map.readout().find("29.0\u00b0 of loft and an attack of 2.9\u00b0: carry " +
                                 words(MapOutcome::Carry, figures.carry)),
              std::string::npos);
    // A range the wrong way round, and steps too fine, are brought into reason.
    map.setRanges({{15, 10, 0.001}, {0, 65, 0.1}});
    EXPECT_GT(map.ranges().across.last, map.ranges().across.first);
    EXPECT_LE(map.ranges().up.count(), MapAxis::kMost);
    EXPECT_NEAR(map.ranges().up.end(), 65, 1e-9);
    // A shot beyond the usual ranges takes wider ones.
    map.setUsualRanges();
    second.LoftAngle = 46;
    map.follow(second, runs);
    EXPECT_EQ(map.ranges().up.last, 65);
}

TEST(MapWorker, GivesUpWorkThatIsNoLongerWanted) {
    std::promise<std::shared_ptr<const MapResult>> done;
    std::promise<void> begun, asked;
    int ofTheFirst = 0;
    MapWorker worker([&](std::shared_ptr<const MapResult> result) {
        if (result->generation == 1 && ++ofTheFirst == 1) {
            begun.set_value();
            asked.get_future().wait();
        }
        if (result->generation == 2 && result->complete)
            done.set_value(std::move(result));
    });
    worker.begin(requestOf(workedShot()), 1);
    begun.get_future().wait();
    worker.begin(requestOf(swing()), 2);
    asked.set_value();
    EXPECT_EQ(done.get_future().get()->request.shot, swing());
    EXPECT_EQ(ofTheFirst, 1);
}

} // namespace
} // namespace parabolt::support
