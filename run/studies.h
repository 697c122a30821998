#pragma once

#include "run/pause.h"
#include "run/progress_form.h"
#include "run/run_driver.h"

namespace parabolt {

/// Climbs to the launch angle, or to the spin, that carries furthest: up through the values to the
/// first that carries less than the one before, one step back, and one normal run with what was
/// found. Leaves the mode Launch.
class Studies {
public:
    Studies(ShotControls& form, Timer& timer, ShotRun& run, RunDriver& driver, Pause& pause,
            ProgressForm& progress);

    void mnuStyLaunch_Click();
    void mnuStySpin_Click();

private:
    struct Study;
    void study(const Study& study);
    bool climb(const Study& study);
    void set(const Study& study, int value);

    ShotControls& form_;
    Timer& timer_;
    ShotRun& run_;
    RunDriver& driver_;
    Pause& pause_;
    ProgressForm& progress_;
};

} // namespace parabolt
