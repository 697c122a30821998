#pragma once

#include "run/pause.h"
#include "run/progress_form.h"
#include "run/run_driver.h"

namespace parabolt {

/// Climbs to the launch angle, or to the spin, that carries furthest: up through the values with
/// the flight that records nothing, to the first that carries less than the one before, one step
/// back, and one normal run with what was found. Equal carries don't stop the climb. Leaves the
/// mode Launch.
class Studies {
public:
    Studies(MainForm& form, RunDriver& driver, Pause& pause, ProgressForm& progress);

    void mnuStyLaunch_Click();
    void mnuStySpin_Click();

private:
    struct Sweep;
    void study(const Sweep& sweep);
    bool climb(const Sweep& sweep);
    void set(const Sweep& sweep, double value);

    MainForm& form_;
    RunDriver& driver_;
    Pause& pause_;
    ProgressForm& progress_;
};

} // namespace parabolt
