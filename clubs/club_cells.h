#pragma once

#include "clubs/club_tables.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace parabolt {

/// The two grids of the club editor.
enum class ClubKind : std::int16_t { Irons = 0, Woods = 1 };

/// Both grids have a heading row and one row for each field of a club; column 0 holds the labels.
inline constexpr int kClubRows = 7;
inline constexpr int kIronCols = 15;
inline constexpr int kWoodCols = 9;

/// Headings of a grid's columns, as `Grid::setFormatString` takes them.
std::string_view clubGridFormat(ClubKind kind);

/// Label of a row in column 0.
std::string_view clubRowLabel(int row);

/// The field that a cell shows; rows and columns count from 1. The columns of the woods skip the
/// numbers that belong to no club.
float& clubField(ClubTables& tables, ClubKind kind, int row, int col);
float clubField(const ClubTables& tables, ClubKind kind, int row, int col);

/// How a cell shows a value of the club set. What is infinite or no number, as a broken file may
/// hold, shows as a number that no cell may hold.
std::string clubCellText(float value);

/// What a cell may hold, both bounds included, and what the user is told otherwise.
struct ClubBounds {
    double least;
    double greatest;
    std::string_view message;
    bool hold(double value) const { return value >= least && value <= greatest; }
};
const ClubBounds& clubBounds(ClubKind kind, int row);

} // namespace parabolt
