#pragma once

#include "cli/console.h"
#include "cli/shot_inputs.h"

namespace parabolt::cli {

/// The options that describe a shot, as they were typed.
struct ShotOptions {
    std::array<std::optional<std::string>, kShotInputs> inputs; ///< as `shotInputs`
    std::optional<std::string> club;
    std::optional<std::string> ball;
    std::string clubsFile; ///< empty for the default set
};

/// The option of an input: "--ball-speed-mph".
std::string optionOf(const ShotInput& input);

/// The options given that tell a launch, a swing or a club, by name; empty if there are none.
std::string launchOptions(const ShotOptions& options);

/// True if a ball speed, launch angle or spin is given. A launch angle may stand beside a swing.
bool tellsLaunch(const ShotOptions& options);

/// The club set of the file, or the default set.
Outcome<ClubTables, Refusal> clubsFor(const ShotOptions& options, const Console& console);
/// What the options say of a shot. `clubs` must outlive the request.
Outcome<ShotRequest, Refusal> requestOf(const ShotOptions& options, const ClubTables& clubs);
/// The shot of the options.
Outcome<Shot, Refusal> shotOf(const ShotOptions& options, const Console& console);

} // namespace parabolt::cli
