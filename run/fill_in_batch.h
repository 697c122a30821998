#pragma once

#include "run/pause.h"
#include "run/shot_run.h"

namespace parabolt {

/// Shoots a whole club set, a data set for each club that the list offers, with a pause after each
/// curve. Unless the tables fill in each club's own speed, the head speed falls by the increment in
/// its field from shot to shot and stays there.
class FillInBatch {
public:
    FillInBatch(InputControls& form, ShotRun& run, Pause& pause);

    /// Shoots a shot of the mode Auto with each club in turn. Weather without air is told once, and
    /// nothing is shot.
    void RunFillInBatch(Shot shot);

private:
    bool shoot(const Shot& shot);

    InputControls& form_;
    ShotRun& run_;
    Pause& pause_;
};

} // namespace parabolt
