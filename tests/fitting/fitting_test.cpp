#include "exchange/csv_reader.h"
#include "fitting/bag_table.h"
#include "fitting/carry_chart.h"
#include "fitting/data_set_entry.h"
#include "fitting/import_review.h"
#include "fitting/measured_table.h"
#include "fitting/measured_words.h"
#include "mainform/form_shot.h"
#include "numbers/text_number.h"
#include "tables/table_text.h"
#include "tests/support/scripted_form.h"
#include "tests/support/temporary_folder.h"

#include <numeric>

namespace parabolt::support {
namespace {

std::string measuredFile(const std::string& name) {
    return contentOf(PARABOLT_TEST_DATA "/measured/" + name);
}

/// Two clubs of a device that computes its carry, and a driver.
constexpr auto kTwoClubs =
    "Club,Ball speed [mph],Launch angle [deg],Spin [rpm],Carry [yd],Total [yd]\n"
    "7i,120,17,6500,158,166\n"
    "7i,118,18,6400,154,161\n"
    "Driver,160,12,2600,243,266\n"
    "Gamer,140,13,4000,,\n";

/// A user of the windows without windows.
struct FittingTest : testing::Test {
    void take(const std::string& bytes) {
        const auto review = ImportReview::open(bytes, {});
        ASSERT_TRUE(review) << review.why().message;
        fitting.take(review->preview(), "file.csv", {});
    }
    void compute() {
        comparison.follow(acceptedShot(form, form.clubs));
        EXPECT_TRUE(
            comparison.accept(*computeComparison(comparison.request()), comparison.generation()));
        shots.refresh();
        clubs.refresh();
    }
    static std::string cell(const TableSource& table, std::size_t row, std::string_view key) {
        for (std::size_t i = 0; i < table.columns().size(); ++i)
            if (table.columns()[i].key == key)
                return table.cell(row, i).text;
        return "no column " + std::string(key);
    }
    static std::string heading(const TableSource& table, std::string_view key) {
        for (const TableColumn& column : table.columns())
            if (column.key == key)
                return column.heading;
        return {};
    }

