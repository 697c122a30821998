#include "fitting/bag_table.h"

#include "fitting/comparison.h"
#include "fitting/measured_words.h"
#include "numbers/characters.h"
#include "numbers/text_number.h"

#include <algorithm>
#include <array>

namespace parabolt {
namespace {

constexpr std::string_view kYards = "0.0";

enum BagColumn {
    Owned,
    Name,
    Number,
    HeadSpeed,
    Carry,
    Gap,
    GapIs,
    Total,
    Height,
    LandingAngle,
    Shots,
    MeasuredCarry,
    MeasuredDeviation,
    MeasuredGap,
    MeasuredGapIs,
    MeasuredTotal,
};

/// `whose` is "Device" or "Measured".
std::array<TableColumn, 16> bagColumns(const std::string& whose) {
    using Holds = TableColumn::Holds;
    return {{
        {"owned", "Own", "Ticked clubs are in the bag. Key: Space", true, Holds::Ticks},
        {"name", "Name", "Your name of the club: type another one (F2)", true, Holds::Names},
        {"number", "Club", "The club of the editor's set", true, Holds::Texts},
        {"headSpeed", "Head speed [mph]", "Head speed with which the club was flown"},
        {"carry", "Carry [yd]", "Carry that the model computes"},
        {"gap", "Gap [yd]", "Distance to the next shorter carry"},
        {"gapIs", "Gap is", "Whether it lies within the limits", true, Holds::Texts},
        {"total", "Total [yd]", "Carry and roll"},
        {"height", "Height [yd]", "Greatest height"},
        {"landingAngle", "Landing angle [deg]", "Angle of the path against the ground"},
        {"shots", "Shots", "Measured shots with the club that count"},
        {"measuredCarry", whose + " carry [yd]", "Mean carry of the measured shots"},
        {"measuredSd", "SD carry [yd]", "Spread of their carry: standard deviation"},
        {"measuredGap", whose + " gap [yd]",
         "Distance to the next shorter mean of the clubs owned"},
        {"measuredGapIs", whose + " gap is", "Whether it lies within the limits", true,
         Holds::Texts},
        {"measuredTotal", whose + " total [yd]", "Mean total of the measured shots", false},
    }};
}

TableCell flightCell(const BagFlight& flight, std::size_t column) {
    const Figures& figures = flight.figures;
    if (column == HeadSpeed)
        return numberCell(flight.headSpeed, kYards);
    if (!flight.problem.empty())
        return column == Carry ? TableCell{"no flight"} : TableCell();
    switch (column) {
    case Carry:
        return numberCell(figures.carry, kYards);
    case Total:
        return numberCell(figures.total, kYards);
    case Height:
        return numberCell(figures.height, kYards);
    case LandingAngle:
        return numberCell(figures.landingAngle, kYards);
    default:
        return {};
    }
}

TableCell measuredCell(const BagMeasured& club, std::size_t column) {
    const std::optional<Spread>& spread = column == MeasuredTotal ? club.total : club.carry;
    if (!spread)
        return {};
    switch (column) {
    case Shots:
        return numberCell(static_cast<double>(spread->number), "0");
    case MeasuredDeviation:
        return spread->deviation ? numberCell(*spread->deviation, kYards) : TableCell();
    default:
        return numberCell(spread->mean, kYards);
    }
}

/// The gap from a row to the next shorter one, in yards or in a word.
TableCell gapCell(std::span<const BagGap> gaps, std::size_t row, bool inYards) {
    const auto gap = std::find_if(gaps.begin(), gaps.end(),
                                  [row](const BagGap& each) { return each.longer == row; });
    if (gap == gaps.end())
        return {};
    if (inYards)
        return numberCell(gap->yards, kYards);
    TableCell cell{std::string(gapWord(gap->kind))};
    cell.colour = gapColour(gap->kind);
    return cell;
}

/// Gaps between elements of some clubs as gaps between the rows of these.
std::vector<BagGap> betweenRows(std::vector<BagGap> gaps, std::span<const std::size_t> rows) {
    for (BagGap& gap : gaps) {
        gap.shorter = rows[gap.shorter];
        gap.longer = rows[gap.longer];
    }
    return gaps;
}

} // namespace

BagTable::BagTable(Fitting& fitting, const ClubTables& tables)
    : fitting_(fitting),
      tables_(tables) {
    refresh();
}

BagChoice BagTable::decisive(BagChoice bag) {
    for (BagClub& club : bag.clubs)
        club.name.clear();
    bag.narrowest = bag.widest = 0;
    if (bag.speeds == HeadSpeeds::OfSet)
        bag.firstSpeed = bag.fall = 0;
    return bag;
}

void BagTable::fly(const Shot& conditions) {
    const BagChoice& bag = fitting_.session().bag;
    flown_ = Flown{decisive(bag), tables_, conditionsOf(conditions)};
    flights_ = flyBag(bag, tables_, conditions);
    refresh();
}

bool BagTable::isCurrent(const Shot& conditions) const {
    return flown_ && flown_->tables == tables_ && flown_->conditions == conditionsOf(conditions) &&
           flown_->bag == decisive(fitting_.session().bag);
}

void BagTable::refresh() {
    const MeasuredSession& session = fitting_.session();
    const BagChoice& bag = session.bag;
    measured_ = measuredBag(bag, session.entries, tables_, session.answers);
    std::erase_if(flights_, [&](const BagFlight& flight) { return flight.at >= bag.clubs.size(); });
    std::vector<std::size_t> rows;
    for (const BagFlight& flight : flights_)
        rows.push_back(flight.at);
    gaps_ = betweenRows(gapsOf(flights_, bag.narrowest, bag.widest), rows);
    rows.clear();
    std::vector<double> means;
    for (std::size_t row = 0; row < bag.clubs.size(); ++row)
        if (bag.clubs[row].owned && measured_.clubs[row].carry) {
            rows.push_back(row);
            means.push_back(measured_.clubs[row].carry->mean);
        }
    measuredGaps_ = betweenRows(gapsBetween(means, bag.narrowest, bag.widest), rows);
}

const BagFlight* BagTable::flightOf(std::size_t row) const {
    const auto found = std::find_if(flights_.begin(), flights_.end(),
                                    [row](const BagFlight& flight) { return flight.at == row; });
    return found == flights_.end() ? nullptr : &*found;
}

std::vector<CarryLine> BagTable::carryLines() const {
    const auto& clubs = fitting_.session().bag.clubs;
    std::vector<CarryLine> lines;
    for (std::size_t row = 0; row < clubs.size(); ++row) {
        const BagFlight* flight = flightOf(row);
        CarryLine& line = lines.emplace_back();
        line.name = clubs[row].name;
        if (flight != nullptr && flight->problem.empty())
            line.computed = flight->carry();
        if (flight != nullptr || clubs[row].owned)
            line.measured = measured_.clubs[row].carry;
    }
    return lines;
}

/// "Too narrow: 7i to 8i 6.5 yd. "; empty if all gaps are good.
std::string BagTable::verdictOn(std::span<const BagGap> gaps) const {
    std::string text;
    for (const BagGap::Kind kind : {BagGap::Kind::TooNarrow, BagGap::Kind::TooWide}) {
        std::string named;
        for (const BagGap& gap : gaps)
            if (gap.kind == kind)
                named += (named.empty() ? "" : ", ") + nameOf(gap.longer) + " to " +
                         nameOf(gap.shorter) + " " + formatPattern(gap.yards, kYards) + " yd";
        if (!named.empty())
            text +=
                (kind == BagGap::Kind::TooNarrow ? "Too narrow: " : "Too wide: ") + named + ". ";
    }
    return text;
}

/// "No flight with SW, LW: Enter a head speed ... ", for each problem.
std::string BagTable::problems() const {
    std::vector<std::pair<std::string_view, std::string>> clubsByProblem;
    for (const BagFlight& flight : flights_) {
        if (flight.problem.empty())
            continue;
        auto same = std::find_if(clubsByProblem.begin(), clubsByProblem.end(),
                                 [&](const auto& each) { return each.first == flight.problem; });
        if (same == clubsByProblem.end())
            clubsByProblem.emplace_back(flight.problem, nameOf(flight.at));
        else
            same->second += ", " + nameOf(flight.at);
    }
    std::string text;
    for (const auto& [problem, named] : clubsByProblem)
        text += "No flight with " + named + ": " + std::string(problem) + " ";
    return text;
}

std::string BagTable::summary() const {
    std::string text = verdictOn(gaps_);
    if (!isFlown())
        text = "Fly the bag to see its carries and gaps. ";
    else if (flights_.empty())
        text = "No club is ticked. ";
    else if (gaps_.empty())
        text = "A gap lies between two clubs that fly. ";
    else if (text.empty())
        text = "All gaps lie within the limits. ";
    text += problems();
    if (const std::string measured = verdictOn(measuredGaps_); !measured.empty())
        text += std::string(figuresHeading(fitting_.session().computesCarry)) +
                " means: " + lowerCase(measured.substr(0, 1)) + measured.substr(1);
    std::string strangers;
    for (const std::string& club : measured_.strangers)
        strangers += (strangers.empty() ? "" : ", ") + shownClub(club);
    if (!strangers.empty())
        text += "Measured, but not in the bag: " + strangers + ". ";
    text.pop_back();
    return text;
}

std::span<const TableColumn> BagTable::columns() const {
    static const auto kOfDevice = bagColumns(std::string(figuresHeading(true)));
    static const auto kMeasured = bagColumns(std::string(figuresHeading(false)));
    return fitting_.session().computesCarry ? kOfDevice : kMeasured;
}

TableCell BagTable::cell(std::size_t row, std::size_t column) const {
    const BagClub& club = fitting_.session().bag.clubs[row];
    TableCell cell;
    if (column == Owned)
        cell.ticked = club.owned;
    else if (column == Name)
        cell.text = club.name;
    else if (column == Number)
        cell.text = (club.club.iron ? "Iron " : "Wood ") + std::to_string(club.club.number);
    else if (column == Gap || column == GapIs)
        cell = gapCell(gaps_, row, column == Gap);
    else if (column == MeasuredGap || column == MeasuredGapIs)
        cell = gapCell(measuredGaps_, row, column == MeasuredGap);
    else if (column >= Shots)
        cell = measuredCell(measured_.clubs[row], column);
    else if (const BagFlight* flight = flightOf(row))
        cell = flightCell(*flight, column);
    if (!club.owned)
        cell.look = TableCell::Look::Faint;
    return cell;
}

void BagTable::tick(std::size_t row, std::size_t column, bool ticked) {
    if (column == Owned)
        fitting_.change([&](MeasuredSession& session) { session.bag.clubs[row].owned = ticked; });
}

void BagTable::enter(std::size_t row, std::size_t column, const std::string& text) {
    const BagClub& club = fitting_.session().bag.clubs[row];
    const std::string name = text.empty() ? usualName(club.club) : text;
    if (column == Name && name != club.name)
        fitting_.change([&](MeasuredSession& session) { session.bag.clubs[row].name = name; });
}

} // namespace parabolt
