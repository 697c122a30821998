#pragma once

#include "cli/shot_options.h"

namespace parabolt::cli {

struct NormaliseOptions {
    ShotOptions shot; ///< the conditions in which the shots were hit
    std::string file = "-";
    std::optional<Format> format;
    bool ownAir = false; ///< take the air from the file where it brings some
    /// The calm air that all carries are brought to, as typed; sea level in mild weather where
    /// nothing is said.
    std::optional<std::string> altitude, temperature, pressure, humidity;
};

/// Reads a launch monitor's file and writes each shot with the carry that it would have in calm
/// air.
ExitStatus normaliseCommand(const NormaliseOptions& options, const Console& console);

} // namespace parabolt::cli
