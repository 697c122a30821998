#include "cli/command_line.h"

#include "cli/batch_command.h"
#include "cli/clubs_command.h"
#include "cli/fly_command.h"
#include "cli/map_command.h"
#include "cli/normalise_command.h"
#include "cli/session_command.h"
#include "cli/study_command.h"
#include "measured/measured_flights.h"
#include "numbers/text_number.h"

#include <CLI/CLI.hpp>
#include <functional>

namespace parabolt::cli {
namespace {

/// The names of the choices of an option, with what they stand for.
template <class Value>
using Choices = std::vector<std::pair<std::string, Value>>;

template <class Value, class Target>
CLI::Option* addChoice(CLI::App& app, const std::string& option, Target& target,
                       const Choices<Value>& choices, const std::string& meaning) {
    std::vector<std::string> names;
    for (const auto& [name, value] : choices)
        names.push_back(name);
    const auto choose = [&target, choices](const std::string& given) {
        for (const auto& [name, value] : choices)
            if (name == given)
                target = value;
    };
    return app.add_option_function<std::string>(option, choose, meaning)
        ->check(CLI::IsMember(names));
}

std::string limitsText(const ShotInput& input) {
    return ", " + shortestText(input.lowest) + " to " + shortestText(input.highest);
}

/// "--ball-speed-mph", and the same without its unit.
std::string optionNames(const ShotInput& input) {
    const std::string option = optionOf(input);
    const std::size_t unit = input.key.size() - keyWithoutUnit(input).size();
    return unit > 0 ? option + "," + option.substr(0, option.size() - unit) : option;
}

std::string unitOf(const ShotInput& input) {
    const std::size_t unit = input.heading.find('[');
    if (unit == std::string_view::npos)
        return "NUMBER";
    return std::string(input.heading.substr(unit + 1, input.heading.size() - unit - 2));
}

/// Options of the weather and the ball.
void addConditions(CLI::App& app, ShotOptions& shot) {
    for (std::size_t i = 0; i < kShotInputs; ++i) {
        const ShotInput& input = shotInputs()[i];
        if (input.of == ShotInput::Of::Air)
            app.add_option(optionNames(input), shot.inputs.at(i),
                           std::string(input.meaning) + limitsText(input))
                ->type_name(unitOf(input))
                ->group("Weather and ball");
    }
    app.add_option("--ball", shot.ball, "1 soft ball, 2 different dimple, 3 larger MOI, 4 default")
        ->type_name("NUMBER")
        ->group("Weather and ball");
}

/// All options of a shot.
void addShot(CLI::App& app, ShotOptions& shot) {
    for (std::size_t i = 0; i < kShotInputs; ++i) {
        const ShotInput& input = shotInputs()[i];
        if (input.of != ShotInput::Of::Air)
            app.add_option(optionNames(input), shot.inputs.at(i),
                           std::string(input.meaning) + limitsText(input))
                ->type_name(unitOf(input))
                ->group(input.of == ShotInput::Of::Launch ? "Launch" : "Swing and club");
    }
    app.add_option("--club", shot.club,
                   "A club of the set: W1 or Driver, W3, I7 or 7i, PW, SW; with its values")
        ->type_name("NAME")
        ->group("Swing and club");
    app.add_option("--clubs", shot.clubsFile,
                   "The clubs file that has the set; the default set if not given")
        ->type_name("FILE")
        ->group("Swing and club");
    addConditions(app, shot);
}

void addFormat(CLI::App& app, std::optional<Format>& format) {
    addChoice<Format>(app, "--format", format,
                      {{"csv", Format::Csv}, {"json", Format::Json}, {"table", Format::Table}},
                      "How results are written; a table on a terminal, CSV otherwise");
}

void addPath(CLI::App& app, bool& path) {
    app.add_flag("--path", path,
                 "The points of the path: seconds, yards downrange, yards of height; in JSON "
                 "beside the figures");
}

constexpr auto kStatuses =
    "Exit status: 0 done; 1 some shots gave no result; 2 options or input that make no sense; 3 a "
    "file could not be read or written, or memory ran out.";
constexpr std::string_view kAskHelp = " Run with --help for more information.";

/// The command line as a whole: its commands, their options, and the one that is to run.
class CommandLine {
public:
    explicit CommandLine(const Console& console) : console_(console) {
        app_.set_version_flag("--version", "parabolt-cli " PARABOLT_VERSION);
        app_.require_subcommand(1);
        app_.footer(kStatuses);
        addFly();
        addBatch();
        addMap();
        addStudy();
        addClubs();
        addNormalise();
        addSession();
    }

