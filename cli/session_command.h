#pragma once

#include "cli/console.h"

#include <optional>

namespace parabolt::cli {

struct SessionOptions {
    std::string file = "-";
    std::optional<Format> format;
    bool path = false; ///< the points of the paths in the place of the figures
};

/// Writes what a session file holds: the data sets; in JSON also its time, what stands in the
/// fields of the form, and the club set.
ExitStatus sessionCommand(const SessionOptions& options, const Console& console);

} // namespace parabolt::cli
