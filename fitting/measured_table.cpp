#include "fitting/measured_table.h"

#include "exchange/shot_columns.h"
#include "fitting/measured_words.h"
#include "numbers/characters.h"

#include <algorithm>
#include <array>

namespace parabolt {
namespace {

constexpr std::string_view kTenths = "0.0";
constexpr std::string_view kHundredths = "0.00";

using Holds = TableColumn::Holds;

TableCell optionalCell(const std::optional<double>& figure, std::string_view pattern) {
    return figure ? numberCell(*figure, pattern) : TableCell();
}

TableCell tickCell(bool ticked) {
    TableCell cell;
    cell.ticked = ticked;
    return cell;
}

std::string_view patternOf(const ComparedFigure& figure) {
    return figure.unit == "s" ? kHundredths : kTenths;
}

/// "Device carry [yd]".
std::string figureHeading(std::string_view whose, const ComparedFigure& figure) {
    return std::string(whose) + " " + lowerCase(figure.name) + " [" + std::string(figure.unit) +
           "]";
}

std::string figureKey(std::string_view whose, const ComparedFigure& figure) {
    std::string key = std::string(whose) + std::string(figure.name);
    std::erase(key, ' ');
    return key;
}

/// A column of the table of clubs: a figure of a spread.
struct ClubColumn {
    std::string_view key;
    std::string_view heading; ///< an asterisk stands for "Device" or "Measured"
    std::string_view meaning;
    std::optional<Spread> ClubStatistics::*spread;
    std::optional<double> (*figure)(const Spread&);
    bool shown;
};

std::optional<double> meanOf(const Spread& spread) {
    return spread.mean;
}
std::optional<double> deviationOf(const Spread& spread) {
    return spread.deviation;
}
std::optional<double> leastOf(const Spread& spread) {
    return spread.least;
}
std::optional<double> greatestOf(const Spread& spread) {
    return spread.greatest;
}

constexpr std::array<ClubColumn, 15> kClubColumns = {{
    {"carry", "* carry [yd]", "Mean carry of the shots that count", &ClubStatistics::deviceCarry,
     meanOf, true},
    {"carrySd", "SD carry [yd]", "Spread of the carry: standard deviation of a sample",
     &ClubStatistics::deviceCarry, deviationOf, true},
    {"carryLeast", "Least carry [yd]", "The shortest carry", &ClubStatistics::deviceCarry, leastOf,
     true},
    {"carryMost", "Greatest carry [yd]", "The longest carry", &ClubStatistics::deviceCarry,
     greatestOf, true},
    {"total", "* total [yd]", "Mean of carry and roll", &ClubStatistics::deviceTotal, meanOf, true},
    {"totalSd", "SD total [yd]", "Spread of the total", &ClubStatistics::deviceTotal, deviationOf,
     true},
    {"totalLeast", "Least total [yd]", "The shortest total", &ClubStatistics::deviceTotal, leastOf,
     false},
    {"totalMost", "Greatest total [yd]", "The longest total", &ClubStatistics::deviceTotal,
     greatestOf, false},
    {"modelCarry", "Model carry [yd]", "Mean of the computed carries", &ClubStatistics::modelCarry,
     meanOf, true},
    {"modelCarrySd", "Model SD [yd]", "Spread of the computed carries", &ClubStatistics::modelCarry,
     deviationOf, false},
    {"modelTotal", "Model total [yd]", "Mean of the computed totals", &ClubStatistics::modelTotal,
     meanOf, false},
    {"error", "Difference [yd]", "Carry of the model less that of the device, on average",
     &ClubStatistics::carryError, meanOf, true},
    {"errorSd", "SD difference [yd]",
     "Spread of the difference: how far a single one can be trusted", &ClubStatistics::carryError,
     deviationOf, true},
    {"normalised", "Normalised [yd]", "Mean of the carries in calm air",
     &ClubStatistics::normalisedCarry, meanOf, true},
    {"normalisedSd", "SD normalised [yd]", "Spread of the carries in calm air",
     &ClubStatistics::normalisedCarry, deviationOf, false},
}};
constexpr std::size_t kTextColumns = 2; ///< in front of those: club and number

} // namespace

MeasuredTable::MeasuredTable(Fitting& fitting, const Comparison& comparison)
    : fitting_(fitting),
      comparison_(comparison) {
    refresh();
}

void MeasuredTable::refresh() {
    columns_.clear();
    tells_.clear();
    add({"check", "Set", "Ticked shots go into the data sets of the main form. Key: Space", true,
         Holds::Ticks},
        [](const MeasuredEntry& entry, std::size_t) { return tickCell(entry.checked); });
    add({"out", "Out", "Ticked shots are left out: they count in no mean. Key: Delete", true,
         Holds::Ticks},
        [](const MeasuredEntry& entry, std::size_t) { return tickCell(entry.struck); });
    add({"line", "Line", "Line of the file", true}, [](const MeasuredEntry& entry, std::size_t) {
        return numberCell(static_cast<double>(entry.shot.line), "0");
    });
    addLaunch();
    addFigures();
    addAir();
}

void MeasuredTable::add(TableColumn column, Tell tell) {
    columns_.push_back(std::move(column));
    tells_.push_back(std::move(tell));
}

void MeasuredTable::addLaunch() {
    add({"club", std::string(shot_columns::kClub), "Club, as the file names it", true,
         Holds::Texts},
        [](const MeasuredEntry& entry, std::size_t) { return TableCell{entry.shot.club}; });
    struct Launch {
        std::string_view key;
        std::string_view heading;
        std::string_view meaning;
        float MeasuredShot::*member;
        std::string_view pattern;
    };
    static constexpr std::array<Launch, 3> kLaunch = {{
        {"ballSpeed", shot_columns::kBallSpeed, "Speed of the ball behind the club",
         &MeasuredShot::ballSpeed, kTenths},
        {"launchAngle", shot_columns::kLaunchAngle, "Angle of the launch above the ground",
         &MeasuredShot::launchAngle, kTenths},
        {"spin", shot_columns::kSpin, "Back spin", &MeasuredShot::backSpin, "0"},
    }};
    for (const Launch& launch : kLaunch)
        add({std::string(launch.key), std::string(launch.heading), std::string(launch.meaning)},
            [&launch](const MeasuredEntry& entry, std::size_t) {
                return numberCell(entry.shot.*launch.member, launch.pattern);
            });
}

std::optional<double> MeasuredTable::modelFigure(const ComparedFigure& figure,
                                                 std::size_t row) const {
    const auto flights = comparison_.flights();
    if (row >= flights.size() || flights[row].fault)
        return std::nullopt;
    return flights[row].figures.*figure.model;
}

void MeasuredTable::addFigures() {
    const std::string_view whose = figuresHeading(fitting_.session().computesCarry);
    for (const ComparedFigure& figure : comparedFigures()) {
        const bool carry = &figure == comparedFigures().data();
        const std::string name = lowerCase(figure.name);
        add({figureKey("device", figure), figureHeading(whose, figure),
             "The " + name + " that the file brings"},
            [&figure](const MeasuredEntry& entry, std::size_t) {
                return optionalCell(entry.shot.device.*figure.device, patternOf(figure));
            });
        add({figureKey("model", figure), figureHeading("Model", figure),
             "The " + name + " that the model computes", carry || figure.unit != "s"},
            [this, &figure](const MeasuredEntry&, std::size_t row) {
                return optionalCell(modelFigure(figure, row), patternOf(figure));
            });
        add({figureKey("difference", figure),
             std::string(figure.name) + " difference [" + std::string(figure.unit) + "]",
             "Model less device", carry},
            [this, &figure](const MeasuredEntry& entry, std::size_t row) {
                return row < comparison_.flights().size()
                           ? optionalCell(figure.difference(entry.shot, comparison_.flights()[row]),
                                          patternOf(figure))
                           : TableCell();
            });
    }
    add({"normalised", "Normalised carry [yd]", "The device's carry, turned into calm air"},
        [this](const MeasuredEntry&, std::size_t row) {
            return row < comparison_.normalised().size()
                       ? optionalCell(comparison_.normalised()[row], kTenths)
                       : TableCell();
        });
}

void MeasuredTable::addAir() {
    struct Air {
        std::string_view key;
        std::string_view heading;
        std::optional<double> MeasuredAir::*member;
        std::string_view pattern;
    };
    static constexpr std::array<Air, 7> kAir = {{
        {"wind", shot_columns::kWind, &MeasuredAir::wind, kTenths},
        {"altitude", shot_columns::kAltitude, &MeasuredAir::altitude, "0"},
        {"temperature", shot_columns::kTemperature, &MeasuredAir::temperature, kTenths},
        {"pressure", shot_columns::kPressure, &MeasuredAir::seaLevelPressure, kHundredths},
        {"humidity", shot_columns::kHumidity, &MeasuredAir::humidity, "0"},
        {"placePressure", shot_columns::kPressureAtPlace, &MeasuredAir::pressure, kHundredths},
        {"density", shot_columns::kAirDensity, &MeasuredAir::density, "0.000"},
    }};
    for (const Air& air : kAir)
        add({std::string(air.key), std::string(air.heading), "Of the file, where it brings it",
             false},
            [&air](const MeasuredEntry& entry, std::size_t) {
                return optionalCell(entry.shot.air.*air.member, air.pattern);
            });
}

TableCell MeasuredTable::cell(std::size_t row, std::size_t column) const {
    const MeasuredEntry& entry = fitting_.session().entries[row];
    TableCell cell = tells_[column](entry, row);
    if (entry.struck)
        cell.look = TableCell::Look::Struck;
    return cell;
}

void MeasuredTable::tick(std::size_t row, std::size_t column, bool ticked) {
    change({&row, 1}, column == 0 ? &MeasuredEntry::checked : &MeasuredEntry::struck, ticked);
}

void MeasuredTable::strike(std::span<const std::size_t> rows) {
    const auto& entries = fitting_.session().entries;
    const bool allOut =
        std::all_of(rows.begin(), rows.end(), [&](std::size_t row) { return entries[row].struck; });
    change(rows, &MeasuredEntry::struck, !allOut);
}

void MeasuredTable::check(std::span<const std::size_t> rows, bool checked) {
    change(rows, &MeasuredEntry::checked, checked);
}

void MeasuredTable::change(std::span<const std::size_t> rows, bool MeasuredEntry::*member,
                           bool value) {
    const auto& entries = fitting_.session().entries;
    if (std::all_of(rows.begin(), rows.end(),
                    [&](std::size_t row) { return entries[row].*member == value; }))
        return;
    fitting_.change([&](MeasuredSession& session) {
        for (const std::size_t row : rows)
            session.entries[row].*member = value;
    });
}

ClubsTable::ClubsTable(const Fitting& fitting, const Comparison& comparison)
    : fitting_(fitting),
      comparison_(comparison) {
    refresh();
}

void ClubsTable::refresh() {
    clubs_ = comparison_.clubs();
    columns_ = {{"club", "Club", "Club, as the file names it", true, Holds::Texts},
                {"number", "Shots", "Number of shots that count"}};
    const std::string whose(figuresHeading(fitting_.session().computesCarry));
    for (const ClubColumn& column : kClubColumns) {
        std::string heading(column.heading);
        if (heading.front() == '*')
            heading.replace(0, 1, whose);
        columns_.push_back({std::string(column.key), std::move(heading),
                            std::string(column.meaning), column.shown});
    }
}

TableCell ClubsTable::cell(std::size_t row, std::size_t column) const {
    const ClubStatistics& club = clubs_[row];
    if (column == 0)
        return {shownClub(club.club)};
    if (column == 1)
        return numberCell(static_cast<double>(club.number), "0");
    const ClubColumn& told = kClubColumns[column - kTextColumns];
    const auto& spread = club.*told.spread;
    return spread ? optionalCell(told.figure(*spread), kTenths) : TableCell();
}

} // namespace parabolt
