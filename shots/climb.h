#pragma once

#include "shots/fly.h"

namespace parabolt {

/// The values that a climb tries, in the unit of the input.
struct ClimbRange {
    float ShotInputs::*input; ///< what is varied
    int first;                ///< tried first
    int last;                 ///< tried itself, if the steps meet it
    int step;                 ///< from each value to the next, above 0
};

/// The climbs of the studies: to the best launch angle, and to the best spin.
inline constexpr ClimbRange kLaunchClimb{&ShotInputs::LaunchAngle, 2, 55, 1};
inline constexpr ClimbRange kSpinClimb{&ShotInputs::RPM, 0, 22000, 100};

/// Climbs over one input of a shot to the first value that carries less than the one before. Equal
/// carries don't stop it, and a later, higher peak is never reached. A flight that fails carries 0,
/// so that after the first value it ends the climb too. Only flies: no path is kept.
class Climb {
public:
    /// A climb that begins with the first value of the range. All else stays as in the shot.
    Climb(const Shot& shot, const ClimbRange& range);

    /// True until the carry has dropped or the values have ended.
    bool goesOn() const { return !dropped_ && next_ <= range_.last; }
    /// True once a value has carried less than the one before.
    bool dropped() const { return dropped_; }
    /// The value that `advance` will try next.
    int next() const { return next_; }
    /// Flies the next value. The fault if there is no air or no launch for it.
    Outcome<void, Fault> advance();
    /// One step back from the last value that was tried: the one that carries furthest, once the
    /// climb has ended.
    int found() const { return next_ - 2 * range_.step; }

private:
    Shot shot_;
    ClimbRange range_;
    int next_;
    float previous_ = 0; ///< carry of the value before, yards
    bool dropped_ = false;
};

} // namespace parabolt
