#pragma once

#include "engine/club_record.h"
#include "engine/fault.h"
#include "engine/shot_state.h"

#include <optional>

namespace parabolt {

/// Where the impact model takes its inputs from, besides the shot.
struct ImpactSources {
    /// The club whose loft and head mass replace those of the shot; none to keep the shot's own.
    std::optional<ClubRecord> club;
    /// Take the rest of the club's record too: `COR`, `HeadSpeed`, `AttackAngle`, `Bending`.
    bool wholeRecord = false;
    /// A launch angle that was measured: the attack angle then follows from it, not the other way.
    std::optional<double> measuredLaunchAngle;
    friend bool operator==(const ImpactSources&, const ImpactSources&) = default;
};

/// Turns a swing into a launch: sets `RPM` (whole rpm), `LaunchAngle` and `LaunchSpeed` of the
/// shot, and what `sources` replaces. With a measured launch angle it sets `AttackAngle`, to one
/// decimal. Values without a result (only a file can bring them: a head without mass, say) give the
/// fault; the launch is then not to be flown.
Outcome<void, Fault> GetLoftAngle(ShotState& shot, const ImpactSources& sources);

} // namespace parabolt
