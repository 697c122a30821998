#pragma once

#include "cli/console.h"

#include <vector>

namespace parabolt::cli {

/// Runs the command with its arguments, the command's own name left out. Gives the exit status.
int runCommandLine(std::vector<std::string> arguments, const Console& console);

} // namespace parabolt::cli
