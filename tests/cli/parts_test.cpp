#include "cli/batch_rows.h"
#include "cli/club_files.h"
#include "cli/descriptor_stream.h"
#include "cli/ordered_work.h"
#include "cli/shot_options.h"
#include "tests/cli/command_run.h"
#include "tests/support/golden.h"
#include "tests/support/temporary_folder.h"

#include <cmath>
#include <fcntl.h>
#include <limits>
#include <map>
#include <nlohmann/json.hpp>
#include <unistd.h>

namespace parabolt::support {
namespace {

using namespace parabolt::cli;

// The options hold the limits and the words of the form's fields.
TEST(CommandParts, AcceptWhatTheFieldsOfTheFormAccept) {
    const std::map<std::string, std::string> options = {{"txtLaunchAngle", "launch-angle-deg"},
                                                        {"txtBallSpin", "spin-rpm"},
                                                        {"txtLaunchSpeed", "ball-speed-mph"},
                                                        {"txtHeadSpeed", "head-speed-mph"},
                                                        {"txtCor", "cor"},
                                                        {"txtHeadWeight", "head-weight-g"},
                                                        {"txtAttackAngle", "attack-angle-deg"},
                                                        {"txtBending", "bend-deg"},
                                                        {"txtLoftAngle", "loft-deg"},
                                                        {"txtAltitude", "altitude-ft"},
                                                        {"txtPressure", "pressure-inhg"},
                                                        {"txtRelativeHumidity", "humidity-percent"},
                                                        {"txtTemperature", "temperature-deg-f"},
                                                        {"txtWind", "wind-mph"}};
    std::size_t seen = 0;
    for (const auto& row : goldenRows("fields.txt")) {
        const auto found = options.find(row.at(0));
        if (found == options.end())
            continue; // what a single shot doesn't have
        ++seen;
        const std::string option = "fly --" + found->second + "=";
        const auto told = [&](const std::string& text) {
            return runCommand(option + text, {}, true).err;
        };
        const auto refusal = [&](std::size_t column) {
            return "parabolt-cli: --" + found->second + ": " + row.at(column) + "\n";
        };
        EXPECT_EQ(told(std::to_string(std::stod(row.at(2)) - 0.001)), refusal(5));
        EXPECT_EQ(told(std::to_string(std::stod(row.at(3)) + 0.001)), refusal(5));
        EXPECT_EQ(told("nan"), refusal(6));
        for (const std::size_t accepted : {2U, 3U})
            EXPECT_EQ(told(row.at(accepted)).find("--"), std::string::npos) << option;
    }
    EXPECT_EQ(seen, options.size());
    EXPECT_EQ(seen, shotInputs().size());
}

struct Asked {
    std::vector<std::pair<std::string, std::string>> values;
    int mode;       ///< -1 if they don't fit together
    float loft;     ///< of the shot, degrees
    bool clubOfSet; ///< loft and mass come from the set
};

TEST(CommandParts, ChooseTheModeByWhatIsGiven) {
    const ClubTables clubs = InitClubTables();
    const Asked cases[] = {
        {{}, OperatingMode::Launch, 10, false},
        {{{"Wind [mph]", "5"}}, OperatingMode::Launch, 10, false},
        {{{"launch_angle_deg", "12"}}, OperatingMode::Launch, 10, false},
        {{{"club", "Driver"}}, OperatingMode::Default, 10, true},
        {{{"club", "i12"}, {"head_speed_mph", "80"}}, OperatingMode::Default, 60 - 4, true},
        {{{"loft_deg", "50"}, {"club", "PW"}}, OperatingMode::Manual, 50, false},
        {{{"COR", "0.8"}}, OperatingMode::Manual, 10, false},
        {{{"club", "W3"}, {"launch_angle_deg", "12"}}, OperatingMode::Actual, 14, false},
        {{{"club", "W3"}, {"spin_rpm", "3000"}}, -1, 0, false},
        {{{"head_speed_mph", "90"}, {"ball_speed_mph", "120"}}, -1, 0, false},
    };
    for (const Asked& each : cases) {
        ShotRequest request(clubs);
        for (const auto& [name, text] : each.values)
            ASSERT_TRUE(name == "club" ? request.setClub(text)
                                       : request.set(shotInputNamed(name).value(), text));
        const auto shot = request.shot();
        ASSERT_EQ(shot ? shot->Mode : -1, each.mode);
        if (!shot)
            continue;
        EXPECT_EQ(shot->LoftAngle, each.loft);
        EXPECT_EQ(shot->sources.club.has_value(), each.clubOfSet);
        EXPECT_EQ(shot->sources.measuredLaunchAngle.has_value(),
                  shot->Mode == OperatingMode::Actual);
    }
    // The values of the club must suit the form, and go there as texts.
    ClubTables odd = clubs;
    odd.Woods[1].COR = 0.8349F;
    odd.Woods[3].HeadWeight = 400;
    ShotRequest request(odd);
    ASSERT_TRUE(request.setClub("W1"));
    EXPECT_EQ(request.shot()->COR, 0.83F);
    ASSERT_TRUE(request.setClub("W3"));
    EXPECT_EQ(request.shot().why(), "3W: Enter values between 180 and 320 grams, try again.");
}

struct Shape {
    Format format;
    std::string text;
};

TEST(CommandParts, WriteCellsOfAllKinds) {
    const Column columns[] = {
        {"name", "Name", {}}, {"speed_mph", "Speed [mph]", ".0"}, {"n", "N", "0"}};
    const double infinite = std::numeric_limits<double>::infinity();
    const std::vector<Cell> rows[] = {{std::string_view("a,\"b\"\n\x01"), 0.1F, 2.5},
                                      {std::string_view("\xC3\xBC\xFF"), infinite, Cell()}};
    const Shape shapes[] = {
        {Format::Csv,
         "Name,Speed [mph],N\r\n\"a,\"\"b\"\"\n\x01\",0.1,2.5\r\n\xC3\xBC\xFF,inf,\r\n"},
        {Format::Json, "[\n{\"name\":\"a,\\\"b\\\"\\n\\u0001\",\"speed_mph\":0.1,\"n\":2.5},\n"
                       "{\"name\":\"\xC3\xBC\xEF\xBF\xBD\",\"speed_mph\":null,\"n\":null}\n]\n"},
        {Format::Table, "Name      Speed       N\n          [mph]        \n"
                        "a,\"b\"        .1       2\n\xC3\xBC\xFF          inf        \n"},
    };
    for (const Shape& shape : shapes) {
        std::ostringstream out, err;
        std::istringstream in;
        const Console console{in, out, err};
        RowStream stream(console, shape.format, columns);
        for (const auto& row : rows)
            stream.row(row);
        stream.end();
        EXPECT_EQ(out.str(), shape.text);
    }
}

TEST(CommandParts, JudgeClubsAsTheEditorDoes) {
    EXPECT_TRUE(checkClubs(InitClubTables()).empty());
    ClubTables clubs = InitClubTables();
    clubs.Irons[7].COR = 0.87F; // fine for a wood
    clubs.Woods[1].COR = 0.87F;
    clubs.Woods[10].LoftAngle = NAN;
    clubs.Woods[6].HeadWeight = 1; // no club
    const auto found = checkClubs(clubs);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0], "7i: Then COR must between 0.7 and 0.86 degrees.");
    EXPECT_EQ(found[1], "10W: Then loft angle must between 0 and 65 degrees.");
}

