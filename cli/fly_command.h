#pragma once

#include "cli/shot_options.h"

namespace parabolt::cli {

struct FlyOptions {
    ShotOptions shot;
    std::optional<Format> format; ///< the usual one if not set
    bool path = false;            ///< the points of the path in the place of the figures
};

/// Flies one shot and writes what came of it.
ExitStatus flyCommand(const FlyOptions& options, const Console& console);

/// Flies a shot and writes it likewise.
ExitStatus flyAndWrite(const Shot& shot, Format format, bool path, const Console& console);

} // namespace parabolt::cli
