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
    ShotOptions shot; ///< weather and ball
    // Of the bag, as typed; what isn't given is that of the session, or the usual.
    std::string session; ///< file of the session that has the bag; empty for the usual bag
    std::optional<std::string> firstSpeed, fall;  ///< mph: speeds fall from club to club
    std::optional<std::string> narrowest, widest; ///< yards: gaps beyond are marked
};

/// Reads, checks and converts clubs files, and flies the bag.
ExitStatus clubsCommand(const ClubsOptions& options, const Console& console);

} // namespace parabolt::cli
