#include "cli/shot_rows.h"

#include "cli/shot_inputs.h"
#include "shots/figures.h"
#include "shots/shown_figures.h"

#include <array>
#include <map>

namespace parabolt::cli {
namespace {

namespace heading = shot_columns;

constexpr std::array<Column, 7> kFigures = {{
    {"carry_yd", heading::kCarry, shown::kCarryDist.pattern},
    {"roll_ft", "Roll [ft]", shown::kGreenRoll.pattern},
    {"total_yd", heading::kTotal, "0.0"},
    {"height_yd", heading::kHeight, "0.0"},
    {"height_at_yd", "Height at [yd]", "0.0"},
    {"landing_angle_deg", heading::kLandingAngle, "0.0"},
    {"time_s", heading::kTime, shown::kCarryTime.pattern},
}};

/// What only a recorded flight tells.
constexpr std::array<Column, 2> kImpact = {{
    {"impact_speed_mph", "Impact speed [mph]", shown::kImpactSpeed.pattern},
    {"impact_spin_rpm", "Impact spin [rpm]", shown::kImpactSpin.pattern},
}};

constexpr std::array<Column, 3> kPath = {{
    {"time_s", heading::kTime, "0.00"},
    {"x_yd", "Downrange [yd]", "0.00"},
    {"y_yd", "Height [yd]", "0.00"},
}};

constexpr double kPathStep = 100; ///< points of a path a second

/// The columns of one sort of inputs.
std::vector<Column> composeInputColumns(ShotInput::Of sort) {
    std::vector<Column> columns;
    for (const ShotInput& input : shotInputs())
        if (input.of == sort)
            columns.push_back({input.key, input.heading, input.pattern});
    return columns;
}

void appendInputs(std::vector<Cell>& cells, const ShotInputs& shot, ShotInput::Of sort) {
    for (const ShotInput& input : shotInputs())
        if (input.of == sort)
            std::visit([&](auto member) { cells.emplace_back(shot.*member); }, input.member);
}

std::vector<Column> composeConditionColumns() {
    auto columns = composeInputColumns(ShotInput::Of::Air);
    columns.push_back({"ball", "Ball", "0"});
    return columns;
}

std::vector<Column> composeShotColumns() {
    std::vector<Column> columns = {kClubColumn, {"mode", "Mode", {}}};
    const auto add = [&](const auto& more) {
        columns.insert(columns.end(), more.begin(), more.end());
    };
    add(launchColumns());
    add(kFigures);
    add(kImpact);
    add(composeInputColumns(ShotInput::Of::Swing));
    add(conditionColumns());
    return columns;
}

/// The name of a club, as a cell can refer to it.
std::string_view storedName(ClubId club) {
    static const auto kNames = [] {
        std::map<ClubId, std::string> names;
        for (const ClubId each : clubsOfSet())
            names.emplace(each, usualName(each));
        return names;
    }();
    const auto found = kNames.find(club);
    return found != kNames.end() ? std::string_view(found->second) : std::string_view();
}

} // namespace

std::span<const Column> figureColumns() {
    return kFigures;
}

void appendFigures(std::vector<Cell>& cells, const FlightOutcome& flight) {
    const Figures figures = figuresOf(flight);
    cells.insert(cells.end(), {flight.carry, flight.roll, figures.total, flight.top.y, flight.top.x,
                               figures.landingAngle, flight.time});
}

std::span<const Column> launchColumns() {
    static const auto kColumns = composeInputColumns(ShotInput::Of::Launch);
    return kColumns;
}

void appendLaunch(std::vector<Cell>& cells, const ShotInputs& shot) {
    cells.insert(cells.end(), {shot.LaunchSpeed, shot.LaunchAngle, shot.RPM});
}

std::span<const Column> conditionColumns() {
    static const auto kColumns = composeConditionColumns();
    return kColumns;
}

void appendConditions(std::vector<Cell>& cells, const ShotInputs& shot) {
    appendInputs(cells, shot, ShotInput::Of::Air);
    cells.push_back(shot.BallType > 0 ? Cell(static_cast<double>(shot.BallType)) : Cell());
}

std::span<const Column> shotColumns() {
    static const auto kColumns = composeShotColumns();
    return kColumns;
}

std::vector<Cell> shotCells(const FlownShot& flown) {
    const Shot& shot = flown.shot;
    std::vector<Cell> cells;
    const bool ofSet = shot.sources.club.has_value();
    cells.emplace_back(ofSet ? storedName({!shot.IsWood, shot.ClubNo}) : std::string_view());
    cells.emplace_back(modeCode(shot.Mode));
    appendLaunch(cells, shot);
    if (flown.record.CarryTime > 0) {
        appendFigures(cells, outcomeOf(flown.record));
        cells.emplace_back(flown.record.ImpactSpeed);
        cells.emplace_back(flown.record.ImpactSpin);
    } else {
        cells.resize(cells.size() + kFigures.size() + kImpact.size());
    }
    appendInputs(cells, shot, ShotInput::Of::Swing);
    appendConditions(cells, shot);
    return cells;
}

std::span<const Column> pathColumns() {
    return kPath;
}

std::vector<Cell> pathCells(const RunRecord& record, std::size_t point) {
    const TrajectoryPoint& at = record.Path.at(point);
    return {static_cast<double>(point) / kPathStep, at.x, at.y};
}

void appendJsonPath(std::string& text, const RunRecord& record) {
    text += '[';
    for (std::size_t point = 0; point < record.Path.size(); ++point) {
        text += point > 0 ? ",[" : "[";
        const auto cells = pathCells(record, point);
        for (std::size_t i = 0; i < cells.size(); ++i)
            appendJsonCell(text.append(i > 0 ? "," : ""), cells[i]);
        text += ']';
    }
    text += ']';
}

} // namespace parabolt::cli