// The streams of the process: what a pipe has comes at once, and what can't be written is known.
TEST(CommandParts, StandOnTheSystemsStreams) {
    int ends[2] = {};
    ASSERT_EQ(::pipe(ends), 0);
    DescriptorBuffer reading(ends[0]);
    DescriptorBuffer writing(ends[1]);
    std::istream in(&reading);
    std::ostream out(&writing);
    std::string line;
    out << "one\n" << std::flush;
    EXPECT_TRUE(std::getline(in, line)) << "while the other end is open";
    EXPECT_EQ(line, "one");
    out << std::string(60000, 'x') << std::flush; // what a pipe holds
    ::close(ends[1]);
    EXPECT_TRUE(std::getline(in, line));
    EXPECT_EQ(line, std::string(60000, 'x'));
    EXPECT_FALSE(std::getline(in, line));
    EXPECT_TRUE(in.eof() && !in.bad());
    out << std::string(200000, 'x');
    EXPECT_TRUE(out.bad());
    EXPECT_EQ(writing.error(), EBADF);
    ::close(ends[0]);
    const int full = ::open("/dev/full", O_WRONLY);
    DescriptorBuffer disk(full);
    std::ostream onto(&disk);
    onto << "a few bytes" << std::flush;
    EXPECT_EQ(disk.error(), ENOSPC);
    EXPECT_TRUE(onto.bad());
    ::close(full);
    const int folder = ::open("/", O_RDONLY);
    DescriptorBuffer unreadable(folder);
    std::istream from(&unreadable);
    from.peek();
    EXPECT_TRUE(from.bad()) << "not just at its end";
    ::close(folder);
}

