#include "mainform/form_shot.h"
#include "maps/carry_map.h"
#include "numbers/text_number.h"
#include "sessions/form_desk.h"
#include "sessions/session_codec.h"
#include "sets/data_sets.h"
#include "shots/figures.h"
#include "tables/table_text.h"
#include "tests/cli/command_run.h"
#include "tests/support/scripted_form.h"

#include <array>
#include <cmath>
#include <map>

namespace parabolt::support {
namespace {

/// Headings of the command in the order in which the form's table has its numbers.
constexpr std::array kInTableOrder = {"Time [s]",
                                      "Carry [yd]",
                                      "Ball speed [mph]",
                                      "Impact speed [mph]",
                                      "Launch angle [deg]",
                                      "Spin [rpm]",
                                      "Impact spin [rpm]",
                                      "Roll [ft]",
                                      "Head speed [mph]",
                                      "Head weight [g]",
                                      "Loft [deg]",
                                      "Attack angle [deg]",
                                      "Bend [deg]",
                                      "COR",
                                      "Wind [mph]",
                                      "Pressure [inHg]",
                                      "Temperature [deg F]",
                                      "Humidity [%]"};

struct SameShot {
    std::string arguments;
    std::function<void(ScriptedForm&)> play; ///< ends with one row in the form's table
};

const SameShot kShots[] = {
    {"fly", [](ScriptedForm& on) { on.form.optLaunch.select(), on.run(); }},
    {"fly --ball-speed 151.25 --launch-angle 13.7 --spin 2345.6 --ball 2",
     [](ScriptedForm& on) {
         on.form.optLaunch.select();
         on.enter(on.form.txtLaunchSpeed, "151.25");
         on.enter(on.form.txtLaunchAngle, "13.7");
         on.enter(on.form.txtBallSpin, "2345.6");
         on.form.BallOpt2.select();
         on.run();
     }},
    {"fly --head-speed 101.7 --loft 12.3 --cor 0.815 --ball 1 --wind -9.4 --temperature 48.5 "
     "--pressure 28.77 --humidity 81 --altitude 5280",
     [](ScriptedForm& on) {
         on.enter(on.form.txtHeadSpeed, "101.7");
         on.enter(on.form.txtLoftAngle, "12.3");
         on.enter(on.form.txtCor, "0.815");
         on.form.BallOpt1.select();
         on.enter(on.form.txtWind, "-9.4");
         on.enter(on.form.txtTemperature, "48.5");
         on.enter(on.form.txtPressure, "28.77");
         on.enter(on.form.txtRelativeHumidity, "81");
         on.enter(on.form.txtAltitude, "5280");
         on.run();
     }},
    {"fly --club I7 --head-speed 92.5",
     [](ScriptedForm& on) {
         on.form.optStandard.select();
         on.form.optIron.select();
         on.form.cmbClubNo.select(6);
         on.enter(on.form.txtHeadSpeed, "92.5");
         on.run();
     }},
    {"fly --club W3 --launch-angle 12.3",
     [](ScriptedForm& on) {
         on.form.optStandard.select();
         on.form.cmbClubNo.select(2);
         on.form.optActual.select();
         on.enter(on.form.txtLaunchAngle, "12.3");
         on.run();
     }},
    {"study launch --wind 15",
     [](ScriptedForm& on) {
         on.enter(on.form.txtWind, "15");
         on.form.mnuStyLaunch.Click();
     }},
    {"study spin --ball-speed 130", [](ScriptedForm& on) {
         on.form.optLaunch.select();
         on.enter(on.form.txtLaunchSpeed, "130");
         on.form.mnuStySpin.Click();
     }}};

/// What the command lists for people, by heading.
std::map<std::string, std::string> listed(const std::string& arguments) {
    std::map<std::string, std::string> values;
    for (const std::string& line : linesOf(runCommand(arguments, {}, true).out))
        values[line.substr(0, line.find("  "))] = line.substr(line.rfind(' ') + 1);
    return values;
}

TEST(TheCommand, ShowsAShotToTheDigitOfTheForm) {
    for (const SameShot& each : kShots) {
        ScriptedForm on;
        each.play(on);
        ASSERT_EQ(on.rows().size(), 1U) << each.arguments;
        std::istringstream row(on.rows().front());
        std::string club, mode;
        row >> club >> mode;
        auto shown = listed(each.arguments);
        EXPECT_EQ(shown["Mode"], mode) << each.arguments;
        // All the digits, of which the form shows the first.
        const auto lines = linesOf(runCommand(each.arguments).out);
        std::istringstream headings(lines.at(0)), cells(lines.at(1));
        std::map<std::string, double> exact;
        for (std::string heading, cell; std::getline(headings, heading, ',');)
            if (std::getline(cells, cell, ',') && heading != "Club" && heading != "Mode")
                exact[heading] = std::stod(cell);
        for (const std::string heading : kInTableOrder) {
            std::string cell;
            ASSERT_TRUE(row >> cell) << each.arguments << heading;
            EXPECT_EQ(shown[heading], cell) << each.arguments << heading;
            const auto point = cell.find('.');
            const auto decimals = point == std::string::npos ? 0 : cell.size() - point - 1;
            EXPECT_LE(std::abs(exact.at(heading) - std::stod(cell)),
                      0.5001 * std::pow(10, -static_cast<double>(decimals)))
                << each.arguments << heading;
        }
        EXPECT_FALSE(row >> mode) << "a number of the form that the command lacks";
    }
}

TEST(TheCommand, TellsTheDataSetsOfASession) {
    ScriptedForm on;
    on.form.optLaunch.select();
    on.run();
    on.form.optStandard.select();
    on.run();
    const std::string file = encodeSession({takeDesk(on.form), "2026-11-23 10:32"});
    const auto rows = linesOf(runCommand("session", file).out);
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[1], "1," + linesOf(runCommand("fly").out).at(1));
    EXPECT_EQ(rows[2], "2," + linesOf(runCommand("fly --club W1").out).at(1));
    const auto paths = linesOf(runCommand("session --path", file).out);
    EXPECT_EQ(paths.back(), "2," + linesOf(runCommand("fly --club W1 --path").out).back());
    const auto all = runCommand("session --format json", file).out;
    EXPECT_NE(all.find("\"txtBallSpin\": \"2600\""), std::string::npos) << all.substr(0, 500);
    EXPECT_EQ(runCommand("session", "{}").status, 2);
}

TEST(TheCommand, FliesTheExportedDataSetsAsTheForm) {
    ScriptedForm on;
    on.run();
    on.form.optLaunch.select();
    on.form.BallOpt2.select();
    on.enter(on.form.txtWind, "12.5");
    on.run();
    const DataSets sets(on.form.Runs);
    const CommandRun flown = runCommand("batch", tableAsCsv(sets, completeTable(sets)));
    EXPECT_EQ(flown.status, 0) << flown.err;
    const auto rows = linesOf(flown.out);
    ASSERT_EQ(rows.size(), 3U);
    for (const int number : {1, 2}) {
        const std::string total = shortestText(figuresOf(on.form.Runs[number]).total);
        EXPECT_NE(rows[static_cast<std::size_t>(number)].find("," + total + ","), std::string::npos)
            << total;
    }
}

// What the table lacks, the map's readout tells.
TEST(TheCommand, ShowsTheFiguresOfTheMap) {
    ScriptedForm on;
    on.form.optLaunch.select();
    CarryMap map;
    map.follow(takeShot(on.form, on.form.clubs), {});
    map.setCross({3200, 9.5});
    auto shown = listed("fly");
    EXPECT_NE(map.readout().find("total " + shown["Total [yd]"] + " yd, height " +
                                 shown["Height [yd]"] + " yd, landing " +
                                 shown["Landing angle [deg]"]),
              std::string::npos)
        << map.readout();
}

} // namespace
} // namespace parabolt::support