    int run(std::vector<std::string> arguments) {
        if (const std::string name = unknownCommand(arguments); !name.empty())
            return static_cast<int>(
                console_.complain("There is no command \"" + name + "\"." + std::string(kAskHelp)));
        std::reverse(arguments.begin(), arguments.end()); // as the library wants them
        try {
            app_.parse(std::move(arguments));
        } catch (const CLI::ArgumentMismatch& error) {
            const std::string_view what = error.what();
            const bool again = what.find("received") != std::string_view::npos;
            return static_cast<int>(console_.complain(
                std::string(what.substr(0, what.find(':'))) +
                (again ? ": It is given more than once." : ": Its value is missing.") +
                std::string(kAskHelp)));
        } catch (const CLI::ParseError& error) {
            if (error.get_exit_code() != 0)
                return static_cast<int>(
                    console_.complain(std::string(error.what()) + "." + std::string(kAskHelp)));
            app_.exit(error, console_.out, console_.err); // help, or the version
            return static_cast<int>(console_.finish());
        }
        return static_cast<int>(run_());
    }

private:
    /// The word that stands in the place of a command and is none; empty if there is none such.
    std::string unknownCommand(const std::vector<std::string>& arguments) const {
        const CLI::App* app = &app_;
        for (const std::string& word : arguments) {
            if (app->get_subcommands({}).empty() || word.starts_with('-'))
                break;
            const auto named =
                app->get_subcommands([&](const CLI::App* sub) { return sub->get_name() == word; });
            if (named.empty())
                return word;
            app = named.front();
        }
        return {};
    }

    /// A command that runs a function with its options.
    template <class Options>
    CLI::App& add(CLI::App& parent, const std::string& name, const std::string& meaning,
                  Options& options, ExitStatus (*command)(const Options&, const Console&)) {
        CLI::App& app = *parent.add_subcommand(name, meaning);
        app.callback([this, &options, command] {
            run_ = [this, &options, command] { return command(options, console_); };
        });
        return app;
    }

    void addFly() {
        CLI::App& app =
            add(app_, "fly", "Fly one shot, by its launch or by a swing", fly_, flyCommand);
        addShot(app, fly_.shot);
        addFormat(app, fly_.format);
        addPath(app, fly_.path);
    }

    void addBatch() {
        CLI::App& app =
            add(app_, "batch", "Fly the shots of a CSV table or of a launch monitor's file", batch_,
                batchCommand);
        app.add_option("FILE", batch_.file,
                       "The file; - or nothing for the standard input. A table has headings such "
                       "as \"Ball speed [mph]\" or ball_speed_mph; what it lacks, the options "
                       "give");
        app.add_flag("--own-air", batch_.ownAir,
                     "The shots of a launch monitor's file fly in the air that it tells, where it "
                     "tells one; a table's columns count anyway");
        addShot(app, batch_.shot);
        addFormat(app, batch_.format);
        addPath(app, batch_.path);
    }

    void addMap() {
        CLI::App& app =
            add(app_, "map", "Map the carry over launch and spin, or over loft and attack", map_,
                mapCommand);
        addChoice<MapKind>(app, "--kind", map_.kind,
                           {{"launch", MapKind::Launch}, {"swing", MapKind::Swing}},
                           "launch: spin in rpm across, launch angle in degrees up; swing: attack "
                           "angle across, loft up, in degrees");
        app.add_option("--across", map_.across, "First value, last value and step across")
            ->type_name("FIRST:LAST:STEP");
        app.add_option("--up", map_.up, "The same upward")->type_name("FIRST:LAST:STEP");
        addShot(app, map_.shot);
        addFormat(app, map_.format);
    }

    void addStudy() {
        CLI::App& app =
            add(app_, "study",
                "Raise the launch angle or the spin until the carry falls, or find the best loft",
                study_, studyCommand);
        addChoice<Study>(app, "WHAT", study_.study,
                         {{"launch", Study::Launch}, {"spin", Study::Spin}, {"loft", Study::Loft}},
                         "launch: the angle, from 2 degrees in whole ones; spin: from 0 in steps "
                         "of 100 rpm: each up to the first fall of the carry, as in the window's "
                         "studies; loft: the one with which the swing carries furthest. A value "
                         "given for what is looked for doesn't count")
            ->required();
        addShot(app, study_.shot);
        addFormat(app, study_.format);
        addPath(app, study_.path);
    }

