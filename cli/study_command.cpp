#include "cli/study_command.h"

#include "cli/fly_command.h"
#include "maps/map_result.h"
#include "shots/climb.h"
#include "shots/fault_words.h"

namespace parabolt::cli {
namespace {

/// The shot with the launch angle or spin that carries furthest.
Outcome<Shot, Fault> climbed(Shot shot, const ClimbRange& range) {
    Climb climb(shot, range);
    while (climb.goesOn())
        if (const auto flown = climb.advance(); !flown)
            return because(flown.why());
    shot.*range.input = static_cast<float>(climb.found());
    return shot;
}

/// The swing with the loft that carries furthest.
Outcome<Shot, Fault> lofted(const Shot& shot) {
    auto swing = baseOf(shot, MapKind::Swing);
    if (!swing)
        return because(swing.why());
    const Reach reach = reachOf(*swing, {});
    if (reach.carry)
        loftInput().set(*swing, reach.carry->loft);
    return *swing;
}

} // namespace

ExitStatus studyCommand(const StudyOptions& options, const Console& console) {
    auto shot = shotOf(options.shot, console);
    if (!shot)
        return console.complain(shot.why());
    const bool isLaunch = shot->Mode == OperatingMode::Launch;
    if (options.study != Study::Loft && !isLaunch)
        return console.complain("A study of launch angle or spin flies a launch: give ball speed, "
                                "launch angle or spin, and no swing.");
    if (options.study == Study::Loft && isLaunch && tellsLaunch(options.shot))
        return console.complain("A study of the loft flies a swing: give head speed, a club and "
                                "the like, and no launch.");
    if (options.study == Study::Loft && isLaunch)
        shot->Mode = OperatingMode::Manual;
    const auto found =
        options.study == Study::Loft
            ? lofted(*shot)
            : climbed(*shot, options.study == Study::Launch ? kLaunchClimb : kSpinClimb);
    if (!found)
        return console.complain(faultDescription(found.why()), ExitStatus::SomeFailed);
    return flyAndWrite(*found, options.format.value_or(console.usualFormat()), options.path,
                       console);
}

} // namespace parabolt::cli
