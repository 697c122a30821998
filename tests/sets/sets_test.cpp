#include "exchange/shot_columns.h"
#include "mainform/form_shot.h"
#include "mainform/modes.h"
#include "plots/chart_parts.h"
#include "results/result_table.h"
#include "sets/data_set_words.h"
#include "sets/data_sets.h"
#include "sets/landing_chart.h"
#include "sets/path_chart.h"
#include "sets/path_export.h"
#include "sets/path_points.h"
#include "tables/table_text.h"
#include "tests/support/scripted_form.h"
#include "tests/support/temporary_folder.h"

#include <cmath>
#include <set>

namespace parabolt::support {
namespace {

/// A data set whose figures can be seen: up to 30 yards above 50, down at 100, then a roll.
RunRecord tent(float carry, float rollFeet) {
    RunRecord run;
    run.Path = {{0, 0}, {carry / 2, 30}, {carry, -1}};
    run.CarryTime = 0.02F;
    run.CarryDist = carry;
    run.GreenRoll = rollFeet;
    run.Temperature = 70;
    run.BaroPressure = 29.92F;
    run.RH = 50;
    run.ClubNo = 3;
    run.IsWood = true;
    return run;
}

/// Two tents and a flight that failed.
RunBook someBook() {
    RunBook book;
    for (const RunRecord& run : {tent(100, 30), tent(101.25F, 9), RunRecord()}) {
        book.add();
        book.newest() = run;
    }
    book.setTag(2, {"Low, \"new\"", false, 2});
    return book;
}

struct DataSetsTest : testing::Test {
    RunBook book = someBook();
    DataSets sets{book};
    std::string text(std::size_t row, std::string_view key) {
        const auto columns = sets.columns();
        for (std::size_t i = 0; i < columns.size(); ++i)
            if (columns[i].key == key)
                return sets.cell(row, i).text;
        return "no such column";
    }
    Texts row(std::size_t row, std::initializer_list<const char*> keys) {
        Texts cells;
        for (const char* key : keys)
            cells.push_back(text(row, key));
        return cells;
    }
};

TEST_F(DataSetsTest, TellWhatCameOfThemAndHowTheyDiffer) {
    const auto keys = {"number",    "name",      "club",      "mode",         "carry",
                       "total",     "height",    "heightAt",  "landingAngle", "ball",
                       "carryMore", "totalMore", "heightMore"};
    // The last leg of the first falls 31 yards in 50.
    EXPECT_EQ(row(0, keys), (Texts{"1", "", "W-3", "Launch", "100.0", "110.0", "30.0", "50.0",
                                   "31.8", "", "0.0", "0.0", "0.0"}));
    EXPECT_EQ(row(1, keys), (Texts{"2", "Low, \"new\"", "W-3", "Launch", "101.2", "104.2", "30.0",
                                   "50.6", "31.5", "Different dimple", "+1.2", "-5.8", "0.0"}));
    EXPECT_EQ(row(2, keys), (Texts{"3", "", "I-0", "Launch", "no landing", "no landing", "", "",
                                   "no landing", "", "", "", ""}));
    EXPECT_EQ(row(2, {"impactSpin", "impactSpeed", "time"}),
              (Texts{"no landing", "no landing", ""}));
    EXPECT_EQ(wordsOf(book, 3), "3: no landing, altitude 0 ft");
    for (const char* swing : {"headSpeed", "headWeight", "loft", "bend", "attack", "cor"})
        EXPECT_EQ(text(0, swing), "") << swing << " of a launch";
    book.setBase(2);
    EXPECT_EQ(text(0, "carryMore") + text(0, "totalMore"), "-1.2+5.8");
    EXPECT_EQ(wordsOf(book, 2), "2 Low, \"new\": carry 101.2 yd, total 104.2 yd, height 30.0 yd, "
                                "landing angle 31.5 degrees, altitude 0 ft");
    // Standard air at sea level is 1.225 kg/m3 at 59 F; it thins by the ratio of temperatures.
    EXPECT_NEAR(std::stod(text(0, "density")), 1.225 * 518.7 / 529.7, 0.01);
    EXPECT_EQ(text(2, "density"), "") << "no air at a pressure of 0";
}

TEST_F(DataSetsTest, GoIntoTablesWithAllHeadingsOfOurs) {
    const std::string csv = tableAsCsv(sets, completeTable(sets));
    const std::string headings = csv.substr(0, csv.find('\r'));
    namespace columns = shot_columns;
    for (const std::string_view heading :
         {columns::kBallSpeed, columns::kLaunchAngle, columns::kSpin, columns::kClub,
          columns::kCarry, columns::kTotal, columns::kHeight, columns::kLandingAngle,
          columns::kTime, columns::kWind, columns::kAltitude, columns::kTemperature,
          columns::kPressure, columns::kHumidity})
        EXPECT_NE(("," + headings + ",").find("," + std::string(heading) + ","), std::string::npos)
            << heading;
    EXPECT_NE(csv.find("\r\n0,2,\"Low, \"\"new\"\"\",W-3,Launch,101.25,1.25,104.25,-5.75,"),
              std::string::npos)
        << csv;
    book.newest().CurveColor = {255, 9, 160};
    EXPECT_EQ(text(2, "colour"), "#ff09a0");
    EXPECT_EQ(sets.ticked().rows, (std::vector<std::size_t>{0, 2}));
    EXPECT_EQ(composePaths(book), "Data set,Name,Time [s],x [yd],y [yd]\r\n"
                                  "1,,0,0,0\r\n1,,0.01,50,30\r\n1,,0.02,100,-1\r\n"
                                  "2,\"Low, \"\"new\"\"\",0,0,0\r\n"
                                  "2,\"Low, \"\"new\"\"\",0.01,50.625,30\r\n"
                                  "2,\"Low, \"\"new\"\"\",0.02,101.25,-1\r\n");
}

TEST_F(DataSetsTest, AnswerForPointsOfTheirPaths) {
    const std::vector<int> both = {1, 2};
    EXPECT_EQ(nearestPoint(book, both, {99, 0}, 3), (PathPoint{1, 2}));
    EXPECT_EQ(nearestPoint(book, both, {101, 0}, 3), (PathPoint{2, 2}));
    EXPECT_EQ(nearestPoint(book, std::vector{1}, {101, 0}, 3), (PathPoint{1, 2}));
    EXPECT_EQ(nearestPoint(book, both, {0, 0}, 3), (PathPoint{2, 0})) << "the upper one";
    EXPECT_FALSE(nearestPoint(book, both, {75, 40}, 3));
    EXPECT_EQ(along(book, {1, 1}, 5), (PathPoint{1, 2}));
    EXPECT_EQ(along(book, {1, 1}, -5), (PathPoint{1, 0}));
    EXPECT_EQ(along(book, {3, 0}, 5), (PathPoint{3, 0})) << "no path at all";
    EXPECT_EQ(toNeighbour(book, both, {1, 1}, 1), (PathPoint{2, 1}));
    EXPECT_EQ(toNeighbour(book, both, {1, 1}, -1), (PathPoint{2, 1})) << "round";
    // A yard in a hundredth of a second is 204.5 mph.
    RunRecord level;
    for (int x = 0; x < 4; ++x)
        level.Path.push_back({static_cast<float>(x), 0});
    for (const std::size_t index : {0U, 2U, 3U})
        EXPECT_NEAR(speedAt(level, index), 204.545, 0.001) << index;
    // From the tee to the landing in two hundredths: 5062.7 yards a second.
    EXPECT_EQ(readoutOf(book, {2, 1}),
              "Data set 2 Low, \"new\"\nx 50.6 yd, height 30.0 yd\n0.01 s, 10355.6 mph");
}

/// Where the leftmost and the rightmost mark of a chart end.
std::pair<double, double> marksOf(const PictureBox& canvas) {
    std::pair ends(1e9, 0.0);
    for (const DrawnCircle& disc : shapesOf<DrawnCircle>(canvas)) {
        ends.first = std::min(ends.first, disc.centre.x - disc.radius - disc.pen * 7.5);
        ends.second = std::max(ends.second, disc.centre.x + disc.radius);
    }
    for (const DrawnLine& line : shapesOf<DrawnLine>(canvas))
        ends.second = std::max(ends.second, line.to.x);
    return ends;
}

TEST_F(DataSetsTest, StandOnTheLandingChartToScale) {
    ControlSet controls;
    PictureBox canvas(controls, "chart", kWhite, kBlack);
    canvas.setGeometry({0, 0, 9000, 4000});
    drawLandings(canvas, book, std::vector{1, 2, 3});
    // Marks: carries by their discs, totals by the ends of the bars.
    std::map<double, double> discs; // place down -> across
    for (const DrawnCircle& disc : shapesOf<DrawnCircle>(canvas))
        discs[disc.centre.y] = disc.centre.x;
    ASSERT_EQ(discs.size(), 2U) << "a flight that failed has no landing";
    const auto [y1, carry1] = *discs.begin();
    const auto [y2, carry2] = *discs.rbegin();
    double total1 = 0;
    double total2 = 0;
    for (const DrawnLine& line : shapesOf<DrawnLine>(canvas))
        if (line.pen == 2 && line.from.y == line.to.y)
            (line.from.y == y1 ? total1 : total2) = line.to.x;
    const double yard = (total1 - carry1) / 10;
    EXPECT_GT(yard, 100);
    EXPECT_NEAR((carry2 - carry1) / yard, 1.25, 1e-6);
    EXPECT_NEAR((total2 - carry2) / yard, 3, 1e-6);
    Texts texts;
    for (const DrawnText& text : shapesOf<DrawnText>(canvas))
        texts.push_back(text.text);
    for (const char* text :
         {"1", "2 Low, \"new\"", "100.0 / 110.0", "101.2 / 104.2", "base: 1", "106", "no landing"})
        EXPECT_EQ(std::count(texts.begin(), texts.end(), text), 1) << text;
    // Narrow or wide, with any letters: all names stand left of all marks, all figures right of
    // them.
    for (const double width : {5000.0, 9000.0, 20000.0})
        for (const double letter : {60.0, 160.0}) {
            book.setTag(1, {std::string(30, 'W') + std::string(30, 'i'), true, 4});
            canvas.cls();
            canvas.setGeometry({0, 0, width, 4000});
            canvas.setTextMeasure(
                [letter](std::string_view text) { return letter * double(text.size()); });
            drawLandings(canvas, book, std::vector{1, 2, 3});
            const auto [first, last] = marksOf(canvas);
            for (const DrawnText& text : shapesOf<DrawnText>(canvas)) {
                const double extent = letter * double(text.text.size());
                const double left = text.place.x - text.anchor.x * extent;
                EXPECT_GE(left, 0) << text.text;
                EXPECT_LE(left + extent, width + 1) << text.text;
                EXPECT_TRUE(text.anchor.y != 0.5 || left + extent < first || left > last)
                    << text.text;
            }
        }
    for (const int base : {1, 3}) { // the other is shown alone; the second base has not landed
        book.setBase(base);
        canvas.cls();
        drawLandings(canvas, book, std::vector{2});
        std::set<double> dashed; // places across
        for (const DrawnLine& line : shapesOf<DrawnLine>(canvas))
            if (line.from.x == line.to.x && line.to.y - line.from.y == 60)
                dashed.insert(line.from.x);
        EXPECT_EQ(dashed.size(), base == 1 ? 2U : 0U) << "carry and total, though not shown";
    }
    canvas.cls();
    drawLandings(canvas, book, {});
    EXPECT_EQ(canvas.drawings().size(), 1U) << "the word that there is none";
}

TEST_F(DataSetsTest, HaveAChartOfPathsWithTheirNumbersOnThem) {
    ControlSet controls;
    PictureBox canvas(controls, "chart", kWhite, kBlack);
    canvas.setGeometry({0, 0, 7000, 3000});
    drawPaths(canvas, book, std::vector{1, 2, 3});
    const auto curves = shapesOf<DrawnCurve>(canvas);
    ASSERT_EQ(curves.size(), 2U) << "a flight that failed has none";
    const auto& [foot, top, end] =
        std::tie(curves[1].points[0], curves[1].points[1], curves[1].points[2]);
    EXPECT_NEAR(end.x - top.x, top.x - foot.x, 0.01);
    EXPECT_EQ(end.y, foot.y) << "not below the ground";
    std::map<std::string, Place> at;
    for (const DrawnText& text : shapesOf<DrawnText>(canvas))
        if (text.halo || text.anchor == kTopMiddle)
            at[text.text] = text.place;
    // The axis is the scale of the paths, and each number stands on its path.
    EXPECT_NEAR((end.x - foot.x) / (at.at("100").x - at.at("0").x), 1.0125, 1e-5);
    for (const DrawnCurve& curve : curves) {
        const Place number = at.at(&curve == curves.data() ? "1" : "2");
        EXPECT_TRUE(std::any_of(curve.points.begin(), curve.points.end(),
                                [&](const TrajectoryPoint& point) {
                                    return std::hypot(point.x - number.x, point.y - number.y) < 1;
                                }));
        EXPECT_GT(number.x, top.x) << "where paths have parted";
    }
    drawPaths(canvas, book, {});
}

struct TickedPlot : testing::Test, ScriptedForm {};

TEST_F(TickedPlot, ShowsWhatIsTickedUnderItsOwnNumber) {
    main.showDataSets = [this] { shown.emplace_back("data sets"); };
    form.mnuDataSets.Click();
    EXPECT_EQ(shown, Texts{"data sets"});
    run(17);
    const auto all = form.Picture2.drawings();
    for (int number = 1; number <= 17; ++number)
        form.Runs.setTag(number, {"", number == 3 || number == 17, 4});
    main.plot.redraw();
    EXPECT_EQ(curves(), (std::vector{curveColour(3), curveColour(17)}));
    Texts legend;
    for (const DrawnText& text : shapesOf<DrawnText>(form.Picture1))
        if (text.text.starts_with("Club"))
            legend.push_back(text.text);
    EXPECT_EQ(legend, (Texts{"Club 1/3", "Club 1/17"}));
    EXPECT_EQ(main.plot.inWords(), "2 of 17 data sets shown. " + wordsOf(form.Runs, 3) + ". " +
                                       wordsOf(form.Runs, 17) + ".");
    form.mnuPrint.Click();
    EXPECT_EQ(shapesOf<DrawnCurve>(form.Picture4).size(), 2U);
    run();
    EXPECT_EQ(curves().size(), 3U) << "a new one is ticked";
    EXPECT_TRUE(form.StatusBar1.caption().starts_with("Data set 18: carry 2"))
        << form.StatusBar1.caption();
    messages.answers = {Answer::Yes};
    press(form.Command2);
    EXPECT_EQ(form.StatusBar1.caption(), "");
    run(17);
    EXPECT_EQ(form.Picture2.drawings(), all) << "all ticked again, as given";
}

/// All that a shot depends on, and what it came to.
Texts told(const RunRecord& run) {
    return {composeResultRow(run, run.ClubNo, "n"), std::to_string(run.CarryTime)};
}

TEST(DataSetsTaken, FlyAgainAsTheyFlew) {
    for (const int mode : {0, 1, 2, 3, 4}) {
        ScriptedForm user;
        MainForm& form = user.form;
        form.optIron.select();
        modeButton(form, mode).select();
        form.cmbClubNo.select(3);
        form.BallOpt2.select();
        user.enter(form.txtWind, "-7.3");
        user.enter(form.txtAltitude, "1234");
        if (mode == 0)
            user.enter(form.txtBallSpin, "2345");
        else
            user.enter(form.txtHeadSpeed, "91.7");
        if (mode == 4)
            user.enter(form.txtLaunchAngle, "17.3");
        user.run();
        const RunRecord flown = form.Runs[1];
        const Shot shot = shotOf(form.Runs, 1);
        form.optWood.select();
        modeButton(form, (mode + 1) % 3).select();
        form.BallOpt1.select();
        user.enter(form.txtWind, "3");
        user.enter(form.txtLaunchAngle, "9");
        ASSERT_TRUE(user.main.shotEntry.enterShot(shot)) << mode;
        EXPECT_EQ(user.messages.texts, Texts()) << mode;
        EXPECT_TRUE(modeButton(form, mode == 3 ? 2 : mode).selected());
        user.run();
        RunRecord again = form.Runs.newest();
        again.CurveColor = flown.CurveColor;
        again.Mode = flown.Mode; // a club of a batch is taken by its values
        if (mode == 3)
            again.SpeedIncrement = flown.SpeedIncrement;
        EXPECT_EQ(told(again), told(flown)) << mode;
        EXPECT_EQ(again.Path, flown.Path) << mode;
        EXPECT_EQ(form.shot.BallType, 2) << mode;
    }
}

TEST(DataSetsTaken, StayAwayWhereOneValueWouldBeRefused) {
    ScriptedForm user;
    Shot shot = acceptedShot(user.form, user.form.clubs);
    shot.Temperature = 130;
    shot.WindSpeed = 5;
    EXPECT_FALSE(user.main.shotEntry.enterShot(shot));
    EXPECT_EQ(user.messages.texts.size(), 1U);
    EXPECT_EQ(user.form.shot.WindSpeed, 0);
}

TEST(DataSetExports, GoToTheFilesThatTheUserNames) {
    const TemporaryFolder folder;
    ScriptedForm user;
    user.run(2);
    user.form.Runs.setTag(2, {"mine", false, 4});
    const std::tuple<MenuItem*, const char*, std::string> table[] = {
        {&user.form.mnuExportTable, "data sets.csv", "Show,No.,Name,Club,Mode,Carry [yd],"},
        {&user.form.mnuExportPaths, "paths.csv", "Data set,Name,Time [s],x [yd],y [yd]\r\n1,,0,"},
        {&user.form.mnuExportPlot, "plot.png", "picture of png"}};
    user.main.plotFile = [](std::string_view ending) {
        return std::optional("picture of " + std::string(ending));
    };
    for (const auto& [item, suggested, begin] : table) {
        user.files.choose(folder.path(suggested));
        item->Click();
        EXPECT_EQ(user.files.suggestedName, suggested);
        EXPECT_TRUE(contentOf(folder.path(suggested)).starts_with(begin)) << suggested;
    }
    const std::string csv = contentOf(folder.path("data sets.csv"));
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 3) << "ticked or not";
    user.main.plotFile = [](std::string_view) { return std::optional<std::string>(); };
    user.files.choose(folder.path("none.png"));
    user.form.mnuExportPlot.Click();
    EXPECT_EQ(folder.entries(), 3) << "no picture, no file";
    user.files.choose(folder.path("missing/x.csv"));
    user.form.mnuExportPaths.Click();
    EXPECT_EQ(user.messages.texts.size(), 1U);
}

} // namespace
} // namespace parabolt::support
