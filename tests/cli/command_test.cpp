#include "clubs/clubs_file.h"
#include "measured/measured_codec.h"
#include "sessions/session_codec.h"
#include "shots/figures.h"
#include "tests/cli/command_run.h"
#include "tests/support/shots.h"
#include "tests/support/temporary_folder.h"

#include <nlohmann/json.hpp>

namespace parabolt::support {
namespace {

using nlohmann::json;

const std::string kHead = "Ball speed [mph],Launch angle [deg],Spin [rpm]\n";
const std::string kOut = "Ball speed [mph],Launch angle [deg],Spin [rpm],Device carry [yd],Out\n";

const std::string kSet =
    "club,loft_deg,head_weight_g,head_speed_mph,COR,attack_angle_deg,bend_deg\n";

struct Told {
    std::string arguments;
    std::string input;
    int status;
    std::string out; ///< a piece of it; nothing at all where this is empty
    std::string err;
};

TEST(Command, EndsAsItsManualSays) {
    const std::string speed = "Enter a value between 30 and 250 MPH for launch speed.";
    const Told cases[] = {
        {"--help", "", 0, "Subcommands:", ""},
        {"--version", "", 0, "parabolt-cli ", ""},
        {"", "", 2, "", "parabolt-cli: A subcommand is required"},
        {"fly --nonsense", "", 2, "",
         "parabolt-cli: The following argument was not expected: --nonsense"},
        {"fly --spin", "", 2, "", "parabolt-cli: --spin-rpm: Its value is missing."},
        {"fly --spin 1 --spin 2", "", 2, "", "--spin-rpm: It is given more than once."},
        {"clubs foo", "", 2, "", "parabolt-cli: There is no command \"foo\""},
        {"fly --format xml", "", 2, "", "xml"},
        // Limits: accepted themselves, refused beyond, in the words of the form.
        {"fly --ball-speed 30 --spin 0", "", 0, ",LM,30,", ""},
        {"fly --ball-speed-mph 29.9", "", 2, "", "--ball-speed-mph: " + speed},
        {"fly --ball-speed 1e2x", "", 2, "", "--ball-speed-mph: " + speed},
        {"fly --cor 0.69", "", 2, "", "--cor: Enter values between 0.7 and 0.9! Try again!"},
        {"fly --cor much", "", 2, "", "Defaults to 0.8 or try again."},
        {"fly --wind -36", "", 2, "", "between -35 and 35 mph"},
        {"fly --ball 5", "", 2, "", "--ball: Give a ball from 1 to 4"},
        {"fly --club X1", "", 2, "", "--club: There is no club \"X1\""},
        {"fly --club W1 --spin 3000", "", 2, "", "either a launch"},
        {"fly --clubs /nowhere.clb --club W1", "", 3, "", "/nowhere.clb: No such file"},
        {"fly --head-speed 165 --loft 0 --bend -10", "", 1, "", "Invalid argument"},
        // Modes.
        {"fly --club i7 --head-speed 90", "", 0, "\r\n7i,DM,", ""},
        {"fly --club i7 --loft 33", "", 0, "\r\n,MM,", ""},
        {"fly --club W1 --launch-angle 12.3", "", 0, "\r\n,AM,", ""},
        {"study spin --club W1", "", 2, "", "flies a launch"},
        {"study height", "", 2, "", "height"},
        {"map --across 1:2", "", 2, "", "--across: Give first, last and step"},
        {"map --across 1:2:3:", "", 2, "", "--across: Give first, last and step"},
        {"map --kind swing --spin 3000", "", 2, "", "A map of swings takes a swing"},
        {"study loft --launch-angle 12", "", 2, "", "A study of the loft flies a swing"},
        {"map --up 5:4:1", "", 2, "", "--up: An axis rises"},
        {"map --across 0:30000:100", "", 2, "", "--across: Enter a value between 0 and 22000"},
        // Tables of shots.
        {"batch", "", 2, "", "There is no table"},
        {"batch /nowhere.csv", "", 3, "", "/nowhere.csv: No such file"},
        {"batch", kHead + "144,9.5,3200\n", 0, "2,,144,9.5,3200,228.36668,", ""},
        {"batch", kHead + "144,9.5,3200\n12,9,1\n150,9,2500\n", 1,
         "\r\n3,,,,,,,,,,,,,,,,,,Ball speed", "line 3: Ball speed [mph]: " + speed},
        {"batch", kHead + "144,9.5,3200,7\n", 1, "2,,", "line 2: The row has more cells"},
        {"batch", kHead + "144,\"9.5\n", 2, "Line,Club",
         "line 2: a quote is opened and never closed."},
        {"batch --wind 10", "\xEF\xBB\xBF\n\nspin_rpm;ball_speed_mph;club\n3200;144;\"a;b\"\n", 0,
         "\r\n4,a;b,144,9.5,3200,205.", ""},
        {"batch", "sep=;\nBall speed [mph];Launch angle [deg]\n144;\n", 0, "3,,144,9.5,3200,228",
         ""},
        {"batch", "Club,Head speed [mph]\nDriver,\n7i,80\nW11,\n", 1, "\r\n3,7i,", "line 4: There"},
        {"batch --path", kHead + "144,9.5,3200\n", 0, "\r\n2,0.01,0.69131", ""},
        {"batch", "BALL SPEED [MPH];launch_angle;Temperature\n144,5;9,5;70\n", 0,
         "\r\n2,,144.5,9.5,", ""},
        {"batch", " ball_speed , Club,\n 144 , Driver,\n  \n", 0, "\r\n2,Driver,144,9.5,", ""},
        {"batch", "ball_speed_mph,Ball speed [mph]\n144,145\n", 2, "", "says again what another"},
        {"batch", "speed,angle\n144,9\n", 2, "", "not known are \"speed\", \"angle\"."},
        {"batch", std::string(3 << 20, 'x'), 2, "", "line 1: the row is longer than 1 MB."},
        {"batch", std::string(3 << 20, '\n'), 2, "", "no headings in the first 1 MB"},
        {"batch", kHead + std::string(3 << 20, ' '), 2, "Line,", "line 2: the row is longer"},
        // Files of launch monitors: what their rows leave out is told, and is no fault.
        {"batch " PARABOLT_TEST_DATA "/measured/garmin.csv", "", 0, ",7 Iron,", "is left out: "},
        {"batch " PARABOLT_TEST_DATA "/measured/trap_tabs.txt", "", 0, "Line,", "a file of "},
        {"batch " PARABOLT_TEST_DATA "/measured/trap_unknown_unit.csv", "", 2, "", ", knots.\n"},
        {"batch --club W1 --clubs x " PARABOLT_TEST_DATA "/measured/garmin.csv", "", 3, "",
         "x: No such"},
        {"batch --spin 1 " PARABOLT_TEST_DATA "/measured/garmin.csv", "", 2, "",
         "with it: --spin-rpm."},
        {"batch " PARABOLT_TEST_DATA "/measured/unknown.csv", "", 2, "", "No known launch monitor"},
        {"batch " PARABOLT_TEST_DATA "/measured/own.csv", "", 0, "\r\n3,1,144,9.5,3200,2",
         "not read are the columns \"Number\", \"Name\"."},
        {"normalise " PARABOLT_TEST_DATA "/measured/garmin.csv", "", 0, ",7 Iron,",
         "is left out: "},
        {"batch", kOut + "144,9.5,3200,230,1\n144,9.5,3200,230,0\n", 0, ",Problem\r\n3,,144,",
         "line 2 is left out: marked as out\n"},
        {"normalise -", kOut + "144,9.5,3200,230,1\n144,9.5,3200,230,0\n", 0, ",Problem\r\n3,,144,",
         "line 2 is left out: marked as out\n"},
        {"normalise -", kOut + "144,9.5,3200,230,1\n", 2, "",
         "All of its shots are marked as out."},
        {"normalise --wind 35 -", kOut + "100,55,22000,230,0\n", 1,
         "The model's carry is not above 0", "a file of Parabolt"}, // blown back
        {"normalise --to-altitude-ft 16000 -", "", 2, "", "--to-altitude-ft: Enter a value"},
        // Clubs.
        {"clubs check", "", 0, "", ""},
        {"clubs check -", kSet + "7i,34,260,94,0.9,0,0\n", 2, "", "are missing: Driver, 2W, 3W"},
        {"clubs check -", kSet + "7i,34,260,94,0.8,0,0\nI7,3", 2, "", "line 3: The row has not as"},
        {"clubs check -", kSet + "7i,34,1,1,1,0,0\nI7,3,1,1,1,0,0", 2, "", "7i stands there twice"},
        {"clubs list -", "abc", 2, "", "standard input: It is no clubs file."},
        {"clubs list -", "Club,Lofty\n", 2, "", "no heading \"Lofty\""},
        {"clubs list -", "Club,COR\n7i,0.8\n", 2, "",
         "columns are missing: Loft [deg], Head weight"},
        {"clubs list -", kSet + "7i,x,,,,,\n", 2, "", "line 2: \"x\" is no number."},
        {"clubs list -", "{\"clubs\":[{\"club\":\"9z\"}]}", 2, "", "There is no club \"9z\""},
        {"clubs list -", "{\"clubs\":[{\"club\":\"7i\"}]}", 2, "", "no number \"loft_deg\""},
        {"clubs convert", "", 2, "", "Say with --to"},
        {"clubs fly --narrowest-yd 9", "", 0, "too narrow", ""},
        {"clubs fly --narrowest-yd nan", "", 2, "", "--narrowest-yd: Enter a value between 0"},
        {"clubs fly --narrowest 19", "", 2, "", "19 yards, is above the widest, 18 yards"},
        {"clubs fly --first-speed 105 --fall 2.5", "", 0, "\r\n3W,100,235.7", ""},
        {"clubs fly --first-speed 49", "", 2, "", "Enter a head speed between 50 and 165 mph."},
        {"clubs fly --first-speed 60 --fall 5", "", 1, "\r\n5i,40,,,,,,,Enter a head speed", ""},
        {"clubs fly --fall 6", "", 2, "", "--fall-mph: Enter a value between 0 and 5 mph"},
        {"clubs fly --bag /nowhere", "", 3, "", "/nowhere: No such file"},
    };
    for (const Told& each : cases) {
        const auto run = runCommand(each.arguments, each.input);
        EXPECT_EQ(run.status, each.status) << each.arguments << '\n' << run.err;
        EXPECT_NE(run.out.find(each.out), std::string::npos) << each.arguments << '\n' << run.out;
        EXPECT_NE(run.err.find(each.err), std::string::npos) << each.arguments << '\n' << run.err;
        EXPECT_EQ(run.out.empty(), each.out.empty()) << each.arguments << '\n' << run.out;
        EXPECT_EQ(run.err.empty(), each.err.empty()) << each.arguments << '\n' << run.err;
    }
}

TEST(Command, WritesTheSameInAllFormats) {
    const auto csv = linesOf(runCommand("fly --club W3 --path --altitude 4000").out);
    const json object =
        json::parse(runCommand("fly --club W3 --path --altitude 4000 --format json").out);
    ASSERT_EQ(object["path"].size() + 1, csv.size());
    EXPECT_EQ(object["path"].back().dump(), "[" + csv.back() + "]");
    EXPECT_EQ(object["altitude_ft"], 4000);
    EXPECT_NEAR(object["time_s"], object["path"].back()[0], 0.001);
    // People see a table on a terminal.
    const auto rows = linesOf(runCommand("batch", kHead + "144,9.5,3200\n,x,\n", true).out);
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(rows[2].substr(0, 63),
              "      2              144.0          9.5    3200     228    23.1");
    EXPECT_TRUE(rows[3].ends_with("try again.")) << rows[3];
    const json list =
        json::parse(runCommand("batch --format json", kHead + "x,,\n144,,\n9,,\n").out);
    ASSERT_EQ(list.size(), 3U);
    EXPECT_TRUE(list[0]["carry_yd"].is_null());
    EXPECT_EQ(list[1]["launch_angle_deg"], 9.5);
    EXPECT_TRUE(json::parse(runCommand("batch --format json", kHead).out).empty());
}

// Each row on its own line, in the order of the input, whichever thread has flown it; equal to the
// shot flown alone.
TEST(Command, KeepsTheOrderOfALongTable) {
    constexpr int kRows = 9000;
    std::string table = kHead;
    for (int i = 0; i < kRows; ++i)
        table += std::to_string(30 + i % 90) + ",9.5," + std::to_string(i) + "\n";
    const auto run = runCommand("batch", table);
    EXPECT_EQ(run.status, 0);
    const auto rows = linesOf(run.out);
    ASSERT_EQ(rows.size(), kRows + 1U);
    for (int i = 0; i < kRows; ++i) {
        const std::string start = std::to_string(i + 2) + ",," + std::to_string(30 + i % 90) +
                                  ",9.5," + std::to_string(i) + ",";
        const std::string& row = rows[static_cast<std::size_t>(i) + 1];
        ASSERT_TRUE(row.starts_with(start)) << row;
        if (i % 1500 == 7) {
            const auto flown =
                flightOf(mildShot(static_cast<float>(30 + i % 90), 9.5F, static_cast<float>(i)));
            EXPECT_EQ(std::stof(row.substr(start.size())), flown.record.CarryDist) << row;
        }
    }
    // Its own results read back, and fly to the same.
    EXPECT_EQ(runCommand("batch", run.out).out, run.out);
}

// What was flown is flown again from its results, whatever made the launch; and from their results.
TEST(Command, ReadsItsOwnResults) {
    for (const char* options : {"fly --ball-speed 151 --spin 2345.6 --ball 2 --wind -7.3",
                                "fly --club 7i --head-speed 88 --altitude 4100 --ball 1",
                                "fly --club W3 --launch-angle 12.3 --pressure 29.13",
                                "fly --loft 47 --bend 1.5 --temperature 48 --humidity 12"}) {
        const auto flown = runCommand(options).out;
        const auto read = runCommand("batch --format json", flown);
        ASSERT_EQ(read.status, 0) << read.err;
        EXPECT_EQ(read.err, "");
        json again = json::parse(read.out)[0];
        const json once = json::parse(runCommand(std::string(options) + " --format json").out);
        again.erase("line");
        again.erase("problem");
        for (const auto& [key, value] : again.items())
            EXPECT_EQ(value, once[key]) << options << ' ' << key;
        const auto second = runCommand("batch", flown).out;
        EXPECT_EQ(runCommand("batch", second).out, second);
    }
    // Rows without a result, and the table of data sets with its words.
    const auto failed = runCommand("batch --wind 3", "Club,ball_speed_mph\n7i,12\nX9,\nD,144\n");
    const auto again = runCommand("batch", failed.out);
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(again.out, failed.out);
    EXPECT_EQ(again.err, failed.err);
    const std::string head = "Mode,Loft [deg],Ball,ball_speed_mph,launch_angle_deg,spin_rpm\n";
    EXPECT_EQ(json::parse(runCommand("batch --format json",
                                     head + "Manual,10,Different dimple,144,9.5,3200\n")
                              .out)[0]["carry_yd"],
              json::parse(runCommand("fly --ball 2 --format json").out)["carry_yd"]);
    EXPECT_NE(runCommand("batch", head + ",10,4,144,,\n").err.find("not both"), std::string::npos);
    EXPECT_NE(runCommand("batch", head + "XM,10,4,144,9,1\n").err.find("no mode"),
              std::string::npos);
}

TEST(Command, TellsAllOfASessionAndFliesItsBag) {
    Session session{{}, "2026-11-23 10:32"};
    session.desk.clubs = InitClubTables();
    session.desk.clubs.Woods[3].HeadSpeed = 120;
    session.desk.club = 1;
    session.desk.fillIn = true;
    session.desk.scale = 250.5F;
    session.desk.table = {{"a row\n", {1, 2, 3}}};
    session.desk.reportCaption = "Ann";
    session.desk.runs = {flightOf(mildShot(150, 12, 2500)).record};
    session.desk.tags = {{"low", false, 2}};
    MeasuredSession measured;
    for (BagClub& club : measured.bag.clubs)
        club.owned = club.name == "3W" || club.name == "PW";
    measured.bag.clubs.at(2).name = "Old faithful";
    session.desk.windows = {{kMeasuredKey, encodeMeasured(measured)}, {"other", "{ words"}};
    const std::string file = encodeSession(session);
    const json all = json::parse(runCommand("session --format json", file).out);
    for (const auto& [pointer, value] : std::initializer_list<std::pair<const char*, json>>{
             {"/mode", "MM"},
             {"/ball", 4},
             {"/club", "2W"},
             {"/fill_in", true},
             {"/scale_yd", 250.5},
             {"/shot/cor", 0.83},
             {"/table/0/text", "a row\n"},
             {"/table/0/colour", {1, 2, 3}},
             {"/report_caption", "Ann"},
             {"/data_sets/0/name", "low"},
             {"/data_sets/0/ticked", false},
             {"/data_sets/0/ball", 2},
             {"/base_data_set", 1},
             {"/club_set/clubs/2/head_speed_mph", 120},
             {"/windows/measured/bag/widest", 18},
             {"/windows/other", "{ words"}})
        EXPECT_EQ(all.at(json::json_pointer(pointer)), value) << pointer;
    const auto rows = linesOf(runCommand("clubs fly --bag -", file).out);
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_TRUE(rows[1].starts_with("Old faithful,120,")) << rows[1];
    EXPECT_TRUE(rows[1].ends_with(",too wide")) << rows[1];
    EXPECT_TRUE(rows[2].starts_with("PW,91,")) << rows[2];
    session.desk.windows.clear();
    EXPECT_NE(runCommand("clubs fly --bag -", encodeSession(session)).err.find("has no bag"),
              std::string::npos);
}

/// A reader that goes away after some bytes, and a table without end.
struct Narrow : std::streambuf {
    std::streamsize xsputn(const char* /*text*/, std::streamsize size) override {
        return (taken += size) > 10000 ? 0 : size;
    }
    std::streamsize taken = 0;
};
struct Endless : std::streambuf {
    int_type underflow() override {
        text = began ? "144,9.5,3200\n" : kHead;
        began = true;
        setg(text.data(), text.data(), text.data() + text.size());
        return traits_type::to_int_type(text.front());
    }
    std::string text;
    bool began = false;
};

TEST(Command, EndsWhereItsResultsCannotBeWritten) {
    Narrow narrow;
    Endless endless;
    std::istream in(&endless);
    std::ostream out(&narrow);
    std::ostringstream err;
    EXPECT_EQ(cli::runCommandLine({"batch"}, {in, out, err}), 3);
    EXPECT_GT(narrow.taken, 10000);
}

TEST(Command, ConvertsClubsThereAndBack) {
    const TemporaryFolder folder;
    const auto bytes = encodeClubs(InitClubTables());
    const std::string original(bytes->begin(), bytes->end());
    const std::string file = folder.path("clubs.clb");
    putContent(file, original);
    const auto asJson = runCommand("clubs convert --to json " + file);
    EXPECT_EQ(json::parse(asJson.out)["clubs"][0]["head_weight_g"], 198);
    EXPECT_EQ(json::parse(asJson.out)["description"], "Default Clubs Parameter");
    EXPECT_EQ(runCommand("clubs convert --to clb -", asJson.out).out, original);
    // CSV has the clubs without the texts.
    const auto asCsv = runCommand("clubs convert --to csv " + file);
    EXPECT_EQ(runCommand("clubs convert --to csv -", asCsv.out).out, asCsv.out);
    EXPECT_EQ(runCommand("clubs list -", asCsv.out).out, asCsv.out);
    EXPECT_EQ(linesOf(asCsv.out).at(9), "1i,16,225,100,0.76,0,0");
    const std::string written = folder.path("written.clb");
    EXPECT_EQ(runCommand("clubs convert " + file + " " + written).status, 0);
    EXPECT_EQ(contentOf(written), original);
    EXPECT_EQ(runCommand("clubs convert " + file + " /nowhere/a.clb").status, 3);
    // A shot with a club of the file.
    std::string heavier = asCsv.out;
    heavier.replace(heavier.find("Driver,10,198"), 13, "Driver,10,230");
    putContent(folder.path("bag.csv"), heavier);
    const auto flown = runCommand("fly --format json --club W1 --clubs " + folder.path("bag.csv"));
    EXPECT_EQ(json::parse(flown.out)["head_weight_g"], 230);
}

// Sets that the editor would refuse, as text and as the program's own file.
TEST(Command, TakesNoSetThatTheEditorRefuses) {
    ClubTables set = InitClubTables();
    set.Woods[1].LoftAngle = 80;
    set.Irons[7].HeadWeight = 400;
    const auto bytes = encodeClubs(set);
    const std::string own(bytes->begin(), bytes->end());
    std::string huge = runCommand("clubs convert --to json -", own).out;
    const std::string table = runCommand("clubs convert --to csv -", own).out;
    huge.replace(huge.find(": 80.0"), 6, ": 1e300");
    const std::string loft = "Driver: Then loft angle must between 0 and 65 degrees.";
    const std::string mass = "7i: Then head weight must between 180 and 320 grams.\n";
    const std::string all = "parabolt-cli: " + mass + "parabolt-cli: " + loft + '\n';
    const std::string first = "parabolt-cli: standard input: " + mass;
    const std::string refused =
        first.substr(0, first.size() - 1) + " (The first fault of 2; clubs check tells all.)\n";
    const Told cases[] = {{"clubs check -", own, 2, "", all},
                          {"clubs check -", table, 2, "", all},
                          {"clubs check -", huge, 2, "", all},
                          {"clubs fly -", own, 2, "", all},
                          {"clubs fly -", table, 2, "", refused},
                          {"clubs convert --to clb -", huge, 2, "", refused},
                          {"fly --club W3 --clubs -", table, 2, "", refused}};
    for (const Told& each : cases) {
        const auto run = runCommand(each.arguments, each.input);
        EXPECT_EQ(run.status, each.status) << each.arguments;
        EXPECT_EQ(run.out, each.out) << each.arguments;
        EXPECT_EQ(run.err, each.err) << each.arguments;
    }
}

// The best of the flat tops, as scanned flight by flight on a finer grid.
TEST(Command, StudiesAndMapsFindTheBest) {
    const auto figure = [](const std::string& arguments, const std::string& key) {
        return json::parse(runCommand(arguments + " --format json").out)[key];
    };
    EXPECT_NEAR(figure("study launch --ball-speed 150 --spin 2200", "launch_angle_deg"), 16.3, 0.7);
    EXPECT_NEAR(figure("study loft --head-speed 100", "loft_deg"), 12.4, 0.05);
    const json map = json::parse(
        runCommand("map --ball-speed 150 --across 2000:2400:200 --up 15:17:1 --format json").out);
    EXPECT_NEAR(map["best_carry"]["launch_angle_deg"], 16.3, 0.3);
    ASSERT_EQ(map["nodes"].size(), 9U);
    EXPECT_EQ(map["nodes"][8]["spin_rpm"], 2400);
    EXPECT_LT(map["nodes"][8]["carry_yd"], map["best_carry"]["carry_yd"]);
    EXPECT_EQ(linesOf(runCommand("map --across 2000:2400:200 --up 15:17:1").out).size(), 10U);
    const auto words = runCommand("map --kind swing --across 0:1:1 --up 9:10:1", "", true).out;
    EXPECT_NE(words.find("Loft "), std::string::npos) << words;
    EXPECT_NE(words.find("±1°"), std::string::npos) << words;
}

// At the device's own conditions nothing changes; thinner air carries further, and so the other
// way.
TEST(Command, NormalisesCarries) {
    const std::string file = PARABOLT_TEST_DATA "/measured/garmin.csv";
    const auto carries = [&](const std::string& options) {
        const json rows = json::parse(runCommand("normalise --format json " + options + file).out);
        return std::pair(rows.at(0)["device_carry_yd"].get<double>(),
                         rows.at(0)["normalised_carry_yd"].get<double>());
    };
    const auto [device, same] = carries("");
    EXPECT_NEAR(same, device, 1e-9);
    EXPECT_GT(carries("--to-altitude-ft 5000 ").second, device);
    EXPECT_LT(carries("--wind -10 ").second, device) << "it was hit with the wind behind";
}

} // namespace
} // namespace parabolt::support
