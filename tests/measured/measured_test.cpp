#include "measured/measured_codec.h"
#include "shots/fly.h"
#include "shots/run_book.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace parabolt {
namespace {

MeasuredShot measured(std::string club, float speed, float angle, float spin,
                      DeviceFigures device = {}) {
    return {.line = 1,
            .club = std::move(club),
            .ballSpeed = speed,
            .launchAngle = angle,
            .backSpin = spin,
            .device = device,
            .air = {}};
}

DeviceFigures carried(std::optional<double> carry, std::optional<double> total = {},
                      std::optional<double> time = {}) {
    return {carry, total, {}, {}, time};
}

Shot windy() {
    Shot shot;
    shot.WindSpeed = 8;
    shot.h = 2500;
    shot.Temperature = 55;
    shot.CD1 = -0.1F;
    shot.BallType = 2;
    shot.Mode = OperatingMode::Auto; // as the main form may stand
    shot.sources.club = ClubRecord{};
    return shot;
}

TEST(MeasuredFlights, AreThoseOfTheProgram) {
    std::mt19937 random(3);
    const auto draw = [&](double from, double to) {
        return static_cast<float>(std::uniform_real_distribution(from, to)(random));
    };
    std::vector<MeasuredShot> shots;
    for (int i = 0; i < 300; ++i) {
        shots.push_back(measured("", draw(30, 250), draw(0, 55), draw(0, 22000)));
        shots.back().air.temperature = draw(20, 120);
        shots.back().air.pressure = draw(16, 34);
    }
    for (const bool ownAir : {false, true}) {
        const auto flights = flyMeasured(shots, windy(), ownAir);
        ASSERT_EQ(flights.size(), shots.size());
        for (std::size_t i = 0; i < shots.size(); ++i) {
            const Shot given = shotOf(shots[i], windy(), ownAir);
            const auto flown = fly(given);
            ASSERT_EQ(flights[i].fault.has_value(), !flown) << i;
            if (!flown)
                continue;
            const Figures figures = figuresOf(flown->record);
            for (const ComparedFigure& figure : comparedFigures())
                EXPECT_EQ(flights[i].figures.*figure.model, figures.*figure.model) << i;
            EXPECT_EQ(given.Temperature == windy().Temperature, !ownAir);
            EXPECT_EQ(given.WindSpeed, 8);
        }
    }
}

TEST(MeasuredFlights, FlyInTheAirOfTheFile) {
    const auto densityOf = [](MeasuredAir air) {
        MeasuredShot shot = measured("", 140, 12, 2600);
        shot.air = air;
        const Shot given = shotOf(shot, windy(), true);
        EXPECT_GE(given.BaroPressure, 25) << "within the field of the main form";
        EXPECT_LE(given.h, 15000);
        return deriveAir(given)->AirDensity;
    };
    // Dry air at 15 degrees: 1.2250 kg/m3 at 1013.25 hPa, 0.8700 at 719.6, and in proportion.
    MeasuredAir air{{}, {}, {}, 59, {}, {}, 0};
    for (const auto& [pressure, density] :
         {std::pair(29.921, 1.2250), std::pair(25.0, 1.0235), std::pair(21.25, 0.8700)}) {
        air.pressure = pressure;
        EXPECT_NEAR(densityOf(air), density, 0.002) << pressure;
    }
    air.pressure.reset();
    air.density = 1.1;
    EXPECT_NEAR(densityOf(air), 1.1, 0.002);
    air.density = 0.9;
    EXPECT_NEAR(densityOf(air), 0.9, 0.002);
    air.density = 1.45; // no weather of that warmth has it
    EXPECT_NEAR(densityOf(air), deriveAir(windy())->AirDensity, 0.05);

    // What the program has exported flies as it did.
    Shot shot = windy();
    shot.sources = {};
    shot.Mode = OperatingMode::Launch;
    MeasuredShot read = measured("", shot.LaunchSpeed, shot.LaunchAngle, shot.RPM);
    read.air = {8, 2500, {}, 55, {}, shot.BaroPressure, 50};
    EXPECT_EQ(shotOf(read, Shot(), true).h, shot.h);
    Shot calm;
    calm.CD1 = shot.CD1;
    EXPECT_EQ(flyMeasured(std::vector{read}, calm, true).front().figures.carry,
              figuresOf(fly(shot)->record).carry);
}

TEST(MeasuredFlights, GiveNoneOnceStopped) {
    std::stop_source stop;
    stop.request_stop();
    const std::vector shots = {measured("", 140, 12, 2600, carried(200))};
    const auto flown = flyMeasured(shots, Shot(), false);
    EXPECT_EQ(flown.size(), 1U);
    EXPECT_TRUE(flyMeasured(shots, Shot(), false, stop.get_token()).empty());
    EXPECT_TRUE(normalisedCarries(shots, flown, Shot(), {}, stop.get_token()).empty());
    Shot noAir;
    noAir.Temperature = -460; // no air has this temperature
    EXPECT_TRUE(flyMeasured(shots, noAir, false).front().fault);
    EXPECT_FALSE(
        comparedFigures().front().difference(shots.front(), flyMeasured(shots, noAir, false)[0]));
    EXPECT_NEAR(*comparedFigures().front().difference(shots.front(), flown.front()),
                flown.front().figures.carry - 200, 1e-12);
}

TEST(MeasuredFlights, NormaliseByTheRatioOfTheModel) {
    const std::vector shots = {measured("D", 150, 12, 2600, carried(200)),
                               measured("D", 150, 12, 2600), measured("D", 150, 12, 2600)};
    auto flown = flyMeasured(shots, windy(), false);
    const CalmAir air{.altitude = 5000, .temperature = 90, .pressure = 30, .humidity = 20};
    const auto carries = normalisedCarries(shots, flown, windy(), air);
    Shot there = windy();
    there.WindSpeed = 0;
    there.h = 5000;
    there.Temperature = 90;
    there.BaroPressure = 30;
    there.RH = 20;
    const double ratio = flyMeasured(shots, there, false)[0].figures.carry / flown[0].figures.carry;
    EXPECT_GT(ratio, 1.05); // thin, warm and calm
    EXPECT_NEAR(carries[0].value(), 200 * ratio, 1e-9);
    EXPECT_FALSE(carries[1]) << "no carry of the device";
    flown[0].fault = Fault::Overflow;
    EXPECT_FALSE(normalisedCarries(shots, flown, windy(), air)[0]);
}

TEST(ClubStatistics, TellOfTheShotsThatCount) {
    const std::optional<double> none;
    std::vector<MeasuredEntry> entries = {
        {measured("7i", 118, 17, 6000, carried(150, 158)), false, true},
        {measured("D", 150, 12, 2600, carried(240)), false, false},
        {measured("7i", 120, 18, 6400, carried(154)), false, true},
        {measured("7i", 122, 19, 6800, carried(161)), false, true},
        {measured("7i", 60, 30, 9000, carried(20)), true, true},
        {measured("7i", 120, 18, 6400), false, false}};
    std::vector<ModelFlight> flown(entries.size());
    for (std::size_t i = 0; i < flown.size(); ++i)
        flown[i].figures.carry = 160 + static_cast<double>(i);
    flown[5].fault = Fault::Overflow;
    const std::vector<std::optional<double>> normal = {100, none, 110, none, 0, none};
    const auto clubs = clubStatistics(entries, flown, normal);
    ASSERT_EQ(clubs.size(), 2U);
    const ClubStatistics& seven = clubs[0];
    EXPECT_EQ(seven.club, "7i");
    EXPECT_EQ(seven.number, 4U);
    // 150, 154, 161: squares of the distances from 155 are 25, 1, 36.
    EXPECT_EQ(seven.deviceCarry, (Spread{3, 155, std::sqrt(31.0), 150, 161}));
    EXPECT_EQ(seven.deviceTotal, (Spread{1, 158, {}, 158, 158}));
    EXPECT_EQ(seven.modelCarry, (Spread{3, 485 / 3.0, seven.modelCarry->deviation, 160, 163}));
    // 160 - 150, 162 - 154, 163 - 161
    EXPECT_EQ(seven.carryError->number, 3U);
    EXPECT_NEAR(seven.carryError->mean, 20 / 3.0, 1e-12);
    EXPECT_EQ(seven.normalisedCarry->mean, 105);
    EXPECT_EQ(clubs[1].modelCarry->mean, 161);
    EXPECT_FALSE(clubs[1].deviceTotal || clubs[1].normalisedCarry);
    EXPECT_FALSE(clubStatistics(entries, flown)[0].normalisedCarry);

    entries[3].shot.line = 9;
    const auto checked = checkedShots(entries, windy(), false);
    ASSERT_EQ(checked.size(), 3U) << "what is struck stays out";
    EXPECT_EQ(checked[2].shot, shotOf(entries[3].shot, windy(), false));
    EXPECT_EQ(checked[2].shot.Mode, OperatingMode::Launch);
    EXPECT_FALSE(checked[2].shot.sources.club);
    EXPECT_EQ(checked[2].name, "7i, line 9");
    entries[3].shot.ballSpeed = 122.00001F; // its field shows seven digits
    EXPECT_EQ(checkedShots(entries, windy(), false)[2].shot.LaunchSpeed, 122);
    const auto means = meanShots(entries, windy(), false);
    ASSERT_EQ(means.size(), 2U);
    EXPECT_EQ(means[0].shot.LaunchSpeed, 120);
    EXPECT_EQ(means[0].shot.LaunchAngle, 18);
    EXPECT_EQ(means[0].shot.RPM, 6400);
    EXPECT_EQ(means[0].shot.WindSpeed, 8);
    EXPECT_EQ(means[0].name, "7i, mean of 4");
    entries[0].struck = true; // the clubs keep their order
    EXPECT_EQ(clubStatistics(entries, flown)[0].club, "7i");
    entries[1].struck = true;
    EXPECT_EQ(clubStatistics(entries, flown).size(), 1U);
}

TEST(ClubNames, AreUnderstoodAsDevicesPrintThem) {
    const ClubTables set = InitClubTables();
    const std::pair<const char*, std::optional<ClubId>> cases[] = {
        {"Driver", ClubId{false, 1}},
        {"d", ClubId{false, 1}},
        {"DR", ClubId{false, 1}},
        {"W3", ClubId{false, 3}},
        {"3-Wood", ClubId{false, 3}},
        {"5 fw", ClubId{false, 5}},
        {"Holz 10", ClubId{false, 10}},
        {"7i", ClubId{true, 7}},
        {"IRON7 | Medium", ClubId{true, 7}},
        {"I6", ClubId{true, 6}},
        {"6-Iron", ClubId{true, 6}},
        {"Eisen 9", ClubId{true, 9}},
        {"PW", ClubId{true, 10}},
        {"Pitching Wedge", ClubId{true, 10}},
        {"SW", ClubId{true, 12}},
        {"52", ClubId{true, 11}},
        {"58 deg", ClubId{true, 12}},
        {"60\u00B0", ClubId{true, 13}},
        {"64 Wedge", ClubId{true, 14}},
        {"6W", {}},
        {"15i", {}},
        {"H4", {}},
        {"Putter", {}},
        {"70", {}},
        {"", {}},
        {"7 Iron 8", {}},
        {"123456789012i", {}}};
    for (const auto& [text, club] : cases)
        EXPECT_EQ(clubNamed(text, set), club) << text;
    for (const ClubId club : clubsOfSet())
        EXPECT_EQ(clubNamed(usualName(club), set), club) << usualName(club);
    EXPECT_EQ(clubsOfSet().size(), 22U);
    EXPECT_EQ(clubNamed("H4", set, {{"H4", {true, 4}}}), (ClubId{true, 4}));
}

TEST(Bag, FliesTheClubsOwnedAndTellsTheGaps) {
    BagChoice bag = usualBag();
    EXPECT_EQ(std::count_if(bag.clubs.begin(), bag.clubs.end(),
                            [](const BagClub& club) { return club.owned; }),
              14);
    ClubTables set = InitClubTables();
    set.Irons[14].HeadSpeed = 70;
    for (BagClub& club : bag.clubs)
        club.owned = club.club == ClubId{true, 14} || club.club == ClubId{false, 10} ||
                     club.club == ClubId{false, 1};
    auto flights = flyBag(bag, set, windy());
    ASSERT_EQ(flights.size(), 3U);
    EXPECT_EQ(bag.clubs[flights[0].at].name, "Driver");
    EXPECT_EQ(bag.clubs[flights[2].at].name, "LW2");
    for (const BagFlight& flight : flights) { // as the mode Manual flies the values of the record
        const ClubId club = bag.clubs[flight.at].club;
        const ClubRecord& record = recordOf(set, club);
        Shot shot = windy();
        shot.Mode = OperatingMode::Manual;
        shot.sources = {};
        shot.LoftAngle = record.LoftAngle;
        shot.HeadWeight = record.HeadWeight;
        shot.HeadSpeed = record.HeadSpeed;
        shot.COR = record.COR;
        shot.AttackAngle = record.AttackAngle;
        shot.Bending = record.Bending;
        EXPECT_EQ(flight.carry(), figuresOf(fly(shot)->record).carry);
        EXPECT_EQ(flight.headSpeed, record.HeadSpeed);
    }
    bag.speeds = HeadSpeeds::Falling;
    bag.firstSpeed = 110;
    bag.fall = 1.5F;
    flights = flyBag(bag, set, windy());
    EXPECT_EQ(flights[0].headSpeed, 110);
    EXPECT_EQ(flights[1].headSpeed, 99.5); // seven woods come before
    EXPECT_EQ(flights[2].headSpeed, 90.5); // thirteen irons

    bag.clubs[flights[2].at].name = "My lob";
    const std::vector<MeasuredEntry> entries = {
        {measured("My lob", 80, 35, 9000, carried(60)), false, false},
        {measured("Dr", 150, 12, 2600, carried(240, 260)), false, false},
        {measured("driver", 150, 12, 2600, carried(250)), false, false},
        {measured("Driver", 150, 12, 2600, carried(10)), true, false},
        {measured("H4", 120, 18, 5000, carried(180)), false, false},
        {measured("7i", 120, 18, 5000, carried(160)), false, false}};
    const auto beside = measuredBag(bag, entries, set, {{"H4", {false, 10}}});
    EXPECT_EQ(beside.strangers, std::vector<std::string>{"7i"});
    const auto of = [&](std::size_t flight) { return beside.clubs[flights[flight].at]; };
    EXPECT_EQ(of(0).carry->mean, 245);
    EXPECT_EQ(of(0).total->number, 1U);
    EXPECT_EQ(of(1).carry->mean, 180);
    EXPECT_EQ(of(2).carry, (Spread{1, 60, {}, 60, 60}));
    EXPECT_FALSE(of(2).total);
    EXPECT_EQ(std::count_if(beside.clubs.begin(), beside.clubs.end(),
                            [](const BagMeasured& club) { return club.carry.has_value(); }),
              4)
        << "the 7 iron has its mean though nobody owns it";

    using Kind = BagGap::Kind;
    EXPECT_EQ(gapsBetween(std::vector<double>{150, 240, 162, 142, 160}, 8, 10),
              (std::vector<BagGap>{{2, 1, 78, Kind::TooWide},
                                   {4, 2, 2, Kind::TooNarrow},
                                   {0, 4, 10, Kind::Good},
                                   {3, 0, 8, Kind::Good}}));
    flights[1].problem = "It stays in the bag.";
    const auto gaps = gapsOf(flights, 8, 18);
    ASSERT_EQ(gaps.size(), 1U);
    EXPECT_EQ(gaps[0].shorter, 2U);
    EXPECT_EQ(gaps[0].yards, flights[0].carry() - flights[2].carry());

    // A head speed that the form's field refuses, of the set or by falling, is no swing.
    bag.firstSpeed = 115;
    set.Woods[10].HeadSpeed = 49;
    for (const auto& [speeds, fall, lowest, flies] :
         {std::tuple{HeadSpeeds::Falling, 5.0F, 50.0, true},
          {HeadSpeeds::Falling, 5.5F, 43.5, false},
          {HeadSpeeds::OfSet, 5.0F, 49.0, false}}) {
        bag.speeds = speeds;
        bag.fall = fall;
        flights = flyBag(bag, set, windy());
        ASSERT_EQ(flights.size(), 3U);
        const auto slowest = std::min_element(
            flights.begin(), flights.end(),
            [](const auto& one, const auto& other) { return one.headSpeed < other.headSpeed; });
        EXPECT_EQ(slowest->headSpeed, lowest);
        EXPECT_EQ(!slowest->problem.starts_with("Enter a head speed between"), flies) << lowest;
        EXPECT_EQ(slowest->carry() > 0, flies) << lowest;
        EXPECT_EQ(gapsOf(flights, 8, 18).size(), flies ? 2U : 1U) << lowest;
    }
}

TEST(MeasuredSession, ReadsBackToTheSameBits) {
    MeasuredSession session;
    EXPECT_EQ(decodeMeasured(encodeMeasured(session)), session);
    session.source = "a \"b\" \u00FC.csv";
    session.device = "Garmin";
    session.computesCarry = false;
    session.entries = {
        {measured("7i", 118.1F, 0.1F, 6000.7F, carried(1.0 / 3, {}, 5e-324)), true, true}};
    session.entries[0].shot.air = {1, 2, 3, 4, 5, 6, 0.1};
    session.ownAir = session.normalise = true;
    session.air = {1, 2, 3, 4};
    session.player = "Ann";
    session.fitter = "Bo";
    session.date = "2026-11-23";
    session.note = "two\nlines";
    session.answers = {{"H4", {true, 4}}};
    session.bag.clubs.pop_back();
    session.bag.clubs[3].name = "Four";
    session.bag.clubs[3].owned = !session.bag.clubs[3].owned;
    session.bag.speeds = HeadSpeeds::Falling;
    session.bag.fall = 1.7F;
    session.bag.widest = 21.5;
    const std::string text = encodeMeasured(session);
    EXPECT_EQ(decodeMeasured(text), session);

    const auto with = [&text](const std::string& what, const std::string& by) {
        std::string changed = text;
        const std::size_t at = changed.find(what);
        EXPECT_NE(at, std::string::npos) << what;
        return decodeMeasured(changed.replace(at, what.size(), by));
    };
    EXPECT_TRUE(with("{\"air\"", "{\"later\":[{}],\"air\""));
    const std::pair<const char*, const char*> broken[] = {
        {"{", ""},
        {"\"number\":4", "\"number\":40"},
        {"\"number\":4", "\"number\":70000"},
        {"\"number\":4", "\"number\":-4"},
        {"\"number\":4", "\"number\":null"},
        {"\"speeds\":1", "\"speeds\":2"},
        {"\"fitter\":\"Bo\"", "\"fitter\":1"},
        {"\"ownAir\":true", "\"ownAir\":1"},
        {"\"widest\":21.5", "\"widest\":1e999"},
        {"\"fall\":1.7", "\"fall\":1e300,\"x\":1.7"},
        {"\"struck\"", "\"strike\""},
        {"\"backSpin\":6000", "\"backSpin\":66000"}};
    for (const auto& [what, by] : broken)
        EXPECT_FALSE(with(what, by)) << by;
}

} // namespace
} // namespace parabolt
