#pragma once

#include "cli/shot_options.h"

#include <vector>

namespace parabolt::cli {

/// Reads a clubs file: the program's own, or CSV or JSON as `clubs convert` writes them. The
/// content tells which. Values may be anything; `checkClubs` judges them.
Outcome<ClubTables, Refusal> readClubs(const std::string& name, const Console& console);

/// A file format for club sets.
enum class ClubsFormat { Program, Csv, Json };

/// The content of a clubs file; the reason if the format can't hold the set. CSV holds the clubs
/// without the texts.
Outcome<std::string, std::string> clubsContent(const ClubTables& clubs, ClubsFormat format);

/// A club of the set, as the editor has it.
struct ListedClub {
    ClubName name;
    const ClubRecord* record;
};
/// All clubs of the editor, woods first.
std::vector<ListedClub> listedClubs(const ClubTables& clubs);

/// What the editor would refuse of a set, a line each: "W1: Then head weight must ...".
std::vector<std::string> checkClubs(const ClubTables& clubs);

} // namespace parabolt::cli
