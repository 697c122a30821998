#pragma once

#include "cli/row_writer.h"
#include "cli/shot_options.h"

namespace parabolt::cli {

/// What is made of a set as CSV or JSON in which `checkClubs` finds a fault.
enum class FaultySet { Refused, Taken };

/// Reads a clubs file: the program's own, or CSV or JSON as `clubs convert` writes them. The
/// content tells which. The values of the program's own may be anything, as in the window.
Outcome<ClubTables, Refusal> readClubs(const std::string& name, const Console& console,
                                       FaultySet faulty = FaultySet::Refused);

/// A file format for club sets.
enum class ClubsFormat { Program, Csv, Json };

/// The content of a clubs file; the reason if the format can't hold the set. CSV holds the clubs
/// without the texts.
Outcome<std::string, std::string> clubsContent(const ClubTables& clubs, ClubsFormat format);

/// The columns of a table of clubs, and the cells of a club.
std::span<const Column> clubColumns();
std::vector<Cell> clubCells(std::string_view name, const ClubRecord& club);

/// What the editor would refuse of a set, a line each: "Driver: Then head weight must ...".
std::vector<std::string> checkClubs(const ClubTables& clubs);

} // namespace parabolt::cli
