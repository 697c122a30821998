#include "cli/clubs_command.h"

#include "cli/row_writer.h"
#include "exchange/shot_columns.h"
#include "files/file_access.h"
#include "measured/bag.h"
#include "shots/fault_words.h"

#include <algorithm>

namespace parabolt::cli {
namespace {

namespace heading = shot_columns;

constexpr std::array<Column, 9> kBagColumns = {{
    {"club", heading::kClub, {}},
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

/// The flights of the clubs owned, as many as the rules allow, from the longest down; beside each
/// the gap to the next one.
ExitStatus flyClubs(const ClubTables& clubs, const ClubsOptions& options, Format format,
                    const Console& console) {
    const auto conditions = shotOf(options.shot, console);
    if (!conditions)
        return console.complain(conditions.why().message, conditions.why().status);
    const BagChoice bag = usualBag();
    auto flights = flyBag(bag, clubs, *conditions);
    const auto gaps = gapsOf(flights, options.narrowest, options.widest);
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
        if (club.flight.fault) {
            failed = true;
            cells.resize(kBagColumns.size() - 1);
            cells.emplace_back(faultDescription(*club.flight.fault));
            rows.row(cells);
            continue;
        }
        const Figures& figures = club.flight.figures;
        cells.insert(cells.end(), {figures.carry, figures.total, figures.height,
                                   figures.landingAngle, figures.time});
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
    ShotOptions source;
    source.clubsFile = options.file;
    const auto clubs = clubsFor(source, console);
    if (!clubs)
        return console.complain(clubs.why().message, clubs.why().status);
    const Format format = options.format.value_or(console.usualFormat());
    switch (options.action) {
    case ClubsOptions::Action::List:
        return list(*clubs, format, console);
    case ClubsOptions::Action::Check:
        return check(*clubs, console);
    case ClubsOptions::Action::Convert:
        return convert(*clubs, options, console);
    case ClubsOptions::Action::Fly:
        return flyClubs(*clubs, options, format, console);
    }
    return ExitStatus::Done;
}

} // namespace parabolt::cli
