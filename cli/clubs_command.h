#pragma once

#include "cli/club_files.h"

namespace parabolt::cli {

struct ClubsOptions {
    enum class Action {
        List,    ///< the clubs of a set
        Check,   ///< what the editor would refuse of it
        Convert, ///< into another file format
        Fly,     ///< the clubs' flights with the gaps between them
    } action = Action::List;
    std::string file; ///< empty for the default set
    std::optional<Format> format;
    std::string target = "-"; ///< of a conversion: a file, or the standard output
    std::optional<ClubsFormat> to;
    ShotOptions shot;     ///< weather and ball
    double narrowest = 8; ///< yards: a gap below is marked
    double widest = 18;   ///< yards: a gap above is marked
};

/// Reads, checks and converts clubs files, and flies the bag.
ExitStatus clubsCommand(const ClubsOptions& options, const Console& console);

} // namespace parabolt::cli
