#pragma once

#include "cli/console.h"
#include "sessions/desk.h"

#include <optional>

namespace parabolt::cli {

/// Reads a session file.
Outcome<Session, Refusal> readSession(const std::string& name, const Console& console);

struct SessionOptions {
    std::string file = "-";
    std::optional<Format> format;
    bool path = false; ///< the points of the paths in the place of the figures
};

/// Writes what a session file holds: the data sets; in JSON all of it, with its time, the fields of
/// the form, the club set, the table and the state of the windows.
ExitStatus sessionCommand(const SessionOptions& options, const Console& console);

} // namespace parabolt::cli