TEST(CommandParts, ReadFilesUpToTheirLimit) {
    const TemporaryFolder folder;
    putContent(folder.path("ten"), "0123456789");
    std::istringstream in("standard");
    std::ostringstream out;
    const Console console{in, out, out};
    EXPECT_EQ(*Input::open(folder.path("ten"), console)->readAll(10), "0123456789");
    EXPECT_NE(Input::open(folder.path("ten"), console)
                  ->readAll(9)
                  .why()
                  .message.find("more than 9 bytes"),
              std::string::npos);
    EXPECT_EQ(*Input::open("-", console)->readAll(100), "standard");
    EXPECT_EQ(Input::open(folder.path(), console).why().message,
              folder.path() + ": Is a directory");
    putContent(folder.path("empty"), "");
    EXPECT_EQ(*Input::open(folder.path("empty"), console)->readAll(9), "");
}

TEST(CommandParts, PassOnWhatAPieceThrows) {
    std::istringstream in;
    std::ostringstream out, err;
    const Console console{in, out, err};
    RowStream rows(console, Format::Csv, batchColumns(Format::Csv));
    OrderedWork work(console, rows);
    work.add([](const std::stop_token&) -> BatchText { throw std::bad_alloc(); });
    work.add([](const std::stop_token&) { return BatchText{"late\r\n", "", 1, 0}; });
    EXPECT_THROW(work.finish(), std::bad_alloc);
    EXPECT_EQ(out.str().find("late"), std::string::npos);
}

// Paths of a batch: rows with their line, and in JSON beside the figures.
TEST(CommandParts, GivePathsOfABatch) {
    const std::string table = "ball_speed_mph\n150\n12\n140\n";
    const auto rows = linesOf(runCommand("batch --path", table).out);
    EXPECT_EQ(rows.at(1), "2,0,0,0");
    const auto single = linesOf(runCommand("fly --path --ball-speed 140").out);
    EXPECT_EQ(rows.back(), "4," + single.back());
    const auto run = runCommand("batch --path --format json", table);
    EXPECT_EQ(run.status, 1);
    const auto list = nlohmann::json::parse(run.out);
    ASSERT_EQ(list.size(), 3U);
    EXPECT_TRUE(list[0]["path"].size() > 600 && !list[1].contains("path"));
    EXPECT_EQ(list[2]["path"].size(), single.size() - 1);
    EXPECT_TRUE(list[2]["problem"].is_null());
    EXPECT_FALSE(list[1]["problem"].is_null());
}

} // namespace
} // namespace parabolt::support
