#pragma once

#include "cli/shot_options.h"

namespace parabolt::cli {

struct BatchOptions {
    ShotOptions shot; ///< what rows say nothing of
    std::string file = "-";
    std::optional<Format> format;
    bool path = false;
    bool ownAir = false; ///< of a launch monitor's file: its air, where it brings some
};

/// Flies the shots of a table, or of a launch monitor's file, and writes a row for each in its
/// order while it still reads. Memory doesn't grow with the length of a table.
ExitStatus batchCommand(const BatchOptions& options, const Console& console);

} // namespace parabolt::cli
