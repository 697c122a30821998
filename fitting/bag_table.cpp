#include "fitting/bag_table.h"

#include "fitting/comparison.h"
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
    MeasuredTotal,
};

/// `whose` is "Device" or "Measured".
std::array<TableColumn, 14> bagColumns(const std::string& whose) {
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
        {"measuredTotal", whose + " total [yd]", "Mean total of the measured shots", false},
    }};
}

std::string_view wordOf(BagGap::Kind kind) {
    switch (kind) {
    case BagGap::Kind::TooNarrow:
        return "narrow";
    case BagGap::Kind::TooWide:
        return "wide";
    default:
        return "good";
    }
}

TableCell spreadCell(const std::optional<Spread>& spread) {
    return spread ? numberCell(spread->mean, kYards) : TableCell();
}

TableCell flightCell(const BagFlight& flight, std::size_t column) {
    const Figures& figures = flight.flight.figures;
    switch (column) {
    case HeadSpeed:
        return numberCell(flight.headSpeed, kYards);
    case Shots:
        return flight.measuredCarry
                   ? numberCell(static_cast<double>(flight.measuredCarry->number), "0")
                   : TableCell();
    case MeasuredCarry:
        return spreadCell(flight.measuredCarry);
    case MeasuredDeviation:
        return flight.measuredCarry && flight.measuredCarry->deviation
                   ? numberCell(*flight.measuredCarry->deviation, kYards)
                   : TableCell();
    case MeasuredTotal:
        return spreadCell(flight.measuredTotal);
    default:
        break;
    }
    if (flight.flight.fault)
        return column == Carry ? TableCell{"no flight"} : TableCell();
    return numberCell(column == Carry    ? figures.carry
                      : column == Total  ? figures.total
                      : column == Height ? figures.height
                                         : figures.landingAngle,
                      kYards);
}

} // namespace

BagChoice BagTable::decisive(BagChoice bag) {
    for (BagClub& club : bag.clubs)
        club.name.clear();
    bag.narrowest = bag.widest = 0;
    if (bag.speeds == HeadSpeeds::OfSet)
        bag.firstSpeed = bag.fall = 0;
    return bag;
}

void BagTable::fly(const ClubTables& tables, const Shot& conditions) {
    const BagChoice& bag = fitting_.session().bag;
    flown_ = Flown{decisive(bag), tables, conditionsOf(conditions)};
    flights_ = flyBag(bag, tables, conditions);
    refresh();
}

bool BagTable::isCurrent(const ClubTables& tables, const Shot& conditions) const {
    return flown_ && flown_->tables == tables && flown_->conditions == conditionsOf(conditions) &&
           flown_->bag == decisive(fitting_.session().bag);
}

void BagTable::refresh() {
    const MeasuredSession& session = fitting_.session();
    if (!flown_)
        return;
    strangers_ = putBeside(flights_, session.bag, session.entries, flown_->tables, session.answers);
    gaps_ = gapsOf(flights_, session.bag.narrowest, session.bag.widest);
}

const std::string& BagTable::nameOf(const BagFlight& flight) const {
    return fitting_.session().bag.clubs[flight.at].name;
}

const BagFlight* BagTable::flightOf(std::size_t row) const {
    const auto found = std::find_if(flights_.begin(), flights_.end(),
                                    [row](const BagFlight& flight) { return flight.at == row; });
    return found == flights_.end() ? nullptr : &*found;
}

const BagGap* BagTable::gapBehind(const BagFlight& flight) const {
    const auto found = std::find_if(gaps_.begin(), gaps_.end(), [&](const BagGap& gap) {
        return &flights_[gap.longer] == &flight;
    });
    return found == gaps_.end() ? nullptr : &*found;
}

std::string BagTable::summary() const {
    if (!flown_)
        return "Fly the bag to see its carries and gaps.";
    std::string text;
    for (const BagGap::Kind kind : {BagGap::Kind::TooNarrow, BagGap::Kind::TooWide}) {
        std::string gaps;
        for (const BagGap& gap : gaps_)
            if (gap.kind == kind)
                gaps += (gaps.empty() ? "" : ", ") + nameOf(flights_[gap.longer]) + " to " +
                        nameOf(flights_[gap.shorter]) + " " + formatPattern(gap.yards, kYards) +
                        " yd";
        if (!gaps.empty())
            text += (kind == BagGap::Kind::TooNarrow ? "Too narrow: " : "Too wide: ") + gaps + ". ";
    }
    if (text.empty())
        text = "All gaps lie within the limits. ";
    if (!strangers_.empty()) {
        text += "Measured, but not in the bag: ";
        for (const std::string& club : strangers_)
            text += (&club == strangers_.data() ? "" : ", ") +
                    (club.empty() ? std::string("(no club)") : club);
        text += ".";
    }
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
    const BagFlight* flight = flightOf(row);
    if (column == Owned) {
        cell.ticked = club.owned;
    } else if (column == Name) {
        cell.text = club.name;
    } else if (column == Number) {
        cell.text = (club.club.iron ? "Iron " : "Wood ") + std::to_string(club.club.number);
    } else if (flight != nullptr && (column == Gap || column == GapIs)) {
        if (const BagGap* gap = gapBehind(*flight))
            cell = column == Gap ? numberCell(gap->yards, kYards)
                                 : TableCell{std::string(wordOf(gap->kind))};
    } else if (flight != nullptr) {
        cell = flightCell(*flight, column);
    }
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
