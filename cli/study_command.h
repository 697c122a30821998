#pragma once

#include "cli/shot_options.h"

namespace parabolt::cli {

/// What a study looks for: the one value that carries furthest.
enum class Study {
    Launch, ///< the launch angle, in whole degrees, by the climb of the program's study
    Spin,   ///< the spin, in steps of 100 rpm, likewise
    Loft,   ///< the loft of a swing's club, as the carry map finds it
};

struct StudyOptions {
    ShotOptions shot;
    std::optional<Format> format;
    bool path = false;
    Study study = Study::Launch;
};

/// Finds the value, and writes the shot with it as `flyCommand` does.
ExitStatus studyCommand(const StudyOptions& options, const Console& console);

} // namespace parabolt::cli
