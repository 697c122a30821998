#pragma once

#include "cli/row_writer.h"
#include "engine/many_flights.h"
#include "exchange/shot_columns.h"
#include "shots/fly.h"

#include <vector>

namespace parabolt::cli {

/// The name of a club.
inline constexpr Column kClubColumn{"club", shot_columns::kClub, {}};
/// The number of a data set.
inline constexpr Column kDataSetColumn{"data_set", "Data set", "0"};

/// What came of a flight, without the shot: seven columns from the carry to the time.
std::span<const Column> figureColumns();
/// Appends the cells of a flight that came down.
void appendFigures(std::vector<Cell>& cells, const FlightOutcome& flight);

/// The launch: ball speed, launch angle, spin.
std::span<const Column> launchColumns();
void appendLaunch(std::vector<Cell>& cells, const ShotInputs& shot);

/// The weather and the ball.
std::span<const Column> conditionColumns();
void appendConditions(std::vector<Cell>& cells, const ShotInputs& shot);

/// A flown shot with all that the form's table of results has of it, and more.
std::span<const Column> shotColumns();
/// The cells of a flown shot; without figures if the flight failed. Its texts live for ever.
std::vector<Cell> shotCells(const FlownShot& flown);

/// The points of a path.
std::span<const Column> pathColumns();
std::vector<Cell> pathCells(const RunRecord& record, std::size_t point);
/// Appends a path in JSON: [[time, x, y], ...].
void appendJsonPath(std::string& text, const RunRecord& record);

} // namespace parabolt::cli