    void addClubs() {
        using Action = ClubsOptions::Action;
        CLI::App& app = *app_.add_subcommand("clubs", "Read, check, convert and fly club sets");
        app.require_subcommand(1);
        const auto addAction = [&](const std::string& name, Action action,
                                   const std::string& meaning) -> CLI::App& {
            CLI::App& sub = *app.add_subcommand(name, meaning);
            sub.add_option("FILE", clubs_.file,
                           "A clubs file, or a set as CSV or JSON; the default set if not given");
            sub.callback([this, action] {
                clubs_.action = action;
                run_ = [this] { return clubsCommand(clubs_, console_); };
            });
            return sub;
        };
        addFormat(addAction("list", Action::List, "Write the clubs of a set"), clubs_.format);
        addAction("check", Action::Check, "Tell what the editor of clubs would refuse");
        CLI::App& convert = addAction("convert", Action::Convert, "Write a set in another format");
        convert.add_option("TARGET", clubs_.target,
                           "The file to write; - or nothing for the standard output");
        addChoice<ClubsFormat>(
            convert, "--to", clubs_.to,
            {{"clb", ClubsFormat::Program}, {"csv", ClubsFormat::Csv}, {"json", ClubsFormat::Json}},
            "The format; told by the name of the file if not given");
        CLI::App& bag =
            addAction("fly", Action::Fly, "Fly the clubs of a bag and tell the gaps between them");
        bag.add_option("--bag", clubs_.session,
                       "A session file: its clubs owned, their names, head speeds and limits of "
                       "gaps; its club set too if no FILE is given")
            ->type_name("SESSION");
        const auto addNumber = [&](const std::string& names, std::optional<std::string>& text,
                                   const std::string& unit, const std::string& meaning) {
            bag.add_option(names, text, meaning)->type_name(unit);
        };
        addNumber("--first-speed-mph,--first-speed", clubs_.firstSpeed, "mph",
                  "Head speed of the first wood and of the first iron, 50 to 165; it falls from "
                  "club to club");
        addNumber("--fall-mph,--fall", clubs_.fall, "mph",
                  "Fall of the head speed from club to club, 0 to 5; 1 if not given");
        addNumber("--narrowest-yd,--narrowest", clubs_.narrowest, "yd",
                  "Mark gaps below, 0 to 100; 8 if not given");
        addNumber("--widest-yd,--widest", clubs_.widest, "yd",
                  "Mark gaps above, 0 to 100; 18 if not given");
        addConditions(bag, clubs_.shot);
        addFormat(bag, clubs_.format);
    }

    void addNormalise() {
        CLI::App& app =
            add(app_, "normalise", "Bring the carries of a launch monitor's file to calm air",
                normalise_, normaliseCommand);
        app.footer(std::string(kNormalisedNote) + "\n" + kStatuses);
        app.add_option("FILE", normalise_.file, "The file; - or nothing for the standard input");
        app.add_flag("--own-air", normalise_.ownAir,
                     "The shots were hit in the air that the file tells, where it tells one");
        const auto addTo = [&](const std::string& name, std::optional<std::string>& text,
                               const std::string& unit, const std::string& meaning) {
            app.add_option(name, text, meaning)->type_name(unit)->group("The calm air");
        };
        addTo("--to-altitude-ft,--to-altitude", normalise_.altitude, "ft",
              "Altitude, 0 if not given");
        addTo("--to-temperature-deg-f,--to-temperature", normalise_.temperature, "deg F",
              "Temperature, 70 if not given");
        addTo("--to-pressure-inhg,--to-pressure", normalise_.pressure, "inHg",
              "Pressure as read at sea level, 29.92 if not given");
        addTo("--to-humidity-percent,--to-humidity", normalise_.humidity, "%",
              "Relative humidity, 50 if not given");
        addConditions(app, normalise_.shot);
        addFormat(app, normalise_.format);
    }

    void addSession() {
        CLI::App& app = add(app_, "session",
                            "Write what a session file holds: its data sets, in JSON all of it",
                            session_, sessionCommand);
        app.add_option("FILE", session_.file, "The file; - or nothing for the standard input");
        addFormat(app, session_.format);
        addPath(app, session_.path);
    }

    const Console& console_;
    CLI::App app_{"Flies golf shots without a window, for scripts and spreadsheets.",
                  "parabolt-cli"};
    FlyOptions fly_;
    BatchOptions batch_;
    MapOptions map_;
    StudyOptions study_;
    ClubsOptions clubs_;
    NormaliseOptions normalise_;
    SessionOptions session_;
    std::function<ExitStatus()> run_;
};

} // namespace

int runCommandLine(std::vector<std::string> arguments, const Console& console) {
    return CommandLine(console).run(std::move(arguments));
}

} // namespace parabolt::cli
