#include "measured/cell_number.h"
#include "measured/shot_import.h"
#include "numbers/text_number.h"
#include "tests/support/golden.h"

#include <gtest/gtest.h>

namespace parabolt {
namespace {

std::string bytesOf(const std::string& name) {
    return support::contentOf(PARABOLT_TEST_DATA "/measured/" + name);
}

/// A row as the table of expected ones has it.
std::string lineOf(const ImportRow& row) {
    const auto figure = [](std::optional<double> value, const char* pattern = "0.0") {
        return " | " + (value ? formatPattern(*value, pattern) : "-");
    };
    const MeasuredShot& shot = row.shot;
    std::string club = shot.club;
    std::replace(club.begin(), club.end(), '\n', ' ');
    std::string line = std::to_string(row.line) + " |" + (club.empty() ? "" : " ") + club +
                       figure(shot.ballSpeed) + figure(shot.launchAngle) +
                       figure(shot.backSpin, "0");
    for (const auto value : {shot.device.carry, shot.device.total, shot.device.height,
                             shot.device.landingAngle, shot.device.time})
        line += figure(value);
    line += " |" + (row.reason.empty() ? "" : " " + row.reason);
    return line + (row.remark.empty() || !row.taken ? "" : " ~") + "\n";
}

TEST(Import, BringsWhatEachFileHolds) {
    std::istringstream expected(support::goldenText("measured/expected.txt"));
    std::string name;
    std::string wanted;
    std::string got;
    const auto compare = [&] {
        EXPECT_EQ(got, wanted) << name;
        wanted.clear();
    };
    for (std::string line; std::getline(expected, line);) {
        if (std::isdigit(static_cast<unsigned char>(line.front())) != 0) {
            wanted += line + "\n";
            continue;
        }
        compare();
        name = line.substr(0, line.find(':'));
        const auto file = readShotFile(bytesOf(name));
        ASSERT_TRUE(file) << name << ": " << file.why().message;
        const Device* device = recognise(*file);
        ASSERT_NE(device, nullptr) << name;
        const ImportPreview preview = previewOf(*file, *device);
        EXPECT_EQ(name + ": " + preview.device + ", " +
                      std::string(figuresHeading(preview.computesCarry)),
                  line);
        got.clear();
        for (const ImportRow& row : preview.rows) {
            EXPECT_EQ(row.taken, row.reason.empty());
            got += lineOf(row);
        }
    }
    compare();
}

TEST(Import, TakesTheAirWhereAFileBringsSome) {
    const auto garmin = importShots(bytesOf("garmin.csv"))->taken();
    ASSERT_EQ(garmin.size(), 2U);
    const MeasuredAir& air = garmin.front().air;
    EXPECT_NEAR(*air.density, 1.187, 1e-9);
    EXPECT_NEAR(*air.temperature, 72, 1e-9);
    EXPECT_NEAR(*air.pressure, 29.710, 0.001); // 100.61 kPa on a barometer's scale
    EXPECT_FALSE(air.wind || air.altitude || air.seaLevelPressure);
    const auto german = importShots(bytesOf("garmin_german.csv"))->taken();
    EXPECT_NEAR(*german.front().air.temperature, 70.7, 1e-9);
    EXPECT_NEAR(*importShots(bytesOf("awesome_golf.csv"))->taken().front().air.altitude, 1000,
                1e-9);
    const auto own = importShots(bytesOf("own.csv"))->taken();
    EXPECT_EQ(own.back().air, (MeasuredAir{10.5, 1200, {}, 60, {}, 30.1, 40}));
}

TEST(Import, ReadsNumbersAsDevicesWriteThem) {
    struct Case {
        const char* cell;
        bool decimalComma;
        bool whole;
        std::optional<double> value;
    };
    const Case cases[] = {
        {"6500.125", false, true, 6500.125}, // more than three digits before a mark: decimals
        {"0.125", false, true, 0.125},
        {".125", false, true, 0.125},
        {"-2.345", false, true, -2345},
        {"0,125", false, false, 0.125},
        {"5.4 L", false, false, -5.4},
        {"L 3.2", false, false, -3.2},
        {"4.5 R", false, false, 4.5},
        {"R4.5", false, false, 4.5},
        {"5,4 L", true, false, -5.4},
        {"2,345", false, false, 2345},
        {"2,345", true, false, 2.345},
        {"2,345", true, true, 2345},
        {"2.345", true, true, 2345},
        {"2.345", false, false, 2.345},
        {"1,234.567", false, false, 1234.567},
        {"1.234,5", true, false, 1234.5},
        {"1,234.5", false, false, 1234.5},
        {"1.234.567", true, false, 1234567},
        {"142,5", false, false, 142.5},
        {"\u22123.5", false, false, -3.5},
        {" 7\u00A0", false, false, 7},
        {"150 mph", false, false, 150},
        {"18\u00B0", false, false, 18},
        {"1e+05", false, false, 100000},
        {"", false, false, {}},
        {"L", false, false, {}},
        {"7i", false, false, {}},
        {"1/2", false, false, {}},
        {"--5", false, false, {}},
        {"12:30", false, false, {}},
        {"1e999", false, false, {}},
    };
    for (const Case& c : cases) {
        const auto number = cellNumber(c.cell, c.decimalComma, c.whole);
        ASSERT_EQ(number.has_value(), c.value.has_value()) << c.cell;
        EXPECT_EQ(number ? number->value : 0, c.value.value_or(0)) << c.cell;
    }
}

TEST(Import, UnderstandsWhatIsNoUtf8) {
    const std::pair<std::string, std::string> cases[] = {
        {{"\xFE\xFF\0\xFC\xD8\x3D\xDE\0\xD8\x3D\0a\xDE\0", 14}, "\u00FC\U0001F600?a?"},
        {{"\xFF\xFE\xFC\0", 4}, "\u00FC"},
        {{"a\0b\0", 4}, "ab"},
        {"\xEF\xBB\xBF\xC3\xBC", "\u00FC"},
        {"\xFC", "\u00FC"},
        {"\xC3", "\u00C3"},                     // ends inside a character
        {"\xED\xA0\x80", "\u00ED\u00A0\u20AC"}, // half a pair
        {"\xC1\x81", "\u00C1\u0081"},           // longer than it must be
        {"\xF4\x8F\xBF\xBF", "\U0010FFFF"}};
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(readShotFile(bytes)->rows.at(0).cells.at(0), text);
}

TEST(Import, RefusesAFileAsAWholeAndSaysWhere) {
    const std::string headings = "Carry,BallSpeed,BackSpin,VLA\n";
    std::string rows = headings;
    for (int i = 0; i < 10'000; ++i)
        rows += "200,140,3000,12\n";
    EXPECT_EQ(importShots(rows)->count(), 10'000U);
    const std::pair<std::string, std::string> cases[] = {
        {"", "The file is empty."},
        {"\n , ,\n", "The file is empty."},
        {std::string(10'000'001, ' '), "The file is larger than 10 MB."},
        {rows + "\n200,140,3000,12\n", "Line 10003: the file has more than 10,000 rows."},
        {headings + "200,140,\"3000,12\n200\n", "Line 2: a quote is opened and never closed."},
        {headings + std::string(2'000'000, 'x'), "Line 2: the row is longer than 1 MB."},
        {headings + std::string(200, ',') + "x", "Line 2: the file has more than 200 columns."},
        {std::string("PK\3\4 \0 \0\xFF", 9),
         "This is no text file: tables of shots are read from CSV and text files."},
        {"Club,Speed\nD,150\n",
         "No known launch monitor's headings stand in the first sixty rows."},
        {headings, "The file has headings, but no shot."},
        {headings + "200,14,3000,12\n",
         "No row can be flown; line 2: ball speed 14 mph is below 30."}};
    for (const auto& [bytes, message] : cases) {
        const auto preview = importShots(bytes);
        ASSERT_FALSE(preview) << message;
        EXPECT_EQ(preview.why().message, message);
    }
    std::string title; // sixty rows above the headings
    for (int i = 0; i < 59; ++i)
        title += "note " + std::to_string(i) + "\n";
    EXPECT_TRUE(importShots(title + headings + "200,140,3000,12\n"));
    EXPECT_FALSE(importShots("one more\n" + title + headings + "200,140,3000,12\n"));
}

/// The club of the only shot of a file, or why there is none.
std::string clubIn(const std::string& text) {
    const ShotFile file = *readShotFile(text);
    const auto preview = previewOf(file, *recognise(file));
    return preview.rows.size() == 1 ? preview.rows[0].shot.club + preview.rows[0].reason : "rows";
}

TEST(Import, TellsLabelsOfClubsFromTitlesAndSummaries) {
    const std::string headings = "BallSpeed,BackSpin,VLA,Carry,Tags\n";
    const std::string row = "140,3000,12,200,x\n";
    const std::pair<std::string, std::string> cases[] = {
        {"My day\n" + headings + row, ""},
        {"sep=,\n" + headings + row, ""},
        {"7 Iron\n" + headings + row, "7 Iron"},
        {"H4\n" + headings + row, "H4"},
        {"PLAYER: H4\n" + headings + row, ""},
        {headings + "Rescue 21 soft\n" + row, "Rescue 21 soft"},
        {headings + "Club: Hybrid 4\n" + row, "Hybrid 4"},
        {headings + "9i\nPLAYER: Ann\n" + row, "9i"},
        {headings + headings + row, ""},
        {headings + "Average\n", "average row"},
        {"Club," + headings + "2026-06-09\n," + row, ""},
        {headings + "140,3000,12,200,AVERAGE\n", "average row"},
        {headings + "140,3000,12,200,Std. Dev.:\n", "average row"},
        {headings + "140,3000,12,200,Average Joe\n", ""},
        {"Player,Club," + headings + "Max,Range," + row, "Range"},
        {"Player,Club," + headings + "Max,Average," + row, "Averageaverage row"},
        {"Club,Note," + headings + "7i,max," + row, "7i"},
        {"Player,Club," + headings + "Average,," + row, "average row"},
        {"Shot," + headings + "Max," + row, "average row"}};
    for (const auto& [text, club] : cases)
        EXPECT_EQ(clubIn(text), club) << text;
    for (const char* word : {"Mittelwert", "Minimum", "MAXIMUM:", "Mittel", "Gesamt", "Summe",
                             "Sum", "Standardabweichung", "Total", "totals", "Std.Dev", "Std-Dev."})
        EXPECT_EQ(clubIn(headings + "140,3000,12,200," + word + "\n"), "average row") << word;
}

TEST(Import, TakesUnitsFromWhereTheyStand) {
    struct Case {
        const char* heading;
        const char* unit; ///< below the heading
        const char* value;
        std::optional<double> yards; ///< of the height
    };
    const Case cases[] = {{"Peak Height", "", "30", {}}, // nobody tells the unit
                          {"Peak Height", "[ft]", "30", 10},
                          {"Peak Height (yds)", "", "30", 30},
                          {"Peak Height [ft]", "m", "9.144", 10},
                          {"PEAK  HEIGHT", "[ft]", "30", {}}, // another heading
                          {"peak height [Feet]", "", "30", 10},
                          {"Peak Height", "[rpm]", "30", {}},
                          {"Peak Height", "[ft]", "--", {}},
                          {"Peak Height", "[slug/ft3]", "30", {}}, // the other units hold
                          {"Peak Height", "[slug/ft3]", "30 ft", 10},
                          {"Peak Height [m]", "", "30 ft", 10}, // a cell knows best
                          {"Peak Height", "[ft]", "30 mph", {}}};
    for (const Case& c : cases) {
        const auto preview = importShots(
            std::string("Ball Speed,Launch Angle,Back Spin,Spin Axis Tilt,") + c.heading + "\n" +
            "[km/h],[deg],[rpm],[deg]," + c.unit + "\n160.9344,12,3000,0," + c.value + "\n");
        ASSERT_TRUE(preview) << c.heading;
        const MeasuredShot& shot = preview->rows.front().shot;
        EXPECT_FLOAT_EQ(shot.ballSpeed, 100);
        ASSERT_EQ(shot.device.height.has_value(), c.yards.has_value()) << c.heading << c.unit;
        EXPECT_NEAR(shot.device.height.value_or(0), c.yards.value_or(0), 1e-9);
    }
    // By definition of the units, and of a standard atmosphere in each of them.
    const std::tuple<Quantity, double, const char*, double> known[] = {
        {Quantity::BallSpeed, 44.704, "m/s", 100},
        {Quantity::Temperature, -40, "\u00B0C", -40},
        {Quantity::Temperature, 100, "deg C", 212},
        {Quantity::Pressure, 101.325, "kPa", 29.9213},
        {Quantity::Pressure, 1013.25, "mbar", 29.9213},
        {Quantity::Altitude, 1609.344, "m", 5280},
        {Quantity::Altitude, 5280, "ft", 5280},
        {Quantity::Carry, 91.44, "metres", 100},
        {Quantity::AirDensity, 1.2, "g/L", 1.2},
        {Quantity::AirDensity, 1.2, "[kg/m^3]", 1.2}};
    for (const auto& [quantity, value, unit, program] : known) {
        EXPECT_TRUE(suits(*unitNamed(unit), quantity)) << unit;
        EXPECT_NEAR(inUnitOf(quantity, value, *unitNamed(unit)), program, 1e-4) << unit;
    }
    for (const QuantityText& text : quantities()) // what a choice writes, it reads
        for (const MeasuredUnit unit : text.units)
            EXPECT_EQ(unitNamed(nameOf(unit)), unit) << text.name;
}

TEST(Import, TellsOfAUnitInACellThatDoesNotSuit) {
    const std::string headings = "BallSpeed,BackSpin,VLA,Carry\n";
    const std::pair<const char*, const char*> cases[] = {
        {"53 m/s,3000,12,200", ""},
        {"53 m,3000,12,200", "ball speed \"53 m\" is in another unit"},
        {"140,3000 mph,12,200", "spin \"3000 mph\" is in another unit"},
        {"53 knots,3000,12,200", "ball speed \"53 knots\" is no number"}};
    for (const auto& [row, reason] : cases) {
        const ShotFile file = *readShotFile(headings + row + "\n");
        const ImportRow read = previewOf(file, *recognise(file)).rows.at(0);
        EXPECT_TRUE(read.reason.ends_with(reason)) << read.reason;
        EXPECT_EQ(read.taken, *reason == '\0') << row;
    }
    EXPECT_NEAR(importShots(headings + "53 m/s,3000,12,180 m")->rows[0].shot.ballSpeed, 118.56,
                0.01);
}

TEST(Import, LeavesOutAirThatNobodyBreathes) {
    struct Case {
        const char* heading;
        const char* cell;
        const char* remark;
    };
    const Case cases[] = {
        {"Wind [mph]", "-36", "wind -36 mph left out"},
        {"Altitude [ft]", "1e9", "altitude 1E+09 ft left out"},
        {"Temperature [deg F]", "-300", "temperature -300 deg F left out"},
        {"Temperature [deg F]", "70\u00B0", ""},
        {"Humidity [%]", "5000", "humidity 5000 % left out"},
        {"Pressure [inHg]", "297", "pressure at sea level 297 inHg left out"},
        {"Pressure at the place [inHg]", "0", "pressure at the place 0 inHg left out"},
        {"Pressure at the place [inHg]", "17", ""}, // Mount Elbert
        {"Air density [kg/m3]", "0", "air density 0 kg/m3 left out"},
        {"Air density [kg/m3]", "1.9", "air density 1.9 kg/m3 left out"},
        {"Air density [kg/m3]", "0.66", ""},
        {"Air density [kg/m3]", "1.5", ""}};
    for (const Case& c : cases) {
        const auto preview = importShots("Ball speed [mph],Launch angle [deg],Spin [rpm]," +
                                         std::string(c.heading) + "\n144,12,2600," + c.cell);
        ASSERT_TRUE(preview && preview->count() == 1) << c.heading;
        EXPECT_EQ(preview->rows[0].remark, c.remark);
        EXPECT_EQ(preview->rows[0].shot.air == MeasuredAir(), *c.remark != '\0') << c.heading;
    }
}

TEST(Import, AnUnknownFileIsReadByColumnsOfTheUsersChoice) {
    const ShotFile file = *readShotFile(bytesOf("unknown.csv"));
    EXPECT_EQ(recognise(file), nullptr);
    EXPECT_EQ(guessedHeadings(file),
              (std::vector<std::string>{"Stick", "V ball", "Loft out", "Spin", "Flight"}));
    ColumnChoice choice = guessedChoice(file); // only the spin has a known name
    ASSERT_EQ(choice.columns,
              (std::vector<ChosenColumn>{{3, "Spin", Quantity::TotalSpin, MeasuredUnit::Rpm}}));
    choice.name = "Radar \"X\"";
    choice.columns = {{0, "Stick", Quantity::Club, MeasuredUnit::None},
                      {1, "V ball", Quantity::BallSpeed, MeasuredUnit::MetresPerSecond},
                      {2, "Loft out", Quantity::LaunchAngle, MeasuredUnit::Degrees},
                      {3, "Spin", Quantity::BackSpin, MeasuredUnit::Rpm},
                      {4, "Flight", Quantity::Carry, MeasuredUnit::Metres}};
    EXPECT_TRUE(recognises(choice, file));
    EXPECT_EQ(choiceOf(choiceText(choice)), choice);
    EXPECT_EQ(choiceText(choice).find('\n'), std::string::npos);
    const ImportPreview preview = previewOf(file, *choiceOf(choiceText(choice)));
    ASSERT_EQ(preview.rows.size(), 2U);
    EXPECT_EQ(lineOf(preview.rows[0]),
              "4 | Seven | 111.8 | 18.0 | 6000 | 153.1 | - | - | - | - |\n");
    EXPECT_EQ(lineOf(preview.rows[1]), "5 | Seven | 114.1 | 17.5 | 6100 | - | - | - | - | - |\n");

    const ShotFile bare = *readShotFile("Seven;50;18;6000;140\n");
    EXPECT_FALSE(recognises(choice, bare));
    EXPECT_EQ(previewOf(bare, choice).count(), 1U);
    choice.columns[1].unit = MeasuredUnit::Mph; // the user knows better than the file
    EXPECT_EQ(previewOf(file, choice).rows[0].shot.ballSpeed, 50);
    choice.columns[4].heading = "Range";
    EXPECT_FALSE(recognises(choice, file));
    // A known device's headings in another company: all are guessed, with their units.
    const ShotFile kin =
        *readShotFile("Title\nBall Speed,Launch Angle,Spin,Spin,Height\n[km/h],,,,[m]\n");
    const ColumnChoice guess = guessedChoice(kin);
    EXPECT_EQ(guess.columns,
              (std::vector<ChosenColumn>{
                  {0, "Ball Speed", Quantity::BallSpeed, MeasuredUnit::KilometresPerHour},
                  {1, "Launch Angle", Quantity::LaunchAngle, MeasuredUnit::Degrees},
                  {2, "Spin", Quantity::TotalSpin, MeasuredUnit::Rpm},
                  {4, "Height", Quantity::Height, MeasuredUnit::Metres}}));
    EXPECT_TRUE(guessedChoice(*readShotFile("1;2;3\n")).columns.empty());
    for (const char* text : {"", "[]", "{}", "{\"name\":1,\"computesCarry\":true,\"columns\":[]}",
                             R"({"name":"","computesCarry":true,"columns":[{"column":0,)"
                             R"("heading":"","quantity":"Carry","unit":"rpm"}]})"})
        EXPECT_FALSE(choiceOf(text)) << text;
}

} // namespace
} // namespace parabolt