    ScriptedForm user;
    MainForm& form = user.form;
    Fitting fitting{form};
    Comparison comparison{fitting};
    MeasuredTable shots{fitting, comparison};
    ClubsTable clubs{fitting, comparison};
};

TEST_F(FittingTest, TheDeskCarriesTheSession) {
    int changes = 0;
    fitting.Changed.connect([&] { ++changes; });
    take(kTwoClubs);
    fitting.change([](MeasuredSession& session) { session.player = "Ann"; });
    const MeasuredSession kept = fitting.session();
    const Desk desk = takeDesk(form);
    user.main.sessions.actionEnded();
    take(measuredFile("garmin.csv"));
    fitting.follow();
    EXPECT_EQ(changes, 3) << "its own state is no other desk's";
    layDesk(form, desk);
    Fitting reopened(form);
    reopened.follow();
    EXPECT_EQ(reopened.session(), kept);
    fitting.follow();
    EXPECT_EQ(fitting.session(), kept);
    EXPECT_EQ(changes, 4);
    fitting.change([](MeasuredSession& session) { session.entries.clear(); });
    form.mnuGoBack.Click(); // to the shots before the second import
    fitting.follow();
    EXPECT_EQ(fitting.session().entries.size(), 4U);
    EXPECT_EQ(form.mnuGoBack.caption(), "Go &Back: no data sets, 10:32");
    user.main.sessions.actionEnded();
    take(kTwoClubs);
    EXPECT_EQ(form.mnuGoBack.caption(), "Go &Back: 4 measured shots, 10:32");
    user.run();
    user.main.sessions.actionEnded();
    take(kTwoClubs);
    EXPECT_EQ(form.mnuGoBack.caption(), "Go &Back: 1 data set, 10:32");
    for (const char* broken : {"", "{", "[]", R"({"entries":7})"}) {
        form.windows[kMeasuredKey] = broken;
        fitting.follow();
        EXPECT_EQ(fitting.session(), MeasuredSession()) << broken;
    }
}

TEST_F(FittingTest, TheModelStandsBesideTheDevice) {
    take(kTwoClubs);
    EXPECT_EQ(cell(shots, 0, "modelCarry"), "") << "not computed yet";
    EXPECT_EQ(comparisonInWords(fitting.session(), comparison), "The flights are being computed.");
    compute();
    Shot flown;
    flown.LaunchSpeed = 120;
    flown.LaunchAngle = 17;
    flown.RPM = 6500;
    const double carry = figuresOf(fly(flown)->record).carry;
    EXPECT_EQ(cell(shots, 0, "modelCarry"), formatPattern(carry, "0.0"));
    EXPECT_EQ(cell(shots, 0, "differenceCarry"), formatPattern(carry - 158, "0.0"));
    EXPECT_EQ(cell(shots, 3, "differenceCarry"), "");
    EXPECT_EQ(cell(shots, 3, "deviceCarry"), "");
    EXPECT_EQ(heading(shots, "deviceCarry"), "Device carry [yd]");
    ASSERT_EQ(clubs.rowCount(), 3U);
    EXPECT_EQ(cell(clubs, 0, "number") + cell(clubs, 0, "carry"), "2156.0");
    EXPECT_EQ(cell(clubs, 0, "carrySd"), "2.8") << "the root of 8";

    // Left out: it counts no longer, and its row shows it.
    shots.strike(std::vector<std::size_t>{0});
    clubs.refresh();
    EXPECT_EQ(cell(clubs, 0, "carry"), "154.0");
    EXPECT_EQ(shots.cell(0, 3).look, TableCell::Look::Struck);
    EXPECT_EQ(sourceInWords(fitting.session()), "file.csv (Parabolt): 4 shots, 1 left out");
    shots.strike(std::vector<std::size_t>{0, 1}); // one of them isn't out yet
    EXPECT_TRUE(fitting.session().entries[1].struck);
    shots.strike(std::vector<std::size_t>{0, 1});
    EXPECT_FALSE(fitting.session().entries[0].struck);
    shots.strike(std::vector<std::size_t>{0, 1, 2, 3});
    EXPECT_EQ(comparisonInWords(fitting.session(), comparison), "All shots are left out.");
    shots.strike(std::vector<std::size_t>{0, 1, 2, 3});
    const std::string words = comparisonInWords(fitting.session(), comparison);
    EXPECT_TRUE(words.starts_with("Model less device, mean of 3 shots: carry ")) << words;
    EXPECT_NE(words.find("The device computes its carry"), std::string::npos);
}

TEST_F(FittingTest, TheComparisonSaysNoMoreThanTheFileTells) {
    const std::string head = "Club,Ball speed [mph],Launch angle [deg],Spin [rpm],Carry [yd]\n";
    struct Case {
        std::string rows, said;
        bool isAnotherModel;
    };
    const std::string driver = "Driver,160,12,2600,";
    for (const Case& each :
         {Case{driver + "10\n,120,17,6500,158\n", "Closest with (no club) (", true},
          {driver + "\n", "The file brings no figure to compare", false}}) {
        take(head + each.rows);
        compute();
        const std::string words = comparisonInWords(fitting.session(), comparison);
        EXPECT_NE(words.find(each.said), std::string::npos) << words;
        EXPECT_EQ(words.find("another model") != std::string::npos, each.isAnotherModel) << words;
    }
}

TEST_F(FittingTest, FlightsFollowTheWeatherAndNothingElse) {
    take(kTwoClubs);
    compute();
    const auto calm = comparison.flights()[0].figures.carry;
    user.enter(form.txtHeadSpeed, "80"); // flies nothing here
    shots.tick(0, 0, true);
    EXPECT_FALSE(comparison.follow(acceptedShot(form, form.clubs)));
    user.enter(form.txtWind, "15");
    ASSERT_TRUE(comparison.follow(acceptedShot(form, form.clubs)));
    EXPECT_FALSE(comparison.isCurrent());
    EXPECT_EQ(comparisonInWords(fitting.session(), comparison), "The flights are being computed.");
    EXPECT_FALSE(comparison.accept({}, comparison.generation() - 1)) << "of the calm";
    compute();
    EXPECT_LT(comparison.flights()[0].figures.carry, calm - 10);
    // Turned into calm air, a carry against the wind is longer than the device's.
    fitting.change([](MeasuredSession& session) { session.normalise = true; });
    const ModelFlight* flown = comparison.flights().data();
    compute();
    EXPECT_EQ(comparison.flights().data(), flown) << "the other air flies none of them anew";
    EXPECT_GT(std::stod(cell(shots, 0, "normalised")), 168);
    user.enter(form.txtWind, "5");
    comparison.follow(acceptedShot(form, form.clubs));
    fitting.change([](MeasuredSession& session) { session.air.altitude = 100; });
    compute(); // the air is another one before the flights in the new wind were known
    EXPECT_NE(comparison.flights().data(), flown);
    user.enter(form.txtWind, "15");
    take(kTwoClubs); // as many shots as before, and none of them flown yet
    EXPECT_FALSE(comparison.isCurrent());
    EXPECT_EQ(cell(shots, 0, "modelCarry"), "");
    compute();
    EXPECT_EQ(cell(shots, 3, "normalised"), "");
    EXPECT_NE(
        comparisonInWords(fitting.session(), comparison).find("take such a correction for half"),
        std::string::npos);
    std::stop_source stopped;
    stopped.request_stop();
    EXPECT_FALSE(computeComparison(comparison.request(), stopped.get_token()));
}

TEST_F(FittingTest, ItsOwnTableReadsBack) {
    for (const char* name : {"trackman.csv", "garmin.csv", "flightscope.csv", "own.csv"}) {
        take(measuredFile(name));
        compute();
        shots.strike(std::vector<std::size_t>{1});
        const auto before = fitting.session();
        const auto back = ImportReview::open(tableAsCsv(shots, completeTable(shots)), {});
        ASSERT_TRUE(back) << name;
        EXPECT_EQ(back->preview().computesCarry, before.computesCarry) << name;
        for (const ImportRow& row : back->preview().rows)
            EXPECT_EQ(row.reason, "") << name;
        const auto taken = back->preview().taken();
        ASSERT_EQ(taken.size(), before.entries.size()) << name;
        for (std::size_t i = 0; i < taken.size(); ++i) {
            EXPECT_EQ(taken[i].club, before.entries[i].shot.club);
            EXPECT_EQ(taken[i].ballSpeed, before.entries[i].shot.ballSpeed);
            EXPECT_EQ(taken[i].backSpin, before.entries[i].shot.backSpin);
            EXPECT_EQ(taken[i].device, before.entries[i].shot.device) << name;
            EXPECT_EQ(taken[i].air, before.entries[i].shot.air) << name;
        }
        fitting.take(back->preview(), "back.csv", {});
        for (std::size_t i = 0; i < taken.size(); ++i)
            EXPECT_EQ(fitting.session().entries[i].struck, i == 1) << name;
    }
}

TEST(ImportReview, AsksWhatNobodyKnowsAndRemembersIt) {
    MemoryPreferences preferences;
    ColumnMemory memory(preferences);
    auto review = ImportReview::open(measuredFile("unknown.csv"), memory.choices());
    ASSERT_TRUE(review);
    EXPECT_EQ(review->device(), nullptr);
    EXPECT_EQ(review->columnTitles(), (Texts{"Stick", "V ball", "Loft out", "Spin", "Flight"}));
    EXPECT_EQ(review->preview().count(), 0U);
    EXPECT_EQ(review->cell(0, 8).text, "no ball speed");
    review->tick(0, 0, true);
    EXPECT_EQ(review->preview().count(), 0U) << "a row with a reason stays out";
    ColumnChoice choice{"Radar", true, {}};
    using enum Quantity;
    using enum MeasuredUnit;
    choice.columns = {{0, {}, Club, None},
                      {1, {}, BallSpeed, MetresPerSecond},
                      {2, {}, LaunchAngle, Degrees},
                      {3, {}, BackSpin, Rpm},
                      {4, {}, Carry, Metres}};
    review->choose(choice);
    const auto shots = review->preview().taken();
    ASSERT_EQ(shots.size(), 2U);
    EXPECT_NEAR(shots[0].ballSpeed, 111.85, 0.01); // 180 km/h
    EXPECT_NEAR(*shots[0].device.carry, 153.1, 0.05);
    EXPECT_EQ(review->examples(3), (Texts{"rpm", "6000", "6100"}));
    EXPECT_EQ(review->likelyUnit(1, BallSpeed), MetresPerSecond);
    EXPECT_EQ(review->likelyUnit(1, Time), Seconds);
    ColumnChoice twice = choice;
    twice.columns[4].quantity = BackSpin;
    review->choose(twice);
    EXPECT_FALSE(review->canBeTaken());
    EXPECT_TRUE(review->summary().starts_with("Two columns are chosen as Back spin."));
    review->choose(choice);
    EXPECT_TRUE(review->canBeTaken());
    EXPECT_TRUE(review->summary().starts_with("No known")) << review->summary();
    review->tick(1, 0, false);
    EXPECT_EQ(review->preview().count(), 1U);
    review->nameDevice("Radar", true); // sets the name and nothing else
    EXPECT_EQ(review->preview().count(), 1U);
    review->choose(twice);
    review->choose(choice);
    EXPECT_FALSE(review->preview().rows[1].taken) << "the user has emptied its box";
    EXPECT_EQ(review->unknownClubs(InitClubTables(), {}), Texts{"Seven"});
    EXPECT_TRUE(review->unknownClubs(InitClubTables(), {{"Seven", {true, 7}}}).empty());

    memory.remember(review->choice());
    const auto again = ImportReview::open(measuredFile("unknown.csv"), memory.choices());
    EXPECT_EQ(again->preview().count(), 2U);
    EXPECT_EQ(again->preview().device, "Radar");
    EXPECT_EQ(again->summary(), "Columns as you chose them last time: 2 of " +
                                    std::to_string(again->rowCount()) + " rows will be taken.");
    for (int i = 0; i < 20; ++i) {
        ColumnChoice other = choice;
        other.columns[0].heading = "Club " + std::to_string(i % 12);
        memory.remember(other);
    }
    EXPECT_EQ(memory.choices().size(), 8U);
    EXPECT_EQ(memory.choices()[0].columns[0].heading, "Club 7");
    // Without headings columns go by their numbers.
    EXPECT_EQ(ImportReview::open("150,12,2600\n151,13,2500\n", {})->columnTitles().front(),
              "Column 1: 150");
    EXPECT_FALSE(ImportReview::open("", {}));
}

TEST_F(FittingTest, ShotsBecomeDataSetsInTheirAir) {
    user.enter(form.txtTemperature, "80");
    Shot cold = takeShot(form, form.clubs);
    cold.Temperature = 40;
    cold.LaunchSpeed = 150;
    Shot warm = cold;
    warm.Temperature = 80;
    const auto run = [&](const std::vector<NamedShot>& given) {
        return runOnForm(form, user.main.shotEntry, given);
    };
    EXPECT_EQ(run({{"7i, line 2", cold}, {"D", warm}}), (SeriesReport{2, 2, ""}));
    ASSERT_EQ(form.Runs.count(), 2);
    EXPECT_EQ(form.Runs[1].Temperature, 40);
    EXPECT_EQ(form.Runs[2].Temperature, 80);
    EXPECT_EQ(form.Runs[1].Mode, OperatingMode::Launch);
    EXPECT_EQ(form.Runs.tag(1).name, "7i, line 2");
    EXPECT_EQ(form.txtTemperature.text(), "80");
    cold.Temperature = 10; // no field takes it: the others come all the same
    EXPECT_TRUE(seriesInWords(run({{"cold", cold}, {"warm", warm}}))
                    .starts_with("1 of 2 shots became a data set. cold: Enter a value between 20"));
    EXPECT_TRUE(user.messages.texts.empty());
    EXPECT_EQ(form.shot.Temperature, 80);
    form.Command1.setEnabled(false); // as while a study runs
    EXPECT_TRUE(seriesInWords(run({{"warm", warm}})).starts_with("The shot became no data set."));
    form.Command1.setEnabled(true);

    // A full buffer asks: yes ends the series, no begins afresh.
    const std::vector<NamedShot> many(30, {"", warm});
    user.messages.answers = {Answer::Yes};
    user.files.cancel("/");
    EXPECT_EQ(run(many), (SeriesReport{30, 21, "The data buffer is full."}));
    EXPECT_EQ(form.Runs.count(), 24);
    user.messages.answers = {Answer::No};
    EXPECT_EQ(run(many), (SeriesReport{30, 24, "A book holds 24 data sets."}));
    EXPECT_EQ(form.Runs.count(), 24);
}

TEST_F(FittingTest, TheBagTellsItsGaps) {
    take(kTwoClubs);
    BagTable bag(fitting, form.clubs);
    const Shot conditions = acceptedShot(form, form.clubs);
    EXPECT_EQ(cell(bag, 0, "carry"), "");
    EXPECT_EQ(cell(bag, 0, "measuredGap") + " " + cell(bag, 0, "measuredGapIs"), "87.0 wide");
    EXPECT_EQ(bag.gaps().size(), 1U) << "243 to 156 yards, before anything is flown";
    for (std::size_t row = 0; row < bag.rowCount(); ++row)
        bag.tick(row, 0, false);
    bag.fly(conditions);
    EXPECT_TRUE(bag.summary().starts_with("No club is ticked.")) << bag.summary();
    bag.tick(0, 0, true);
    bag.fly(conditions);
    EXPECT_TRUE(bag.summary().starts_with("A gap lies between two")) << bag.summary();
    for (std::size_t row = 0; row < bag.rowCount(); ++row)
        bag.tick(row, 0, row == 0 || row == 14 || row == 15); // driver, 7 and 8 iron
    bag.fly(conditions);
    EXPECT_EQ(bag.gaps().size(), 2U);
    EXPECT_TRUE(bag.isCurrent(conditions));
    EXPECT_EQ(cell(bag, 14, "measuredCarry"), "156.0");
    EXPECT_EQ(cell(bag, 14, "shots"), "2");
    EXPECT_NEAR(std::stod(cell(bag, 0, "gap")),
                std::stod(cell(bag, 0, "carry")) - std::stod(cell(bag, 14, "carry")), 0.11);
    EXPECT_EQ(cell(bag, 0, "gapIs"), "wide");
    EXPECT_EQ(cell(bag, 14, "gapIs"), "good");
    EXPECT_TRUE(bag.summary().starts_with("Too wide: Driver to 7i ")) << bag.summary();
    EXPECT_TRUE(bag.summary().ends_with("Measured, but not in the bag: Gamer."));
    // Names and limits fly nothing anew; a name also finds its measured shots.
    bag.enter(15, 1, "Gamer");
    fitting.change([](MeasuredSession& session) { session.bag.narrowest = 17; });
    bag.refresh();
    EXPECT_TRUE(bag.isCurrent(conditions));
    EXPECT_EQ(cell(bag, 14, "gapIs"), "narrow");
    EXPECT_EQ(bag.summary().find("not in the bag"), std::string::npos);
    bag.enter(15, 1, "");
    EXPECT_EQ(cell(bag, 15, "name"), "8i");
    fitting.change([](MeasuredSession& session) {
        session.bag.speeds = HeadSpeeds::Falling;
        session.bag.firstSpeed = 52; // with the 7 iron 46
    });
    bag.fly(conditions);
    EXPECT_EQ(cell(bag, 14, "carry"), "no flight");
    EXPECT_NE(bag.summary().find("No flight with 7i, 8i: Enter a head speed between 50 and 165"),
              std::string::npos)
        << bag.summary();
    fitting.change([](MeasuredSession& session) { session.bag.speeds = HeadSpeeds::OfSet; });
    bag.fly(conditions);
    // The weather, the set, the clubs owned do.
    Shot windy = conditions;
    windy.WindSpeed = 10;
    EXPECT_FALSE(bag.isCurrent(windy));
    bag.tick(1, 0, true);
    EXPECT_FALSE(bag.isCurrent(conditions));
    EXPECT_EQ(bag.cell(2, 1).look, TableCell::Look::Faint);
}

TEST(CarryChart, StandsToScale) {
    ControlSet controls;
    PictureBox canvas(controls, "chart", kWhite, kBlack);
    canvas.setGeometry({0, 0, 9000, 6000});
    const std::vector<CarryLine> lines = {
        {"7i", 150, Spread{3, 140, 10, 125, 155}}, {"Driver", 250, std::nullopt}, {"9i", 145, {}}};
    const std::vector<BagGap> gaps = {{0, 1, 100, BagGap::Kind::TooWide},
                                      {2, 0, 5, BagGap::Kind::TooNarrow}};
    drawCarries(canvas, lines, gaps, "Device", "nothing");
    std::map<std::string, Place> texts;
    for (const DrawnText& text : shapesOf<DrawnText>(canvas))
        texts[text.text] = text.place;
    EXPECT_LT(texts.at("Driver").y, texts.at("7i").y) << "the longest first";
    EXPECT_LT(texts.at("7i").y, texts.at("9i").y);
    EXPECT_TRUE(texts.contains("100.0 wide") && texts.contains("5.0 narrow"));
    const auto yard = [&](double yards) { // from two numbers of the axis
        return texts.at("140").x + (yards - 140) * (texts.at("240").x - texts.at("140").x) / 100;
    };
    const auto strokes = shapesOf<DrawnLine>(canvas);
    const auto stands = [&](double yards, double y) {
        return std::any_of(strokes.begin(), strokes.end(), [&](const DrawnLine& line) {
            return std::abs(line.from.x - yard(yards)) < 1 && line.from.x == line.to.x &&
                   line.from.y < y && line.to.y > y && line.pen == 3;
        });
    };
    EXPECT_TRUE(stands(150, texts.at("7i").y) && stands(250, texts.at("Driver").y));
    EXPECT_TRUE(stands(140, texts.at("7i").y)) << "the mean of the measured";
    const auto boxes = shapesOf<DrawnBox>(canvas);
    EXPECT_TRUE(std::any_of(boxes.begin(), boxes.end(), [&](const DrawnBox& box) {
        return std::abs(box.corner.x - yard(130)) < 1 &&
               std::abs(box.size.x - yard(150) + yard(130)) < 1;
    })) << "one deviation to both sides";
    EXPECT_EQ(carriesInWords(lines, "Device"),
              "7i: computed 150.0 yd, device 140.0 yd \u00b1 10.0; Driver: computed 250.0 yd; "
              "9i: computed 145.0 yd");
    std::vector<CarryLine> many(60, lines[0]); // names that have no room are left out
    canvas.setGeometry({0, 0, 9000, 6000});
    drawCarries(canvas, many, {}, "Device", "nothing");
    const auto named = shapesOf<DrawnText>(canvas);
    std::vector<double> heights;
    for (const DrawnText& text : named)
        if (text.text == "7i")
            heights.push_back(text.place.y);
    ASSERT_GT(heights.size(), 10U);
    EXPECT_GE(heights[1] - heights[0], 200) << "as high as a line of text";
    drawCarries(canvas, {}, {}, "Device", "nothing");
    EXPECT_EQ(shapesOf<DrawnText>(canvas).at(0).text, "nothing");
}

} // namespace
} // namespace parabolt::support
