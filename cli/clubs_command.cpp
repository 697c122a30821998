#include "cli/clubs_command.h"

#include "cli/row_writer.h"
#include "cli/session_command.h"
#include "cli/shot_rows.h"
#include "files/file_access.h"
#include "measured/measured_codec.h"
#include "numbers/rounding.h"
#include "numbers/text_number.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace parabolt::cli {
namespace {

namespace heading = shot_columns;

constexpr std::array<Column, 9> kBagColumns = {{
    kClubColumn,
    {"head_speed_mph", "Head speed [mph]", "0.0"},
    {"carry_yd", heading::kCarry, "0.0"},
    {"total_yd", heading::kTotal, "0.0"},
    {"height_yd", heading::kHeight, "0.0"},
    {"landing_angle_deg", heading::kLandingAngle, "0.0"},
    {"time_s", heading::kTime, "0.00"},
    {"gap_yd", "Gap [yd]", "0.0"},
    {"note", "Note", {}},
}};

std::string_view noteOf(const BagGap& gap) {
    switch (gap.kind) {
    case BagGap::Kind::TooNarrow:
        return "too narrow";
    case BagGap::Kind::TooWide:
        return "too wide";
    case BagGap::Kind::Good:
        break;
    }
    return {};
}

ExitStatus list(const ClubTables& clubs, Format format, const Console& console) {
    RowStream rows(console, format, clubColumns());
    for (const ClubId club : clubsOfSet()) {
        const std::string name = usualName(club);
        rows.row(clubCells(name, recordOf(clubs, club)));
    }
    rows.end();
    return console.finish();
}

ExitStatus check(const ClubTables& clubs, const Console& console) {
    const auto found = checkClubs(clubs);
    for (const std::string& fault : found)
        console.complain(fault);
    return found.empty() ? ExitStatus::Done : ExitStatus::BadInput;
}

/// The set that the options name: one to be checked may have any values.
Outcome<ClubTables, Refusal> setOf(const ClubsOptions& options, const Session* session,
                                   const Console& console) {
    if (options.file.empty())
        return session != nullptr ? session->desk.clubs : InitClubTables();
    return readClubs(options.file, console,
                     options.action == ClubsOptions::Action::Check ? FaultySet::Taken
                                                                   : FaultySet::Refused);
}

/// The format that the name of a file tells.
std::optional<ClubsFormat> formatOfName(std::string_view name) {
    if (name.ends_with(".clb"))
        return ClubsFormat::Program;
    if (name.ends_with(".csv"))
        return ClubsFormat::Csv;
    if (name.ends_with(".json"))
        return ClubsFormat::Json;
    return std::nullopt;
}

ExitStatus convert(const ClubTables& clubs, const ClubsOptions& options, const Console& console) {
    const auto format = options.to ? options.to : formatOfName(options.target);
    if (!format)
        return console.complain("Say with --to which format to write: clb, csv or json.");
    const auto content = clubsContent(clubs, *format);
    if (!content)
        return console.complain(content.why());
    if (options.target == "-") {
        console.out << *content;
        return console.finish();
    }
    if (const auto written = replaceFile(options.target, *content); !written)
        return console.complain(options.target + ": " + written.why().description,
                                ExitStatus::FileFailed);
    return ExitStatus::Done;
}

/// The bag of the options: that of a session, if one is given, or the usual one, with what else the
/// options say of it. The option with the reason why it is refused.
Outcome<BagChoice, Refusal> bagOf(const ClubsOptions& options, const Session* session) {
    BagChoice bag = usualBag();
    if (session != nullptr) {
        const auto window = session->desk.windows.find(kMeasuredKey);
        const auto measured = window != session->desk.windows.end()
                                  ? decodeMeasured(window->second.text())
                                  : std::nullopt;
        if (!measured)
            return because(Refusal{options.session + ": The session has no bag."});
        bag = measured->bag;
    }
    struct Given {
        std::string_view option;
        const std::optional<std::string>& text;
        InputLimits limits;
        std::variant<float BagChoice::*, double BagChoice::*> member;
    };
    for (const Given& given :
         {Given{"--first-speed-mph", options.firstSpeed, limits::kHeadSpeed,
                &BagChoice::firstSpeed},
          Given{"--fall-mph", options.fall, limits::kBagFall, &BagChoice::fall},
          Given{"--narrowest-yd", options.narrowest, limits::kBagGap, &BagChoice::narrowest},
          Given{"--widest-yd", options.widest, limits::kBagGap, &BagChoice::widest}}) {
        if (!given.text)
            continue;
        const auto value = parseNumber(*given.text);
        if (!value || !given.limits.hold(*value))
            return because(
                Refusal{std::string(given.option) + ": " + std::string(given.limits.rangeMessage)});
        if (const auto* narrow = std::get_if<float BagChoice::*>(&given.member)) {
            bag.*(*narrow) = store32(*value);
            bag.speeds = HeadSpeeds::Falling;
        } else {
            bag.*std::get<double BagChoice::*>(given.member) = *value;
        }
    }
    if (bag.narrowest > bag.widest)
        return because(Refusal{"--narrowest-yd: The narrowest good gap, " +
                               shortestText(bag.narrowest) + " yards, is above the widest, " +
                               shortestText(bag.widest) + " yards."});
    return bag;
}

/// The flights of the clubs owned, from the longest down; beside each the gap to the next one.
ExitStatus flyClubs(const ClubTables& clubs, const BagChoice& bag, const ClubsOptions& options,
                    Format format, const Console& console) {
    const auto conditions = shotOf(options.shot, console);
    if (!conditions)
        return console.complain(conditions.why());
    auto flights = flyBag(bag, clubs, *conditions);
    const auto gaps = gapsOf(flights, bag.narrowest, bag.widest);
    std::vector<std::size_t> order(flights.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::stable_sort(order.begin(), order.end(), [&](std::size_t one, std::size_t other) {
        return flights[one].carry() > flights[other].carry();
    });
    RowStream rows(console, format, kBagColumns);
    bool failed = false;
    for (const std::size_t i : order) {
        const BagFlight& club = flights[i];
        const std::string& name = bag.clubs.at(club.at).name;
        std::vector<Cell> cells = {std::string_view(name), club.headSpeed};
        if (!club.problem.empty()) {
            failed = true;
            cells.resize(kBagColumns.size() - 1);
            cells.emplace_back(club.problem);
            rows.row(cells);
            continue;
        }
        const Figures& figures = club.figures;
        cells.insert(cells.end(), {store32(figures.carry), figures.total, store32(figures.height),
                                   figures.landingAngle, store32(figures.time)});
        const auto gap = std::find_if(gaps.begin(), gaps.end(),
                                      [&](const BagGap& each) { return each.longer == i; });
        cells.push_back(gap != gaps.end() ? Cell(gap->yards) : Cell());
        cells.emplace_back(gap != gaps.end() ? noteOf(*gap) : std::string_view());
        rows.row(cells);
    }
    rows.end();
    return console.finish(failed ? ExitStatus::SomeFailed : ExitStatus::Done);
}

} // namespace

ExitStatus clubsCommand(const ClubsOptions& options, const Console& console) {
    std::optional<Session> session;
    if (!options.session.empty()) {
        auto read = readSession(options.session, console);
        if (!read)
            return console.complain(read.why());
        session = *std::move(read);
    }
    const auto clubs = setOf(options, session ? &*session : nullptr, console);
    if (!clubs)
        return console.complain(clubs.why());
    const Format format = options.format.value_or(console.usualFormat());
    switch (options.action) {
    case ClubsOptions::Action::List:
        return list(*clubs, format, console);
    case ClubsOptions::Action::Check:
        return check(*clubs, console);
    case ClubsOptions::Action::Convert:
        return convert(*clubs, options, console);
    case ClubsOptions::Action::Fly:
        break;
    }
    if (const auto checked = check(*clubs, console); checked != ExitStatus::Done)
        return checked;
    const auto bag = bagOf(options, session ? &*session : nullptr);
    if (!bag)
        return console.complain(bag.why());
    return flyClubs(*clubs, *bag, options, format, console);
}

} // namespace parabolt::cli
