#pragma once

#include "cli/console.h"
#include "cli/shot_inputs.h"

namespace parabolt::cli {

/// Why something can't be done, and how the command ends for it.
struct Refusal {
    std::string message;
    ExitStatus status = ExitStatus::BadInput;
};

/// The options that describe a shot, as they were typed.
struct ShotOptions {
    std::array<std::optional<std::string>, kShotInputs> inputs; ///< as `shotInputs`
    std::optional<std::string> club;
    std::optional<std::string> ball;
    std::string clubsFile; ///< empty for the default set
};

/// The option of an input: "--ball-speed-mph".
std::string optionOf(const ShotInput& input);

/// The club set of the file, or the default set.
Outcome<ClubTables, Refusal> clubsFor(const ShotOptions& options, const Console& console);
/// What the options say of a shot. `clubs` must outlive the request.
Outcome<ShotRequest, Refusal> requestOf(const ShotOptions& options, const ClubTables& clubs);
/// The shot of the options.
Outcome<Shot, Refusal> shotOf(const ShotOptions& options, const Console& console);

} // namespace parabolt::cli
